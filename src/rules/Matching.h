#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace CommonRoutines {

// The one rule for when two variations are the same spelling. Case and the "!" marker do not count. The years
// of their districts do when both carry the date mark, the volumes when both name one or when the districts
// differ. A deleted slot matches nothing. Overwrites sMarkerPrefix and sMarkerSuffix.
[[nodiscard]] bool SameVariation(std::string_view a, std::string_view b, std::int32_t districtA,
                                 std::int32_t districtB);

// Where a district has the same spelling as `v` already: the slot of the first such variation, or 0 for
// the district's own name. Nothing when the spelling is new to the district.
[[nodiscard]] std::optional<std::int32_t> FindSpelling(std::int32_t lDistrict, std::string_view v);

// The text that `v` would repeat: that variation, or the name. Nothing when the spelling is new. The text
// is that of the table, and lasts as long as it stays there.
[[nodiscard]] std::optional<std::string_view> RepeatedText(std::int32_t lDistrict, std::string_view v);

// FindSpelling in lCurrentDistrict, for what reads the slot in the shared state: true when `v` is not new.
// Leaves the slot of a variation in lFoundVariation; the name leaves lFoundVariation alone. Overwrites
// sMarkerPrefix and sMarkerSuffix.
[[nodiscard]] bool FindVariationInDistrict(std::string_view v);

} // namespace CommonRoutines
