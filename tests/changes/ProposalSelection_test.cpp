#include "changes/ProposalSelection.h"

#include <gtest/gtest.h>

#include <vector>

using namespace CommonRoutines;

namespace {

constexpr bool Ticked = true;

const Proposal ValidTicked{"Elm", Proposal::Valid, false, Ticked};
const Proposal ValidOpen{"Oak", Proposal::Valid, false, !Ticked};
const Proposal WarnedTicked{"As_h", Proposal::Valid, true, Ticked};
const Proposal InvalidTicked{"!", Proposal::Invalid, false, Ticked};
const Proposal HeadingTicked{"NAME", Proposal::Heading, false, Ticked};

void ExpectSelection(const std::vector<Proposal>& proposals, const ProposalSelection& expected) {
    const ProposalSelection selection = DescribeProposalSelection(proposals);
    EXPECT_EQ(selection.lCheckedChanges, expected.lCheckedChanges);
    EXPECT_EQ(selection.count, expected.count);
    EXPECT_EQ(selection.applySelected, expected.applySelected);
    EXPECT_EQ(selection.applyAll, expected.applyAll);
    EXPECT_EQ(selection.edit, expected.edit);
}

} // namespace

TEST(ProposalSelection, CountsTheTickedRowsThatMayBeApplied) {
    EXPECT_EQ(CountCheckedChanges({}), 0);
    const std::vector<Proposal> proposals{ValidTicked, ValidOpen, InvalidTicked, HeadingTicked, WarnedTicked};
    EXPECT_EQ(CountCheckedChanges(proposals), 2);
}

TEST(ProposalSelection, WithoutRowsNoCommandMakesSense) {
    ExpectSelection({}, {0, "", false, false, false});
}

TEST(ProposalSelection, WithoutTicksAllMayBeApplied) {
    ExpectSelection({ValidOpen, ValidOpen}, {0, "", false, true, false});
}

TEST(ProposalSelection, OneTickedRowMayBeAppliedOrEdited) {
    ExpectSelection({ValidOpen, ValidTicked}, {1, "Selected=1", true, false, true});
}

TEST(ProposalSelection, SeveralTickedRowsMayOnlyBeApplied) {
    ExpectSelection({ValidTicked, ValidOpen, WarnedTicked}, {2, "Selected=2", true, false, false});
}

TEST(ProposalSelection, RowsThatMayNotBeAppliedDoNotCountAsTicked) {
    ExpectSelection({InvalidTicked, HeadingTicked}, {0, "", false, true, false});
    ExpectSelection({InvalidTicked, ValidTicked}, {1, "Selected=1", true, false, true});
}
