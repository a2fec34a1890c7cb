#include "core/LetterPairs.h"

#include "core/Ansi.h"
#include "core/AnsiCase.h"
#include "core/Utf8.h"

#include <gtest/gtest.h>

namespace {

constexpr char32_t LastCodePoint = 0x10FFFF;

TEST(LetterPairs, WelshLettersHaveBothCases) {
    EXPECT_EQ(LetterPairs::Upper("d\xC5\xB5r t\xC5\xB7"), "D\xC5\xB4R T\xC5\xB6");
    EXPECT_EQ(LetterPairs::Lower("\xC5\xB4YE \xC5\xB6"), "\xC5\xB5ye \xC5\xB7");
}

TEST(LetterPairs, SoHaveLettersOfOtherScriptsAndBeyondSixteenBits) {
    EXPECT_EQ(LetterPairs::Upper("\xCE\xB1\xD0\xB6"), "\xCE\x91\xD0\x96"); // Greek alpha, Cyrillic zhe
    EXPECT_EQ(LetterPairs::Upper("\xF0\x90\x90\xA8"), "\xF0\x90\x90\x80"); // Deseret
    EXPECT_EQ(LetterPairs::Upper(U'\u00FF'), U'\u0178');                   // y with diaeresis
}

// Each of them has a capital or a small letter that belongs to another letter as well, or that is several.
TEST(LetterPairs, ALetterWithoutOneCounterpartOfItsOwnStaysAsItIs) {
    for (const char32_t letter :
         std::u32string_view(U"\u00DF\u1E9E\u0130\u0131\u017F\u00B5\u212A\u212B\u03C2\u01C5\u0149")) {
        EXPECT_EQ(LetterPairs::Upper(letter), letter) << static_cast<unsigned>(letter);
        EXPECT_EQ(LetterPairs::Lower(letter), letter) << static_cast<unsigned>(letter);
    }
}

TEST(LetterPairs, EveryLetterHasOneCounterpartAtMostWhichHasNoOther) {
    int pairs = 0;
    for (char32_t code = 0; code <= LastCodePoint; ++code) {
        const char32_t upper = LetterPairs::Upper(code);
        const char32_t lower = LetterPairs::Lower(code);
        ASSERT_TRUE(upper == code || lower == code) << static_cast<unsigned>(code);
        ASSERT_TRUE(upper == code || LetterPairs::Lower(upper) == code) << static_cast<unsigned>(code);
        ASSERT_TRUE(lower == code || LetterPairs::Upper(lower) == code) << static_cast<unsigned>(code);
        ASSERT_TRUE((upper < 0x80) == (code < 0x80) && (lower < 0x80) == (code < 0x80)) << static_cast<unsigned>(code);
        pairs += upper != code ? 1 : 0;
    }
    EXPECT_EQ(pairs, 1423);
    EXPECT_EQ(LetterPairs::Upper(Utf8::NotACharacter), Utf8::NotACharacter);
}

TEST(LetterPairs, LettersOfWindows1252AreWhatTheyAreThere) {
    for (int code = 0; code < 256; ++code) {
        const char c = static_cast<char>(code);
        if (Ansi::Upper(c) != c) {
            EXPECT_EQ(LetterPairs::Upper(char32_t{Ansi::ToUnicode(c)}), char32_t{Ansi::ToUnicode(Ansi::Upper(c))});
        }
        if (Ansi::Lower(c) != c) {
            EXPECT_EQ(LetterPairs::Lower(char32_t{Ansi::ToUnicode(c)}), char32_t{Ansi::ToUnicode(Ansi::Lower(c))});
        }
    }
}

TEST(LetterPairs, BytesThatAreNoCharacterBecomeOne) {
    EXPECT_EQ(LetterPairs::Upper("a\xC5z"), "A\xEF\xBF\xBDZ");
    std::string_view broken = "\xE1\xBA";
    EXPECT_EQ(LetterPairs::TakeUpper(broken), char32_t{0xFFFD});
    EXPECT_TRUE(broken.empty());
}

} // namespace
