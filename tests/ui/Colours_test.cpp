#include "ui/Colours.h"

#include <gtest/gtest.h>

#include <cstdlib>

TEST(ColoursTest, ContrastGoesFromOneToTwentyOne) {
    EXPECT_DOUBLE_EQ(Colours::Contrast(Qt::white, Qt::white), 1);
    EXPECT_NEAR(Colours::Contrast(Qt::white, Qt::black), 21, 0.001);
    EXPECT_NEAR(Colours::Contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(Colours::Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
}

TEST(ColoursTest, AMixtureLiesBetween) {
    const QColor a(10, 20, 30);
    const QColor b(110, 220, 130);
    EXPECT_EQ(Colours::Mix(a, b, 0), a);
    EXPECT_EQ(Colours::Mix(a, b, 1), b);
    EXPECT_EQ(Colours::Mix(a, b, 0.1), QColor(20, 40, 40));
}

TEST(ColoursTest, AColourThatIsLegibleStaysAsItIs) {
    EXPECT_EQ(Colours::Legible(QColor(0, 128, 0), Qt::white), QColor(0, 128, 0));
    EXPECT_EQ(Colours::Legible(QColor(255, 170, 85), Qt::black), QColor(255, 170, 85));
}

TEST(ColoursTest, AnyColourIsMadeLegibleInItsOwnHue) {
    for (const QColor& ground :
         {QColor(210, 230, 243), QColor(225, 225, 225), QColor(34, 66, 98), QColor(57, 57, 57)}) {
        for (const QColor& ink : {QColor(236, 0, 0), QColor(204, 102, 0), QColor(0, 0, 255), QColor(0, 128, 0)}) {
            const QColor shade = Colours::Legible(ink, ground);
            EXPECT_GE(Colours::Contrast(shade, ground), 4.5) << ink.name().toStdString();
            const int turn = std::abs(shade.hue() - ink.hue());
            EXPECT_LE(std::min(turn, 360 - turn), 3) << ink.name().toStdString();
            EXPECT_GT(shade.saturation(), 0) << ink.name().toStdString();
        }
    }
}
