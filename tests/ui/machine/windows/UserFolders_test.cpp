// Where what is the user's is kept there, and what the system is told of the program.

#include "ui/machine/UserFolders.h"

#include "ui/machine/Process.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <windows.h>

TEST(UserFoldersTest, TheStateIsAmongTheLocalDataOfTheUser) {
    const QString local = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    EXPECT_EQ(UserFolders::State(), local + QStringLiteral("/quexal-editor"));
    const bool isTest = QStandardPaths::isTestModeEnabled();
    QStandardPaths::setTestModeEnabled(false);
    EXPECT_EQ(QFileInfo(UserFolders::State()).path(), QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA")));
    QStandardPaths::setTestModeEnabled(isTest);
}

TEST(UserFoldersTest, WhatIsLargeGoesToTheTemporaryFiles) {
    EXPECT_TRUE(QDir(UserFolders::Large()).exists());
    EXPECT_EQ(UserFolders::Large(), QDir::tempPath());
}

TEST(ProcessTest, TheSystemShowsNoBoxOfItsOwn) {
    const UINT before = SetErrorMode(SEM_NOALIGNMENTFAULTEXCEPT);
    Process::LetCallsFail();
    EXPECT_EQ(GetErrorMode() & (SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX),
              static_cast<UINT>(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX));
    EXPECT_NE(GetErrorMode() & SEM_NOALIGNMENTFAULTEXCEPT, 0U) << "what was told before stays";
    SetErrorMode(before);
}
