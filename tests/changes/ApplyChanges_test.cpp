#include "ApplyTest.h"

#include "rules/Duplicates.h"

using namespace CommonRoutines;

using ApplyChangesTest = ApplyTest;

TEST_F(ApplyChangesTest, EveryValidRowBecomesAVariationInTheOrderOfTheList) {
    Choose("Alpha", {"Beech"});
    const AppliedProposals applied = Apply({Valid("Oak"), Ticked("Elm"), Valid("%Ash%12")});
    EXPECT_EQ(applied.added, 3);
    EXPECT_EQ(applied.invalid, 0);
    EXPECT_EQ(applied.ignored, 0);
    EXPECT_EQ(Variations(), (Texts{"Beech", "Oak", "Elm", "%Ash%12"}));
    EXPECT_TRUE(bChanged);
}

TEST_F(ApplyChangesTest, TheFourCommandsDifferInTheRowsThatTheyTakeAndInTheMarker) {
    const Proposals proposals{Ticked("Elm"), Valid("Oak"), Ticked("!Ash"), Valid("!Yew"), Ticked("%Fir")};
    const auto applied = [&](bool selectedOnly, bool asSpelling) {
        Choose("Alpha", {});
        Apply(proposals, selectedOnly, asSpelling);
        return Variations();
    };
    EXPECT_EQ(applied(false, false), (Texts{"Elm", "Oak", "!Ash", "!Yew", "%Fir"}));
    EXPECT_EQ(applied(false, true), (Texts{"!Elm", "!Oak", "!Ash", "!Yew", "!%Fir"}));
    EXPECT_EQ(applied(true, false), (Texts{"Elm", "!Ash", "%Fir"}));
    EXPECT_EQ(applied(true, true), (Texts{"!Elm", "!Ash", "!%Fir"}));
}

TEST_F(ApplyChangesTest, RowsThatAreNoValidProposalAreCountedWhetherTickedOrNot) {
    Proposal tickedInvalid = Invalid("a|b");
    tickedInvalid.ticked = true;
    const Proposals proposals{Invalid("!"), tickedInvalid, Heading("NAME"), Valid("Oak"), Ticked("Elm")};
    Choose("Alpha", {});
    EXPECT_EQ(Apply(proposals).invalid, 3);
    EXPECT_EQ(Variations(), (Texts{"Oak", "Elm"}));
    Choose("Beta", {});
    EXPECT_EQ(Apply(proposals, true, false).invalid, 3);
    EXPECT_EQ(Variations(), Texts{"Elm"});
}

TEST_F(ApplyChangesTest, ProposalsAreTrimmedAndEmptyOnesLeftOutWithoutCounting) {
    Choose("Alpha", {});
    const AppliedProposals applied =
        Apply({Valid("  Elm "), Valid("   "), Valid(""), Valid(" Lime Tree")}, false, true);
    EXPECT_EQ(applied.added, 2);
    EXPECT_EQ(applied.invalid, 0);
    EXPECT_EQ(applied.ignored, 0);
    EXPECT_EQ(Variations(), (Texts{"!Elm", "!Lime Tree"}));
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Add !Lime Tree to Alpha");
}

TEST_F(ApplyChangesTest, AShriekBehindBlanksIsNotDoubled) {
    Choose("Alpha", {});
    Apply({Valid("  !Elm")}, false, true);
    EXPECT_EQ(Variations(), Texts{"!Elm"});
}

TEST_F(ApplyChangesTest, AProposalThatTheDistrictHasIsPairedWithTheVariationThatItRepeats) {
    Choose("Alpha", {"Oak", "!Elm", "Fir"});
    const AppliedProposals applied = Apply({Valid(" ELM "), Valid("Ash")});
    EXPECT_EQ(applied.added, 1);
    EXPECT_EQ(applied.ignored, 1);
    EXPECT_EQ(Pairs(), Texts{"ELM = !Elm"});
    EXPECT_EQ(Variations(), (Texts{"Oak", "!Elm", "Fir", "Ash"}));
}

TEST_F(ApplyChangesTest, AProposalThatIsTheDistrictsNameIsPairedWithTheName) {
    Choose("Alpha", {"Oak"});
    // A slot found for a proposal before must not stand for the name.
    const AppliedProposals applied = Apply({Valid("oak"), Valid("!ALPHA")});
    EXPECT_EQ(applied.ignored, 2);
    EXPECT_EQ(Pairs(), (Texts{"oak = Oak", "!ALPHA = Alpha"}));
    EXPECT_EQ(Variations(), Texts{"Oak"});
}

TEST_F(ApplyChangesTest, AProposalThatRepeatsAnEarlierOneIsIgnored) {
    Choose("Alpha", {});
    const AppliedProposals applied = Apply({Valid("Elm"), Valid("elm"), Valid("!Elm")}, false, true);
    EXPECT_EQ(applied.added, 1);
    EXPECT_EQ(applied.ignored, 2);
    EXPECT_EQ(Variations(), Texts{"!Elm"});
    EXPECT_EQ(Pairs(), (Texts{"elm = !Elm", "!Elm = !Elm"}));
}

