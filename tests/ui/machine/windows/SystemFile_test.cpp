// How a file gets its new content there: what stays of the old one, and when it is refused.

#include "ui/machine/SystemFile.h"

#include "OnDisk.h"
#include "ui/machine/FileLook.h"
#include "ui/machine/OnlyForTheUser.h"
#include "ui/machine/windows/Rights.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <aclapi.h>
#include <io.h>
#include <memory>
#include <sddl.h>

namespace {

class SystemFileTest : public OnDisk {
protected:
    // The rights of a file in the words of the system.
    static std::string RightsOf(const QString& path) {
        const Native::Handle handle(Native::Open(path, READ_CONTROL));
        auto rights = Rights::Of(handle.Get());
        LPSTR words = nullptr;
        EXPECT_TRUE(rights && ConvertSecurityDescriptorToStringSecurityDescriptorA(
                                  rights->data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &words, nullptr) != 0);
        std::string result = words == nullptr ? "" : words;
        LocalFree(words);
        return result;
    }
    static bool GiveUserAlone(const QString& path) {
        const Native::Handle handle(Native::Open(path, GENERIC_READ | READ_CONTROL | WRITE_DAC));
        auto rights = Rights::OfTheUserAlone();
        return rights && Rights::Give(handle.Get(), *rights);
    }
    // What is seen at the moment at which the new content is written.
    template <typename Look>
    bool ReplaceAndLook(Look look) const {
        return SystemFile::Replace(file, FileLook::StatusOf(file), [&](QFileDevice& device) {
            look();
            return device.write("new") == 3;
        });
    }
    [[nodiscard]] QString Temporary() const {
        const QStringList names = QDir(Folder()).entryList({QStringLiteral("file.txt.*")}, QDir::Files);
        return names.isEmpty() ? QString() : Path(names.constFirst());
    }
};

} // namespace

// The toolkit keeps no number of a file that it has opened itself; the number is made when it is asked for.
TEST_F(SystemFileTest, AFileThatTheToolkitHasOpenedIsPutOnTheDisk) {
    QFile opened(file);
    ASSERT_TRUE(opened.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(opened.handle()));
    EXPECT_EQ(GetFileType(handle), static_cast<DWORD>(FILE_TYPE_DISK));
    EXPECT_EQ(opened.write("new"), 3);
    EXPECT_TRUE(SystemFile::Sync(opened));
    opened.close();
    EXPECT_EQ(DurableFile::Read(file), "new");
}

TEST_F(SystemFileTest, AFileThatCannotBePutOnTheDiskIsNotSaidToBe) {
    QFile closed(file);
    EXPECT_FALSE(SystemFile::Sync(closed));
    ASSERT_TRUE(closed.open(QIODevice::ReadOnly)); // the system wants to be allowed to write
    EXPECT_FALSE(SystemFile::Sync(closed));
}

TEST_F(SystemFileTest, AFileIsReplacedAsAWhole) {
    EXPECT_TRUE(DurableFile::Replace(file, "new and longer"));
    EXPECT_EQ(DurableFile::Read(file), "new and longer");
    EXPECT_TRUE(DurableFile::Replace(file, ""));
    EXPECT_EQ(DurableFile::Read(file), "");
    EXPECT_EQ(Names(), justTheFile);
}

TEST_F(SystemFileTest, LinesAndZeroBytesAreWrittenAsTheyAre) {
    const std::string content("a\nb\r\nc\x1A\0d\r", 10);
    EXPECT_TRUE(DurableFile::Replace(file, content));
    EXPECT_EQ(DurableFile::Read(file), content);
    EXPECT_TRUE(DurableFile::Overwrite(file, content + '\n'));
    EXPECT_EQ(DurableFile::Read(file), content + '\n');
    EXPECT_TRUE(DurableFile::Extend(file, content.size(), "\n\n"));
    EXPECT_EQ(DurableFile::Read(file), content + "\n\n");
}

TEST_F(SystemFileTest, AFileOfManyPiecesIsReplacedAsAWhole) {
    std::string content(70'000'000, 'x');
    for (std::size_t i = 0; i < content.size(); i += 1000) {
        content[i] = static_cast<char>(i / 1000);
    }
    EXPECT_TRUE(DurableFile::Replace(file, content));
    EXPECT_TRUE(DurableFile::Read(file) == content);
}

// Virus scanners, indexers and backups open files for a moment.
TEST_F(SystemFileTest, AFileThatIsHeldForAMomentIsReplacedAfterIt) {
    HANDLE held = OpenForOthers(file, FILE_SHARE_READ);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const std::unique_ptr<QThread> other(QThread::create([held] {
        QThread::msleep(150);
        CloseHandle(held);
    }));
    other->start();
    EXPECT_TRUE(DurableFile::Replace(file, "new"));
    EXPECT_TRUE(other->wait());
    EXPECT_EQ(DurableFile::Read(file), "new");
    EXPECT_EQ(Names(), justTheFile);
}

