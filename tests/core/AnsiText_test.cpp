#include "core/Ansi.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Pieces = std::vector<std::string_view>;

TEST(AnsiTrim, BlanksGoFromBothEndsAndStayInside) {
    EXPECT_EQ(Ansi::Trim("  Upper  Smithton "), "Upper  Smithton");
    EXPECT_EQ(Ansi::TrimLeft("  Upper  Smithton "), "Upper  Smithton ");
}

TEST(AnsiTrim, OnlyTheSpaceCharacterIsABlank) {
    for (const std::string text : {"\tA\t", "\r\nA\r\n",
                                   "\xA0"
                                   "A\xA0"}) {
        EXPECT_EQ(Ansi::Trim(text), text);
        EXPECT_EQ(Ansi::TrimLeft(text), text);
    }
    EXPECT_EQ(Ansi::Trim(" \t "), "\t");
}

TEST(AnsiTrim, NothingIsLeftOfBlanksAlone) {
    EXPECT_EQ(Ansi::Trim("   "), "");
    EXPECT_EQ(Ansi::TrimLeft("   "), "");
    EXPECT_EQ(Ansi::Trim(""), "");
    EXPECT_EQ(Ansi::TrimLeft(""), "");
}

TEST(AnsiTrim, TheResultIsAPartOfTheText) {
    const std::string_view text = "  ab ";
    EXPECT_EQ(Ansi::Trim(text).data(), text.data() + 2);
    EXPECT_EQ(Ansi::TrimLeft("   ").size(), 0U);
}

TEST(AnsiFirstWord, EndsAtTheFirstBlank) {
    EXPECT_EQ(Ansi::FirstWord("Upper Smithton North"), "Upper");
    EXPECT_EQ(Ansi::FirstWord("Upper\tSmithton x"), "Upper\tSmithton");
    EXPECT_EQ(Ansi::FirstWord("Smithton"), "Smithton");
    EXPECT_EQ(Ansi::FirstWord(" Smithton"), "");
    EXPECT_EQ(Ansi::FirstWord(""), "");
}

TEST(AnsiSplit, EverySeparatorMakesOnePieceMore) {
    EXPECT_EQ(Ansi::Split("a|b|c", '|'), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Ansi::Split("|a||b|", '|'), (Pieces{"", "a", "", "b", ""}));
    EXPECT_EQ(Ansi::Split("|", '|'), (Pieces{"", ""}));
}

TEST(AnsiSplit, ATextWithoutSeparatorsIsOnePiece) {
    EXPECT_EQ(Ansi::Split("a+b", '|'), Pieces{"a+b"});
    EXPECT_EQ(Ansi::Split("", '|'), Pieces{""});
}

TEST(AnsiSplit, OfMorePiecesThanAreWantedTheFirstOnesAreGiven) {
    Pieces pieces;
    Ansi::SplitInto(pieces, "a|b|c", '|', 2);
    EXPECT_EQ(pieces, (Pieces{"a", "b"}));
    Ansi::SplitInto(pieces, "a|b|c", '|', 3);
    EXPECT_EQ(pieces, (Pieces{"a", "b", "c"}));
    Ansi::SplitInto(pieces, "a", '|', 2);
    EXPECT_EQ(pieces, Pieces{"a"});
}

} // namespace
