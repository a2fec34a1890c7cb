#include "edit/EditPanel.h"

#include "edit/EditTest.h"

using namespace CommonRoutines;

namespace {

class CommitTextTest : public EditTest {
protected:
    CommitTextTest() { Show("North", {"Ash", "Elm", "Oak"}); }

    Committed Add(const std::string& text) {
        iEditMode = AddingAcceptable;
        return CommitText(text, m_desktop);
    }

    Committed Edit(std::int32_t slot, const std::string& text) {
        lEditIndex = slot;
        iEditMode = EditingVariation;
        return CommitText(text, m_desktop);
    }
};

} // namespace

// Adding

TEST_F(CommitTextTest, ANewVariationBecomesTheLastOne) {
    EXPECT_TRUE(Add("Yew").stored);
    EXPECT_EQ(Slots(), (Texts{"Ash", "Elm", "Oak", "Yew"}));
    EXPECT_EQ(iEditMode, AddingAcceptable) << "the caller sets it";
    EXPECT_TRUE(bChanged);
}

TEST_F(CommitTextTest, ANewVariationIsRecordedAsAnAdd) {
    Add("Yew");
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Add Yew to North");
    EXPECT_EQ(TakeItem(), "1 [Yew] [] in 1");
    EXPECT_EQ(CurrentUndoStep().Count(), 0);
}

TEST_F(CommitTextTest, ANewVariationIsStoredAndRecordedWithoutBlanksAtItsEnds) {
    Add("  Upper Yew ");
    EXPECT_EQ(Slots().back(), "Upper Yew");
    EXPECT_EQ(TakeItem(), "1 [Upper Yew] [] in 1");
}

TEST_F(CommitTextTest, ANewVariationDoesNotReuseADeletedSlot) {
    VariationAt(1, 2).Text = DeletedText;
    Add("Yew");
    EXPECT_EQ(Slots(), (Texts{"Ash", "\t", "Oak", "Yew"}));
}

TEST_F(CommitTextTest, ANewVariationDoesNotTouchTheOneAtTheEditIndex) {
    lEditIndex = 2;
    Add("Yew");
    EXPECT_EQ(Slots(), (Texts{"Ash", "Elm", "Oak", "Yew"}));
}

TEST_F(CommitTextTest, ADistrictWithoutVariationsGetsItsFirstInSlotOne) {
    Show("Empty");
    VariationAt(lCurrentDistrict, 1) = {"left from before", true, true, 9};
    Add("Yew");
    EXPECT_EQ(Slots(), Texts{"Yew"});
    EXPECT_EQ(DistrictAt(lCurrentDistrict).Variations.size(), 2U);
    EXPECT_FALSE(VariationAt(lCurrentDistrict, 1).bDuplicate);
    EXPECT_FALSE(VariationAt(lCurrentDistrict, 1).bUnusualCaps);
}

TEST_F(CommitTextTest, TheDistrictGrowsWithEveryAdd) {
    Texts expected{"Ash", "Elm", "Oak"};
    for (int i = 1; i <= 200; ++i) {
        expected.push_back("Yew " + std::to_string(i));
        Add(expected.back());
    }
    EXPECT_EQ(Slots(), expected);
    EXPECT_EQ(CurrentUndoStep().Count(), 200);
    EXPECT_EQ(TakeItem(), "1 [Yew 200] [] in 1");
}

TEST_F(CommitTextTest, OtherDistrictsStayAsTheyAre) {
    Show("South", {"Yew"});
    Add("Fir");
    Edit(1, "Larch");
    EXPECT_EQ(SlotsOf(1), (Texts{"Ash", "Elm", "Oak"}));
    EXPECT_EQ(SlotsOf(2), (Texts{"Larch", "Fir"}));
    EXPECT_EQ(TakeItem(), "2 [Larch] [Yew] in 2");
    EXPECT_EQ(TakeItem(), "1 [Fir] [] in 2");
}

// Editing

TEST_F(CommitTextTest, AnEditReplacesTheVariationAtTheEditIndex) {
    EXPECT_TRUE(Edit(2, "Yew").stored);
    EXPECT_EQ(Slots(), (Texts{"Ash", "Yew", "Oak"}));
    EXPECT_EQ(iEditMode, EditingVariation) << "the caller sets it";
    EXPECT_TRUE(bChanged);
}

TEST_F(CommitTextTest, AnEditIsRecordedAsAChange) {
    Edit(2, "Yew");
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Change Elm to Yew");
    EXPECT_EQ(TakeItem(), "2 [Yew] [Elm] in 1");
    EXPECT_EQ(CurrentUndoStep().Count(), 0);
}

