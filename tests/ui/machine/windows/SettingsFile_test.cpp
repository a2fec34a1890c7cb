// Where the settings stand, and that tests have others than the user.

#include "driver/UserPlaces.h"
#include "ui/machine/QtDesktop.h"

#include <QSettings>

#include <gtest/gtest.h>

TEST(SettingsTest, WhatIsSavedStandsInTheRegistryOfTheUser) {
    const UserPlaces places;
    Ui::QtDesktop().SaveSetting("Paths", "InFile", "C:\\data");
    const QSettings registry(QStringLiteral("HKEY_CURRENT_USER\\Software\\Quexal\\QXEdit"), QSettings::NativeFormat);
    EXPECT_EQ(registry.value(QStringLiteral("Paths/InFile")).toString(), QStringLiteral("C:\\data"));
}

TEST(SettingsTest, TheTestsHaveOthersThanTheUser) {
    const QString name = QStringLiteral("HKEY_CURRENT_USER\\Software\\Quexal\\QXEdit");
    Ui::QtDesktop().SaveSetting("Paths", "InFile", "outside");
    {
        const UserPlaces places;
        EXPECT_EQ(Ui::QtDesktop().GetSetting("Paths", "InFile"), "");
        Ui::QtDesktop().SaveSetting("Paths", "InFile", "inside");
    }
    EXPECT_EQ(Ui::QtDesktop().GetSetting("Paths", "InFile"), "outside");
    QSettings(name, QSettings::NativeFormat).clear();
}

TEST(SettingsTest, TheTestsHaveAnotherStateFolderThanTheUser) {
    const UserPlaces places;
    EXPECT_TRUE(UserPlaces::States().endsWith(QStringLiteral("/qttest")));
    EXPECT_EQ(Ui::QtDesktop().State().PathOf("a"), (UserPlaces::StateFolder() + QStringLiteral("/a")).toStdString());
}
