#include "core/Utf8.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr char32_t LastCodePoint = 0x10FFFF;

std::vector<char32_t> Taken(std::string_view text) {
    std::vector<char32_t> taken;
    while (!text.empty()) {
        taken.push_back(Utf8::TakeCodePoint(text));
    }
    return taken;
}

TEST(Utf8, EveryCodePointComesBackAndSurrogatesAreNone) {
    for (char32_t code = 0; code <= LastCodePoint; ++code) {
        std::string text;
        Utf8::Append(text, code);
        const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
        ASSERT_EQ(Taken(text), std::vector{isSurrogate ? Utf8::NotACharacter : code}) << static_cast<unsigned>(code);
        ASSERT_EQ(Utf8::IsValid(text), !isSurrogate);
        ASSERT_EQ(Utf8::IsAscii(text), code < 0x80);
        ASSERT_EQ(Utf8::CharacterCount(text), 1U);
    }
}

// From a byte that only continues to one that opens nothing, each before every other byte.
TEST(Utf8, TwoBytesAreValidOnlyWhereTheSecondContinuesTheFirst) {
    for (int lead = 0x80; lead < 256; ++lead) {
        for (int second = 0; second < 256; ++second) {
            const std::string bytes{static_cast<char>(lead), static_cast<char>(second)};
            const bool expected = lead >= 0xC2 && lead <= 0xDF && second >= 0x80 && second <= 0xBF;
            ASSERT_EQ(Utf8::IsValid(bytes), expected) << lead << ' ' << second;
        }
    }
}

TEST(Utf8, WhatFollowsBytesThatAreNoCharacterIsNotTakenWithThem) {
    constexpr char32_t none = Utf8::NotACharacter;
    EXPECT_EQ(Taken("\xC5z"), (std::vector{none, U'z'}));
    EXPECT_EQ(Taken("\xE1\xBA\xC5\xB5"), (std::vector{none, char32_t{0x175}}));
    EXPECT_EQ(Taken("\x80\xFF"), (std::vector{none, none}));
}

TEST(Utf8, CleanedOnlyWhatIsNoCharacterIsAQuestionMark) {
    EXPECT_EQ(Utf8::Cleaned("/d\xC5\xB5r/caf\xE9\xF0\x9F\x98\x80"), "/d\xC5\xB5r/caf?\xF0\x9F\x98\x80");
    EXPECT_EQ(Utf8::Cleaned(""), "");
}

} // namespace
