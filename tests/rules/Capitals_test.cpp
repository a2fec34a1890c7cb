#include "rules/Capitals.h"

#include "rules/SlowRules.h"
#include "support/LowerCaseWords.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class Capitals : public StateTest {};

TEST_F(Capitals, OneCapitalPerWordIsUsual) {
    for (const char* text : {"Smithton", "Upper Smithton", "S", "A B", "Stoke-Upon-Trent", "St. Smith, Nr/Trent",
                             "D'Arcy", "1st", "12", ""}) {
        EXPECT_FALSE(HasUnusualCapitals(text)) << text;
    }
}

TEST_F(Capitals, AWordInSmallLettersIsUnusual) {
    EXPECT_TRUE(HasUnusualCapitals("upper Smithton"));
    EXPECT_TRUE(HasUnusualCapitals("Upper smithton"));
    EXPECT_TRUE(HasUnusualCapitals("s"));
}

TEST_F(Capitals, CapitalsInsideAWordAreUnusual) {
    EXPECT_TRUE(HasUnusualCapitals("SMITHTON"));
    EXPECT_TRUE(HasUnusualCapitals("McDonald"));
    EXPECT_TRUE(HasUnusualCapitals("1St"));
}

TEST_F(Capitals, AListedWordNeedsNone) {
    UseLowerCaseWords({"upper", "mcdonald"});
    EXPECT_FALSE(HasUnusualCapitals("upper Smithton"));
    EXPECT_FALSE(HasUnusualCapitals("McDonald"));
    EXPECT_TRUE(HasUnusualCapitals("lower Smithton"));
}

TEST_F(Capitals, AnyCasingOfAListedWordPasses) {
    UseLowerCaseWords({"of", "\xE9lan"});
    for (const char* text : {"of", "Of", "OF", "oF", "\xC9LAN", "\xE9lAn"}) {
        EXPECT_FALSE(HasUnusualCapitals(text)) << text;
    }
}

TEST_F(Capitals, AListedWordIsAWholeWord) {
    UseLowerCaseWords({"of"});
    EXPECT_TRUE(HasUnusualCapitals("off"));
    EXPECT_TRUE(HasUnusualCapitals("o"));
}

TEST_F(Capitals, ANewListTakesThePlaceOfTheOneBefore) {
    UseLowerCaseWords({"of", "the"});
    UseLowerCaseWords({"upon"});
    EXPECT_TRUE(HasUnusualCapitals("of"));
    EXPECT_FALSE(HasUnusualCapitals("upon"));
}

TEST_F(Capitals, EveryPartOfAHyphenatedNameIsAWord) {
    EXPECT_TRUE(HasUnusualCapitals("Stoke-upon-Trent"));
    UseLowerCaseWords({"upon"});
    EXPECT_FALSE(HasUnusualCapitals("Stoke-upon-Trent"));
}

TEST_F(Capitals, WordsEndAtEachSeparator) {
    for (const char separator : std::string_view("\t -.,(/'")) {
        EXPECT_FALSE(HasUnusualCapitals(std::string("Ab") + separator + "Cd")) << separator;
        EXPECT_TRUE(HasUnusualCapitals(std::string("Ab") + separator + "cd")) << separator;
    }
}

TEST_F(Capitals, WordsDoNotEndAtOtherSigns) {
    for (const char sign : std::string_view(")]_;:&+\"\xA0")) {
        EXPECT_TRUE(HasUnusualCapitals(std::string("Ab") + sign + "Cd")) << sign;
        EXPECT_FALSE(HasUnusualCapitals(std::string("Ab") + sign + "cd")) << sign;
    }
}

TEST_F(Capitals, EmptyWordsPass) {
    EXPECT_FALSE(HasUnusualCapitals("--  St..  (/Smithton,"));
    EXPECT_FALSE(HasUnusualCapitals(" - "));
}

TEST_F(Capitals, AClosingParenthesisBelongsToItsWord) {
    EXPECT_FALSE(HasUnusualCapitals("(Smithton)"));
    EXPECT_TRUE(HasUnusualCapitals("(smithton)"));
    UseLowerCaseWords({"north", "south)"});
    EXPECT_TRUE(HasUnusualCapitals("Smithton (north)"));
    EXPECT_FALSE(HasUnusualCapitals("Smithton (SOUTH)"));
}

TEST_F(Capitals, AGroupInBracketsIsExpectedInCapitals) {
    EXPECT_FALSE(HasUnusualCapitals("[AB]cd"));
    EXPECT_TRUE(HasUnusualCapitals("[ab]cd"));
    EXPECT_TRUE(HasUnusualCapitals("[AB]CD"));
    EXPECT_FALSE(HasUnusualCapitals("[AB]"));
    EXPECT_FALSE(HasUnusualCapitals("[A]b]c"));
    EXPECT_TRUE(HasUnusualCapitals("[A]b]C"));
}

