// The kinds of files and folders for which it matters where a new file is put.

#include "ui/machine/AsOrdinaryUser.h"
#include "ui/machine/FilePlaceTest.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstdint>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr uid_t Nobody = 65534;

// Access control lists as the kernel takes them: version 2; the owner, user 1, the group, the mask, others.
struct Entry {
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
};
struct AccessList {
    static constexpr std::uint32_t None = 0xFFFFFFFF;
    std::uint32_t version = 2;
    std::array<Entry, 5> entries{{{0x01, 6, None}, {0x02, 4, 1}, {0x04, 4, None}, {0x10, 4, None}, {0x20, 4, None}}};
};
constexpr const char* AccessOfFile = "system.posix_acl_access";
constexpr const char* AccessOfNewFiles = "system.posix_acl_default";

class KindsOfFilePlace : public FilePlaceTest {
protected:
    KindsOfFilePlace() {
        // Others must be able to reach the file and to keep copies.
        EXPECT_EQ(chmod(Encoded(Folder()).constData(), 0755), 0);
        EXPECT_EQ(chmod(Encoded(UserPlaces::States()).constData(), 0777), 0);
    }

    static QByteArray Encoded(const QString& path) { return QFile::encodeName(path); }
    static struct stat StatusOf(const QString& path) {
        struct stat status {};
        EXPECT_EQ(stat(Encoded(path).constData(), &status), 0);
        return status;
    }
    // Writes the file and shows that it is still the same one, and that no copy is left.
    void ExpectStays() {
        const struct stat before = StatusOf(file);
        EXPECT_TRUE(FilePlace::MustBeKept(file));
        EXPECT_TRUE(Write(file));
        const struct stat after = StatusOf(file);
        EXPECT_EQ(after.st_ino, before.st_ino);
        EXPECT_EQ(after.st_mode, before.st_mode);
        EXPECT_EQ(after.st_uid, before.st_uid);
        EXPECT_EQ(after.st_gid, before.st_gid);
        EXPECT_EQ(DurableFile::Read(file), "new and longer");
        EXPECT_TRUE(Write(file, "short"));
        EXPECT_EQ(DurableFile::Read(file), "short");
        EXPECT_EQ(StatusOf(file).st_ino, before.st_ino);
        EXPECT_EQ(CopiesLeft(), QStringList());
    }
    void ExpectReplaced() {
        const struct stat before = StatusOf(file);
        EXPECT_FALSE(FilePlace::MustBeKept(file));
        EXPECT_TRUE(Write(file));
        EXPECT_NE(StatusOf(file).st_ino, before.st_ino);
        EXPECT_EQ(DurableFile::Read(file), "new and longer");
    }
    // What a user without special rights gets done.
    template <typename Work>
    static bool GetsDone(Work work) {
        const AsOrdinaryUser user;
        return work();
    }

    const bool isRoot = geteuid() == 0;
};

} // namespace

TEST_F(KindsOfFilePlace, AnOrdinaryFileIsReplacedByANewOne) {
    ExpectReplaced();
}

TEST_F(KindsOfFilePlace, AFileOfSomebodyElseStaysTheirs) {
    if (!isRoot) {
        GTEST_SKIP() << "only root can give a file away";
    }
    ASSERT_EQ(chown(Encoded(file).constData(), Nobody, getegid()), 0);
    ExpectStays();
}

TEST_F(KindsOfFilePlace, AFileOfAnotherGroupStaysOfThatGroup) {
    if (!isRoot) {
        GTEST_SKIP() << "only root can give a file to any group";
    }
    ASSERT_EQ(chown(Encoded(file).constData(), geteuid(), Nobody), 0);
    ExpectStays();
}

TEST_F(KindsOfFilePlace, AFileOfTheGroupThatItsFolderGivesIsReplacedAndStaysOfThatGroup) {
    if (!isRoot) {
        GTEST_SKIP() << "only root can give a file to any group";
    }
    ASSERT_EQ(chown(Encoded(Folder()).constData(), geteuid(), Nobody), 0);
    ASSERT_EQ(chmod(Encoded(Folder()).constData(), 02755), 0);
    ASSERT_EQ(chown(Encoded(file).constData(), geteuid(), Nobody), 0);
    ExpectReplaced();
    EXPECT_EQ(StatusOf(file).st_gid, Nobody);
    ASSERT_EQ(chown(Encoded(file).constData(), geteuid(), getegid()), 0);
    ExpectStays();
}

TEST_F(KindsOfFilePlace, ExtendedAttributesStay) {
    if (setxattr(Encoded(file).constData(), "user.note", "x", 1, 0) != 0) {
        GTEST_SKIP() << "no extended attributes on this disk";
    }
    ExpectStays();
    EXPECT_EQ(getxattr(Encoded(file).constData(), "user.note", nullptr, 0), 1);
}

