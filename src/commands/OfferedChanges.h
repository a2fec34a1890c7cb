#pragma once

#include "recovery/LeftOvers.h"

#include <vector>

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

namespace Commands {

// Asks about the left-over changes that have to do with the open file, the latest first, and says why others cannot be
// had. Those that do not fit the table, or are damaged, are set aside with a message. Returns the files whose changes
// are wanted, the oldest first. They are locked, and their changes are those of the open file's slots.
[[nodiscard]] std::vector<CommonRoutines::LeftOver> WantedChanges(CommonRoutines::Desktop& desktop);

} // namespace Commands
