// What the desktop does without asking: files, settings, the clock, the printer.

#include "ui/machine/QtDesktop.h"

#include "ui/machine/DateTimeText.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Ui;

namespace {

class MachineTest : public testing::Test {
protected:
    std::string Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    std::string Written(const char* name, const char* content) const {
        std::ofstream(Path(name)) << content;
        return Path(name);
    }
    QStringList FilesInFolder() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QtDesktop desktop;

private:
    QTemporaryDir m_folder;
};

// Lets no file grow beyond a size, as a full disk would.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t size) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{size, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~SmallDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit m_before{};
};

} // namespace

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
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(Path("folder"))));
    EXPECT_EQ(desktop.ReadFile(Path("pipe")), std::nullopt);
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

TEST_F(MachineTest, AWriteThatFailsHalfWayLeavesTheOldFile) {
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), "old"));
    for (const std::size_t size : {std::size_t{5000}, std::size_t{500000}}) {
        const SmallDisk disk(4096);
        EXPECT_FALSE(desktop.ReplaceFile(Path("file"), std::string(size, 'x')));
    }
    EXPECT_EQ(desktop.ReadFile(Path("file")), "old");
    EXPECT_EQ(FilesInFolder(), QStringList{QStringLiteral("file")});
}

TEST_F(MachineTest, WhatIsNoFileIsNeverReplaced) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_FALSE(desktop.ReplaceFile(Path("pipe"), "new"));
    struct stat pipe {};
    ASSERT_EQ(stat(Path("pipe").c_str(), &pipe), 0);
    EXPECT_TRUE(S_ISFIFO(pipe.st_mode));
    EXPECT_FALSE(desktop.ReplaceFile("/dev/null", "new"));
}

TEST_F(MachineTest, ALinkStaysALinkAndItsFileIsReplaced) {
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(Path("folder"))));
    ASSERT_TRUE(desktop.ReplaceFile(Path("folder/file"), "old"));
    ASSERT_EQ(symlink("folder/file", Path("link").c_str()), 0);
    EXPECT_TRUE(desktop.ReplaceFile(Path("link"), "new"));
    struct stat link {};
    ASSERT_EQ(lstat(Path("link").c_str(), &link), 0);
    EXPECT_TRUE(S_ISLNK(link.st_mode));
    EXPECT_EQ(desktop.ReadFile(Path("folder/file")), "new");
}

TEST_F(MachineTest, AReplacedFileKeepsItsPermissions) {
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), "old"));
    ASSERT_EQ(chmod(Path("file").c_str(), S_IRUSR | S_IWUSR | S_IRGRP), 0);
    EXPECT_TRUE(desktop.ReplaceFile(Path("file"), "new"));
    struct stat file {};
    ASSERT_EQ(stat(Path("file").c_str(), &file), 0);
    EXPECT_EQ(file.st_mode & 0777U, static_cast<unsigned>(S_IRUSR | S_IWUSR | S_IRGRP));
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

TEST_F(MachineTest, AFileWrittenWithItsOldSizeAndTimeHasAnotherStamp) {
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), "old"));
    struct stat file {};
    ASSERT_EQ(stat(Path("file").c_str(), &file), 0);
    const std::string before = desktop.StampOf(Path("file"));
    QThread::msleep(20);
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), "new"));
    const std::array<timespec, 2> times{file.st_atim, file.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, Path("file").c_str(), times.data(), 0), 0);
    EXPECT_NE(desktop.StampOf(Path("file")), before);
}

TEST_F(MachineTest, TheUsersOwnFolderIsOneInWhichFilesCanBeMade) {
    EXPECT_TRUE(desktop.MayMakeFilesIn(desktop.DocumentsFolder()));
    EXPECT_FALSE(desktop.MayMakeFilesIn(Path("missing")));
    ASSERT_TRUE(desktop.ReplaceFile(Path("file"), ""));
    EXPECT_FALSE(desktop.MayMakeFilesIn(Path("file")));
}

TEST_F(MachineTest, AFileWhoseNameIsNoUtf8IsRead) {
    const std::string path = Path("caf") + "\xE9.txt";
    std::ofstream(path) << "content";
    EXPECT_EQ(desktop.ReadFile(path), "content");
    EXPECT_EQ(desktop.ReadFile(Path("other") + "\xE9.txt"), std::nullopt);
    const std::string pipe = Path("pipe") + "\xE9";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(desktop.ReadFile(pipe), std::nullopt);
}

TEST_F(MachineTest, AFileThatOnlySaysThatItIsEmptyIsNotReadAsEmpty) {
    EXPECT_EQ(desktop.ReadFile("/proc/self/status"), std::nullopt);
    std::ofstream(Path("empty")).flush();
    EXPECT_EQ(desktop.ReadFile(Path("empty")), "");
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

TEST_F(MachineTest, AFileThatCannotBeLookedAtIsLikeNothingThatWasSeenBefore) {
    const std::string path = Path("around");
    std::filesystem::create_symlink(path, path); // leads nowhere, but not to nothing
    const std::string stamp = desktop.StampOf(path);
    EXPECT_NE(stamp, "");
    EXPECT_NE(desktop.StampOf(path), stamp);
    EXPECT_TRUE(desktop.HasContent(path));
    EXPECT_EQ(desktop.StampOf(Path("none")), "");
    EXPECT_EQ(desktop.StampOf(Written("file", "content") + "/below"), "");
    EXPECT_FALSE(desktop.HasContent(Path("none")));
}

TEST_F(MachineTest, TwoNamesOfOneFileAreKnownAsSuch) {
    const std::string path = Written("file", "content");
    const std::string other = Written("other", "content");
    std::filesystem::create_hard_link(path, Path("hard"));
    std::filesystem::create_symlink(path, Path("soft"));
    EXPECT_TRUE(desktop.AreOneFile(path, Path("hard")));
    EXPECT_TRUE(desktop.AreOneFile(path, Path("soft")));
    EXPECT_TRUE(desktop.AreOneFile(path, path));
    EXPECT_FALSE(desktop.AreOneFile(path, other));
    EXPECT_FALSE(desktop.AreOneFile(path, Path("none")));
}

TEST_F(MachineTest, AFileMadeForTheUserIsForNobodyElse) {
    const std::string path = Path("private");
    EXPECT_TRUE(desktop.MakePrivateFile(path, "content"));
    EXPECT_EQ(desktop.ReadFile(path), "content");
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    EXPECT_FALSE(desktop.MakePrivateFile(path, "other"));
    EXPECT_EQ(desktop.ReadFile(path), "content");
}

TEST_F(MachineTest, TheTruePathOfANameThatIsNoTextIsNotThatOfOneThatLooksLikeIt) {
    const std::string name = Path("caf") + "\xE9";
    std::ofstream(name) << "content";
    const auto removed = qScopeGuard([&] { std::filesystem::remove(name); });
    std::ofstream(Path("caf") + "\uFFFD") << "alike";
    EXPECT_EQ(desktop.TruePath(name), name);
    std::filesystem::create_symlink(name, Path("link"));
    EXPECT_EQ(desktop.ReadFile(Path("link")), "content");
}