TEST_F(ApplyChangesTest, ADeletedSlotIsNeitherFoundNorFilled) {
    Choose("Alpha", {"\t", "Oak"});
    Apply({Valid("Elm")});
    EXPECT_EQ(Variations(), (Texts{"\t", "Oak", "Elm"}));
}

TEST_F(ApplyChangesTest, OnlyAnAddedVariationCountsAsAChange) {
    Choose("Alpha", {"Oak"});
    Apply({Valid("oak"), Invalid("!"), Valid(" ")});
    EXPECT_FALSE(bChanged);
    Apply({Valid("Elm")});
    EXPECT_TRUE(bChanged);
    Apply({Valid("Elm")});
    EXPECT_TRUE(bChanged);
}

TEST_F(ApplyChangesTest, WithoutRowsNothingIsAdded) {
    Choose("Alpha", {"Oak"});
    EXPECT_EQ(Apply({}).added, 0);
    EXPECT_EQ(Variations(), Texts{"Oak"});
    EXPECT_EQ(lDupePairCount, 0);
}

// The question.

TEST_F(ApplyChangesTest, TwentyAreAddedWithoutAQuestion) {
    Choose("Alpha", {});
    EXPECT_EQ(Apply(Numbered(20)).added, 20);
}

TEST_F(ApplyChangesTest, TwentyOneAreOnlyAddedAfterAQuestion) {
    Choose("Alpha", {});
    ExpectQuestion(21, BoxAnswer::Yes);
    EXPECT_EQ(Apply(Numbered(21)).added, 21);
}

TEST_F(ApplyChangesTest, NoLeavesEverythingAsItWas) {
    Choose("Alpha", {"Oak"});
    AddDupePair("first", "second");
    CurrentUndoStep().NewItem({"Oak", UndoAdd, ""}, 7, desktop);
    ExpectQuestion(21, BoxAnswer::No);
    EXPECT_FALSE(ApplyChanges(Numbered(21), false, false, desktop).has_value());
    EXPECT_EQ(Variations(), Texts{"Oak"});
    EXPECT_EQ(Pairs(), Texts{"first = second"});
    EXPECT_EQ(iUndoStep, 1);
    EXPECT_EQ(CurrentUndoStep().Count(), 1);
    EXPECT_FALSE(bChanged);
}

TEST_F(ApplyChangesTest, TheQuestionCountsTheTickedRowsWhenOnlyThoseAreTaken) {
    Proposals proposals = Numbered(30);
    for (std::size_t i = 0; i < 20; ++i) {
        proposals[i].ticked = true;
    }
    Choose("Alpha", {});
    EXPECT_EQ(Apply(proposals, true, false).added, 20);
    proposals[20].ticked = true;
    Choose("Beta", {});
    ExpectQuestion(21, BoxAnswer::Yes);
    EXPECT_EQ(Apply(proposals, true, true).added, 21);
}

TEST_F(ApplyChangesTest, TheQuestionCountsEmptyAndRepeatedProposalsButNoInvalidRows) {
    Proposals proposals = Numbered(18);
    proposals.insert(proposals.end(), {Valid(" "), Valid("Oak"), Invalid("!"), Heading("NAME")});
    Choose("Alpha", {"Oak"});
    EXPECT_EQ(Apply(proposals).added, 18);
    proposals.push_back(Valid("oak"));
    Choose("Beta", {"Oak"});
    ExpectQuestion(21, BoxAnswer::Yes);
    EXPECT_EQ(Apply(proposals).added, 18);
}

// The journal.

TEST_F(ApplyChangesTest, ARunIsOneStepOfOneItemForEachVariation) {
    Choose("Alpha", {"Oak"});
    Apply({Valid("Elm"), Valid("oak"), Invalid("!"), Valid("!Ash")}, false, true);
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(CurrentUndoStep().Count(), 2);
    EXPECT_EQ(CurrentUndoStep().DistrictNo(), lCurrentDistrict);
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Add !Ash to Alpha");
    const UndoneItem last = CurrentUndoStep().LastItem();
    EXPECT_EQ(last.item.iUndoType, UndoAdd);
    EXPECT_EQ(last.item.sNewName, "!Ash");
    EXPECT_EQ(last.item.sOldName, "");
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Add !Elm to Alpha");
}

TEST_F(ApplyChangesTest, ASecondRunJoinsTheStepOfItsDistrict) {
    Choose("Alpha", {});
    Apply({Valid("Elm")});
    Apply({Valid("Oak"), Valid("Ash")});
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(CurrentUndoStep().Count(), 3);
    Choose("Beta", {});
    Apply({Valid("Elm")});
    EXPECT_EQ(iUndoStep, 3);
    EXPECT_EQ(CurrentUndoStep().Count(), 1);
    EXPECT_EQ(UndoRing[2].Count(), 3);
}

