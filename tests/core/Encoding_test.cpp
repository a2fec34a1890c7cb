#include "core/Encoding.h"

#include "core/Ansi.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

using namespace CommonRoutines;

namespace {

TEST(Encoding, PlainTextIsWindows1252) {
    EXPECT_EQ(EncodingOf(""), Encoding::Windows1252);
    EXPECT_EQ(EncodingOf("Ash\r\nElm"), Encoding::Windows1252);
}

TEST(Encoding, OneSequenceThatWindows1252HasMakesItUtf8) {
    EXPECT_EQ(EncodingOf("Caf\xC3\xA9"), Encoding::Utf8);
    EXPECT_EQ(EncodingOf("\xE2\x82\xAC"), Encoding::Utf8); // the euro sign
}

TEST(Encoding, AMarkMakesEvenPlainTextUtf8) {
    EXPECT_EQ(EncodingOf("\xEF\xBB\xBF"), Encoding::Utf8WithMark);
    EXPECT_EQ(EncodingOf("\xEF\xBB\xBF"
                         "Ash"),
              Encoding::Utf8WithMark);
}

TEST(Encoding, CharactersThatWindows1252LacksLeaveTheBytesAlone) {
    for (const char* bytes :
         {"Caf\xC3\xA9 \xC4\x80", "\xF0\x9F\x98\x80", "\xC2\x80", "\xEF\xBB\xBF\xC4\x80", "\xC3\xA9\xEF\xBB\xBF"}) {
        EXPECT_EQ(EncodingOf(bytes), Encoding::Windows1252) << bytes;
        EXPECT_EQ(Decoded(bytes, EncodingOf(bytes)), bytes);
    }
}

TEST(Encoding, BrokenSequencesAreWindows1252) {
    for (const char* bytes : {"Caf\xE9", "Caf\xC3\xA9 Caf\xE9", "\xC3", "\xA9", "\xC1\x81", "\xE0\x83\xA9",
                              "\xED\xA0\x80", "\xEF\xBB\xBF\xE9", "\xEF\xBB"}) {
        EXPECT_EQ(EncodingOf(bytes), Encoding::Windows1252) << bytes;
    }
}

// From a byte that only continues to one that opens nothing, each before every other byte.
TEST(Encoding, TwoBytesAreUtf8OnlyWhereTheyAreACharacterOfWindows1252) {
    std::set<std::string> characters;
    for (int code = 0; code < 256; ++code) {
        std::string utf8;
        Ansi::AppendUtf8(utf8, static_cast<char>(code));
        characters.insert(utf8);
    }
    for (int lead = 0x80; lead < 256; ++lead) {
        for (int second = 0; second < 256; ++second) {
            const std::string bytes{static_cast<char>(lead), static_cast<char>(second)};
            const Encoding expected = characters.contains(bytes) ? Encoding::Utf8 : Encoding::Windows1252;
            ASSERT_EQ(EncodingOf(bytes), expected) << lead << ' ' << second;
        }
    }
}

TEST(Encoding, EveryCharacterComesBack) {
    std::string all;
    for (int code = 0; code < 256; ++code) {
        all += static_cast<char>(code);
    }
    for (const Encoding encoding : {Encoding::Windows1252, Encoding::Utf8, Encoding::Utf8WithMark}) {
        const std::string bytes = Encoded(all, encoding);
        EXPECT_EQ(EncodingOf(bytes), encoding);
        EXPECT_EQ(Decoded(bytes, encoding), all);
    }
}

TEST(Encoding, BytesOfAnyKindComeBackAsTheyWere) {
    std::mt19937 random(7);
    constexpr std::string_view pieces[] = {"Ash",      "\xC3\xA9", "\xE2\x82\xAC", "\xC2\x81", "\xEF\xBB\xBF", "\xE9",
                                           "\xC4\x80", "|",        "\r\n"};
    int utf8 = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::string bytes;
        for (auto count = random() % 6; count > 0; --count) {
            bytes += pieces[random() % std::size(pieces)];
        }
        const Encoding encoding = EncodingOf(bytes);
        utf8 += encoding == Encoding::Windows1252 ? 0 : 1;
        ASSERT_EQ(Encoded(Decoded(bytes, encoding), encoding), bytes);
    }
    EXPECT_GT(utf8, 2'000);
}

} // namespace