TEST_F(KindsOfFilePlace, AnAccessControlListStays) {
    const AccessList list;
    if (setxattr(Encoded(file).constData(), AccessOfFile, &list, sizeof(list), 0) != 0) {
        GTEST_SKIP() << "no access control lists on this disk";
    }
    ExpectStays();
    EXPECT_EQ(getxattr(Encoded(file).constData(), AccessOfFile, nullptr, 0), static_cast<ssize_t>(sizeof(list)));
}

// A new file in such a folder could be read by user 1.
TEST_F(KindsOfFilePlace, AFileThatLacksTheListOfItsFolderDoesNotGetIt) {
    const AccessList list;
    if (setxattr(Encoded(Folder()).constData(), AccessOfNewFiles, &list, sizeof(list), 0) != 0) {
        GTEST_SKIP() << "no access control lists on this disk";
    }
    ExpectStays();
    EXPECT_LT(getxattr(Encoded(file).constData(), AccessOfFile, nullptr, 0), 0);
}

TEST_F(KindsOfFilePlace, AFileOfTwoNamesStaysTheSame) {
    const QString other = Path(QStringLiteral("other"));
    ASSERT_EQ(link(Encoded(file).constData(), Encoded(other).constData()), 0);
    ExpectStays();
    EXPECT_EQ(DurableFile::Read(other), "short");
}

TEST_F(KindsOfFilePlace, NamesOfAnyLengthCanBeWritten) {
    for (const int length : {248, 249, 255}) {
        const QString path = Path(QString(length, QLatin1Char('n')));
        EXPECT_EQ(FilePlace::MustBeKept(path), length > 248) << length;
        EXPECT_TRUE(Write(path, "first")) << length;
        EXPECT_EQ(DurableFile::Read(path), "first") << length;
        EXPECT_TRUE(Write(path, "then")) << length;
        EXPECT_EQ(DurableFile::Read(path), "then") << length;
    }
    const QString umlauts = Path(QString(127, QChar(0xE4))); // of two bytes each
    EXPECT_TRUE(FilePlace::MustBeKept(umlauts));
    EXPECT_TRUE(Write(umlauts));
    EXPECT_FALSE(Write(Path(QString(256, QLatin1Char('n')))));
    EXPECT_EQ(CopiesLeft(), QStringList());
}

TEST_F(KindsOfFilePlace, ALinkToAFileThatStaysLeadsToItAndStays) {
    const QString link = Path(QStringLiteral("link"));
    const QString target = Path(QString(255, QLatin1Char('n')));
    ASSERT_EQ(symlink(Encoded(target).constData(), Encoded(link).constData()), 0);
    for (const char* content : {"made", "written again"}) {
        EXPECT_TRUE(FilePlace::MustBeKept(link));
        EXPECT_TRUE(Write(link, content));
        EXPECT_EQ(DurableFile::Read(target), content);
        EXPECT_TRUE(QFileInfo(link).isSymLink());
    }
}

TEST_F(KindsOfFilePlace, AFileInAFolderThatTheUserMayNotWriteIsWrittenWhereItIs) {
    ASSERT_EQ(chmod(Encoded(file).constData(), 0666), 0);
    ASSERT_EQ(chmod(Encoded(Folder()).constData(), 0555), 0);
    EXPECT_TRUE(GetsDone([&] { return FilePlace::MustBeKept(file) && Write(file); }));
    EXPECT_EQ(DurableFile::Read(file), "new and longer");
    EXPECT_FALSE(GetsDone([&] { return Write(Path(QStringLiteral("another"))); }));
    ASSERT_EQ(chmod(Encoded(Folder()).constData(), 0755), 0);
}

TEST_F(KindsOfFilePlace, NewFilesAreNotToBeMadeInAFolderThatTheUserMayNotWrite) {
    const auto mayMakeFiles = [&] { return Ui::QtDesktop().MayMakeFilesIn(Encoded(Folder()).toStdString()); };
    ASSERT_EQ(chmod(Encoded(Folder()).constData(), 0555), 0);
    EXPECT_FALSE(GetsDone(mayMakeFiles));
    ASSERT_EQ(chmod(Encoded(Folder()).constData(), 0777), 0);
    EXPECT_TRUE(GetsDone(mayMakeFiles));
}

// As of a box into which a report may be put that others read.
TEST_F(KindsOfFilePlace, AFileThatMayOnlyBeWrittenIsWritten) {
    ASSERT_EQ(chmod(Encoded(file).constData(), 0222), 0);
    ASSERT_EQ(chmod(Encoded(Folder()).constData(), 0555), 0);
    EXPECT_TRUE(GetsDone([&] { return Write(file); }));
    ASSERT_EQ(chmod(Encoded(Folder()).constData(), 0755), 0);
    ASSERT_EQ(chmod(Encoded(file).constData(), 0600), 0);
    EXPECT_EQ(DurableFile::Read(file), "new and longer");
}
