#include "checks/CompleteCheck.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class CompleteCheckTest : public StateTest {
protected:
    using Texts = std::vector<std::string>;

    Texts Lines() { return CompleteVariationCheck(desktop).items.All(); }

    static void AddDistrictOf(const std::string& name, const Texts& variations, std::int16_t founded,
                              std::int16_t abolished) {
        DistrictRecord& record = DistrictAt(AddDistrict(name, variations));
        record.Founded = founded;
        record.Abolished = abolished;
    }

    ScriptedDesktop desktop;
    const Texts Nothing{"No duplicates found"};
};

} // namespace

TEST_F(CompleteCheckTest, AnEmptyTableHasNoDuplicates) {
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, RetainedLinesAreNotLookedAt) {
    AddRetained("Elm");
    AddRetained("Elm");
    AddRetained("# Elm");
    EXPECT_EQ(Lines(), Nothing);
    AddDistrict("Elm");
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, LinesBehindTheOnesInUseAreNotLookedAt) {
    AddDistrict("Alpha", {"Elm"});
    AddDistrict("Beta", {"Elm"});
    lLineCount = 1;
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, SlotsBehindTheOnesInUseAreNotLookedAt) {
    AddDistrict("Alpha", {"Elm", "Elm"});
    DistrictAt(1).lVariationCount = 1;
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, TheReportMayBePrintedAndSaved) {
    const Report report = CompleteVariationCheck(desktop);
    EXPECT_EQ(report.caption, "Duplicate Check");
    EXPECT_TRUE(report.canPrintAndSave);
}

TEST_F(CompleteCheckTest, AVariationTwiceInADistrictIsFound) {
    AddDistrict("Alpha", {"Elm", "Oak", "!elm"});
    AddDistrict("Beta", {"Ash"});
    EXPECT_EQ(Lines(), Texts{"Alpha contains a duplicate variation - !elm"});
}

TEST_F(CompleteCheckTest, AVariationThatIsItsOwnDistrictsNameIsFound) {
    AddDistrict("Alpha", {"alpha"});
    EXPECT_EQ(Lines(), Texts{"Alpha contains a duplicate variation - alpha"});
}

TEST_F(CompleteCheckTest, AVariationOfTwoDistrictsIsFound) {
    AddDistrict("Alpha", {"Elm"});
    AddDistrict("Beta", {"!Elm"});
    AddDistrict("Gamma", {"Oak"});
    EXPECT_EQ(Lines(), Texts{"Beta and Alpha both use the variation !Elm"});
}

TEST_F(CompleteCheckTest, TheNameOfAnotherDistrictIsFoundAsWhicheverOfTheTwoSortsFirst) {
    AddDistrict("Alpha", {"Beta"});
    AddDistrict("Beta");
    EXPECT_EQ(Lines(), Texts{"Beta and Alpha both use the variation BETA"});
    ResetEverything();
    AddDistrict("Beta", {"Zoo"});
    AddDistrict("Alpha", {"Beta"});
    EXPECT_EQ(Lines(), Texts{"Alpha and Beta both use the variation Beta"});
}

TEST_F(CompleteCheckTest, TwoDistrictsOfOneNameAreOneByName) {
    AddDistrict("Alpha");
    AddDistrict("Alpha");
    EXPECT_EQ(Lines(), Texts{"Alpha contains a duplicate variation - ALPHA"});
}

TEST_F(CompleteCheckTest, NamesThatDifferInCaseAreTwoDistricts) {
    AddDistrict("Alpha");
    AddDistrict("ALPHA");
    EXPECT_EQ(Lines(), Texts{"ALPHA and Alpha both use the variation ALPHA"});
}

TEST_F(CompleteCheckTest, AVariationSharedByDistrictsOfOneNameIsSaidToBeOneDistricts) {
    AddDistrict("Alpha", {"Elm"});
    AddDistrict("Zeta", {"Oak"});
    AddDistrict("Alpha", {"Elm"});
    EXPECT_EQ(Lines(),
              (Texts{"Alpha contains a duplicate variation - ALPHA", "Alpha contains a duplicate variation - Elm"}));
}

TEST_F(CompleteCheckTest, ThreeEqualVariationsMakeTwoLines) {
    AddDistrict("Alpha", {"Elm"});
    AddDistrict("Beta", {"Elm"});
    AddDistrict("Gamma", {"Elm"});
    EXPECT_EQ(Lines().size(), 2U);
}

TEST_F(CompleteCheckTest, TheLinesStandInTheOrderOfTheSpellings) {
    AddDistrict("Alpha", {"Yew", "yew", "\xC9lm", "\xE9lm"});
    AddDistrict("Beta", {"Birch", "BIRCH"});
    EXPECT_EQ(Lines(),
              (Texts{"Beta contains a duplicate variation - BIRCH", "Alpha contains a duplicate variation - Yew",
                     "Alpha contains a duplicate variation - \xC9lm"}));
}

