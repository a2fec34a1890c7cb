#include "ui/windows/WindowFit.h"

#include <gtest/gtest.h>

using WindowFit::FittedHeight;
using WindowFit::TwipsToPixels;

namespace {

constexpr WindowFit::Screen Small{768, 700, 25};

}

TEST(WindowFitTest, AWindowUpToTheHeightOfTheScreenStaysAsItIs) {
    EXPECT_EQ(FittedHeight(500, Small), std::nullopt);
    EXPECT_EQ(FittedHeight(768, Small), std::nullopt); // even where it reaches behind the task bar
}

TEST(WindowFitTest, ATallerWindowGetsTheUsableHeightAndItsCaption) {
    EXPECT_EQ(FittedHeight(769, Small), 725);
    EXPECT_EQ(FittedHeight(5000, Small), 725);
}

TEST(WindowFitTest, AWindowIsNeverWiderThanTheScreen) {
    EXPECT_EQ(WindowFit::FittedWidth(1000, 1024), 1000);
    EXPECT_EQ(WindowFit::FittedWidth(1024, 1024), 1024);
    EXPECT_EQ(WindowFit::FittedWidth(1360, 1024), 1024);
}

TEST(WindowFitTest, TwipsAreRoundedToPixels) {
    EXPECT_EQ(TwipsToPixels(400, 96), 27);
    EXPECT_EQ(TwipsToPixels(1440, 96), 96);
    EXPECT_EQ(TwipsToPixels(400, 144), 40);
    EXPECT_EQ(TwipsToPixels(0, 96), 0);
}