TEST_F(SystemFileTest, AFileThatIsHeldIsRefusedAndStaysWhole) {
    for (const DWORD sharing : {DWORD{0}, DWORD{FILE_SHARE_READ}, DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE}}) {
        const Native::Handle held(OpenForOthers(file, sharing));
        ASSERT_TRUE(held.IsOpen());
        QElapsedTimer time;
        time.start();
        EXPECT_FALSE(DurableFile::Replace(file, "new")) << sharing;
        EXPECT_LT(time.elapsed(), 5000);
        EXPECT_EQ(Names(), justTheFile);
        QByteArray content(10, '\0');
        DWORD read = 0;
        EXPECT_NE(ReadFile(held.Get(), content.data(), 10, &read, nullptr), 0);
        EXPECT_EQ(content.left(static_cast<qsizetype>(read)), "old");
    }
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_TRUE(DurableFile::Replace(file, "new"));
}

// The one who has it open goes on reading what it has opened.
TEST_F(SystemFileTest, AFileWhoseHolderLetsItGoIsReplaced) {
    const Native::Handle held(OpenForOthers(file, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
    ASSERT_TRUE(held.IsOpen());
    const bool isReplaced = DurableFile::Replace(file, "new");
    EXPECT_EQ(DurableFile::Read(file), isReplaced ? "new" : "old"); // older systems refuse it
    EXPECT_EQ(Names(), justTheFile);
}

TEST_F(SystemFileTest, AMappedFileIsTheOldOrTheNewOne) {
    const Native::Handle held(OpenForOthers(file, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
    ASSERT_TRUE(held.IsOpen());
    const HANDLE mapping = CreateFileMappingW(held.Get(), nullptr, PAGE_READONLY, 0, 0, nullptr);
    ASSERT_NE(mapping, nullptr);
    const auto* const bytes = static_cast<const char*>(MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0));
    ASSERT_NE(bytes, nullptr);
    const bool isReplaced = DurableFile::Replace(file, "new");
    EXPECT_EQ(std::string(bytes, 3), "old");
    EXPECT_EQ(DurableFile::Read(file), isReplaced ? "new" : "old");
    EXPECT_EQ(Names(), justTheFile);
    UnmapViewOfFile(bytes);
    CloseHandle(mapping);
}

TEST_F(SystemFileTest, AFileThatIsHeldIsNotOverwrittenEither) {
    const Native::Handle held(OpenForOthers(file, FILE_SHARE_READ));
    ASSERT_TRUE(held.IsOpen());
    EXPECT_FALSE(DurableFile::Overwrite(file, "new"));
    EXPECT_FALSE(DurableFile::Extend(file, 3, "new"));
    EXPECT_EQ(DurableFile::Read(file), "old");
}

TEST_F(SystemFileTest, AReadOnlyFileStays) {
    ASSERT_NE(SetFileAttributesW(Native(file).c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_FALSE(DurableFile::Replace(file, "new"));
    EXPECT_FALSE(FileLook::MayWrite(file));
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_EQ(Names(), justTheFile);
    EXPECT_NE(AttributesOf(file) & FILE_ATTRIBUTE_READONLY, 0U);
    SetFileAttributesW(Native(file).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SystemFileTest, AttributesStayAndTheFileIsDueForBackup) {
    for (const DWORD kept : {DWORD{FILE_ATTRIBUTE_HIDDEN}, DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM}}) {
        ASSERT_NE(SetFileAttributesW(Native(file).c_str(), kept), 0);
        if ((AttributesOf(file) & kept) != kept) {
            GTEST_SKIP() << "left out: this disk keeps no such attributes";
        }
        EXPECT_TRUE(DurableFile::Replace(file, "new"));
        EXPECT_EQ(AttributesOf(file), kept | FILE_ATTRIBUTE_ARCHIVE);
        EXPECT_TRUE(DurableFile::Overwrite(file, "newer"));
        EXPECT_EQ(AttributesOf(file) & kept, kept);
    }
}

TEST_F(SystemFileTest, RightsStay) {
    ASSERT_TRUE(GiveUserAlone(file));
    const std::string rights = RightsOf(file);
    ASSERT_TRUE(DurableFile::Replace(Path(QStringLiteral("other")), "other"));
    ASSERT_NE(rights, RightsOf(Path(QStringLiteral("other"))));
    EXPECT_TRUE(DurableFile::Replace(file, "new"));
    EXPECT_EQ(RightsOf(file), rights);
    EXPECT_TRUE(DurableFile::Overwrite(file, "newer"));
    EXPECT_EQ(RightsOf(file), rights);
}

TEST_F(SystemFileTest, NobodyReadsTheNewContentBeforeItHasTheRights) {
    ASSERT_TRUE(GiveUserAlone(file));
    const std::string rights = RightsOf(file);
    bool hasLooked = false;
    EXPECT_TRUE(ReplaceAndLook([&] {
        ASSERT_FALSE(Temporary().isEmpty());
        EXPECT_EQ(RightsOf(Temporary()), rights);
        const Native::Handle other(OpenForOthers(Temporary(), FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
        EXPECT_FALSE(other.IsOpen());
        hasLooked = true;
    }));
    EXPECT_TRUE(hasLooked);
    EXPECT_EQ(DurableFile::Read(file), "new");
}

TEST_F(SystemFileTest, TheOldFileHasItsNameUntilTheNewOneIsWhole) {
    bool hasLooked = false;
    EXPECT_TRUE(ReplaceAndLook([&] {
        EXPECT_EQ(DurableFile::Read(file), "old");
        hasLooked = true;
    }));
    EXPECT_TRUE(hasLooked);
}

TEST_F(SystemFileTest, AFailedWriteLeavesTheOldFileAlone) {
    const bool isReplaced = SystemFile::Replace(file, FileLook::StatusOf(file), [](QFileDevice& device) {
        device.write("half");
        return false;
    });
    EXPECT_FALSE(isReplaced);
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_EQ(Names(), justTheFile);
}

// A small disk is at QUEXAL_SMALL_DISK, a few hundred kilobytes large.
TEST_F(SystemFileTest, AFullDiskLeavesTheOldFileAlone) {
    const QString disk = qEnvironmentVariable("QUEXAL_SMALL_DISK");
    if (disk.isEmpty()) {
        GTEST_SKIP() << "left out: there is no small disk";
    }
    const QString small = disk + QStringLiteral("/file.txt");
    ASSERT_TRUE(DurableFile::Replace(small, "old"));
    EXPECT_FALSE(DurableFile::Replace(small, std::string(std::size_t{8} << 20, 'x')));
    EXPECT_EQ(DurableFile::Read(small), "old");
    EXPECT_FALSE(DurableFile::Overwrite(disk + QStringLiteral("/new.txt"), std::string(std::size_t{8} << 20, 'x')));
    EXPECT_EQ(QDir(disk).entryList(QDir::Files | QDir::Hidden), justTheFile);
    EXPECT_TRUE(DurableFile::Replace(small, "new"));
}

TEST_F(SystemFileTest, TheDayOnWhichAFileWasMadeStays) {
    FILETIME longAgo{0, 0x01A00000};
    {
        const Native::Handle handle(Native::Open(file, FILE_WRITE_ATTRIBUTES));
        ASSERT_NE(SetFileTime(handle.Get(), &longAgo, nullptr, nullptr), 0);
    }
    const QDateTime before = QFileInfo(file).birthTime();
    if (before.date().year() > 2010) {
        GTEST_SKIP() << "left out: this disk keeps no such day";
    }
    EXPECT_TRUE(DurableFile::Replace(file, "new"));
    EXPECT_EQ(QFileInfo(file).birthTime(), before);
    EXPECT_GT(QFileInfo(file).lastModified(), before);
}

TEST_F(SystemFileTest, AFileForTheUserAloneIsThatFromTheBeginning) {
    ASSERT_TRUE(GiveUserAlone(file));
    const std::string rights = RightsOf(file);
    const QString made = Path(QStringLiteral("made"));
    const QString other = Path(QStringLiteral("other"));
    {
        const Ui::OnlyForTheUser guard;
        EXPECT_TRUE(DurableFile::Replace(made, "new"));
        EXPECT_TRUE(DurableFile::Overwrite(made + QLatin1Char('2'), "new"));
    }
    EXPECT_TRUE(DurableFile::Replace(other, "new"));
    EXPECT_EQ(RightsOf(made), rights);
    EXPECT_EQ(RightsOf(made + QLatin1Char('2')), rights);
    EXPECT_NE(RightsOf(other), rights);
}

TEST_F(SystemFileTest, WhatCannotBeMadeAsAWholeIsRemoved) {
    const QString made = Path(QStringLiteral("missing/made"));
    EXPECT_FALSE(DurableFile::Overwrite(made, "new"));
    EXPECT_FALSE(DurableFile::Replace(made, "new"));
    EXPECT_FALSE(DurableFile::Overwrite(Folder(), "new"));
    EXPECT_FALSE(DurableFile::Replace(Folder(), "new"));
    EXPECT_EQ(Names(), justTheFile);
}