TEST_F(CompleteCheckTest, DeletedSlotsAreNeverReported) {
    AddDistrict("Alpha", {"\t", "\t"});
    AddDistrict("Beta", {"\t", "Elm"});
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, EmptyVariationsAreTheSame) {
    AddDistrict("Alpha", {"", ""});
    EXPECT_EQ(Lines(), Texts{"Alpha contains a duplicate variation - "});
}

TEST_F(CompleteCheckTest, AVolumeCountsBetweenDistricts) {
    AddDistrict("Alpha", {"Elm%12"});
    AddDistrict("Beta", {"Elm"});
    EXPECT_EQ(Lines(), Nothing);
    VariationAt(2, 1).Text = "Elm%13";
    EXPECT_EQ(Lines(), Nothing);
    VariationAt(2, 1).Text = "Elm%12";
    EXPECT_EQ(Lines(), Texts{"Beta and Alpha both use the variation Elm%12"});
}

TEST_F(CompleteCheckTest, AVolumeOnOneSideDoesNotCountWithinADistrict) {
    AddDistrict("Alpha", {"Elm%12", "Elm"});
    EXPECT_EQ(Lines(), Texts{"Alpha contains a duplicate variation - Elm"});
}

TEST_F(CompleteCheckTest, TheDateMarkCountsOnlyWhenTheLifetimesOverlap) {
    AddDistrictOf("Alpha", {"%Elm"}, 1850, 1870);
    AddDistrictOf("Beta", {"%Elm"}, 1871, 1900);
    EXPECT_EQ(Lines(), Nothing);
    DistrictAt(2).Founded = 1869;
    EXPECT_EQ(Lines(), Texts{"Beta and Alpha both use the variation %Elm"});
    VariationAt(2, 1).Text = "Elm";
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, ANameIsNeverThatOfADatedVariation) {
    AddDistrict("Alpha", {"%Beta"});
    AddDistrict("Beta");
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, ANameSortsWithItsMarkersAVariationWithoutThem) {
    // "!ALPHA" sorts before "ALPHA", with "!BETA" between the two: they are no neighbours.
    AddDistrict("!Alpha", {"Alpha"});
    AddDistrict("!Beta");
    EXPECT_EQ(Lines(), Nothing);
}

TEST_F(CompleteCheckTest, TheCheckLeavesTheTableAndItsPairsAlone) {
    AddDistrict("Alpha", {"Elm", "Elm"});
    AddDistrict("Beta", {"Elm"});
    EXPECT_EQ(Lines().size(), 2U);
    EXPECT_FALSE(VariationAt(1, 1).bDuplicate);
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 0);
    EXPECT_EQ(lDupePairCount, 0);
    EXPECT_FALSE(bChanged);
}

TEST_F(CompleteCheckTest, AThousandSpellingsAreAllCompared) {
    Texts variations;
    for (int i = 0; i < 1200; ++i) {
        variations.push_back("V" + std::to_string(i));
    }
    AddDistrict("Alpha", variations);
    AddDistrict("Beta", variations);
    const Texts lines = Lines();
    ASSERT_EQ(lines.size(), 1200U);
    EXPECT_TRUE(lines[0].ends_with(" both use the variation V0")) << lines[0];
    EXPECT_TRUE(lines[1199].ends_with(" both use the variation V999")) << lines[1199];
}

TEST_F(CompleteCheckTest, TheDesktopIsBusyMeanwhileAndToldHowFarItIs) {
    AddDistrict("Alpha", {"Elm", "Oak"});
    AddDistrict("Beta", {"Ash"});
    Lines();
    EXPECT_EQ(desktop.tasks, Texts{"Looking for duplicates"});
    EXPECT_GT(desktop.part, 0.9); // the last spelling has none behind it
    EXPECT_FALSE(desktop.busy);
}

TEST_F(CompleteCheckTest, ALineNamesTheDistrictAndTheSlotThatItBeginsWith) {
    AddRetained("# note");
    const std::int32_t alpha = AddDistrict("Alpha", {"Ash", "Elm", "ash"});
    const std::int32_t beta = AddDistrict("Beta", {"Oak", "ELM"});
    const Report report = CompleteVariationCheck(desktop);
    ASSERT_EQ(report.items.All(),
              (Texts{"Alpha contains a duplicate variation - ash", "Beta and Alpha both use the variation ELM"}));
    EXPECT_EQ(report.PlaceOf(0), (ReportPlace{alpha, 3}));
    EXPECT_EQ(report.PlaceOf(1), (ReportPlace{beta, 2}));
}

TEST_F(CompleteCheckTest, ANameIsThePlaceOfItsDistrict) {
    AddDistrict("Alpha", {"Ash", "Beta"});
    const std::int32_t beta = AddDistrict("Beta", {"Oak"});
    const Report report = CompleteVariationCheck(desktop);
    ASSERT_EQ(report.items.All(), Texts{"Beta and Alpha both use the variation BETA"});
    EXPECT_EQ(report.PlaceOf(0), (ReportPlace{beta, 0}));
}

TEST_F(CompleteCheckTest, NothingFoundNamesNoPlace) {
    AddDistrict("Alpha");
    EXPECT_FALSE(CompleteVariationCheck(desktop).placeOf);
}