TEST_F(CommitTextTest, AnEditIsTrimmedButTheOldTextIsRecordedAsItStood) {
    VariationAt(1, 2).Text = " Elm ";
    Edit(2, " Yew ");
    EXPECT_EQ(Slots()[1], "Yew");
    EXPECT_EQ(TakeItem(), "2 [Yew] [ Elm ] in 1");
}

TEST_F(CommitTextTest, AnInvalidEditIsStored) {
    for (const char* text : {"!!Yew", "Yew%", "!", "", "Yew|Fir", "Ash"}) {
        EXPECT_TRUE(Edit(2, text).stored) << text;
        EXPECT_EQ(Slots()[1], text);
    }
    EXPECT_EQ(CurrentUndoStep().Count(), 6);
}

TEST_F(CommitTextTest, AnEditThatChangesNothingIsRecordedToo) {
    Edit(2, "Elm");
    EXPECT_EQ(TakeItem(), "2 [Elm] [Elm] in 1");
    EXPECT_TRUE(bChanged);
}

TEST_F(CommitTextTest, AnEditOfNothingStoresNothing) {
    EXPECT_FALSE(Edit(0, "Yew").stored);
    EXPECT_EQ(Slots(), (Texts{"Ash", "Elm", "Oak"}));
    EXPECT_EQ(iEditMode, EditingVariation);
    ExpectNothingRecorded();
}

// Other modes

TEST_F(CommitTextTest, InEveryOtherModeNothingIsStoredOrRecordedAndTheModeStays) {
    lEditIndex = 2;
    for (const auto mode : std::to_array<std::int16_t>({2, 3, 4, 5, 7, 8, 10})) {
        iEditMode = mode;
        EXPECT_FALSE(CommitText("Yew", m_desktop).stored) << mode;
        EXPECT_EQ(Slots(), (Texts{"Ash", "Elm", "Oak"})) << mode;
        EXPECT_EQ(iEditMode, mode);
        ExpectNothingRecorded();
    }
}

TEST_F(CommitTextTest, InEveryOtherModeTheTextIsStillCheckedAndTheFileCountsAsChanged) {
    iEditMode = AddingUnacceptable;
    VariationAt(1, 2).Text = "ash";
    EXPECT_EQ(CommitText("Y_w", m_desktop).warning, "Should have !");
    EXPECT_TRUE(VariationAt(1, 2).bDuplicate);
    EXPECT_TRUE(bChanged);
}

// The check after it

TEST_F(CommitTextTest, AWarningIsToldAndTheVariationStored) {
    const Committed committed = Add("Caf\xE9");
    EXPECT_TRUE(committed.stored);
    EXPECT_EQ(committed.warning, "Unusual char at position 4 (Char=233)");
    EXPECT_EQ(Slots().back(), "Caf\xE9");
}

TEST_F(CommitTextTest, TheTextIsCheckedBeforeItIsTrimmed) {
    EXPECT_EQ(Add("  Caf\xE9").warning, "Unusual char at position 6 (Char=233)");
}

TEST_F(CommitTextTest, AnUnsuspiciousTextHasNoWarning) {
    Add("Caf\xE9");
    EXPECT_EQ(Add("Yew").warning, "");
}

TEST_F(CommitTextTest, ATextRefusedBeforeTheWarningStageHasNoWarningOfAnEarlierOne) {
    ASSERT_NE(Add("Caf\xE9").warning, "");
    EXPECT_EQ(Edit(1, "Yew%").warning, "");
}

TEST_F(CommitTextTest, ARefusedTextMayHaveAWarning) {
    EXPECT_EQ(Edit(1, "!!Caf\xE9").warning, "Unusual char at position 6 (Char=233)");
}

TEST_F(CommitTextTest, TheSharedResultOfAnEarlierCheckStays) {
    sInvalidReason = sWarningReason = "untouched";
    Add("!!Caf\xE9");
    EXPECT_EQ(sInvalidReason, "untouched");
    EXPECT_EQ(sWarningReason, "untouched");
    EXPECT_FALSE(bWarning);
}

TEST_F(CommitTextTest, TheDuplicatesOfTheDistrictAreLookedForAgain) {
    Edit(2, "!ASH");
    EXPECT_TRUE(VariationAt(1, 1).bDuplicate);
    EXPECT_EQ(VariationAt(1, 1).lDuplicateOf, 2);
    EXPECT_TRUE(VariationAt(1, 2).bDuplicate);
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 1);
    Edit(2, "Elm");
    EXPECT_FALSE(VariationAt(1, 1).bDuplicate);
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 0);
}

TEST_F(CommitTextTest, ThePairsOfEarlierSearchesAreForgotten) {
    Edit(2, "Ash");
    Edit(2, "ash");
    EXPECT_EQ(lDupePairCount, 1);
    Edit(2, "Elm");
    EXPECT_EQ(lDupePairCount, 0);
    EXPECT_EQ(DupePairs.size(), 6U);
}
