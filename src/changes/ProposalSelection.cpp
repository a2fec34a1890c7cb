#include "changes/ProposalSelection.h"

#include <algorithm>

namespace CommonRoutines {

std::int32_t CountCheckedChanges(std::span<const Proposal> proposals) {
    return static_cast<std::int32_t>(std::count_if(proposals.begin(), proposals.end(), [](const Proposal& proposal) {
        return proposal.ticked && proposal.tag == Proposal::Valid;
    }));
}

ProposalSelection DescribeProposalSelection(std::span<const Proposal> proposals) {
    ProposalSelection selection;
    selection.lCheckedChanges = CountCheckedChanges(proposals);
    const bool any = selection.lCheckedChanges > 0;
    if (any) {
        selection.count = "Selected=" + std::to_string(selection.lCheckedChanges);
    }
    selection.applySelected = any;
    selection.applyAll = !any && !proposals.empty();
    selection.edit = selection.lCheckedChanges == 1;
    return selection;
}

} // namespace CommonRoutines
