#include "edit/EditPanel.h"

#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using KeyFilterTest = StateTest;

// Whether the key may be typed where "^" stands in the text.
bool May(char key, const std::string& textWithCaret) {
    const auto caret = textWithCaret.find('^');
    std::string text = textWithCaret;
    text.erase(caret, 1);
    return MayType(key, text, caret);
}

} // namespace

// Blank

TEST_F(KeyFilterTest, ABlankIsRefusedAtTheStart) {
    EXPECT_FALSE(May(' ', "^"));
    EXPECT_FALSE(May(' ', "^Smith"));
    EXPECT_FALSE(May(' ', "^!Smith"));
    EXPECT_FALSE(May(' ', "^ "));
}

TEST_F(KeyFilterTest, ABlankIsRefusedRightBehindAMarker) {
    EXPECT_FALSE(May(' ', "!^"));
    EXPECT_FALSE(May(' ', "%^"));
    EXPECT_FALSE(May(' ', "!^Smith"));
    EXPECT_FALSE(May(' ', "!%^Smith"));
    EXPECT_FALSE(May(' ', "Smith%^12"));
    EXPECT_FALSE(May(' ', "Smith%^"));
}

TEST_F(KeyFilterTest, ABlankPassesBehindAnyOtherCharacter) {
    EXPECT_TRUE(May(' ', "S^mith"));
    EXPECT_TRUE(May(' ', "Smith^"));
    EXPECT_TRUE(May(' ', "Smith ^"));
    EXPECT_TRUE(May(' ', "Upper ^Smith"));
    EXPECT_TRUE(May(' ', "!%S^mith"));
}

TEST_F(KeyFilterTest, ABlankPassesBeforeAMarker) {
    EXPECT_TRUE(May(' ', "Smith^%12"));
    EXPECT_TRUE(May(' ', "S^!"));
}

// Exclamation mark

TEST_F(KeyFilterTest, AnExclamationMarkPassesAtTheStart) {
    EXPECT_TRUE(May('!', "^"));
    EXPECT_TRUE(May('!', "^Smith"));
    EXPECT_TRUE(May('!', "^%Smith"));
}

TEST_F(KeyFilterTest, AnExclamationMarkIsRefusedBehindTheStart) {
    EXPECT_FALSE(May('!', "S^mith"));
    EXPECT_FALSE(May('!', "Smith^"));
    EXPECT_FALSE(May('!', "%^Smith"));
    EXPECT_FALSE(May('!', " ^"));
}

TEST_F(KeyFilterTest, ASecondExclamationMarkIsRefusedEverywhere) {
    EXPECT_FALSE(May('!', "^!Smith"));
    EXPECT_FALSE(May('!', "!^Smith"));
    EXPECT_FALSE(May('!', "!Smi^th"));
    EXPECT_FALSE(May('!', "!Smith^"));
    EXPECT_FALSE(May('!', "^Smi!th"));
    EXPECT_FALSE(May('!', "^Smith!"));
}

// Percent sign

TEST_F(KeyFilterTest, APercentSignIsRefusedBehindABlank) {
    EXPECT_FALSE(May('%', " ^"));
    EXPECT_FALSE(May('%', "Smith ^"));
    EXPECT_FALSE(May('%', "Upper ^Smith"));
    EXPECT_FALSE(May('%', "Upper ^!"));
}

TEST_F(KeyFilterTest, APercentSignPassesAtTheEnd) {
    EXPECT_TRUE(May('%', "^"));
    EXPECT_TRUE(May('%', "!^"));
    EXPECT_TRUE(May('%', "%^"));
    EXPECT_TRUE(May('%', "Smith^"));
}

TEST_F(KeyFilterTest, APercentSignIsRefusedRightBeforeAnExclamationMark) {
    EXPECT_FALSE(May('%', "^!Smith"));
    EXPECT_FALSE(May('%', "^!"));
    EXPECT_FALSE(May('%', "S^!"));
}

TEST_F(KeyFilterTest, APercentSignPassesBeforeAnyOtherCharacter) {
    EXPECT_TRUE(May('%', "^Smith"));
    EXPECT_TRUE(May('%', "!^Smith"));
    EXPECT_TRUE(May('%', "Smith^12"));
    EXPECT_TRUE(May('%', "^%Smith"));
    EXPECT_TRUE(May('%', "^ Smith"));
    EXPECT_TRUE(May('%', "^S!"));
}

// Question mark

