#include "core/Encoding.h"

#include "core/Ansi.h"
#include "core/Utf8.h"

#include <gtest/gtest.h>

#include <random>

using namespace CommonRoutines;

namespace {

const std::string Mark = "\xEF\xBB\xBF";

TEST(Encoding, PlainTextIsWindows1252) {
    EXPECT_EQ(EncodingOf(""), Encoding::Windows1252);
    EXPECT_EQ(EncodingOf("Ash\r\nElm"), Encoding::Windows1252);
}

TEST(Encoding, OneCharacterBeyondAsciiMakesItUtf8) {
    for (const char* bytes : {"Caf\xC3\xA9", "\xE2\x82\xAC", "\xC5\xB5", "Caf\xC3\xA9 \xC4\x80", "\xF0\x9F\x98\x80",
                              "\xC2\x80", "\xC3\xA9\xEF\xBB\xBF", "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF", "\xEE\x80\x80"}) {
        EXPECT_EQ(EncodingOf(bytes), Encoding::Utf8) << bytes;
    }
}

TEST(Encoding, AMarkMakesEvenPlainTextUtf8) {
    EXPECT_EQ(EncodingOf(Mark), Encoding::Utf8WithMark);
    EXPECT_EQ(EncodingOf(Mark + "Ash"), Encoding::Utf8WithMark);
    EXPECT_EQ(EncodingOf(Mark + "\xC5\xB5"), Encoding::Utf8WithMark);
}

TEST(Encoding, WhatIsNoUtf8AnywhereIsWindows1252) {
    for (const char* bytes : {
             "Caf\xE9",
             "Caf\xC3\xA9 Caf\xE9",
             "\xC3",
             "\xA9",
             "\xC1\x81",
             "\xE0\x83\xA9",
             "\xF0\x82\x82\xAC", // longer than needed
             "\xED\xA0\x80",
             "\xED\xBF\xBF",
             "\xED\xA0\xBD\xED\xB8\x80", // surrogates
             "\xF4\x90\x80\x80",
             "\xF5\x80\x80\x80",
             "\xFF", // beyond the last code point
             "Ash \xE2\x82",
             "Ash \xF0\x9F\x98",
             "\xC3\xA9 \xC5", // cut off
             "\xEF\xBB\xBF\xE9",
             "\xEF\xBB",
         }) {
        EXPECT_EQ(EncodingOf(bytes), Encoding::Windows1252) << bytes;
    }
}

// What eight bytes at a time pass over must not hide what stands between or behind them.
TEST(Encoding, TheLastByteCountsWhereverItStands) {
    for (std::size_t length = 0; length < 40; ++length) {
        for (std::size_t at = 0; at <= length; ++at) {
            std::string bytes(length, 'a');
            EXPECT_EQ(EncodingOf(std::string(bytes).insert(at, "\xC5\xB5")), Encoding::Utf8);
            EXPECT_EQ(EncodingOf(std::string(bytes).insert(at, "\xC5")), Encoding::Windows1252);
        }
    }
}

TEST(Encoding, ATextIsTheBytesThatWereReadButForAMarkInFront) {
    EXPECT_EQ(Decoded("Caf\xC3\xA9", Encoding::Utf8), "Caf\xC3\xA9");
    EXPECT_EQ(Decoded("Caf\xE9", Encoding::Windows1252), "Caf\xE9");
    EXPECT_EQ(Decoded(Mark + Mark + "Ash", Encoding::Utf8WithMark), Mark + "Ash");
    EXPECT_EQ(Encoded("Ash", Encoding::Utf8WithMark), Mark + "Ash");
}

TEST(Encoding, EveryCharacterOfWindows1252IsRecodedAndComesBack) {
    std::string all;
    for (int code = 0; code < 256; ++code) {
        all += static_cast<char>(code);
    }
    for (const Encoding utf8 : {Encoding::Utf8, Encoding::Utf8WithMark}) {
        const std::string recoded = Recoded(all, Encoding::Windows1252, utf8);
        EXPECT_TRUE(Utf8::IsValid(recoded));
        EXPECT_EQ(recoded.size(), 128U + 2U * 111U + 3U * 17U);
        EXPECT_EQ(Recoded(recoded, utf8, Encoding::Windows1252), all);
        EXPECT_EQ(Recoded(recoded, utf8, Encoding::Utf8), recoded);
    }
    EXPECT_EQ(Recoded(all, Encoding::Windows1252, Encoding::Windows1252), all);
}

TEST(Encoding, RecodedForWindows1252WhatItLacksIsAQuestionMark) {
    EXPECT_EQ(Recoded("D\xC5\xB5r Caf\xC3\xA9", Encoding::Utf8, Encoding::Windows1252), "D?r Caf\xE9");
}

TEST(Encoding, BytesOfAnyKindComeBackAsTheyWere) {
    std::mt19937 random(7);
    const std::string pieces[] = {"Ash", "\xC3\xA9", "\xE2\x82\xAC", "\xC2\x81", Mark,          "\xE9",
                                  "|",   "\xC4\x80", "\r\n",         "\xC5\xB5", "\xED\xA0\x80"};
    std::size_t counts[3] = {};
    for (int round = 0; round < 20'000; ++round) {
        std::string bytes;
        for (auto count = random() % 6; count > 0; --count) {
            bytes += pieces[random() % std::size(pieces)];
        }
        const Encoding encoding = EncodingOf(bytes);
        ++counts[static_cast<std::size_t>(encoding)];
        ASSERT_EQ(Encoded(Decoded(bytes, encoding), encoding), bytes);
        ASSERT_TRUE(encoding == Encoding::Windows1252 || Utf8::IsValid(bytes));
    }
    for (const std::size_t count : counts) {
        EXPECT_GT(count, 1'000U);
    }
}

} // namespace
