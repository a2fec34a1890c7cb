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

// Adds an empty slot behind the last one and returns it, making room for `spare` more when the array
// has to grow.
std::int32_t AddSlot(std::int32_t spare = 0);

} // namespace CommonRoutines
