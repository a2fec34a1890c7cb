#include "file/DistrictComments.h"

#include <gtest/gtest.h>

#include <random>

using namespace CommonRoutines;

namespace {

using Rows = std::vector<CommentRow>;

double OneEach(std::string_view text) {
    return static_cast<double>(text.size());
}

// Narrow and wide letters, as most fonts have them.
double Proportional(std::string_view text) {
    double width = 0;
    for (const char c : text) {
        width += c == 'i' || c == ' ' ? 0.5 : 1.25;
    }
    return width;
}

std::string TrimBlanks(std::string text) {
    while (!text.empty() && text.front() == ' ') {
        text.erase(0, 1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

// The same wrapping step by step, trying every character from the last one backwards and measuring
// every text whole. Positions count from 1.
void WrapSlowly(Rows& rows, const std::string& comment, double available, const MeasureText& measure) {
    std::string text = TrimBlanks(comment);
    while (!text.empty()) {
        std::size_t p = 0;
        for (std::size_t i = text.size(); i >= 1; --i) {
            if (text[i - 1] == ' ' && measure(text.substr(0, i - 1)) < available) {
                p = i;
                break;
            }
        }
        if (p < 4) {
            p = text.size();
        }
        rows.back().comment = TrimBlanks(text.substr(0, p));
        if (p == text.size()) {
            return;
        }
        text = TrimBlanks(text.substr(p - 1));
        if (text.empty()) {
            return;
        }
        rows.push_back({" ", ""});
        if (measure(text) < available) {
            rows.back().comment = text;
            return;
        }
    }
}

std::string Listed(const Rows& rows) {
    std::string list;
    for (const CommentRow& row : rows) {
        list += "[" + row.type + "|" + row.comment + "]";
    }
    return list;
}

std::string Wrapped(const std::string& comment, double available) {
    Rows rows{{"above", "stays"}, {"T", ""}};
    WrapComment(rows, comment, available, OneEach);
    return Listed(rows);
}

} // namespace

TEST(WrapComment, GoesOnInNewRowsBehindTheLastOne) {
    EXPECT_EQ(Wrapped("aaaa bbbb cccc", 6), "[above|stays][T|aaaa][ |bbbb][ |cccc]");
}

TEST(WrapComment, TheTextIsTrimmedFirst) {
    EXPECT_EQ(Wrapped("   aaaa bbbb   ", 6), "[above|stays][T|aaaa][ |bbbb]");
}

TEST(WrapComment, BlanksWhereTheTextBreaksAreDropped) {
    EXPECT_EQ(Wrapped("aaaa    bbbb", 6), "[above|stays][T|aaaa][ |bbbb]");
}

TEST(WrapComment, NothingButBlanksLeavesTheRowAlone) {
    EXPECT_EQ(Wrapped("   ", 6), "[above|stays][T|]");
    EXPECT_EQ(Wrapped("", 6), "[above|stays][T|]");
}

TEST(WrapComment, WhatFillsTheRoomExactlyIsTooWide) {
    EXPECT_EQ(Wrapped("aaaa bbbb cc", 9), "[above|stays][T|aaaa][ |bbbb cc]");
    EXPECT_EQ(Wrapped("aaaa bbbb cc", 10), "[above|stays][T|aaaa bbbb][ |cc]");
    EXPECT_EQ(Wrapped("aaaa bbbb cc", 7), "[above|stays][T|aaaa][ |bbbb][ |cc]");
}

// A last blank with room before it is looked for even where the whole text would fit.
TEST(WrapComment, EvenATextThatFitsIsBrokenAtItsLastBlank) {
    EXPECT_EQ(Wrapped("aaaa bbbb", 100), "[above|stays][T|aaaa][ |bbbb]");
}

TEST(WrapComment, AWordThatIsTooWideKeepsWhatFollowsIt) {
    EXPECT_EQ(Wrapped("aaaa bbbbbbbbbb cc", 6), "[above|stays][T|aaaa][ |bbbbbbbbbb cc]");
}

TEST(WrapComment, AgreesWithWrappingStepByStep) {
    std::mt19937 random(1837);
    for (int round = 0; round < 4000; ++round) {
        std::string comment;
        for (auto length = random() % 60; length > 0; --length) {
            comment += "  ixxiii"[random() % 8];
        }
        if (round % 100 == 0) {
            comment += std::string(400 + random() % 400, 'x') + " xx i xx"; // longer than any screen
        }
        const double available = static_cast<double>(random() % 30);
        const MeasureText measure = round % 2 == 0 ? OneEach : Proportional;
        Rows rows{{"T", ""}};
        WrapComment(rows, comment, available, measure);
        Rows expected{{"T", ""}};
        WrapSlowly(expected, comment, available, measure);
        ASSERT_EQ(Listed(rows), Listed(expected)) << "[" << comment << "] in " << available;
    }
}
