#include "ui/lists/StateColours.h"

#include "ui/Colours.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

using Colours::Contrast;
using CommonRoutines::VariationState;
using StateColours::InList;
using StateColours::OnLight;

namespace {

// Every state that there is something to say of.
std::vector<VariationState> ColouredStates() {
    std::vector<VariationState> states;
    for (const CommonRoutines::VariationStateFacts& facts : CommonRoutines::VariationStateTable) {
        if (facts.state != VariationState::Plain) {
            states.push_back(facts.state);
        }
    }
    return states;
}

const std::vector<VariationState> Coloured = ColouredStates();

QPalette PaletteOf(const QColor& base, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    return palette;
}

} // namespace

TEST(StateColoursTest, OnLightGroundsTheColoursAreTheGivenOnes) {
    const QPalette light = PaletteOf(Qt::white, Qt::black);
    EXPECT_EQ(InList(VariationState::Invalid, light), QColor(236, 0, 0));
    EXPECT_EQ(InList(VariationState::Warning, light), QColor(204, 102, 0));
    EXPECT_EQ(InList(VariationState::Duplicate, light), QColor(0, 0, 255));
    EXPECT_EQ(InList(VariationState::UnusualCaps, light), QColor(0, 128, 0));
    for (const VariationState state : Coloured) {
        EXPECT_EQ(OnLight(state), InList(state, light));
    }
}

TEST(StateColoursTest, OnDarkGroundsEveryColourStandsOut) {
    for (const QColor& base : {QColor(0x23, 0x26, 0x29), QColor(Qt::black), QColor(0x2a, 0x2a, 0x2a)}) {
        const QPalette dark = PaletteOf(base, Qt::white);
        for (const VariationState state : Coloured) {
            EXPECT_GE(Contrast(InList(state, dark), base), 4.5) << base.name().toStdString();
        }
    }
}

TEST(StateColoursTest, OnDarkGroundsTheColoursAreStillDifferentAndOfTheirHue) {
    const QPalette dark = PaletteOf(Qt::black, Qt::white);
    for (const VariationState state : Coloured) {
        const int turn = std::abs(InList(state, dark).hue() - OnLight(state).hue());
        EXPECT_LE(std::min(turn, 360 - turn), 20);
        for (const VariationState other : Coloured) {
            EXPECT_EQ(InList(state, dark) == InList(other, dark), state == other);
        }
    }
}

TEST(StateColoursTest, PlainRowsHaveThePalettesColour) {
    EXPECT_EQ(InList(VariationState::Plain, PaletteOf(Qt::white, QColor(1, 2, 3))), QColor(1, 2, 3));
    EXPECT_EQ(InList(VariationState::Plain, PaletteOf(Qt::black, QColor(4, 5, 6))), QColor(4, 5, 6));
    EXPECT_EQ(OnLight(VariationState::Plain), QColor(Qt::black));
}

TEST(StateColoursTest, TheGroundOfTheProblemsIsLightGrey) {
    EXPECT_EQ(StateColours::LightGrey, QColor(192, 192, 192));
}

TEST(StateColoursTest, AHintIsGreyAndLegible) {
    for (const auto& [base, text] :
         {std::pair<QColor, QColor>{Qt::white, Qt::black}, {QColor(30, 30, 30), Qt::white}}) {
        const QColor hint = StateColours::Hint(PaletteOf(base, text));
        EXPECT_GE(Contrast(hint, base), 4.5);
        EXPECT_LT(Contrast(hint, base), Contrast(text, base) / 1.5);
        EXPECT_EQ(hint.saturation(), 0);
    }
}

TEST(StateColoursTest, TheOutlineOfABoxStandsOutFromLightAndDarkGrounds) {
    constexpr int fusionShade = 140; // what the style makes of it, in per cent
    const QColor outline = StateColours::ShadedToOutline.darker(fusionShade);
    for (const QColor& ground : {QColor(Qt::white), QColor(30, 30, 30)}) {
        EXPECT_GE(Contrast(outline, ground), 3) << ground.name().toStdString();
    }
}
