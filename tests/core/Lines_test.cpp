#include "core/Lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace CommonRoutines;

namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;

Texts LinesOf(std::string_view text) {
    Texts result;
    Lines lines(text);
    while (const auto line = lines.Next()) {
        result.emplace_back(*line);
    }
    return result;
}

TEST(Lines, EndAtLineFeedsWithAndWithoutACarriageReturn) {
    EXPECT_EQ(LinesOf("one\ntwo\n"), (Texts{"one", "two"}));
    EXPECT_EQ(LinesOf("one\r\ntwo\r\n"), (Texts{"one", "two"}));
    EXPECT_EQ(LinesOf("one\r\ntwo\nthree\r\n"), (Texts{"one", "two", "three"}));
}

TEST(Lines, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(LinesOf("one\r\ntwo"), (Texts{"one", "two"}));
    EXPECT_EQ(LinesOf("one"), Texts{"one"});
}

TEST(Lines, AnEmptyTextHasNone) {
    EXPECT_EQ(LinesOf(""), Texts{});
}

TEST(Lines, ALineEndAloneIsAnEmptyLine) {
    EXPECT_EQ(LinesOf("\n"), Texts{""});
    EXPECT_EQ(LinesOf("\r\n"), Texts{""});
    EXPECT_EQ(LinesOf("one\r\n\r\n\ntwo"), (Texts{"one", "", "", "two"}));
}

TEST(Lines, ACarriageReturnElsewhereBelongsToItsLine) {
    EXPECT_EQ(LinesOf("one\rtwo\nthree"), (Texts{"one\rtwo", "three"}));
    EXPECT_EQ(LinesOf("one\r"), Texts{"one\r"});
    EXPECT_EQ(LinesOf("one\r\r\ntwo"), (Texts{"one\r", "two"}));
    EXPECT_EQ(LinesOf("\rone\n\r"), (Texts{"\rone", "\r"}));
}

TEST(Lines, KeepNulBytesBlanksAndTheOldEndOfFileMark) {
    EXPECT_EQ(LinesOf("o\0ne\n\0\n"s), (Texts{"o\0ne"s, "\0"s}));
    EXPECT_EQ(LinesOf(" one \n\ttwo\x1A"), (Texts{" one ", "\ttwo\x1A"}));
}

TEST(Lines, AreOverOnceAndForAll) {
    Lines lines("one\n");
    EXPECT_EQ(lines.Next(), "one");
    EXPECT_EQ(lines.Next(), std::nullopt);
    EXPECT_EQ(lines.Next(), std::nullopt);
}

TEST(Lines, ArePartsOfTheText) {
    const std::string_view text = "one\r\ntwo";
    Lines lines(text);
    EXPECT_EQ(lines.Next()->data(), text.data());
    EXPECT_EQ(lines.Next()->data(), text.data() + 5);
}

} // namespace
