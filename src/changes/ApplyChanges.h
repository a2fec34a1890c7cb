#pragma once

#include "changes/Proposal.h"

#include <cstdint>
#include <optional>
#include <span>

namespace CommonRoutines {

class Desktop;

// What became of the proposals.
struct AppliedProposals {
    std::int32_t added = 0;
    std::int32_t invalid = 0; // no valid proposals, ticked or not
    std::int32_t ignored = 0; // proposals that the district had already
};

// Adds the valid proposals, or the ticked ones of them, to lCurrentDistrict, as spelling mistakes when
// that is asked for, and records them as one undo step. More than twenty are only added after a
// question; nothing is returned when the answer is No.
//
// Leaves in DupePairs the ignored proposals with the texts that they repeat and, behind them, the
// duplicates of the district. Sets bChanged when something was added.
std::optional<AppliedProposals> ApplyChanges(std::span<const Proposal> proposals, bool bSelectedOnly, bool bAsSpelling,
                                             Desktop& desktop);

// Says what was done and, where there are duplicates, lists them.
void ReportAppliedProposals(const AppliedProposals& applied, Desktop& desktop);

} // namespace CommonRoutines
