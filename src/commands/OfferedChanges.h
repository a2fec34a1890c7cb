#pragma once

#include "recovery/LeftOvers.h"

#include <string>
#include <vector>

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

namespace Commands {

struct OfferedChanges {
    // The files whose changes are wanted, the oldest first. They are locked, and the changes are to the open file.
    std::vector<CommonRoutines::LeftOver> wanted;
    // The names of those of other paths that were offered and are left for another time.
    std::vector<std::string> putOff;
};

// Asks about the left-over changes that have to do with the open file, the latest first, and says why others cannot be
// had. Those that do not fit the table, or are damaged, are set aside with a message.
[[nodiscard]] OfferedChanges OfferChanges(CommonRoutines::Desktop& desktop);

} // namespace Commands
