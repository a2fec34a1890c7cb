#pragma once

#include "core/Records.h"
#include "edit/VariationStates.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// A row of lvVariations. Its text is that of the variation.
struct VariationRow {
    std::int32_t slot = 0; // of the variation in its district
    VariationState state = VariationState::Plain;
};

struct VariationList {
    std::vector<VariationRow> rows; // by upper-cased text, equal texts in file order
    std::string summary;            // the counts of problems, a line each; empty when there are none
};

// Why a variation of a district has a state: what is invalid or suspicious, or of which other one it is a
// duplicate; empty for a plain one.
[[nodiscard]] std::string ReasonOf(VariationState state, std::int32_t lDistrict, const VariationRecord& variation);

// Runs the checks of a variation.
[[nodiscard]] VariationState StateOfVariation(const VariationRecord& variation);

// Lists the variations of a district, deleted slots aside. Writes the counts of the district's record that
// the table of states leaves to the list, and sets its question count to 0.
[[nodiscard]] VariationList ListVariations(std::int32_t lDistrict);

} // namespace CommonRoutines
