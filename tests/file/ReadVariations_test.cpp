#include "file/DistrictFileWriter.h"
#include "support/LowerCaseWords.h"
#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class ReadVariationsTest : public StateTest {
protected:
    void Read(std::string content) { ReadText(m_desktop, std::move(content)); }

    void ExpectReport(std::vector<std::string> items) { ExpectReadReport(m_desktop, std::move(items)); }

    static std::vector<std::string> Texts(std::int32_t district) {
        std::vector<std::string> texts;
        for (std::int32_t k = 1; k <= DistrictAt(district).lVariationCount; ++k) {
            texts.push_back(VariationAt(district, k).Text);
        }
        return texts;
    }

    ScriptedDesktop m_desktop;
};

const std::string NoCapitals = "0 variations with capitalisation problems";

std::string Blanks(int count, const std::string& name) {
    return "There were " + std::to_string(count) + " blank variations in District " + name +
           ".  They have been removed.\r\n";
}

std::string Duplicates(const std::string& name) {
    return "District " + name + " has duplicate variations.";
}

} // namespace

TEST_F(ReadVariationsTest, AFileWithoutProblemsShowsNoReport) {
    Read(HeaderOf("Ash") + "|Elm|!Oak|%Fir%12\n");
    EXPECT_EQ(lCapsOkTotal, 3);
    EXPECT_EQ(lInvalidTotal, 0);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 0);
    EXPECT_EQ(DistrictAt(1).lWarningCount, 0);
    EXPECT_EQ(DistrictAt(1).iQuestionCount, 0);
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 0);
    EXPECT_FALSE(bChanged);
}

TEST_F(ReadVariationsTest, BlankVariationsBecomeDeletedSlotsWithoutAQuestion) {
    ExpectReport({Blanks(3, "Ash"), NoCapitals});
    Read(HeaderOf("Ash") + "||Elm|   |\n");
    EXPECT_EQ(Texts(1), (std::vector<std::string>{"\t", "Elm", "\t", "\t"}));
    EXPECT_EQ(DistrictAt(1).lVariationCount, 4);
    EXPECT_EQ(lCapsOkTotal, 1);
    EXPECT_EQ(lInvalidTotal, 0);
    EXPECT_FALSE(bChanged);
}

TEST_F(ReadVariationsTest, ATrailingBarIsABlankVariation) {
    ExpectReport({Blanks(1, "Ash"), NoCapitals});
    Read(HeaderOf("Ash") + "|Elm|\n");
    EXPECT_EQ(Texts(1), (std::vector<std::string>{"Elm", "\t"}));
}

TEST_F(ReadVariationsTest, AVariationThatTheTrimmedLineMakesALoneTabIsADeletedOne) {
    Read(HeaderOf("Ash") + "|Elm|\t \n");
    EXPECT_EQ(Texts(1), (std::vector<std::string>{"Elm", "\t"}));
    EXPECT_EQ(DistrictFileContent(), HeaderOf("Ash") + "|Elm\r\n");
}

TEST_F(ReadVariationsTest, OnceABlankVariationHasBeenMetEveryLaterLineButABlankOneRepeatsTheCount) {
    m_desktop.ExpectBox("Line 6 is incomplete but has been retained in the file.  It will not be available for "
                        "editing.\r\nodd",
                        BoxIcon::Exclamation);
    ExpectReport({Blanks(1, "Ash"), Blanks(1, "# note"), Blanks(2, "Fir"), Blanks(2, "odd"), NoCapitals});
    Read("# before\n" + HeaderOf("Ash") + "|\n\n# note\n" + HeaderOf("Fir") + "||Elm\nodd\n");
}

TEST_F(ReadVariationsTest, DuplicatesAreReportedPerDistrictAndTheirPairsAccumulate) {
    ExpectReport({Duplicates("Ash"), Duplicates("Fir"), NoCapitals});
    Read(HeaderOf("Ash") + "|Elm|!Elm\n" + HeaderOf("Oak") + "|Elm\n" + HeaderOf("Fir") + "|Yew|Yew|Yew\n");
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 1);
    EXPECT_EQ(DistrictAt(2).iDuplicateCount, 0);
    EXPECT_EQ(DistrictAt(3).iDuplicateCount, 2);
    EXPECT_TRUE(VariationAt(1, 1).bDuplicate);
    EXPECT_EQ(VariationAt(1, 1).lDuplicateOf, 2);
    EXPECT_FALSE(VariationAt(2, 1).bDuplicate);
    EXPECT_EQ(lDupePairCount, 3);
    EXPECT_EQ(DupePairs[1].first, "!Elm");
    EXPECT_EQ(DupePairs[1].second, "Elm");
    EXPECT_EQ(DupePairs[3].first, "Yew");
}

