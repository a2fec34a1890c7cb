#pragma once

#include "driver/DialogueGuide.h"
#include "ui/machine/QtDesktop.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

// The real desktop, with a guide that answers the dialogues. What was answered must be all that came up.
class DesktopTest : public testing::Test {
protected:
    ~DesktopTest() override {
        EXPECT_TRUE(guide.AllAnswered());
        EXPECT_EQ(guide.Surprises(), 0);
    }

    void PressNext(const std::string& caption) {
        guide.Next([caption](QWidget& dialogue) { Ui::DialogueGuide::Press(dialogue, caption); });
    }
    void KeyNext(Qt::Key key) {
        guide.Next([key](QWidget& dialogue) { QTest::keyClick(&dialogue, key); });
    }

    Ui::QtDesktop desktop;
    Ui::DialogueGuide guide;
};
