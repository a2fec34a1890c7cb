#pragma once

#include "core/Records.h"

#include <cstdint>
#include <span>
#include <string_view>

// The slots of a district. Every change of a variation comes through StoreText, AddSlot or RestoreSlots: what is
// kept about the texts follows, and the change is noted as unsaved. It is written when the command ends.
namespace CommonRoutines {

// The variation in a slot, 1 to lVariationCount.
[[nodiscard]] VariationRecord& VariationOf(std::int32_t lDistrict, std::int32_t slot);

// The first slot with exactly this text; 0 when there is none.
[[nodiscard]] std::int32_t FirstSlotWith(std::int32_t lDistrict, std::string_view text);

// Gives the variation in a slot another text; the same text is no change.
void StoreText(std::int32_t lDistrict, std::int32_t slot, std::string_view text);

// Adds a slot with a text behind the last one and returns it, making room for `spare` more when the
// array has to grow.
std::int32_t AddSlot(std::int32_t lDistrict, std::string_view text, std::int32_t spare = 0);

// Gives a district these texts, at least as many as it has slots. The caller notes the changes.
void RestoreSlots(std::int32_t lDistrict, std::span<const std::string_view> texts);

} // namespace CommonRoutines
