// Files that a new one cannot take the place of there: they stay what they are and get the new content.

#include "ui/machine/FilePlace.h"

#include "OnDisk.h"
#include "driver/UserPlaces.h"
#include "recovery/SaveCopy.h"
#include "ui/machine/QtDesktop.h"

#include <winioctl.h>

namespace {

class KeptFileTest : public OnDisk {
protected:
    bool Write(const QString& path) { return CommonRoutines::WriteFile(desktop, path.toStdString(), "new and longer"); }

private:
    UserPlaces m_places;

protected:
    Ui::QtDesktop desktop;
};

} // namespace

TEST_F(KeptFileTest, AnOrdinaryFileIsReplaced) {
    EXPECT_FALSE(FilePlace::MustBeKept(file));
    EXPECT_FALSE(FilePlace::MustBeKept(Path(QStringLiteral("new.txt"))));
    const Native::Handle held(OpenForOthers(file, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
    EXPECT_FALSE(FilePlace::MustBeKept(file));
}

// Overwriting it would spoil what the other program reads.
TEST_F(KeptFileTest, AFileThatIsHeldIsRefusedAndNotOverwritten) {
    const Native::Handle held(OpenForOthers(file, FILE_SHARE_READ | FILE_SHARE_WRITE));
    EXPECT_FALSE(FilePlace::MustBeKept(file));
    EXPECT_FALSE(Write(file));
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_EQ(Names(), justTheFile);
}

TEST_F(KeptFileTest, AFileOfTwoNamesStaysOneFile) {
    const QString other = Path(QStringLiteral("other.txt"));
    ASSERT_NE(CreateHardLinkW(Native(other).c_str(), Native(file).c_str(), nullptr), 0);
    EXPECT_TRUE(FilePlace::MustBeKept(file));
    EXPECT_TRUE(Write(file));
    EXPECT_EQ(DurableFile::Read(other), "new and longer");
    EXPECT_TRUE(desktop.AreOneFile(file.toStdString(), other.toStdString()));
}

TEST_F(KeptFileTest, AFileOfTwoNamesThatIsHeldIsRefused) {
    ASSERT_NE(CreateHardLinkW(Native(Path(QStringLiteral("other.txt"))).c_str(), Native(file).c_str(), nullptr), 0);
    {
        const Native::Handle held(OpenForOthers(file, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
        EXPECT_FALSE(DurableFile::Overwrite(file, "new and longer"));
        EXPECT_EQ(DurableFile::Read(file), "old");
    }
    EXPECT_TRUE(Write(file));
    EXPECT_EQ(DurableFile::Read(file), "new and longer");
}

TEST_F(KeptFileTest, ANameThatLeavesNoRoomForAnotherIsWritten) {
    for (const int length : {248, 249, 255}) {
        const QString name = QString(length, QLatin1Char('n'));
        EXPECT_EQ(FilePlace::MustBeKept(Path(name)), length > 248);
        EXPECT_TRUE(Write(Path(name)));
        EXPECT_TRUE(Write(Path(name)));
        EXPECT_EQ(DurableFile::Read(Path(name)), "new and longer");
    }
    EXPECT_EQ(Names().size(), 4);
}

TEST_F(KeptFileTest, WhatStandsBesideTheContentStays) {
    WIN32_FIND_STREAM_DATA content{};
    const HANDLE search = FindFirstStreamW(Native(file).c_str(), FindStreamInfoStandard, &content, 0);
    if (search == INVALID_HANDLE_VALUE) {
        GTEST_SKIP() << "left out: this disk keeps one content a file";
    }
    FindClose(search);
    const QString stream = file + QStringLiteral(":Zone.Identifier");
    CloseHandle(CreateFileW(Native(stream).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
    EXPECT_TRUE(FilePlace::MustBeKept(file));
    EXPECT_TRUE(Write(file));
    EXPECT_EQ(DurableFile::Read(file), "new and longer");
    EXPECT_NE(GetFileAttributesW(Native(stream).c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(KeptFileTest, ACompressedFileStaysThat) {
    {
        const Native::Handle handle(Native::Open(file, GENERIC_READ | GENERIC_WRITE));
        USHORT format = COMPRESSION_FORMAT_DEFAULT;
        DWORD size = 0;
        DeviceIoControl(handle.Get(), FSCTL_SET_COMPRESSION, &format, sizeof format, nullptr, 0, &size, nullptr);
    }
    if ((AttributesOf(file) & FILE_ATTRIBUTE_COMPRESSED) == 0) {
        GTEST_SKIP() << "left out: this disk compresses no files";
    }
    EXPECT_TRUE(FilePlace::MustBeKept(file));
    EXPECT_TRUE(Write(file));
    EXPECT_NE(AttributesOf(file) & FILE_ATTRIBUTE_COMPRESSED, 0U);
}

TEST_F(KeptFileTest, ALinkStaysALink) {
    const QString link = Path(QStringLiteral("link.txt"));
    const DWORD unprivileged = 2; // as developers may
    CreateSymbolicLinkW(Native(link).c_str(), Native(file).c_str(), unprivileged);
    if (AttributesOf(link) == INVALID_FILE_ATTRIBUTES) {
        GTEST_SKIP() << "left out: the user may make no links";
    }
    EXPECT_TRUE(Write(link));
    EXPECT_EQ(DurableFile::Read(file), "new and longer");
    EXPECT_NE(AttributesOf(link) & FILE_ATTRIBUTE_REPARSE_POINT, 0U);
    EXPECT_EQ(desktop.TruePath(link.toStdString()), desktop.TruePath(file.toStdString()));
}

TEST_F(KeptFileTest, WhatMayNotBeWrittenIsNotOverwrittenEither) {
    ASSERT_NE(SetFileAttributesW(Native(file).c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_FALSE(FilePlace::MustBeKept(file));
    EXPECT_FALSE(Write(file));
    EXPECT_EQ(DurableFile::Read(file), "old");
    SetFileAttributesW(Native(file).c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(FilePlace::MustBeKept(Folder()));
    EXPECT_FALSE(FilePlace::MustBeKept(Path(QStringLiteral("missing/file.txt"))));
}