TEST_F(ApplyChangesTest, ARunThatAddsNothingLeavesAnEmptyStep) {
    Choose("Alpha", {});
    Apply({Valid("Elm")});
    Choose("Beta", {"Elm"});
    Apply({Valid("Elm")});
    EXPECT_EQ(iUndoStep, 3);
    EXPECT_EQ(CurrentUndoStep().Count(), 0);
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "");
}

TEST_F(ApplyChangesTest, MoreItemsThanAStepHasRoomForAreAllTakenBack) {
    Choose("Alpha", {"Oak"});
    ExpectQuestion(250, BoxAnswer::Yes);
    Apply(Numbered(250));
    ASSERT_EQ(CurrentUndoStep().Count(), 250);
    for (int i = 250; i >= 1; --i) {
        const UndoneItem undone = CurrentUndoStep().LastItem();
        ASSERT_EQ(undone.item.sNewName, "Name " + std::to_string(i));
        EXPECT_TRUE(TakeBack(undone.item, {}));
    }
    Texts expected(251, "\t");
    expected[0] = "Oak";
    EXPECT_EQ(Variations(), expected);
}

// Room for more.

TEST_F(ApplyChangesTest, AFullArrayGrowsWithRoomForFiftyMore) {
    Choose("Alpha", {"Oak", "Ash"});
    ASSERT_EQ(DistrictAt(lCurrentDistrict).Variations.size(), 3U);
    Apply({Valid("Elm")});
    EXPECT_EQ(DistrictAt(lCurrentDistrict).Variations.size(), 54U);
    ExpectQuestion(50, BoxAnswer::Yes);
    Apply(Numbered(50));
    EXPECT_EQ(DistrictAt(lCurrentDistrict).lVariationCount, 53);
    EXPECT_EQ(DistrictAt(lCurrentDistrict).Variations.size(), 54U);
    Apply({Valid("Yew")});
    EXPECT_EQ(DistrictAt(lCurrentDistrict).Variations.size(), 105U);
    EXPECT_EQ(VariationAt(lCurrentDistrict, 1).Text, "Oak");
    EXPECT_EQ(VariationAt(lCurrentDistrict, 54).Text, "Yew");
}

TEST_F(ApplyChangesTest, ADistrictWithoutVariationsUsesItsFirstSlot) {
    Choose("Alpha", {});
    ASSERT_EQ(DistrictAt(lCurrentDistrict).Variations.size(), 2U);
    VariationAt(lCurrentDistrict, 1) = {"left over", true, true, 7};
    Apply({Valid("Elm")});
    EXPECT_EQ(DistrictAt(lCurrentDistrict).Variations.size(), 2U);
    EXPECT_EQ(Variations(), Texts{"Elm"});
    EXPECT_FALSE(VariationAt(lCurrentDistrict, 1).bUnusualCaps);
    EXPECT_EQ(VariationAt(lCurrentDistrict, 1).lDuplicateOf, 0);
}

// The pairs.

TEST_F(ApplyChangesTest, ThePairsBehindTheIgnoredProposalsAreTheDistrictsOwn) {
    Choose("Alpha", {"Elm", "ELM", "Oak"});
    const AppliedProposals applied = Apply({Valid("oak"), Valid("Ash")});
    EXPECT_EQ(applied.ignored, 1);
    EXPECT_EQ(Pairs(), (Texts{"oak = Oak", "ELM = Elm"}));
    EXPECT_EQ(DistrictAt(lCurrentDistrict).iDuplicateCount, 1);
    EXPECT_TRUE(VariationAt(lCurrentDistrict, 1).bDuplicate);
    EXPECT_FALSE(VariationAt(lCurrentDistrict, 3).bDuplicate);
}

TEST_F(ApplyChangesTest, EveryRunCollectsItsPairsAfresh) {
    Choose("Alpha", {"Oak"});
    Apply({Valid("oak"), Valid("OAK")});
    EXPECT_EQ(lDupePairCount, 2);
    Apply({Valid("!Oak")});
    EXPECT_EQ(Pairs(), Texts{"!Oak = Oak"});
}

TEST_F(ApplyChangesTest, TheListOfPairsGrowsByFive) {
    Choose("Alpha", {"Oak"});
    Apply(Proposals(5, Valid("oak")));
    EXPECT_EQ(DupePairs.size(), 6U);
    Apply(Proposals(6, Valid("oak")));
    EXPECT_EQ(DupePairs.size(), 12U);
    EXPECT_EQ(Pairs(), Texts(6, "oak = Oak"));
    Apply(Proposals(12, Valid("oak")));
    EXPECT_EQ(DupePairs.size(), 18U);
    EXPECT_EQ(Pairs(), Texts(12, "oak = Oak"));
    Apply({});
    EXPECT_EQ(DupePairs.size(), 6U);
}

TEST_F(ApplyChangesTest, OnlyTheCurrentDistrictIsTouched) {
    const std::int32_t other = AddDistrict("Beta", {"Elm"});
    Choose("Alpha", {});
    Apply({Valid("Elm")});
    EXPECT_EQ(DistrictAt(other).lVariationCount, 1);
    EXPECT_EQ(Variations(), Texts{"Elm"});
}
