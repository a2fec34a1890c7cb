#pragma once

#include "core/Records.h"

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace CommonRoutines {

class Desktop;

// A column of the districts list.
struct DistrictColumn {
    std::string_view heading;
    std::variant<std::string_view (DistrictRecord::*)() const, std::int16_t DistrictRecord::*> field;
    std::string_view padding; // how much wider than its widest cell the column is
};

// The columns of the districts list. The first is the name, by which the list is sorted.
inline constexpr auto DistrictColumnTable = std::to_array<DistrictColumn>({
    {"Name", &DistrictRecord::Name, "W"},
    {"Volume", &DistrictRecord::Volume, "WW"},
    {"County", &DistrictRecord::County, "WW"},
    {"Founded", &DistrictRecord::Founded, "WW"},
    {"QtrF", &DistrictRecord::QtrF, "WW"},
    {"Abolished", &DistrictRecord::Abolished, "WW"},
    {"QtrA", &DistrictRecord::QtrA, "WW"},
});

// What a district has in a column of the table; of a text no more than its first `longest` characters.
[[nodiscard]] std::string DistrictCell(const DistrictRecord& record, std::size_t column,
                                       std::size_t longest = std::string_view::npos);

// True when anything is wrong with the district or its variations; its row is then red.
[[nodiscard]] bool DistrictHasProblem(const DistrictRecord& record);

// What is wrong, each kind with its count: "invalid: 1, duplicate: 2"; empty where nothing is, or where there is no
// count for it.
[[nodiscard]] std::string ProblemsOf(const DistrictRecord& record);

// A district in the order of names, and a part of a hash of its name without markers and case.
struct NamedDistrict {
    std::int32_t line = 0;
    std::uint32_t name = 0;
};

// All districts of the table, by upper-cased name in the order of the character codes, equal names in file order.
// `visit` is called for each line once, in file order: of a large file, a look at its lines is what takes time.
[[nodiscard]] std::vector<NamedDistrict> DistrictsByName(const std::function<void(std::int32_t line)>& visit =
                                                             [](std::int32_t) {});
// Their lines.
[[nodiscard]] std::vector<std::int32_t> LinesOf(std::span<const NamedDistrict> districts);

// Those of `districts` that have a comment of the type; the type "All", in any case and with blanks
// around it or not, stands for every district.
[[nodiscard]] std::vector<std::int32_t> DistrictsOfType(std::span<const std::int32_t> districts, std::string_view type);

// Says which neighbours of the sorted list have the same name, markers and case aside, until the
// user presses Cancel.
void ReportDuplicatedDistricts(std::span<const NamedDistrict> districts, Desktop& desktop);

} // namespace CommonRoutines
