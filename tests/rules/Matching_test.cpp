#include "rules/Matching.h"

#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class Matching : public StateTest {
protected:
    Matching() : here(AddDistrict("Smithton")), there(AddDistrict("Upper Smithton")) {}

    // Both ways round, which must agree.
    bool SameHere(std::string_view a, std::string_view b) const {
        const bool same = SameVariation(a, b, here, here);
        EXPECT_EQ(SameVariation(b, a, here, here), same) << a << b;
        return same;
    }

    bool SameAcross(std::string_view a, std::string_view b) const {
        const bool same = SameVariation(a, b, here, there);
        EXPECT_EQ(SameVariation(b, a, there, here), same) << a << b;
        return same;
    }

    std::int32_t here;
    std::int32_t there;
};

TEST_F(Matching, CaseDoesNotCount) {
    EXPECT_TRUE(SameHere("smithton", "SMITHTON"));
    EXPECT_TRUE(SameHere("Caf\xE9", "CAF\xC9"));
    EXPECT_TRUE(SameAcross("smithton", "SMITHTON"));
}

TEST_F(Matching, OtherNamesDoNotMatch) {
    EXPECT_FALSE(SameHere("Smithton", "Smithtown"));
    EXPECT_FALSE(SameHere("Smithton", "Smith"));
    EXPECT_FALSE(SameHere("Caf\xE9", "Cafe"));
    EXPECT_FALSE(SameHere("Upper Smithton", "Upper  Smithton"));
}

TEST_F(Matching, TheShriekDoesNotCount) {
    EXPECT_TRUE(SameHere("!Smithton", "Smithton"));
    EXPECT_TRUE(SameAcross("!Smithton", "!SMITHTON"));
    EXPECT_TRUE(SameHere("!%Smithton", "%Smithton"));
    EXPECT_TRUE(SameHere("%!Smithton", "!%!Smithton"));
}

TEST_F(Matching, BlanksAroundTheNameDoNotCount) {
    EXPECT_TRUE(SameHere(" Smithton ", "Smithton"));
    EXPECT_TRUE(SameHere("!  Smithton", "Smithton"));
    EXPECT_TRUE(SameHere("Smithton %12", "Smithton%12"));
}

TEST_F(Matching, TheDateMarkIsOnBothOrOnNeither) {
    EXPECT_FALSE(SameHere("%Smithton", "Smithton"));
    EXPECT_FALSE(SameHere("!%Smithton", "!Smithton"));
    EXPECT_TRUE(SameHere("%Smithton", "%SMITHTON"));
}

TEST_F(Matching, InsideADistrictAVolumeMatchesNone) {
    EXPECT_TRUE(SameHere("Smithton%12", "Smithton"));
    EXPECT_TRUE(SameHere("%Smithton%12", "%Smithton"));
    EXPECT_TRUE(SameHere("Smithton%12", "Smithton%12"));
}

TEST_F(Matching, DifferentVolumesNeverMatch) {
    EXPECT_FALSE(SameHere("Smithton%12", "Smithton%13"));
    EXPECT_FALSE(SameAcross("Smithton%12", "Smithton%13"));
}

TEST_F(Matching, TheCaseOfAVolumeCounts) {
    EXPECT_FALSE(SameHere("Smithton%1a", "Smithton%1A"));
    EXPECT_FALSE(SameAcross("Smithton%1a", "Smithton%1A"));
    EXPECT_TRUE(SameAcross("Smithton%1A", "SMITHTON%1A"));
}

TEST_F(Matching, BlanksBehindAVolumeDoNotCountButThoseInsideDo) {
    EXPECT_TRUE(SameAcross("Smithton%12 ", "Smithton%12"));
    EXPECT_FALSE(SameAcross("Smithton% 12", "Smithton%12"));
}

