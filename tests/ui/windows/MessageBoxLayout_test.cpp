#include "ui/windows/MessageBoxLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

constexpr int LineHeight = 16;
constexpr int ButtonHeight = 25;
constexpr bool WithIcon = true;
constexpr bool WithoutIcon = false;

using Captions = std::vector<std::string>;

// A font whose characters are all equally wide; a carriage return has no width.
MessageBoxLayout::TextMeasure FixedWidth(int pixels) {
    const auto width = [pixels](std::string_view text) {
        int widest = 0;
        int line = 0;
        for (const char c : text) {
            line = c == '\n' ? 0 : line + (c == '\r' ? 0 : pixels);
            widest = std::max(widest, line);
        }
        return widest;
    };
    return {width, LineHeight};
}

MessageBoxLayout::Layout Arrange(const std::string& prompt, bool hasIcon, const Captions& captions, int pixels = 6) {
    return MessageBoxLayout::Arrange(prompt, hasIcon, captions, FixedWidth(pixels), ButtonHeight);
}

Captions Texts(const MessageBoxLayout::Layout& layout) {
    Captions texts;
    for (const MessageBoxLayout::Button& button : layout.buttons) {
        texts.push_back(button.text);
    }
    return texts;
}

std::vector<int> Lefts(const MessageBoxLayout::Layout& layout) {
    std::vector<int> lefts;
    for (const MessageBoxLayout::Button& button : layout.buttons) {
        lefts.push_back(button.left);
    }
    return lefts;
}

} // namespace

TEST(MessageBoxLayout, ASingleButtonStandsInTheMiddle) {
    const auto layout = Arrange("Hello", WithoutIcon, {"OK"});
    EXPECT_EQ(Texts(layout), Captions{"OK"});
    EXPECT_EQ(layout.buttonWidth, 75);
    EXPECT_EQ(layout.buttonHeight, ButtonHeight);
    EXPECT_EQ(layout.innerWidth, 95);
    EXPECT_EQ(Lefts(layout), std::vector<int>{5});
}

TEST(MessageBoxLayout, FiveButtonsAreSpreadEvenlyInOneRow) {
    const auto layout = Arrange("Hello", WithoutIcon, {"One", "Two", "Three", "Four", "Five"});
    EXPECT_EQ(Texts(layout), (Captions{"One", "Two", "Three", "Four", "Five"}));
    EXPECT_EQ(layout.innerWidth, 5 * (75 + 20));
    EXPECT_EQ(Lefts(layout), (std::vector<int>{0, 97, 195, 292, 390}));
}

TEST(MessageBoxLayout, ButtonsAreSpreadAcrossAWidePrompt) {
    const auto layout = Arrange(std::string(50, 'x'), WithIcon, {"Yes", "No"});
    EXPECT_EQ(layout.innerWidth, 300 + 62);
    EXPECT_EQ(Lefts(layout), (std::vector<int>{0, 362 - 10 - 75}));
}

TEST(MessageBoxLayout, AButtonIsTenPixelsWiderThanTheWidestCaptionButNeverNarrowerThan75) {
    EXPECT_EQ(Arrange("?", WithoutIcon, {"Type", "Type a name"}, 6).buttonWidth, 76);
    EXPECT_EQ(Arrange("?", WithoutIcon, {"Type", "Type name"}, 6).buttonWidth, 75);
}

TEST(MessageBoxLayout, WithoutAnIconThePromptStartsAtTheMargin) {
    const auto layout = Arrange("Hello", WithoutIcon, {"OK"});
    EXPECT_EQ(layout.labelLeft, 10);
    EXPECT_EQ(layout.labelWidth, 30);
    EXPECT_EQ(layout.labelHeight, LineHeight);
}

TEST(MessageBoxLayout, AnIconMovesThePromptToTheRight) {
    const auto layout = Arrange("Hello", WithIcon, {"OK"});
    EXPECT_EQ(layout.labelLeft, 52);
    EXPECT_EQ(layout.labelWidth, 30);
    EXPECT_EQ(layout.innerWidth, 95);
}

