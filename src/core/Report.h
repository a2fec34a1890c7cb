#pragma once

#include <string>
#include <vector>

namespace CommonRoutines {

// What a report window shows: lines of text under a caption. A line may itself hold line breaks.
struct Report {
    std::string sCaption = "Duplicate Check";
    std::vector<std::string> Items;
    bool bCanPrintAndSave = true;
};

} // namespace CommonRoutines