TEST_F(Matching, AcrossDistrictsAVolumeMatchesOnlyItself) {
    EXPECT_FALSE(SameAcross("Smithton%12", "Smithton"));
    EXPECT_TRUE(SameAcross("Smithton%12", "Smithton%12"));
    EXPECT_TRUE(SameAcross("Smithton", "Smithton"));
}

TEST_F(Matching, ATrailingPartWithoutAPercentIsNoVolume) {
    EXPECT_TRUE(SameAcross("Smithton!x", "Smithton"));
    EXPECT_FALSE(SameAcross("Smithton!x", "Smithton!y"));
    EXPECT_FALSE(SameAcross("Smithton!x%1", "Smithton"));
}

TEST_F(Matching, EmptyTextsMatchEachOther) {
    EXPECT_TRUE(SameHere("", ""));
    EXPECT_TRUE(SameHere("  ", "!"));
    EXPECT_FALSE(SameHere("", "Smithton"));
}

TEST_F(Matching, ADeletedSlotMatchesNothing) {
    EXPECT_FALSE(SameHere("\t", "\t"));
    EXPECT_FALSE(SameHere("\t", ""));
    EXPECT_FALSE(SameHere("!\t", "\t%12"));
    EXPECT_FALSE(SameAcross(" \t ", "\t"));
}

TEST_F(Matching, ATabInsideANameIsAnOrdinaryCharacter) {
    EXPECT_TRUE(SameHere("\tSmithton", "\tSMITHTON"));
    EXPECT_TRUE(SameHere("\t\t", "\t\t"));
}

TEST_F(Matching, TheMarkersOfTheSecondTextAreLeft) {
    EXPECT_TRUE(SameVariation("Smithton%12", "!Smithton", here, here));
    EXPECT_EQ(sMarkerPrefix, "!");
    EXPECT_EQ(sMarkerSuffix, "");
    EXPECT_FALSE(SameVariation("!Other", "!%Smithton%12", here, there));
    EXPECT_EQ(sMarkerPrefix, "!%");
    EXPECT_EQ(sMarkerSuffix, "%12");
    EXPECT_FALSE(SameVariation("Smithton", "\t", here, here));
    EXPECT_EQ(sMarkerPrefix, "");
    EXPECT_EQ(sMarkerSuffix, "");
}

class Finding : public StateTest {
protected:
    // Looks for `variation` in a district "Smithton" with these variations; 99 is left when no slot was found.
    static bool Find(std::string_view variation, const std::vector<std::string>& variations) {
        ResetState();
        AddDistrict("Other", {"Smithtown", "Sm_thton"});
        lCurrentDistrict = AddDistrict("Smithton", variations);
        lFoundVariation = 99;
        const bool found = FindVariationInDistrict(variation);
        const auto slot = FindSpelling(lCurrentDistrict, variation);
        EXPECT_EQ(found, slot.has_value());
        EXPECT_EQ(lFoundVariation, slot.value_or(0) == 0 ? 99 : *slot);
        return found;
    }
};

TEST_F(Finding, TellsTheSlotOfTheVariation) {
    EXPECT_TRUE(Find("!smithtown%12", {"Smitton", "Smithtown", "Smythton"}));
    EXPECT_EQ(lFoundVariation, 2);
}

TEST_F(Finding, TakesTheFirstOfSeveral) {
    EXPECT_TRUE(Find("Smithtown", {"A", "SMITHTOWN", "Smithtown"}));
    EXPECT_EQ(lFoundVariation, 2);
}

TEST_F(Finding, LooksAtTheLastSlotToo) {
    EXPECT_TRUE(Find("C", {"A", "B", "C"}));
    EXPECT_EQ(lFoundVariation, 3);
}

TEST_F(Finding, PassesOverDeletedSlotsWithoutRenumbering) {
    EXPECT_TRUE(Find("Smithtown", {"\t", "\t", "Smithtown"}));
    EXPECT_EQ(lFoundVariation, 3);
    EXPECT_FALSE(Find("\t", {"\t"}));
}

