#pragma once

#include <string>
#include <vector>

namespace CommonRoutines {

// What a report window shows: lines of text under a caption. A line may itself hold line breaks.
struct Report {
    std::string caption = "Duplicate Check";
    std::vector<std::string> items;
    bool canPrintAndSave = true;
};

} // namespace CommonRoutines
