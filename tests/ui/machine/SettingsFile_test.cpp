#include "driver/UserPlaces.h"
#include "ui/machine/QtDesktop.h"

#include <gtest/gtest.h>

TEST(SettingsTest, WhatIsSavedIsThereWhenTheProgramIsStartedAgain) {
    const UserPlaces places;
    EXPECT_EQ(Ui::QtDesktop().GetSetting("Paths", "InFile"), "");
    Ui::QtDesktop().SaveSetting("Paths", "InFile", "/home/user/d\xC4\x85ta");
    Ui::QtDesktop().SaveSetting("Paths", "ProcessFile", "C:");
    EXPECT_EQ(Ui::QtDesktop().GetSetting("Paths", "InFile"), "/home/user/d\xC4\x85ta");
    EXPECT_EQ(Ui::QtDesktop().GetSetting("Paths", "ProcessFile"), "C:");
}
