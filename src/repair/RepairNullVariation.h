#pragma once

#include "core/Records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace CommonRoutines {

class Desktop;

// Lets the user repair the variation at `index` of a line's fields, which is only a marker, and asks
// until that has been done. `district.lVariationCount` bounds the next neighbour; `position` is the
// number of the line.
//
// Leaves the choice in iRepairAction and, unless it was Quit, sets bChanged; overwrites
// `variations[index]` with the repaired text (a removed one with DeletedText) and no other entry.
// Returns false only for Quit. Each pass runs ValidateVariation on the joins, and so leaves its state.
bool RepairNullVariation(const DistrictRecord& district, std::vector<std::string>& variations, std::int32_t index,
                         std::int32_t position, Desktop& desktop);

} // namespace CommonRoutines
