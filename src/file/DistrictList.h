#pragma once

#include "core/Records.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

class Desktop;

// The columns of the districts list.
inline constexpr std::array<std::string_view, 7> DistrictHeadings{"Name", "Volume",    "County", "Founded",
                                                                  "QtrF", "Abolished", "QtrA"};

[[nodiscard]] std::string DistrictCell(const DistrictRecord& record, std::size_t column);

// True when anything is wrong with the district or its variations; its row is then red.
[[nodiscard]] bool DistrictHasProblem(const DistrictRecord& record);

// The indices of all districts of the table, by upper-cased name in the order of the character
// codes, equal names in file order.
[[nodiscard]] std::vector<std::int32_t> DistrictsByName();

// Those of `districts` that have a comment of the type; the type "All", in any case and with blanks
// around it or not, stands for every district.
[[nodiscard]] std::vector<std::int32_t> DistrictsOfType(std::span<const std::int32_t> districts, std::string_view type);

// Says which neighbours of the sorted list have the same name, markers and case aside, until the
// user presses Cancel.
void ReportDuplicatedDistricts(std::span<const std::int32_t> districts, Desktop& desktop);

} // namespace CommonRoutines
