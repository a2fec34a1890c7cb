#include "core/Ansi.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

char Byte(int code) {
    return static_cast<char>(static_cast<unsigned char>(code));
}

std::string Bytes(int first, int last) {
    std::string bytes;
    for (int code = first; code <= last; ++code) {
        bytes += Byte(code);
    }
    return bytes;
}

// Every letter of the code page that has both forms, capitals and small letters in the same order.
// The signs of multiplication (D7) and division (F7) stand in the middle of the letters.
std::string Capitals() {
    return Bytes('A', 'Z') + Bytes(0xC0, 0xD6) + Bytes(0xD8, 0xDE) + "\x8A\x8C\x8E\x9F";
}

std::string SmallLetters() {
    return Bytes('a', 'z') + Bytes(0xE0, 0xF6) + Bytes(0xF8, 0xFE) + "\x9A\x9C\x9E\xFF";
}

std::map<char, char> Pairs(const std::string& from, const std::string& to) {
    std::map<char, char> pairs;
    for (std::size_t i = 0; i < from.size(); ++i) {
        pairs[from[i]] = to[i];
    }
    return pairs;
}

TEST(AnsiCase, EverySmallLetterHasItsCapitalAndEveryOtherByteIsItsOwn) {
    const auto pairs = Pairs(SmallLetters(), Capitals());
    for (const char c : Bytes(0, 255)) {
        EXPECT_EQ(Ansi::Upper(c), pairs.contains(c) ? pairs.at(c) : c) << static_cast<int>(c);
    }
}

TEST(AnsiCase, EveryCapitalHasItsSmallLetterAndEveryOtherByteIsItsOwn) {
    const auto pairs = Pairs(Capitals(), SmallLetters());
    for (const char c : Bytes(0, 255)) {
        EXPECT_EQ(Ansi::Lower(c), pairs.contains(c) ? pairs.at(c) : c) << static_cast<int>(c);
    }
}

TEST(AnsiCase, TextsChangeLetterByLetter) {
    EXPECT_EQ(Ansi::Upper("caf\xE9 \x9A\xFF 1!"), "CAF\xC9 \x8A\x9F 1!");
    EXPECT_EQ(Ansi::Lower("CAF\xC9 \x8A\x9F 1!"), "caf\xE9 \x9A\xFF 1!");
}

TEST(AnsiCase, SignsAndLettersWithoutACapitalStayAsTheyAre) {
    const std::string text =
        "\xDF \xB5 \xD7 \xF7 \xAA \xBA \x83"; // sharp s, micro, times, divided by, ordinals, florin
    EXPECT_EQ(Ansi::Upper(text), text);
    EXPECT_EQ(Ansi::Lower(text), text);
}

TEST(AnsiCase, ANulByteIsACharacterLikeAnyOther) {
    using namespace std::string_literals;
    EXPECT_EQ(Ansi::Upper("a\0b"s), "A\0B"s);
    EXPECT_EQ(Ansi::Lower("A\0B"s), "a\0b"s);
}

TEST(AnsiCase, AnEmptyTextStaysEmpty) {
    EXPECT_EQ(Ansi::Upper(""), "");
    EXPECT_EQ(Ansi::Lower(""), "");
}

TEST(AnsiEqual, CaseDoesNotCount) {
    EXPECT_TRUE(Ansi::EqualIgnoringCase("Caf\xE9", "CAF\xC9"));
    EXPECT_TRUE(Ansi::EqualIgnoringCase("\x9A\xFF", "\x8A\x9F"));
    EXPECT_TRUE(Ansi::EqualIgnoringCase("", ""));
}

TEST(AnsiEqual, AccentsAndSignsCount) {
    EXPECT_FALSE(Ansi::EqualIgnoringCase("Cafe", "Caf\xE9"));
    EXPECT_FALSE(Ansi::EqualIgnoringCase("\xD7", "\xF7"));
    EXPECT_FALSE(Ansi::EqualIgnoringCase("@", "`")); // 32 apart, as letters are
}

TEST(AnsiEqual, TheBeginningOfATextIsNotTheText) {
    EXPECT_FALSE(Ansi::EqualIgnoringCase("Smith", "Smithton"));
    EXPECT_FALSE(Ansi::EqualIgnoringCase("Smithton", "Smith"));
    EXPECT_FALSE(Ansi::EqualIgnoringCase("", " "));
}

} // namespace
