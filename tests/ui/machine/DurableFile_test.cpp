// What becomes of a file when it is replaced or overwritten, and where it cannot be.

#include "ui/machine/DurableFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t Nobody = 65534;

class DurableFileTest : public testing::Test {
protected:
    DurableFileTest() {
        EXPECT_TRUE(DurableFile::Replace(file, "old"));
        // Others must be able to reach the file.
        EXPECT_EQ(chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    }
    [[nodiscard]] QString Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }
    [[nodiscard]] QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }
    static struct stat StatusOf(const QString& path) {
        struct stat status {};
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
        return status;
    }

    // What replacing the file gives a user without special rights.
    bool ReplacesAsOrdinaryUser() const {
        const pid_t child = fork();
        if (child == 0) {
            const bool became = geteuid() != 0 || (setgid(Nobody) == 0 && setuid(Nobody) == 0);
            _exit(became && DurableFile::Replace(file, "new") ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == 0;
    }

private:
    QTemporaryDir m_folder;

protected:
    const QString file = Path("file");
};

} // namespace

TEST_F(DurableFileTest, AFileThatTheUserMayNotWriteStays) {
    ASSERT_EQ(chmod(QFile::encodeName(file).constData(), 0444), 0);
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0777), 0);
    EXPECT_FALSE(ReplacesAsOrdinaryUser());
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_EQ(Names(), QStringList{QStringLiteral("file")});
}

TEST_F(DurableFileTest, AFileInAFolderThatTheUserMayNotWriteStays) {
    ASSERT_EQ(chmod(QFile::encodeName(file).constData(), 0666), 0);
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0555), 0);
    EXPECT_FALSE(ReplacesAsOrdinaryUser());
    EXPECT_EQ(DurableFile::Read(file), "old");
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0777), 0);
    EXPECT_TRUE(ReplacesAsOrdinaryUser()); // it was the folder
    EXPECT_EQ(DurableFile::Read(file), "new");
}

// Such a folder cannot be opened to have its names put on the disk.
TEST_F(DurableFileTest, AFileInAFolderThatTheUserMayOnlyWriteIsReplaced) {
    ASSERT_EQ(chmod(QFile::encodeName(file).constData(), 0666), 0);
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0333), 0);
    EXPECT_TRUE(ReplacesAsOrdinaryUser());
    EXPECT_EQ(DurableFile::Read(file), "new");
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0777), 0);
}

// As a disk does that fails half way, the system gives less of such a file than it says there is.
TEST_F(DurableFileTest, AFileOfWhichOnlyAPartCanBeReadIsNotRead) {
    const QString shorter = QStringLiteral("/sys/kernel/uevent_seqnum");
    QFile system(shorter);
    if (!system.open(QIODevice::ReadOnly) || system.readAll().size() >= QFileInfo(shorter).size()) {
        GTEST_SKIP() << "this system has no such file";
    }
    EXPECT_EQ(DurableFile::Read(shorter), std::nullopt);
}

TEST_F(DurableFileTest, AFileWhoseFolderHasVanishedIsNotMade) {
    const QString inner = Path("inner");
    ASSERT_TRUE(QDir().mkdir(inner));
    ASSERT_TRUE(DurableFile::Replace(inner + QStringLiteral("/file"), "old"));
    ASSERT_TRUE(QDir(inner).removeRecursively());
    EXPECT_FALSE(DurableFile::Replace(inner + QStringLiteral("/file"), "new"));
    EXPECT_FALSE(QDir(inner).exists());
}

TEST_F(DurableFileTest, ALinkThatLeadsNowhereIsFollowed) {
    ASSERT_EQ(symlink("target", QFile::encodeName(Path("link")).constData()), 0);
    EXPECT_TRUE(DurableFile::Replace(Path("link"), "new"));
    EXPECT_EQ(DurableFile::Read(Path("target")), "new");
    EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
}

TEST_F(DurableFileTest, AFileIsOverwrittenWhereItIs) {
    const struct stat before = StatusOf(file);
    for (const char* content : {"longer than before", "", "x"}) {
        EXPECT_TRUE(DurableFile::Overwrite(file, content));
        EXPECT_EQ(DurableFile::Read(file), content);
        EXPECT_EQ(StatusOf(file).st_ino, before.st_ino);
    }
    EXPECT_EQ(Names(), QStringList{QStringLiteral("file")});
}

TEST_F(DurableFileTest, WhatIsNoFileIsNeverOverwritten) {
    EXPECT_FALSE(DurableFile::Overwrite(Folder(), "new"));
    EXPECT_FALSE(DurableFile::Overwrite(QStringLiteral("/dev/null"), "new"));
    EXPECT_FALSE(DurableFile::Overwrite(Path("missing/file"), "new"));
}

TEST_F(DurableFileTest, AFileOfSeveralPiecesIsReadAndWrittenAsAWhole) {
    std::string content(40'000'000, 'x');
    for (std::size_t i = 0; i < content.size(); i += 1000) {
        content[i] = static_cast<char>(i / 1000);
    }
    std::vector<double> parts;
    const auto listener = [&](double part) { parts.push_back(part); };
    EXPECT_TRUE(DurableFile::Replace(file, content, listener));
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
    EXPECT_EQ(parts.back(), 1);
    parts.clear();
    EXPECT_TRUE(DurableFile::Read(file, listener) == content);
    EXPECT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts.back(), 1);
}

TEST_F(DurableFileTest, AnEmptyFileIsReadAndWrittenToo) {
    EXPECT_TRUE(DurableFile::Replace(file, ""));
    EXPECT_EQ(DurableFile::Read(file), "");
}
