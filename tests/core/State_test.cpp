#include "core/State.h"

#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using State = StateTest;

TEST_F(State, NumbersOfDistrictLinesAreDistricts) {
    const auto first = AddDistrict("Smithton");
    const auto second = AddDistrict("Upper Smithton");
    EXPECT_TRUE(IsDistrict(first));
    EXPECT_TRUE(IsDistrict(second));
}

TEST_F(State, RetainedLinesAreNoDistricts) {
    AddDistrict("Smithton");
    EXPECT_FALSE(IsDistrict(AddRetained("# a comment")));
}

TEST_F(State, NumbersOutsideTheTableAreNoDistricts) {
    EXPECT_FALSE(IsDistrict(1));
    AddDistrict("Smithton");
    EXPECT_FALSE(IsDistrict(0));
    EXPECT_FALSE(IsDistrict(-1));
    EXPECT_FALSE(IsDistrict(2));
}

// After Quit the count drops to 0 while the records may still be there.
TEST_F(State, LinesBeyondTheCountAreNoDistricts) {
    AddDistrict("Smithton");
    lLineCount = 0;
    EXPECT_FALSE(IsDistrict(1));
}

TEST_F(State, TheModesKeepTheirNumbers) {
    EXPECT_EQ(NothingOpen, 1);
    EXPECT_EQ(OneSelected, 2);
    EXPECT_EQ(FileOpen, 3);
    EXPECT_EQ(DistrictIdle, 4);
    EXPECT_EQ(ChangesApplied, 5);
    EXPECT_EQ(EditingVariation, 6);
    EXPECT_EQ(AddingUnacceptable, 8);
    EXPECT_EQ(AddingAcceptable, 9);
    EXPECT_EQ(SeveralSelected, 10);
}

TEST_F(State, TheRepairActionsAreNumberedAsTheirButtonsStand) {
    EXPECT_EQ(CombinePrevious, 1);
    EXPECT_EQ(CombineNext, 2);
    EXPECT_EQ(Remove, 3);
    EXPECT_EQ(Type, 4);
    EXPECT_EQ(Quit, 5);
}

void SpoilTheTable() {
    AddDistrict("Smithton", {"Smithtown"});
    sDataFileName = "/data/districts.txt";
    bChanged = true;
    lCurrentDistrict = 1;
    lDistrictTotal = lInvalidTotal = lCapsOkTotal = 7;
    iRepairAction = Quit;
    DupePairs.resize(3);
    lDupePairCount = 2;
}

void SpoilWhatTheRulesLeave() {
    sInvalidReason = sWarningReason = "reason";
    bWarning = true;
    sMarkerPrefix = "!";
    sMarkerSuffix = "%12";
    lFoundVariation = 4;
}

void SpoilTheWindow() {
    iEditMode = SeveralSelected;
    bIgnoreEvents = true;
    lEditIndex = 3;
    iLastAction = AddStarted;
}

TEST_F(State, AResetEmptiesTheTable) {
    SpoilTheTable();
    ResetState();
    EXPECT_TRUE(Districts.empty());
    EXPECT_EQ(lLineCount, 0);
    EXPECT_EQ(sDataFileName, "");
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(lCurrentDistrict, 0);
    EXPECT_EQ(lDistrictTotal, 0);
    EXPECT_EQ(lInvalidTotal, 0);
    EXPECT_EQ(lCapsOkTotal, 0);
    EXPECT_EQ(iRepairAction, NoRepair);
    EXPECT_TRUE(DupePairs.empty());
    EXPECT_EQ(lDupePairCount, 0);
}

TEST_F(State, AResetForgetsWhatTheRulesLeft) {
    SpoilWhatTheRulesLeave();
    ResetState();
    EXPECT_EQ(sInvalidReason, "");
    EXPECT_EQ(sWarningReason, "");
    EXPECT_FALSE(bWarning);
    EXPECT_EQ(sMarkerPrefix, "");
    EXPECT_EQ(sMarkerSuffix, "");
    EXPECT_EQ(lFoundVariation, 0);
}

TEST_F(State, AResetPutsTheWindowBackToItsStart) {
    SpoilTheWindow();
    ResetState();
    EXPECT_EQ(iEditMode, NothingOpen);
    EXPECT_FALSE(bIgnoreEvents);
    EXPECT_EQ(lEditIndex, 0);
    EXPECT_EQ(iLastAction, NoAction);
}

} // namespace