TEST_F(KeyFilterTest, AQuestionMarkIsRefusedInATextWithoutATrailingMarker) {
    for (const char* text : {"^", "^Smith", "Sm^ith", "Smith^", "!^", "%^", "!%^", "!Smith^", "%Smith^", "!%Smith^"}) {
        EXPECT_FALSE(May('?', text)) << text;
    }
}

TEST_F(KeyFilterTest, AQuestionMarkPassesBehindTheLastPercentSignOfATrailingMarker) {
    EXPECT_TRUE(May('?', "Smith%^"));
    EXPECT_TRUE(May('?', "Smith%^12"));
    EXPECT_TRUE(May('?', "Smith%1^2"));
    EXPECT_TRUE(May('?', "Smith%12^"));
    EXPECT_TRUE(May('?', "%Smith%^12"));
    EXPECT_TRUE(May('?', "!%Smith%12^"));
}

TEST_F(KeyFilterTest, AQuestionMarkIsRefusedBeforeTheLastPercentSign) {
    EXPECT_FALSE(May('?', "^Smith%12"));
    EXPECT_FALSE(May('?', "Smit^h%12"));
    EXPECT_FALSE(May('?', "Smith^%12"));
    EXPECT_FALSE(May('?', "%^Smith%12"));
    EXPECT_FALSE(May('?', "Smith%1^%2"));
}

TEST_F(KeyFilterTest, BehindATrailingExclamationMarkTheLastPercentSignStillDecides) {
    EXPECT_TRUE(May('?', "^Smith!"));
    EXPECT_TRUE(May('?', "Smi^th!"));
    EXPECT_FALSE(May('?', "^%Smith!"));
    EXPECT_TRUE(May('?', "%^Smith!"));
    EXPECT_FALSE(May('?', "Smith!1^%2"));
}

TEST_F(KeyFilterTest, AMarkerBehindABlankOpensNoTrailingPart) {
    EXPECT_FALSE(May('?', "! !^"));
    EXPECT_FALSE(May('?', "% %^"));
}

TEST_F(KeyFilterTest, TheMarkersOfAnEarlierTextDoNotCount) {
    sMarkerSuffix = "%12";
    EXPECT_FALSE(May('?', "Smith^"));
    sMarkerSuffix.clear();
    EXPECT_TRUE(May('?', "Smith%^"));
    EXPECT_EQ(sMarkerSuffix, "");
}

// Vertical bar, and all others

TEST_F(KeyFilterTest, AVerticalBarIsAlwaysRefused) {
    for (const char* text : {"^", "^Smith", "Sm^ith", "Smith^", "!^", "Smith%^12"}) {
        EXPECT_FALSE(May('|', text)) << text;
    }
}

TEST_F(KeyFilterTest, EveryOtherCharacterPassesEverywhere) {
    for (int code = 0; code < 256; ++code) {
        const char key = static_cast<char>(code);
        if (std::string_view(" !%?|").find(key) != std::string_view::npos) {
            continue;
        }
        for (const char* text : {"^", "^Smith", "Sm^ith", "Smith ^", "!^", "%^Smith%12", "Smith%12^"}) {
            EXPECT_TRUE(May(key, text)) << code << " in " << text;
        }
    }
}

TEST_F(KeyFilterTest, JudgingAKeyChangesNeitherTheModeNorTheFile) {
    iEditMode = AddingAcceptable;
    EXPECT_FALSE(May('!', "Smith^"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    EXPECT_FALSE(bChanged);
}

TEST_F(KeyFilterTest, ARefusalSaysWhy) {
    EXPECT_EQ(WhyKeyIsRefused(' ', "", 0), "A variation cannot begin with a blank.");
    EXPECT_EQ(WhyKeyIsRefused(' ', "!", 1), "No blank can follow a marker.");
    EXPECT_EQ(WhyKeyIsRefused('!', "Ash", 1), "\"!\" can only stand first.");
    EXPECT_EQ(WhyKeyIsRefused('!', "!Ash", 0), "There is a \"!\" already.");
    EXPECT_EQ(WhyKeyIsRefused('%', "Ash ", 4), "\"%\" cannot follow a blank.");
    EXPECT_EQ(WhyKeyIsRefused('%', "!Ash", 0), "\"%\" cannot stand before \"!\".");
    EXPECT_EQ(WhyKeyIsRefused('?', "Ash", 3), "\"?\" can only stand in the volume behind the last \"%\".");
    EXPECT_EQ(WhyKeyIsRefused('|', "Ash", 3), "\"|\" separates variations and cannot be part of one.");
    EXPECT_EQ(WhyKeyIsRefused('A', "Ash", 3), "");
}
