// Pipes, links, rights, limits, and names that are no text.

#include "ui/machine/MachineTest.h"

#include <QScopeGuard>
#include <QThread>

#include <array>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

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

TEST_F(MachineTest, APipeIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(desktop.ReadFile(Path("pipe")), std::nullopt);
}

TEST_F(MachineTest, ALinkToAFileIsKnownAsThatFile) {
    const std::string path = Written("file", "content");
    std::filesystem::create_symlink(path, Path("soft"));
    EXPECT_TRUE(desktop.AreOneFile(path, Path("soft")));
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

TEST_F(MachineTest, AFileMadeForTheUserIsForNobodyElse) {
    const std::string path = Path("private");
    EXPECT_TRUE(desktop.MakePrivateFile(path, "content"));
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
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
