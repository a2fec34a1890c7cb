#include "core/Ansi.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

char Byte(int code) {
    return static_cast<char>(static_cast<unsigned char>(code));
}

// What 80 to 9F stand for, in order; a blank marks the five bytes that the code page leaves open.
const std::u16string_view SpecialCharacters = u"€ ‚ƒ„…†‡ˆ‰Š‹Œ Ž  ‘’“”•–—˜™š›œ žŸ";

TEST(AnsiToUnicode, BytesOutsideTheSpecialRowAreTheirOwnCodePoints) {
    for (int code = 0; code < 256; ++code) {
        if (code < 0x80 || code > 0x9F) {
            EXPECT_EQ(static_cast<int>(Ansi::ToUnicode(Byte(code))), code);
        }
    }
}

TEST(AnsiToUnicode, TheSpecialRowHoldsThePunctuationOfTheCodePage) {
    ASSERT_EQ(SpecialCharacters.size(), 32U);
    for (int code = 0x80; code <= 0x9F; ++code) {
        const char16_t special = SpecialCharacters[static_cast<std::size_t>(code - 0x80)];
        const int expected = special == u' ' ? code : special;
        EXPECT_EQ(static_cast<int>(Ansi::ToUnicode(Byte(code))), expected) << code;
    }
}

TEST(AnsiFromUnicode, EveryByteComesBack) {
    for (int code = 0; code < 256; ++code) {
        EXPECT_EQ(Ansi::FromUnicode(Ansi::ToUnicode(Byte(code))), Byte(code)) << code;
    }
}

TEST(AnsiFromUnicode, OnlyTheCharactersOfTheCodePageAreKept) {
    std::set<char32_t> known;
    for (int code = 0; code < 256; ++code) {
        known.insert(Ansi::ToUnicode(Byte(code)));
    }
    for (char32_t codePoint = 0; codePoint < 0x3000; ++codePoint) {
        if (!known.contains(codePoint)) {
            EXPECT_EQ(Ansi::FromUnicode(codePoint), '?') << static_cast<unsigned>(codePoint);
        }
    }
}

TEST(AnsiFromUnicode, CharactersFarAwayBecomeQuestionMarks) {
    EXPECT_EQ(Ansi::FromUnicode(0x0100), '?');  // A with macron: not its first byte, not a plain A
    EXPECT_EQ(Ansi::FromUnicode(0x1F600), '?'); // beyond 16 bits
    EXPECT_EQ(Ansi::FromUnicode(0x10041), '?'); // an "A" when cut to 16 bits
    EXPECT_EQ(Ansi::FromUnicode(0xFFFFFFFF), '?');
}

TEST(AnsiFromUtf8, PlainTextStaysAsItIs) {
    EXPECT_EQ(Ansi::FromUtf8(""), "");
    EXPECT_EQ(Ansi::FromUtf8("/home/me/Districts 1.txt"), "/home/me/Districts 1.txt");
}

TEST(AnsiFromUtf8, TheLastByteThatOpensTwoTakesOnlyOneMore) {
    EXPECT_EQ(Ansi::FromUtf8("\xDF\xBF\xBF"), "??");
    EXPECT_EQ(Ansi::FromUtf8("\xDFz"), "?z");
    EXPECT_EQ(Ansi::FromUtf8("\xDF\xC3\xA9"), "?\xE9");
}

TEST(AnsiFromUtf8, SequencesOfTwoAndThreeBytesBecomeTheirCharacters) {
    EXPECT_EQ(Ansi::FromUtf8("Caf\xC3\xA9"), "Caf\xE9");
    EXPECT_EQ(Ansi::FromUtf8("\xE2\x82\xAC\xC5\xB8"), "\x80\x9F"); // euro, Y with diaeresis
    EXPECT_EQ(Ansi::FromUtf8("\xC2\x80\xC2\xA0\xC3\xBF"), "?\xA0\xFF");
}

TEST(AnsiFromUtf8, OneQuestionMarkStandsForEachCharacterThatTheCodePageLacks) {
    EXPECT_EQ(Ansi::FromUtf8("\xC4\x80"
                             "b"),
              "?b");
    EXPECT_EQ(Ansi::FromUtf8("a\xF0\x9F\x98\x80z"), "a?z");
    EXPECT_EQ(Ansi::FromUtf8("\xEF\xBB\xBFx"), "?x");
}

TEST(AnsiFromUtf8, BytesThatStartNothingAreQuestionMarks) {
    EXPECT_EQ(Ansi::FromUtf8("a\x80z"), "a?z"); // a continuation alone
    EXPECT_EQ(Ansi::FromUtf8("\xBF\xBF"), "??");
    EXPECT_EQ(Ansi::FromUtf8("\xFE\xFF\xF5\xF8"), "????");
    EXPECT_EQ(Ansi::FromUtf8("\xE9t\xE9"), "?t?"); // a file name in the code page itself
}

TEST(AnsiFromUtf8, ASequenceCutShortIsOneQuestionMarkAndLeavesWhatFollows) {
    EXPECT_EQ(Ansi::FromUtf8("\xC3"), "?");
    EXPECT_EQ(Ansi::FromUtf8("\xE2\x82"), "?");
    EXPECT_EQ(Ansi::FromUtf8("\xF0\x9F\x98"), "?");
    EXPECT_EQ(Ansi::FromUtf8("\xC3z"), "?z");
    EXPECT_EQ(Ansi::FromUtf8("\xE2\x82z"), "?z");
    EXPECT_EQ(Ansi::FromUtf8("\xE2\xC3\xA9"), "?\xE9");
}

// Otherwise a name could hold a "/" or a NUL that no check of its bytes has seen.
TEST(AnsiFromUtf8, ACharacterWrittenWithMoreBytesThanItNeedsIsNone) {
    EXPECT_EQ(Ansi::FromUtf8("\xC0\xAF"), "??");
    EXPECT_EQ(Ansi::FromUtf8("\xC1\x81"), "??");
    EXPECT_EQ(Ansi::FromUtf8("\xE0\x80\xAF").find('/'), std::string::npos);
    EXPECT_EQ(Ansi::FromUtf8("\xE0\x81\x81z"), "?z");
    EXPECT_EQ(Ansi::FromUtf8("\xE0\x83\xA9z"), "?z");
    EXPECT_EQ(Ansi::FromUtf8("\xF0\x80\x80\x80z"), "?z");
    EXPECT_EQ(Ansi::FromUtf8("\xF0\x82\x82\xACz"), "?z");
}

TEST(AnsiFromUtf8, SurrogatesAndNumbersBeyondTheLastCharacterAreQuestionMarks) {
    EXPECT_EQ(Ansi::FromUtf8("\xED\xA0\x80"), "?");
    EXPECT_EQ(Ansi::FromUtf8("\xF4\x90\x80\x80"), "?");
}

} // namespace
