// What the desktop does without asking: files, the clock, the printer.

#include "ui/machine/MachineTest.h"

#include "ui/machine/DateTimeText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QThread>
#include <QWidget>

#include <cstdlib>
#include <filesystem>
#include <optional>

TEST_F(MachineTest, AFileComesBackByteForByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    all += "\r\n\n\r";
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), all));
    EXPECT_EQ(desktop.ReadFile(Path("file")), all);
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), ""));
    EXPECT_EQ(desktop.ReadFile(Path("file")), "");
    EXPECT_EQ(FilesInFolder(), QStringList{QStringLiteral("file")});
}

TEST_F(MachineTest, WhatIsNoFileIsRefusedAtOnce) {
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(Path("folder"))));
    EXPECT_EQ(desktop.ReadFile(Path("folder")), std::nullopt);
    EXPECT_EQ(desktop.ReadFile(Path("missing")), std::nullopt);
    EXPECT_EQ(desktop.ReadFile(""), std::nullopt);
}

TEST_F(MachineTest, AFileInAMissingFolderCannotBeReplaced) {
    EXPECT_FALSE(desktop.ReplaceFile(Path("missing/file"), "new"));
    EXPECT_EQ(FilesInFolder(), QStringList());
}

TEST_F(MachineTest, AFolderCannotBeReplacedByAFile) {
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(Path("folder/inner"))));
    EXPECT_FALSE(desktop.ReplaceFile(Path("folder"), "new"));
    EXPECT_TRUE(QDir(QString::fromStdString(Path("folder/inner"))).exists());
}

TEST_F(MachineTest, AStampTellsWhetherAFileWasWrittenSince) {
    EXPECT_EQ(desktop.StampOf(Path("file")), "");
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), "old"));
    const std::string before = desktop.StampOf(Path("file"));
    EXPECT_NE(before, "");
    EXPECT_EQ(desktop.StampOf(Path("file")), before);
    constexpr int longerThanAClockTick = 20; // milliseconds
    QThread::msleep(longerThanAClockTick);
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), "new"));
    EXPECT_NE(desktop.StampOf(Path("file")), before);
}

TEST_F(MachineTest, TheUsersOwnFolderIsOneInWhichFilesCanBeMade) {
    EXPECT_TRUE(desktop.MayMakeFilesIn(desktop.DocumentsFolder()));
    EXPECT_FALSE(desktop.MayMakeFilesIn(Path("missing")));
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), ""));
    EXPECT_FALSE(desktop.MayMakeFilesIn(Path("file")));
}

TEST_F(MachineTest, TheProgramsFolderCanBeMadeTheCurrentOne) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(QDir::rootPath());
    EXPECT_EQ(desktop.ProgramFolder(), QCoreApplication::applicationDirPath().toStdString());
    desktop.EnterProgramFolder();
    EXPECT_EQ(QDir::currentPath().toStdString(), desktop.ProgramFolder());
    QDir::setCurrent(before);
}

TEST_F(MachineTest, TodayIsDayMonthAndYear) {
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    const QString today = QString::fromStdString(desktop.Today());
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^[0-3][0-9] [A-Z][a-z][a-z] [0-9]{4}$")).match(today).hasMatch())
        << today.toStdString();
    const QDate date = QLocale::c().toDate(today, QStringLiteral("dd MMM yyyy"));
    EXPECT_LE(std::abs(date.daysTo(QDate::currentDate())), 1);
    QLocale::setDefault(before);
}

TEST_F(MachineTest, TheTimeIsHoursAndMinutes) {
    const QLocale before;
    for (const QLocale& locale : {QLocale(QLocale::English, QLocale::UnitedKingdom), QLocale::c()}) {
        QLocale::setDefault(locale);
        const QString now = QString::fromStdString(desktop.ShortTime());
        EXPECT_TRUE(QRegularExpression(QStringLiteral("^[0-2][0-9]:[0-5][0-9]$")).match(now).hasMatch())
            << now.toStdString();
    }
    QLocale::setDefault(before);
}

TEST_F(MachineTest, NoCountryWritesSecondsInAShortTime) {
    const QLocale before;
    const QList<QLocale> all = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    EXPECT_GT(all.size(), 100);
    for (const QLocale& locale : all) {
        QLocale::setDefault(locale);
        const std::string time = DateTimeText::ShortTime(QTime(14, 7, 39));
        EXPECT_NE(time.find('7'), std::string::npos) << locale.name().toStdString() << ": " << time;
        EXPECT_EQ(time.find("39"), std::string::npos) << locale.name().toStdString() << ": " << time;
    }
    QLocale::setDefault(before);
}

TEST_F(MachineTest, WithoutAPrinterPrintingFails) {
    if (!QPrinterInfo::availablePrinters().isEmpty()) {
        GTEST_SKIP() << "this machine has a printer";
    }
    EXPECT_FALSE(desktop.Print([] { return std::nullopt; }));
}

TEST_F(MachineTest, TheWindowShowsThatTheProgramIsBusy) {
    desktop.ShowBusy(true); // without a window nothing happens
    QWidget window;
    desktop.SetWindow(&window);
    desktop.ShowBusy(true);
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    desktop.ShowBusy(false);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(MachineTest, TwoNamesOfOneFileAreKnownAsSuch) {
    const std::string path = Written("file", "content");
    const std::string other = Written("other", "content");
    std::filesystem::create_hard_link(path, Path("hard"));
    EXPECT_TRUE(desktop.AreOneFile(path, Path("hard")));
    EXPECT_TRUE(desktop.AreOneFile(path, path));
    EXPECT_FALSE(desktop.AreOneFile(path, other));
    EXPECT_FALSE(desktop.AreOneFile(path, Path("none")));
}

TEST_F(MachineTest, AFileMadeForTheUserIsMadeOnce) {
    const std::string path = Path("private");
    EXPECT_TRUE(desktop.MakePrivateFile(path, "content"));
    EXPECT_EQ(desktop.ReadFile(path), "content");
    EXPECT_FALSE(desktop.MakePrivateFile(path, "other"));
    EXPECT_EQ(desktop.ReadFile(path), "content");
}