TEST_F(ReadVariationsTest, BlankAndDuplicateVariationsOfADistrictShareOneItem) {
    ExpectReport({Blanks(1, "Ash") + Duplicates("Ash"), NoCapitals});
    Read(HeaderOf("Ash") + "|Elm||Elm\n");
}

TEST_F(ReadVariationsTest, WarningsAloneShowNoReport) {
    Read(HeaderOf("Ash") + "|Elm_|Oak\xE9\n");
    EXPECT_EQ(DistrictAt(1).lWarningCount, 2);
}

TEST_F(ReadVariationsTest, WarningsAreReportedBeforeTheCapitals) {
    ExpectReport({"There were 2 Variations with warnings.\r\n", "1 variations with capitalisation problems"});
    Read(HeaderOf("Ash") + "|Elm_|OAK\n" + HeaderOf("Fir") + "|Oak\xE9\n");
    EXPECT_EQ(DistrictAt(1).lWarningCount, 1);
    EXPECT_EQ(DistrictAt(2).lWarningCount, 1);
}

TEST_F(ReadVariationsTest, UnusualCapitalsAreMarkedCountedAndReported) {
    ExpectReport({"2 variations with capitalisation problems"});
    Read(HeaderOf("Ash") + "|ELM|Oak|elm tree\n");
    EXPECT_TRUE(VariationAt(1, 1).bUnusualCaps);
    EXPECT_FALSE(VariationAt(1, 2).bUnusualCaps);
    EXPECT_TRUE(VariationAt(1, 3).bUnusualCaps);
    EXPECT_EQ(lCapsOkTotal, 1);
}

TEST_F(ReadVariationsTest, WordsOfTheListNeedNoCapital) {
    UseLowerCaseWords({"upon"});
    Read(HeaderOf("Ash") + "|Elm upon Oak\n");
    EXPECT_EQ(lCapsOkTotal, 1);
}

TEST_F(ReadVariationsTest, QuestionMarksAreCountedAsSuchAndAsInvalid) {
    Read(HeaderOf("Ash") + "|Sm?th|?|Elm\n" + HeaderOf("Fir") + "|!?\n");
    EXPECT_EQ(DistrictAt(1).iQuestionCount, 1);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 1);
    EXPECT_EQ(lInvalidTotal, 1);
    EXPECT_EQ(VariationAt(1, 1).Text, "Sm?th");
}

TEST_F(ReadVariationsTest, AQuestionMarkIsCountedAlsoWhereAnotherRuleRefuses) {
    Read(HeaderOf("Ash") + "|Sm?th%1%2\n");
    EXPECT_EQ(DistrictAt(1).iQuestionCount, 1);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 1);
}

TEST_F(ReadVariationsTest, InvalidVariationsAreKeptAndCounted) {
    Read(HeaderOf("Ash") + "|! Elm|Bee%1%2|Oak\n" + HeaderOf("Fir") + "| Yew|Bee\x01\n");
    EXPECT_EQ(Texts(1), (std::vector<std::string>{"! Elm", "Bee%1%2", "Oak"}));
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 2);
    EXPECT_EQ(DistrictAt(2).lInvalidCount, 2);
    EXPECT_EQ(lInvalidTotal, 4);
    EXPECT_EQ(lCapsOkTotal, 5);
    EXPECT_FALSE(bChanged);
}

// The flag is only set anew by a check that gets as far as the warnings.
TEST_F(ReadVariationsTest, ARefusedVariationCountsTheWarningOfTheOneBeforeIt) {
    Read(HeaderOf("Ash") + "|Elm_|Oak%1%2\n" + HeaderOf("Fir") + "|Oak%1%2|Yew|Bee%1%2\n");
    EXPECT_EQ(DistrictAt(1).lWarningCount, 2);
    EXPECT_EQ(DistrictAt(2).lWarningCount, 1);
}

TEST_F(ReadVariationsTest, ABlankVariationCountsNoWarning) {
    ExpectReport({Blanks(1, "Ash"), "There were 1 Variations with warnings.\r\n", NoCapitals});
    Read(HeaderOf("Ash") + "|Elm_||\tOak\n");
    EXPECT_EQ(DistrictAt(1).lWarningCount, 1);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 1);
}

TEST_F(ReadVariationsTest, PairsKeepTheirTextsThroughEditsAndTheNextFile) {
    ExpectReport({Duplicates("Ash"), NoCapitals});
    Read(HeaderOf("Ash") + "|Elm|!Elm\n");
    VariationAt(1, 2).Text = "Changed";
    EXPECT_EQ(DupePairs[1].first, "!Elm");
    ExpectReport({Duplicates("Oak"), NoCapitals});
    Read(HeaderOf("Oak") + "|Fir|!Fir\n");
    EXPECT_EQ(lDupePairCount, 2);
    EXPECT_EQ(DupePairs[1].first, "!Elm");
    EXPECT_EQ(DupePairs[1].second, "Elm");
    EXPECT_EQ(DupePairs[2].first, "!Fir");
}
