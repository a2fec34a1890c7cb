#pragma once

#include "changes/Proposal.h"

#include <cstdint>
#include <span>
#include <string>

namespace CommonRoutines {

// Which commands make sense for the proposals that are ticked.
struct ProposalSelection {
    std::int32_t lCheckedChanges = 0;
    std::string count; // for lbSelectCount; empty when no row is ticked
    bool applySelected = false;
    bool applyAll = false;
    bool edit = false;
};

// Counts the ticked rows that may be applied.
[[nodiscard]] std::int32_t CountCheckedChanges(std::span<const Proposal> proposals);

[[nodiscard]] ProposalSelection DescribeProposalSelection(std::span<const Proposal> proposals);

} // namespace CommonRoutines
