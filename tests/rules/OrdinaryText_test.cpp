#include "rules/OrdinaryText.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "rules/Capitals.h"
#include "rules/Validation.h"
#include "support/Table.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace CommonRoutines;

namespace {

bool HasNothingToSay(std::string_view text) {
    const Verdict verdict = CheckVariation(text);
    return !Ansi::Trim(text).empty() && verdict.IsValid() && !verdict.Warns() && !CapitalsAreUnusual(text);
}

class OrdinaryTextTest : public StateTest {};

TEST_F(OrdinaryTextTest, NamesWithAndWithoutMarkersAreOrdinary) {
    for (const char* text :
         {"A", "Ash", "Ashton Under Lyne", "Ashton-Under-Lyne", "O'Brien", "St. Ives", "Ash (West)", "!Ash", "Ash%19c",
          "!Ash%3b/XII", "%Ash", "!%Ash", "%Ash%2", "!%As%2", "3rd", "Ash 2", "Ash & Elm", "Ash%1 2"}) {
        EXPECT_TRUE(IsOrdinary(text)) << text;
        EXPECT_TRUE(HasNothingToSay(text)) << text;
    }
}

TEST_F(OrdinaryTextTest, WhatARuleLooksForIsNotOrdinary) {
    for (const char* text : {"",        " ",      "\t",     "!",      "%",     "!!Ash",        "! Ash",  " Ash",
                             "Ash ",    "Ash!",   "Ash%",   "% Ash",  "%!Ash", "%%Ash",        "%A%2",   "%Ash%",
                             "Ash%1%2", "Ash %1", "Ash% 1", "Ash%1 ", "Ash?",  "As_h",         "[Ash]",  "Ash|Elm",
                             "Ash\n",   "\xC9lm", "ash",    "AsH",    "McAsh", "Ash upon Elm", "Ash%1?", "Ash%1!"}) {
        EXPECT_FALSE(IsOrdinary(text)) << text;
    }
}

TEST_F(OrdinaryTextTest, OfWhatIsOrdinaryNoRuleHasAnythingToSay) {
    const std::string_view characters("AaBb1  -'.%!?)[_|\t\xC9\xE9&");
    std::mt19937 random(1);
    int ordinary = 0;
    for (const Encoding encoding : {Encoding::Windows1252, Encoding::Utf8}) {
        eFileEncoding = encoding;
        for (int round = 0; round < 200'000; ++round) {
            // Mostly of what may be ordinary.
            const std::size_t kinds = random() % 3 == 0 ? characters.size() : 12;
            std::string text;
            for (auto length = random() % 9; length > 0; --length) {
                text += characters[random() % kinds];
            }
            if (IsOrdinary(text)) {
                ++ordinary;
                ASSERT_TRUE(HasNothingToSay(text)) << '[' << text << ']';
            }
        }
    }
    EXPECT_GT(ordinary, 20'000);
}

} // namespace
