#include "changes/ChangeSelection.h"

#include <gtest/gtest.h>

#include <vector>

using namespace CommonRoutines;

namespace {

constexpr bool Ticked = true;

const ChangeRow ValidTicked{"Elm", ChangeRow::Valid, false, Ticked};
const ChangeRow ValidOpen{"Oak", ChangeRow::Valid, false, !Ticked};
const ChangeRow WarnedTicked{"As_h", ChangeRow::Valid, true, Ticked};
const ChangeRow InvalidTicked{"!", ChangeRow::Invalid, false, Ticked};
const ChangeRow HeadingTicked{"NAME", ChangeRow::Heading, false, Ticked};

void ExpectSelection(const std::vector<ChangeRow>& rows, const ChangeSelection& expected) {
    const ChangeSelection selection = DescribeChangeSelection(rows);
    EXPECT_EQ(selection.lCheckedChanges, expected.lCheckedChanges);
    EXPECT_EQ(selection.count, expected.count);
    EXPECT_EQ(selection.applySelected, expected.applySelected);
    EXPECT_EQ(selection.applyAll, expected.applyAll);
    EXPECT_EQ(selection.edit, expected.edit);
}

} // namespace

TEST(ChangeSelection, CountsTheTickedRowsThatMayBeApplied) {
    EXPECT_EQ(CountCheckedChanges({}), 0);
    const std::vector<ChangeRow> rows{ValidTicked, ValidOpen, InvalidTicked, HeadingTicked, WarnedTicked};
    EXPECT_EQ(CountCheckedChanges(rows), 2);
}

TEST(ChangeSelection, WithoutRowsNoCommandMakesSense) {
    ExpectSelection({}, {0, "", false, false, false});
}

TEST(ChangeSelection, WithoutTicksAllMayBeApplied) {
    ExpectSelection({ValidOpen, ValidOpen}, {0, "", false, true, false});
}

TEST(ChangeSelection, OneTickedRowMayBeAppliedOrEdited) {
    ExpectSelection({ValidOpen, ValidTicked}, {1, "Selected=1", true, false, true});
}

TEST(ChangeSelection, SeveralTickedRowsMayOnlyBeApplied) {
    ExpectSelection({ValidTicked, ValidOpen, WarnedTicked}, {2, "Selected=2", true, false, false});
}

TEST(ChangeSelection, RowsThatMayNotBeAppliedDoNotCountAsTicked) {
    ExpectSelection({InvalidTicked, HeadingTicked}, {0, "", false, true, false});
    ExpectSelection({InvalidTicked, ValidTicked}, {1, "Selected=1", true, false, true});
}
