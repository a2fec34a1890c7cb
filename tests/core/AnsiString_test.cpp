#include "core/AnsiString.h"

#include <gtest/gtest.h>

#include <sstream>
#include <utility>

namespace {

// Texts on both sides of the length up to which they stand in place.
std::vector<std::string> Samples() {
    std::vector<std::string> samples{"", "a", std::string("\0a\0", 3)};
    for (const std::size_t length : {22U, 23U, 24U, 25U, 127U, 128U, 1000U}) {
        samples.push_back(std::string(length - 1, 'x') + 'y');
    }
    return samples;
}

TEST(AnsiString, HoldsItsText) {
    for (const std::string& text : Samples()) {
        const Ansi::String held{std::string_view(text)};
        EXPECT_EQ(held, text);
        EXPECT_EQ(held.size(), text.size());
        EXPECT_EQ(held.empty(), text.empty());
    }
}

TEST(AnsiString, TakesOneTextAfterAnother) {
    Ansi::String held;
    for (const std::string& first : Samples()) {
        for (const std::string& second : Samples()) {
            held = std::string_view(first);
            held = std::string_view(second);
            EXPECT_EQ(held, second);
        }
    }
}

TEST(AnsiString, CopiesAreTextsOfTheirOwn) {
    for (const std::string& text : Samples()) {
        Ansi::String original{std::string_view(text)};
        Ansi::String copy = original;
        Ansi::String assigned;
        assigned = original;
        original = "other";
        EXPECT_EQ(copy, text);
        EXPECT_EQ(assigned, text);
    }
}

TEST(AnsiString, MovingTakesTheTextAlong) {
    for (const std::string& text : Samples()) {
        Ansi::String original{std::string_view(text)};
        Ansi::String moved = std::move(original);
        EXPECT_EQ(moved, text);
        Ansi::String target = "what was there before, longer than stands in place";
        target = std::move(moved);
        EXPECT_EQ(target, text);
    }
}

TEST(AnsiString, MayBeAssignedToItselfAndToAPartOfItself) {
    for (const std::string& text : Samples()) {
        Ansi::String held{std::string_view(text)};
        const Ansi::String& same = held;
        held = same;
        EXPECT_EQ(held, text);
        if (!text.empty()) {
            held = std::string_view(held).substr(1);
            EXPECT_EQ(held, text.substr(1));
        }
    }
}

TEST(AnsiString, BecomesAnOrdinaryStringWhenPutTogether) {
    const Ansi::String text = "Ash";
    const std::string before = "[" + text;
    EXPECT_EQ(before + "]", "[Ash]");
    EXPECT_EQ(text + text, "AshAsh");
    EXPECT_EQ(text + std::string("ton"), "Ashton");
    std::ostringstream out;
    out << text;
    EXPECT_EQ(out.str(), "Ash");
}

} // namespace