TEST(MessageBoxLayout, ThePromptIsAsWideAsItsWidestLineAndAsTallAsAllOfThem) {
    const auto layout = Arrange("One\r\nThree hundred\r\n\r\n", WithIcon, {"OK"});
    EXPECT_EQ(layout.labelWidth, 13 * 6);
    EXPECT_EQ(layout.labelHeight, 4 * LineHeight);
}

TEST(MessageBoxLayout, APromptThatNeeds500PixelsIsNotWrapped) {
    const auto without = Arrange(std::string(480, 'x'), WithoutIcon, {"OK"}, 1);
    EXPECT_EQ(without.labelWidth, 480);
    EXPECT_EQ(without.labelHeight, LineHeight);
    EXPECT_EQ(without.innerWidth, 500);
    const auto with = Arrange(std::string(438, 'x'), WithIcon, {"OK"}, 1);
    EXPECT_EQ(with.labelWidth, 438);
    EXPECT_EQ(with.labelHeight, LineHeight);
    EXPECT_EQ(with.innerWidth, 500);
}

TEST(MessageBoxLayout, APromptThatNeedsMoreIsWrapped) {
    const auto without = Arrange(std::string(481, 'x'), WithoutIcon, {"OK"}, 1);
    EXPECT_EQ(without.labelWidth, 438);
    EXPECT_EQ(without.labelHeight, 30); // 18 * 481 / 450 + 10 = 29.24
    EXPECT_EQ(without.innerWidth, 500);
    const auto with = Arrange(std::string(439, 'x'), WithIcon, {"OK"}, 1);
    EXPECT_EQ(with.labelWidth, 438);
    EXPECT_EQ(with.labelHeight, 28); // 18 * 439 / 450 + 10 = 27.56
    EXPECT_EQ(with.innerWidth, 500);
}

TEST(MessageBoxLayout, TheHeightOfAWrappedPromptCountsItsLinesAndPartsOfARow) {
    const auto layout = Arrange("Short\r\n" + std::string(1125, 'x'), WithoutIcon, {"OK"}, 1);
    EXPECT_EQ(layout.labelHeight, 95); // (2 * 16 + 2) * 2.5 + 10
}

TEST(MessageBoxLayout, ARowOfExactly500PixelsKeepsItsWidth) {
    const Captions captions{std::string(40, 'x') + " " + std::string(429, 'x'), "No"};
    const auto layout = Arrange("?", WithoutIcon, captions, 1); // 1 * (480 + 20)
    EXPECT_EQ(layout.buttonWidth, 480);
    EXPECT_EQ(layout.buttonHeight, ButtonHeight);
    EXPECT_EQ(Texts(layout), captions);
}

TEST(MessageBoxLayout, ARowOf501PixelsHalvesTheButtonsAndMakesThemOneLineTaller) {
    const std::string half(235, 'x');
    const auto layout = Arrange("?", WithoutIcon, {half + " " + half, "No"}, 1); // 1 * (481 + 20)
    EXPECT_EQ(layout.buttonWidth, 245);                                          // 240 would cut the words
    EXPECT_EQ(layout.buttonHeight, ButtonHeight + LineHeight + 1);
    EXPECT_EQ(Texts(layout), (Captions{half + "\n" + half, "No"}));
}

TEST(MessageBoxLayout, TheRowIsReckonedWithOneButtonLessThanThereAre) {
    // Three buttons of 230 pixels: 2 * 250 fits, although the row itself is 750 wide.
    const auto layout = Arrange("?", WithoutIcon, {std::string(110, 'x') + " " + std::string(109, 'x'), "b", "c"}, 1);
    EXPECT_EQ(layout.buttonWidth, 230);
    EXPECT_EQ(layout.innerWidth, 750);
    EXPECT_EQ(Lefts(layout), (std::vector<int>{0, 255, 510}));
}

