// Rights, links and devices.

#include "ui/machine/AsOrdinaryUser.h"
#include "ui/machine/DurableFileTest.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

class RightsOfDurableFile : public DurableFileTest {
protected:
    void GiveRights(mode_t ofFile, mode_t ofFolder) const {
        EXPECT_EQ(chmod(QFile::encodeName(file).constData(), ofFile), 0);
        EXPECT_EQ(chmod(QFile::encodeName(Folder()).constData(), ofFolder), 0);
    }
    bool ReplacesAsOrdinaryUser() const {
        const AsOrdinaryUser user;
        return DurableFile::Replace(file, "new");
    }
};

} // namespace

TEST_F(RightsOfDurableFile, AFileThatTheUserMayNotWriteStays) {
    GiveRights(0444, 0777);
    EXPECT_FALSE(ReplacesAsOrdinaryUser());
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_EQ(Names(), QStringList{QStringLiteral("file")});
}

TEST_F(RightsOfDurableFile, AFileInAFolderThatTheUserMayNotWriteStays) {
    GiveRights(0666, 0555);
    EXPECT_FALSE(ReplacesAsOrdinaryUser());
    EXPECT_EQ(DurableFile::Read(file), "old");
    GiveRights(0666, 0777);
    EXPECT_TRUE(ReplacesAsOrdinaryUser()); // it was the folder
    EXPECT_EQ(DurableFile::Read(file), "new");
}

// Such a folder cannot be opened to have its names put on the disk.
TEST_F(RightsOfDurableFile, AFileInAFolderThatTheUserMayOnlyWriteIsReplaced) {
    GiveRights(0666, 0333);
    EXPECT_TRUE(ReplacesAsOrdinaryUser());
    EXPECT_EQ(DurableFile::Read(file), "new");
    GiveRights(0666, 0777);
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
