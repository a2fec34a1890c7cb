// Rights, links and devices.

#include "ui/machine/AsOrdinaryUser.h"
#include "ui/machine/DurableFileTest.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

void GiveRights(const QString& path, mode_t rights) {
    EXPECT_EQ(chmod(QFile::encodeName(path).constData(), rights), 0);
}

bool ReplacesAsOrdinaryUser(const QString& file) {
    const AsOrdinaryUser user;
    return DurableFile::Replace(file, "new");
}

} // namespace

TEST_F(DurableFileTest, AFileThatTheUserMayNotWriteStays) {
    GiveRights(file, 0444);
    GiveRights(Folder(), 0777);
    EXPECT_FALSE(ReplacesAsOrdinaryUser(file));
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_EQ(Names(), QStringList{QStringLiteral("file")});
}

TEST_F(DurableFileTest, AFileInAFolderThatTheUserMayNotWriteStays) {
    GiveRights(file, 0666);
    GiveRights(Folder(), 0555);
    EXPECT_FALSE(ReplacesAsOrdinaryUser(file));
    EXPECT_EQ(DurableFile::Read(file), "old");
    GiveRights(file, 0666);
    GiveRights(Folder(), 0777);
    EXPECT_TRUE(ReplacesAsOrdinaryUser(file)); // it was the folder
    EXPECT_EQ(DurableFile::Read(file), "new");
}

// Such a folder cannot be opened to have its names put on the disk.
TEST_F(DurableFileTest, AFileInAFolderThatTheUserMayOnlyWriteIsReplaced) {
    GiveRights(file, 0666);
    GiveRights(Folder(), 0333);
    EXPECT_TRUE(ReplacesAsOrdinaryUser(file));
    EXPECT_EQ(DurableFile::Read(file), "new");
    GiveRights(file, 0666);
    GiveRights(Folder(), 0777);
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

TEST_F(DurableFileTest, ALinkThatLeadsNowhereIsFollowed) {
    ASSERT_EQ(symlink("target", QFile::encodeName(Path("link")).constData()), 0);
    EXPECT_TRUE(DurableFile::Replace(Path("link"), "new"));
    EXPECT_EQ(DurableFile::Read(Path("target")), "new");
    EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
}

TEST_F(DurableFileTest, ADeviceIsNeverOverwritten) {
    EXPECT_FALSE(DurableFile::Overwrite(QStringLiteral("/dev/null"), "new"));
}
