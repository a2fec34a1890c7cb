#pragma once

#include "core/Records.h"

#include <cstdint>
#include <string_view>

// The slots of lCurrentDistrict, which must name a district.
namespace CommonRoutines {

[[nodiscard]] DistrictRecord& CurrentDistrict();

// The variation in a slot, 1 to lVariationCount.
[[nodiscard]] VariationRecord& VariationInCurrentDistrict(std::int32_t slot);

// The first slot with exactly this text; 0 when there is none.
[[nodiscard]] std::int32_t FirstSlotWith(std::string_view text);

// Gives the variation in a slot another text. Everything that changes a variation after reading comes
// through here or through AddSlot, so that what is kept about the texts follows, and so that the change
// is noted as unsaved; the command that made it has it written (Unsaved.Write) before it ends.
void StoreText(std::int32_t slot, std::string_view text);

// Adds a slot with a text behind the last one and returns it, making room for `spare` more when the
// array has to grow.
std::int32_t AddSlot(std::string_view text, std::int32_t spare = 0);

} // namespace CommonRoutines
