#include "rules/VerdictText.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using ValidationWarnings = StateTest;

char Byte(int code) {
    return static_cast<char>(static_cast<unsigned char>(code));
}

TEST_F(ValidationWarnings, CharactersOfAnUnreadableNameShouldHaveAShriek) {
    for (const char c : std::string_view("_*[]{}")) {
        EXPECT_EQ(VerdictText(std::string("Sm") + c + "thton"), "valid, warning: Should have !") << c;
        EXPECT_EQ(VerdictText(std::string("%Sm") + c + "thton"), "valid, warning: Should have !") << c;
        EXPECT_EQ(VerdictText(std::string(1, c)), "valid, warning: Should have !") << c;
    }
}

TEST_F(ValidationWarnings, WithTheShriekInFrontAllIsWell) {
    for (const char c : std::string_view("_*[]{}")) {
        EXPECT_EQ(VerdictText(std::string("!Sm") + c + "thton"), "valid") << c;
        EXPECT_EQ(VerdictText(std::string("!%Sm") + c + "thton"), "valid") << c;
        EXPECT_EQ(VerdictText(std::string("%!Sm") + c + "thton"), "valid") << c;
    }
}

TEST_F(ValidationWarnings, AShriekBehindTheNameDoesNotHelp) {
    EXPECT_EQ(VerdictText("Sm_th!ton"), "valid, warning: Should have !");
}

TEST_F(ValidationWarnings, OnlyTheNameIsLookedAt) {
    EXPECT_EQ(VerdictText("Smithton%[12]"), "valid");
    EXPECT_EQ(VerdictText("Smith!_"), "valid");
}

TEST_F(ValidationWarnings, CharactersBeyondAsciiAreUnusual) {
    EXPECT_EQ(VerdictText("Caf\xE9"), "valid, warning: Unusual char at position 4 (Char=233)");
    EXPECT_EQ(VerdictText("Smithton%\xA3"), "valid, warning: Unusual char at position 10 (Char=163)");
}

TEST_F(ValidationWarnings, TheLastUnusualCharacterIsTheOneReported) {
    EXPECT_EQ(VerdictText("Caf\xE9 Zo\xEB s"), "valid, warning: Unusual char at position 8 (Char=235)");
}

TEST_F(ValidationWarnings, ATildeBehindAnUnusualCharacterIsOrdinary) {
    EXPECT_EQ(VerdictText("Caf\xE9~"), "valid, warning: Unusual char at position 4 (Char=233)");
    EXPECT_EQ(VerdictText("Caf\xE9\x7F"), "valid, warning: Unusual char at position 5 (Char=127)");
}

TEST_F(ValidationWarnings, AnUnusualCharacterHidesTheMissingShriek) {
    EXPECT_EQ(VerdictText("_\xE9_"), "valid, warning: Unusual char at position 2 (Char=233)");
}

TEST_F(ValidationWarnings, ControlCharactersAreInvalid) {
    EXPECT_EQ(VerdictText("Sm\tithton"), "refused: Invalid char at position 3 (Char=9)");
    EXPECT_EQ(VerdictText("Smithton\r\n"), "refused: Invalid char at position 9 (Char=13)");
    EXPECT_EQ(VerdictText(std::string_view("S\0", 2)), "refused: Invalid char at position 2 (Char=0)");
}

TEST_F(ValidationWarnings, PositionsCountFromTheStartOfTheUntrimmedText) {
    EXPECT_EQ(VerdictText("  !\tS"), "refused: Invalid char at position 4 (Char=9)");
    EXPECT_EQ(VerdictText(std::string(120, 'a') + "\t"), "refused: Invalid char at position 121 (Char=9)");
}

TEST_F(ValidationWarnings, AControlCharacterIsTheReasonWhateverElseIsWrong) {
    EXPECT_EQ(VerdictText(" !!a?b \t "), "refused: Invalid char at position 8 (Char=9)");
    EXPECT_EQ(VerdictText("a?b\t"), "refused: Invalid char at position 4 (Char=9)");
}

TEST_F(ValidationWarnings, TheFirstControlCharacterEndsTheCheck) {
    EXPECT_EQ(VerdictText("a\tb\n"), "refused: Invalid char at position 2 (Char=9)");
    EXPECT_EQ(VerdictText("\xE9\t\xEB"),
              "refused: Invalid char at position 2 (Char=9), warning: Unusual char at position 1 (Char=233)");
    EXPECT_EQ(VerdictText("_\t"), "refused: Invalid char at position 2 (Char=9), warning: Should have !");
}

TEST_F(ValidationWarnings, ARefusedTextIsWarnedAboutAllTheSame) {
    EXPECT_EQ(VerdictText("Sm?_"), "refused: Question Mark, warning: Should have !");
    EXPECT_EQ(VerdictText(" Caf\xE9"), "refused: Leading space, warning: Unusual char at position 5 (Char=233)");
}

std::string ExpectedInsideAName(int code) {
    const std::string character = " char at position 3 (Char=" + std::to_string(code) + ")";
    if (code < 32) {
        return "refused: Invalid" + character;
    }
    if (code > 126) {
        return "valid, warning: Unusual" + character;
    }
    switch (code) {
    case '|':
        return "refused: Invalid Char - |";
    case '?':
        return "refused: Question Mark";
    case '_':
    case '*':
    case '[':
    case ']':
    case '{':
    case '}':
        return "valid, warning: Should have !";
    default:
        return "valid";
    }
}

TEST_F(ValidationWarnings, EveryCharacterInsideANameIsOfOneClass) {
    for (int code = 0; code < 256; ++code) {
        EXPECT_EQ(VerdictText(std::string("ab") + Byte(code) + "d"), ExpectedInsideAName(code)) << code;
    }
}

} // namespace