TEST(MessageBoxLayout, TheRepairButtonsBecomeTwoLinesTall) {
    const auto layout = Arrange("?", WithIcon, {"Combine Previous", "Combine Next", "Remove", "Type", "Quit"});
    EXPECT_EQ(Texts(layout), (Captions{"Combine\nPrevious", "Combine\nNext", "Remove", "Type", "Quit"}));
    EXPECT_EQ(layout.buttonWidth, 58); // half of 106 would cut "Previous"
    EXPECT_EQ(layout.buttonHeight, ButtonHeight + LineHeight + 1);
    EXPECT_EQ(layout.innerWidth, 5 * 78);
}

TEST(MessageBoxLayout, FourRepairButtonsFitOnOneLine) {
    const auto layout = Arrange("?", WithIcon, {"Combine Previous", "Remove", "Type", "Quit"});
    EXPECT_EQ(Texts(layout), (Captions{"Combine Previous", "Remove", "Type", "Quit"}));
    EXPECT_EQ(layout.buttonWidth, 106);
    EXPECT_EQ(layout.buttonHeight, ButtonHeight);
}

TEST(MessageBoxLayout, ButtonsAreHalvedUntilTheRowFits) {
    const std::string words = "ab ab ab ab ab ab ab ab ab ab ab ab ab ab ab ab ab ab ab ab ab"; // 62 characters
    const auto layout = Arrange("?", WithoutIcon, Captions(5, words)); // 382, 191, 95: 4 * 115 fits
    EXPECT_EQ(layout.buttonWidth, 95);
    EXPECT_EQ(layout.buttons.front().text, "ab ab ab ab ab\nab ab ab ab ab\nab ab ab ab ab\nab ab ab ab ab\nab");
    EXPECT_EQ(layout.buttonHeight, ButtonHeight + 4 * (LineHeight + 1));
    EXPECT_EQ(layout.innerWidth, 575);
}

TEST(MessageBoxLayout, AWordIsNeverCutHoweverWideTheRowBecomes) {
    const std::string word(60, 'x');
    const auto layout = Arrange("?", WithoutIcon, {word, word, word});
    EXPECT_EQ(Texts(layout), (Captions{word, word, word}));
    EXPECT_EQ(layout.buttonWidth, 370);
    EXPECT_EQ(layout.buttonHeight, ButtonHeight);
    EXPECT_EQ(layout.innerWidth, 3 * 390);
    EXPECT_EQ(Lefts(layout), (std::vector<int>{0, 395, 790}));
}

TEST(MessageBoxLayout, WhateverTheCaptionsAreEveryLineHasItsRoomAndNoButtonsTouch) {
    std::mt19937 random(20260305);
    const auto upTo = [&](int most) { return static_cast<std::size_t>(random() % static_cast<unsigned>(most)) + 1; };
    const auto measure = FixedWidth(6);
    for (int round = 0; round < 500; ++round) {
        Captions captions(upTo(5));
        for (std::string& caption : captions) {
            caption = std::string(upTo(30), 'x');
            for (auto words = upTo(8); words > 1; --words) {
                caption += ' ' + std::string(upTo(30), 'x');
            }
        }
        const auto layout = Arrange(std::string(upTo(150), 'y'), round % 2 == 0, captions);
        ASSERT_EQ(layout.buttons.size(), captions.size());
        for (std::size_t i = 0; i < captions.size(); ++i) {
            std::string text = layout.buttons[i].text;
            ASSERT_LE(measure.width(text), layout.buttonWidth - 10);
            const int lines = 1 + static_cast<int>(std::count(text.begin(), text.end(), '\n'));
            ASSERT_GE(layout.buttonHeight, ButtonHeight + (lines - 1) * (LineHeight + 1));
            std::replace(text.begin(), text.end(), '\n', ' ');
            ASSERT_EQ(text, captions[i]);
            ASSERT_LE(layout.buttons[i].left + layout.buttonWidth + 10, layout.innerWidth);
            if (i > 0) {
                ASSERT_GT(layout.buttons[i].left, layout.buttons[i - 1].left + layout.buttonWidth);
            }
        }
    }
}