TEST_F(Capitals, AGroupWithoutItsClosingBracketIsTheWholeWord) {
    EXPECT_FALSE(HasUnusualCapitals("[ABCD"));
    EXPECT_TRUE(HasUnusualCapitals("[ABcd"));
    EXPECT_FALSE(HasUnusualCapitals("["));
    EXPECT_TRUE(HasUnusualCapitals("[AB CD]")); // the blank ends the word and with it the group
}

TEST_F(Capitals, OnlyAGroupAtTheFrontOfAWordCounts) {
    EXPECT_TRUE(HasUnusualCapitals("Ab[CD]"));
    EXPECT_FALSE(HasUnusualCapitals("Ab[cd]"));
    EXPECT_FALSE(HasUnusualCapitals("Sm-[IT]h"));
}

TEST_F(Capitals, AccentedLettersHaveCapitalsToo) {
    EXPECT_FALSE(HasUnusualCapitals("\xC9lan Caf\xE9 \x8Akoda \x9Fz"));
    EXPECT_TRUE(HasUnusualCapitals("\xE9lan"));
    EXPECT_TRUE(HasUnusualCapitals("Caf\xC9"));
    EXPECT_TRUE(HasUnusualCapitals("\x9Akoda"));
}

TEST_F(Capitals, LettersWithoutACapitalMayBeginAWord) {
    EXPECT_FALSE(HasUnusualCapitals("\xDF"
                                    "a \xB5m \xD7 \xF7"));
}

TEST_F(Capitals, MarkersAndWhatFollowsThemAreNotLookedAt) {
    EXPECT_FALSE(HasUnusualCapitals("!Smithton"));
    EXPECT_FALSE(HasUnusualCapitals("%Smithton%12ABc"));
    EXPECT_FALSE(HasUnusualCapitals("Smithton!aBC"));
    EXPECT_TRUE(HasUnusualCapitals("!%smithton"));
}

TEST_F(Capitals, MarkersBehindABlankAreDroppedToo) {
    EXPECT_FALSE(HasUnusualCapitals("! !%Smithton"));
    EXPECT_TRUE(HasUnusualCapitals("! !%smithton"));
    EXPECT_TRUE(HasUnusualCapitals("! !Smithton%A")); // nothing is cut off behind such a name
    EXPECT_FALSE(HasUnusualCapitals("! %"));
}

TEST_F(Capitals, TheMarkersAreLeftBehind) {
    EXPECT_FALSE(HasUnusualCapitals("!%Smithton%12"));
    EXPECT_EQ(sMarkerPrefix, "!%");
    EXPECT_EQ(sMarkerSuffix, "%12");
}

TEST_F(Capitals, AreLookedAtWithoutLeavingTheMarkers) {
    sMarkerPrefix = sMarkerSuffix = "old";
    EXPECT_FALSE(CapitalsAreUnusual("!%Smithton%12"));
    EXPECT_TRUE(CapitalsAreUnusual("!%smithton%12"));
    EXPECT_EQ(sMarkerPrefix, "old");
    EXPECT_EQ(sMarkerSuffix, "old");
}

TEST_F(Capitals, AgreeWithTheSlowRulesOnRandomTextsOfAUtf8File) {
    const std::vector<std::string> letters = {"A", "b",        "b",        " ",        "[",        "]",
                                              "%", "\xC5\xB4", "\xC5\xB5", "\xC3\x9F", "\xC3\xBF", "\xC5\xB8"};
    UseLowerCaseWords({"\xFF", "b"}); // in Windows-1252
    eFileEncoding = Encoding::Utf8;
    std::mt19937 random(4);
    int unusual = 0;
    constexpr int rounds = 100'000;
    for (int round = 0; round < rounds; ++round) {
        const std::string text = Slow::RandomText(random, letters, 8);
        const bool expected = Slow::UnusualCapitals(text, {"\xC3\xBF", "b"});
        ASSERT_EQ(CapitalsAreUnusual(text), expected) << text;
        unusual += expected ? 1 : 0;
    }
    EXPECT_GT(unusual, rounds / 10);
    EXPECT_LT(unusual, rounds - rounds / 10);
}

TEST_F(Capitals, AgreeWithTheSlowRulesOnRandomTexts) {
    constexpr std::string_view alphabets[] = {"!%? \t-[](ABab_|\xE9\xC9\x80\x9A\x8A", "ABabb [](A-", "AAabbbbb  ')"};
    const std::vector<std::string> words = {"ab", "b", "\xE9", "a)", "[a]b"};
    UseLowerCaseWords(words);
    std::mt19937 random(3);
    int unusual = 0;
    constexpr int rounds = 150'000;
    for (int round = 0; round < rounds; ++round) {
        const std::string text = Slow::RandomText(random, alphabets[random() % 3], 8);
        const bool expected = Slow::UnusualCapitals(text, words);
        ASSERT_EQ(HasUnusualCapitals(text), expected) << text;
        ASSERT_EQ(CapitalsAreUnusual(text), expected) << text;
        unusual += expected ? 1 : 0;
    }
    EXPECT_GT(unusual, rounds / 10);
    EXPECT_LT(unusual, rounds - rounds / 10);
}

} // namespace