TEST_F(Finding, TheNameOfTheDistrictCountsAndLeavesTheSlotAlone) {
    EXPECT_TRUE(Find("!SMITHTON", {"Smithtown"}));
    EXPECT_EQ(lFoundVariation, 99);
}

TEST_F(Finding, AVariationThatIsTheNameIsFoundInItsSlot) {
    EXPECT_TRUE(Find("Smithton", {"A", "smithton"}));
    EXPECT_EQ(lFoundVariation, 2);
}

TEST_F(Finding, AnUnknownTextLeavesTheSlotAlone) {
    EXPECT_FALSE(Find("Smitton", {"Smithtown"}));
    EXPECT_EQ(lFoundVariation, 99);
}

TEST_F(Finding, OnlyTheCurrentDistrictIsSearched) {
    EXPECT_FALSE(Find("Sm_thton", {"Smithtown"}));
    EXPECT_FALSE(Find("Upper Smithton", {}));
}

TEST_F(Finding, TheUnusedSlotOfADistrictWithoutVariationsIsNotSearched) {
    EXPECT_FALSE(Find("", {}));
    EXPECT_TRUE(Find("", {""}));
    EXPECT_EQ(lFoundVariation, 1);
}

TEST_F(Finding, TheMarkersOfTheSoughtTextAreLeftBehindAFoundSlot) {
    EXPECT_TRUE(Find("!A%12", {"A"}));
    EXPECT_EQ(sMarkerPrefix, "!");
    EXPECT_EQ(sMarkerSuffix, "%12");
}

TEST_F(Finding, TheMarkersOfTheNameAreLeftWhereNoSlotIsFound) {
    lCurrentDistrict = AddDistrict("!%Smithton%12", {"A"});
    EXPECT_FALSE(FindVariationInDistrict("%B"));
    EXPECT_EQ(sMarkerPrefix, "!%");
    EXPECT_EQ(sMarkerSuffix, "%12");
}

TEST_F(Finding, TheDistrictThatIsNamedIsSearchedAndNothingIsLeft) {
    const std::int32_t north = AddDistrict("North", {"Ash", "!%Elm%12"});
    lCurrentDistrict = AddDistrict("South", {"Oak"});
    lFoundVariation = 99;
    sMarkerPrefix = sMarkerSuffix = "old";
    EXPECT_EQ(FindSpelling(north, "%elm"), 2);
    EXPECT_EQ(FindSpelling(north, "!NORTH"), 0);
    EXPECT_EQ(FindSpelling(north, "Oak"), std::nullopt);
    EXPECT_EQ(FindSpelling(lCurrentDistrict, "Oak"), 1);
    EXPECT_EQ(lFoundVariation, 99);
    EXPECT_EQ(sMarkerPrefix + sMarkerSuffix, "oldold");
}

TEST_F(Finding, TheRepeatedTextIsTheOneInTheTable) {
    const std::int32_t north = AddDistrict("North", {"Ash", "!%Elm%12"});
    EXPECT_EQ(RepeatedText(north, "%elm"), "!%Elm%12");
    EXPECT_EQ(RepeatedText(north, "!NORTH"), "North");
    EXPECT_EQ(RepeatedText(north, "Oak"), std::nullopt);
}

TEST_F(Finding, ADistrictThatEndsBeforeItBeginsDoesNotMatchItselfByDate) {
    Find("%A", {"%A"});
    DistrictAt(lCurrentDistrict).Abolished = DistrictAt(lCurrentDistrict).Founded;
    DistrictAt(lCurrentDistrict).QtrF = 3;
    DistrictAt(lCurrentDistrict).QtrA = 2;
    EXPECT_FALSE(FindVariationInDistrict("%A"));
    DistrictAt(lCurrentDistrict).QtrA = 3;
    EXPECT_TRUE(FindVariationInDistrict("%A"));
}

} // namespace
