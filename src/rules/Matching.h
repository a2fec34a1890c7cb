#pragma once

#include <cstdint>
#include <string_view>

namespace CommonRoutines {

// The one rule for when two variations are the same spelling. Case and the "!" marker do not count;
// the years of their districts do when both carry the date mark, the volumes when both name one or
// when the districts differ. A deleted slot matches nothing. Overwrites sMarkerPrefix and sMarkerSuffix.
[[nodiscard]] bool SameVariation(std::string_view a, std::string_view b, std::int32_t districtA,
                                 std::int32_t districtB);

// True when `v` is the same as a variation of lCurrentDistrict, whose slot is then left in
// lFoundVariation, or as the district's own name, which leaves lFoundVariation alone.
[[nodiscard]] bool FindVariationInDistrict(std::string_view v);

} // namespace CommonRoutines
