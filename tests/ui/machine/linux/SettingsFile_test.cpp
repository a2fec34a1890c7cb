// The file of the settings, and what may stand in their place: nobody waits for it, and it stays what it is.

#include "ui/machine/AsOrdinaryUser.h"
#include "ui/machine/DesktopTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Ui;

namespace {

class SettingsFileTest : public DesktopTest {
protected:
    SettingsFileTest() {
        qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
        EXPECT_TRUE(QDir().mkpath(m_folder.filePath(QStringLiteral("Quexal"))));
    }
    ~SettingsFileTest() override { qputenv("XDG_CONFIG_HOME", m_before); }

    QString Path(const QString& name = QStringLiteral("Quexal/QXEdit.conf")) const { return m_folder.filePath(name); }
    static bool IsFifo(const QString& path) {
        struct stat file {};
        return lstat(QFile::encodeName(path).constData(), &file) == 0 && S_ISFIFO(file.st_mode);
    }
    static void MakeFifo(const QString& path) { EXPECT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0); }
    // Neither is there a setting, nor can one be saved.
    void ExpectNoSettings() {
        EXPECT_EQ(desktop.GetSetting("Paths", "InFile"), "");
        desktop.SaveSetting("Paths", "InFile", "/home");
        EXPECT_EQ(desktop.GetSetting("Paths", "InFile"), "");
    }

private:
    const QByteArray m_before = qgetenv("XDG_CONFIG_HOME");
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SettingsFileTest, WhatIsSavedStandsInAFileOfTheUser) {
    desktop.SaveSetting("Paths", "InFile", "/home/user");
    EXPECT_TRUE(QFileInfo(Path()).isFile());
}

TEST_F(SettingsFileTest, AFileThatMayNotBeReadStaysAsItIs) {
    const QByteArray before = "[Paths]\nInFile=/home/user\n";
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.write(before) == before.size() && file.flush());
    for (const QString& folder : {Path(QString()), Path(QStringLiteral("Quexal"))}) {
        ASSERT_TRUE(AsOrdinaryUser::LetIn(folder));
    }
    ASSERT_TRUE(QFile::setPermissions(Path(), {}));
    {
        const AsOrdinaryUser user;
        ExpectNoSettings();
    }
    file.seek(0);
    EXPECT_EQ(file.readAll(), before);
    constexpr QFile::Permissions somebodys =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther;
    EXPECT_EQ(QFileInfo(Path()).permissions() & somebodys, QFile::Permissions());
}

TEST_F(SettingsFileTest, APipeInTheirPlaceStaysOne) {
    MakeFifo(Path());
    ExpectNoSettings();
    EXPECT_TRUE(IsFifo(Path()));
}

TEST_F(SettingsFileTest, ADeviceInTheirPlaceStaysOne) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), Path()));
    ExpectNoSettings();
    EXPECT_EQ(QFileInfo(Path()).symLinkTarget(), QStringLiteral("/dev/zero"));
}

TEST_F(SettingsFileTest, AFolderInTheirPlaceStaysOne) {
    ASSERT_TRUE(QDir().mkdir(Path()));
    ExpectNoSettings();
    EXPECT_TRUE(QFileInfo(Path()).isDir());
}

TEST_F(SettingsFileTest, WhileTheyAreLockedTheyAreReadAndNotChanged) {
    desktop.SaveSetting("Paths", "InFile", "/before");
    QLockFile lock(Path() + QStringLiteral(".lock"));
    ASSERT_TRUE(lock.tryLock(0));
    desktop.SaveSetting("Paths", "InFile", "/meanwhile");
    EXPECT_EQ(desktop.GetSetting("Paths", "InFile"), "/before");
    lock.unlock();
    desktop.SaveSetting("Paths", "InFile", "/after");
    EXPECT_EQ(desktop.GetSetting("Paths", "InFile"), "/after");
}

TEST_F(SettingsFileTest, APipeInThePlaceOfTheirLockIsNotWaitedFor) {
    MakeFifo(Path() + QStringLiteral(".lock"));
    ExpectNoSettings();
    EXPECT_TRUE(IsFifo(Path() + QStringLiteral(".lock")));
}

TEST_F(SettingsFileTest, NoDialogueForFilesWaitsForTheSettingsOfTheToolkit) {
    const QString ofToolkit = Path(QStringLiteral("QtProject.conf"));
    MakeFifo(ofToolkit);
    PressNext("Cancel");
    EXPECT_EQ(desktop.ChooseFileToOpen({}), std::nullopt);
    EXPECT_TRUE(IsFifo(ofToolkit));
}
