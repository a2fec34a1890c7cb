#include "rules/VerdictText.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

// The state of an open file with a district chosen, in which a null district is refused by name.
class Validation : public StateTest {
protected:
    Validation() { iEditMode = DistrictIdle; }
};

const std::string Null = "refused: Null District";
const std::string BadDependency = "refused: Invalid VNF dependency format";

TEST_F(Validation, NamesWithAndWithoutMarkersAreValid) {
    for (const char* text : {"Smithton", "Upper Smithton", "!Smithton", "%Smithton", "!%Smithton", "Smithton%12",
                             "!Smithton%12", "%Smithton%12", "!%Smithton%12", "Sm!ithton"}) {
        EXPECT_EQ(VerdictText(text), "valid") << text;
    }
}

TEST_F(Validation, AnEmptyTextIsValid) {
    EXPECT_EQ(VerdictText(""), "valid");
}

TEST_F(Validation, TheSeparatorOfTheFileIsRefused) {
    EXPECT_EQ(VerdictText("Smit|ton"), "refused: Invalid Char - |");
    EXPECT_EQ(VerdictText("|"), "refused: Invalid Char - |");
    EXPECT_EQ(VerdictText("Smithton|"), "refused: Invalid Char - |");
}

TEST_F(Validation, TheSeparatorIsLookedForBeforeAnythingElse) {
    EXPECT_EQ(VerdictText(" !!%|%\t"), "refused: Invalid Char - |");
}

TEST_F(Validation, MarkersWithoutANameAreANullDistrict) {
    for (const char* text : {"!", "%", "!%", " ! ", " % ", "  !%  ", "%!"}) {
        EXPECT_EQ(VerdictText(text), Null) << text;
    }
}

TEST_F(Validation, AMarkerAtTheEndIsANullDistrict) {
    for (const char* text : {"Smithton%", "!Smithton%", "Smithton!", "%Smithton!", "Smithton%12!", "Smithton! ",
                             "Smithton %", "!!%", "!!Smithton%"}) {
        EXPECT_EQ(VerdictText(text), Null) << text;
    }
}

TEST_F(Validation, TwoPercentsNeedADateMarkInFront) {
    EXPECT_EQ(VerdictText("Smithton%12%3"), BadDependency);
    EXPECT_EQ(VerdictText("!Smithton%12%3"), BadDependency);
    EXPECT_EQ(VerdictText("!!%Smithton%3"), BadDependency);
}

TEST_F(Validation, ASecondPercentCannotBeTheLastCharacter) {
    EXPECT_EQ(VerdictText("%Sm%"), BadDependency);
    EXPECT_EQ(VerdictText("!%Sm%"), BadDependency);
    EXPECT_EQ(VerdictText("%Smithton% "), BadDependency); // the blank is trimmed away
    EXPECT_EQ(VerdictText("%Smithton%12%"), BadDependency);
}

TEST_F(Validation, ASecondPercentStandsAtTheFourthCharacterOrLater) {
    EXPECT_EQ(VerdictText("%%S"), BadDependency);
    EXPECT_EQ(VerdictText("%S%1"), BadDependency);
    EXPECT_EQ(VerdictText("!%%1"), BadDependency);
    EXPECT_EQ(VerdictText(" %S%1"), BadDependency); // counted without the leading blank
    EXPECT_EQ(VerdictText("%Sm%1"), "valid");
    EXPECT_EQ(VerdictText("!%S%1"), "valid");
}

TEST_F(Validation, APercentBetweenTheFirstAndTheLastIsNotLookedAt) {
    EXPECT_EQ(VerdictText("%Smithton%1%2"), "valid");
    EXPECT_EQ(VerdictText("%%S%1"), "valid");
}

TEST_F(Validation, ASecondShriekIsRefused) {
    EXPECT_EQ(VerdictText("!!Smithton"), "refused: Multiple !'s");
    EXPECT_EQ(VerdictText("!Smithton!"), "refused: Multiple !'s");
    EXPECT_EQ(VerdictText("!!"), "refused: Multiple !'s");
    EXPECT_EQ(VerdictText("a!b!c"), "refused: Multiple !'s");
}

TEST_F(Validation, ABlankBehindTheShriekIsRefused) {
    EXPECT_EQ(VerdictText("! Smithton"), "refused: Space after !");
    EXPECT_EQ(VerdictText("Smith! ton"), "refused: Space after !");
    EXPECT_EQ(VerdictText("Smith !ton"), "valid"); // before it is nobody's business
}

