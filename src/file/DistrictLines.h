#pragma once

#include <cstddef>

namespace CommonRoutines {

class Desktop;

// Reads the lines of sTableContent, about `lineCount`, into Districts, whose texts become parts of it: has what is
// wrong told and repaired on the way, counts, and shows the report of it. Quitting a repair leaves the lines up to
// there.
void ReadDistrictLines(Desktop& desktop, std::size_t lineCount);

} // namespace CommonRoutines
