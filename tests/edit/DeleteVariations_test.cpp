#include "edit/EditPanel.h"

#include "edit/EditTest.h"

using namespace CommonRoutines;

namespace {

class DeleteVariationsTest : public EditTest {
protected:
    DeleteVariationsTest() { Show("North", {"Ash", "Elm", " Oak ", "!Yew"}); }

    void Delete(const std::vector<std::int32_t>& slots) { DeleteVariations(RowsOf(slots), m_desktop); }
};

} // namespace

TEST_F(DeleteVariationsTest, OneVariationIsAskedForByItsTrimmedText) {
    EXPECT_EQ(DeleteQuestion(RowsOf({1})), "Are you sure you want to delete variation Ash");
    EXPECT_EQ(DeleteQuestion(RowsOf({3})), "Are you sure you want to delete variation Oak");
    EXPECT_EQ(DeleteQuestion(RowsOf({4})), "Are you sure you want to delete variation !Yew");
}

TEST_F(DeleteVariationsTest, SeveralVariationsAreAskedForByTheirNumber) {
    EXPECT_EQ(DeleteQuestion(RowsOf({1, 2})), "Are you sure you want to delete these 2 variations?");
    EXPECT_EQ(DeleteQuestion(RowsOf({1, 2, 4})), "Are you sure you want to delete these 3 variations?");
    EXPECT_EQ(DeleteQuestion(std::vector<VariationRow>(1234)),
              "Are you sure you want to delete these 1234 variations?");
}

TEST_F(DeleteVariationsTest, AskingChangesNothing) {
    EXPECT_FALSE(DeleteQuestion(RowsOf({1, 2})).empty());
    EXPECT_EQ(Slots(), (Texts{"Ash", "Elm", " Oak ", "!Yew"}));
    EXPECT_FALSE(bChanged);
    ExpectNothingRecorded();
}

TEST_F(DeleteVariationsTest, ADeletedVariationLeavesAFreeSlot) {
    Delete({2});
    EXPECT_EQ(Slots(), (Texts{"Ash", "\t", " Oak ", "!Yew"}));
    EXPECT_EQ(DistrictAt(1).lVariationCount, 4);
    EXPECT_TRUE(bChanged);
}

TEST_F(DeleteVariationsTest, ADeleteIsRecordedWithTheTextAsItStood) {
    Delete({3});
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Delete  Oak  from North");
    EXPECT_EQ(TakeItem(), "3 [ Oak ] [] in 1");
}

TEST_F(DeleteVariationsTest, ThreeDeletedVariationsAreThreeItemsOfOneStepInListOrder) {
    Delete({4, 1, 2});
    EXPECT_EQ(Slots(), (Texts{"\t", "\t", " Oak ", "\t"}));
    EXPECT_EQ(CurrentUndoStep().Count(), 3);
    EXPECT_EQ(TakeItem(), "3 [Elm] [] in 1");
    EXPECT_EQ(TakeItem(), "3 [Ash] [] in 1");
    EXPECT_EQ(TakeItem(), "3 [!Yew] [] in 1");
}

TEST_F(DeleteVariationsTest, AllVariationsOfADistrictMayGo) {
    Delete({1, 2, 3, 4});
    EXPECT_EQ(Slots(), (Texts{"\t", "\t", "\t", "\t"}));
    EXPECT_TRUE(AllRows().empty());
}

TEST_F(DeleteVariationsTest, NothingIsEditedAfterwards) {
    lEditIndex = 2;
    Delete({2});
    EXPECT_EQ(lEditIndex, 0);
}

TEST_F(DeleteVariationsTest, OnlyTheCurrentDistrictLosesVariations) {
    Show("South", {"Fir", "Larch"});
    Delete({1});
    EXPECT_EQ(SlotsOf(1), (Texts{"Ash", "Elm", " Oak ", "!Yew"}));
    EXPECT_EQ(SlotsOf(2), (Texts{"\t", "Larch"}));
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Delete Fir from South");
}

TEST_F(DeleteVariationsTest, TheSurvivorsAreLookedThroughForDuplicatesAgain) {
    Show("South", {"Fir", "FIR", "!fir", "Larch"});
    Delete({3});
    EXPECT_EQ(DistrictAt(2).iDuplicateCount, 1);
    EXPECT_TRUE(VariationAt(2, 1).bDuplicate);
    EXPECT_FALSE(VariationAt(2, 3).bDuplicate);
    EXPECT_EQ(lDupePairCount, 1);
    Delete({1});
    EXPECT_EQ(DistrictAt(2).iDuplicateCount, 0);
    EXPECT_FALSE(VariationAt(2, 2).bDuplicate);
    EXPECT_EQ(lDupePairCount, 0);
}

TEST_F(DeleteVariationsTest, FreeSlotsAreNoDuplicatesOfEachOther) {
    Delete({1, 2});
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 0);
}