TEST_F(Validation, OnlyTheFirstShriekIsLookedBehind) {
    EXPECT_EQ(VerdictText("!Smith! ton"), "refused: Multiple !'s");
}

TEST_F(Validation, BlanksAroundAPercentAreRefused) {
    EXPECT_EQ(VerdictText("% Smithton"), "refused: Space after %");
    EXPECT_EQ(VerdictText("Smithton% 12"), "refused: Space after %");
    EXPECT_EQ(VerdictText("Smithton %12"), "refused: Space before %");
    EXPECT_EQ(VerdictText("%Smithton %12"), "refused: Space before %");
}

TEST_F(Validation, OuterBlanksAreRefused) {
    EXPECT_EQ(VerdictText(" Smithton"), "refused: Leading space");
    EXPECT_EQ(VerdictText("Smithton "), "refused: Trailing space");
}

TEST_F(Validation, BlanksAloneEndInATrailingSpace) {
    EXPECT_EQ(VerdictText(" "), "refused: Trailing space");
    EXPECT_EQ(VerdictText("   "), "refused: Trailing space");
}

TEST_F(Validation, TheLastRuleThatFailsGivesTheReason) {
    EXPECT_EQ(VerdictText("! a!"), "refused: Space after !");
    EXPECT_EQ(VerdictText("! a% b"), "refused: Space after %");
    EXPECT_EQ(VerdictText("a % b"), "refused: Space before %");
    EXPECT_EQ(VerdictText(" a %b"), "refused: Leading space");
    EXPECT_EQ(VerdictText(" ! a"), "refused: Leading space");
    EXPECT_EQ(VerdictText(" Smithton "), "refused: Trailing space");
}

TEST_F(Validation, ADependencyIsJudgedBeforeTheShrieks) {
    EXPECT_EQ(VerdictText("!!a%b%"), BadDependency);
    EXPECT_EQ(VerdictText(" a% %b!"), BadDependency);
}

TEST_F(Validation, AQuestionMarkInANameIsRefused) {
    EXPECT_EQ(VerdictText("Smit?on"), "refused: Question Mark");
    EXPECT_EQ(VerdictText("!%Smit?on%12"), "refused: Question Mark");
    EXPECT_EQ(VerdictText("??"), "refused: Question Mark");
}

TEST_F(Validation, AQuestionMarkAloneIsAnUnknownNameAndValid) {
    for (const char* text : {"?", "!?", "%?", "!%?", "?%12"}) {
        EXPECT_EQ(VerdictText(text), "valid") << text;
    }
}

TEST_F(Validation, AQuestionMarkBehindTheNameIsValid) {
    EXPECT_EQ(VerdictText("Smithton%?12"), "valid");
    EXPECT_EQ(VerdictText("Smithton!?"), "valid");
}

TEST_F(Validation, AQuestionMarkIsNotTheReasonWhenSomethingElseIsWrong) {
    EXPECT_EQ(VerdictText("!!a?b"), "refused: Multiple !'s");
    EXPECT_EQ(VerdictText("a?b "), "refused: Trailing space");
}

TEST_F(Validation, TheQuestionMarkRuleAloneLeavesReasonAndMarkers) {
    sInvalidReason = "old";
    EXPECT_TRUE(CheckQuestionMark("!?%12"));
    EXPECT_EQ(sInvalidReason, "old");
    EXPECT_FALSE(CheckQuestionMark(" %Smit?on%12"));
    EXPECT_EQ(sInvalidReason, "Question Mark");
    EXPECT_EQ(sMarkerPrefix, "%");
    EXPECT_EQ(sMarkerSuffix, "%12");
}

TEST_F(Validation, TheQuestionMarkRuleDoesNotCountOuterBlanksOfTheName) {
    EXPECT_TRUE(CheckQuestionMark(" ? "));
    EXPECT_TRUE(CheckQuestionMark("? %12"));
    EXPECT_TRUE(CheckQuestionMark(""));
    EXPECT_FALSE(CheckQuestionMark("? ?"));
    EXPECT_FALSE(CheckQuestionMark("\t?"));
}

TEST_F(Validation, NoRuleLooksAtThePosition) {
    AddRetained("# a comment");
    for (const std::int32_t position : {-1, 0, 1, 2, 2'000'000'000}) {
        EXPECT_TRUE(ValidateVariation("Smithton", position)) << position;
        EXPECT_FALSE(ValidateVariation("Smit?on", position)) << position;
    }
}

} // namespace
