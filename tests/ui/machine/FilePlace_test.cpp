// Files that a new one must not, or cannot, take the place of: they stay what they are and get the new content.

#include "ui/machine/FilePlaceTest.h"

#include "ui/machine/AsOrdinaryUser.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace {

// Another name of the same file.
void GiveName(const QString& file, const QString& name) {
    std::filesystem::create_hard_link(QFileInfo(file).filesystemFilePath(), QFileInfo(name).filesystemFilePath());
}

} // namespace

TEST_F(FilePlaceTest, AnOrdinaryFileMayBeReplaced) {
    EXPECT_FALSE(FilePlace::MustBeKept(file));
    EXPECT_FALSE(FilePlace::MustBeKept(Path(QStringLiteral("new"))));
    EXPECT_TRUE(Write(file));
    EXPECT_EQ(DurableFile::Read(file), "new and longer");
}

TEST_F(FilePlaceTest, AllNamesOfAFileGetTheNewContent) {
    const QString other = Path(QStringLiteral("other"));
    GiveName(file, other);
    EXPECT_TRUE(FilePlace::MustBeKept(file));
    for (const char* content : {"new and longer", "short"}) {
        EXPECT_TRUE(Write(file, content));
        EXPECT_EQ(DurableFile::Read(file), content);
        EXPECT_EQ(DurableFile::Read(other), content);
    }
    EXPECT_EQ(CopiesLeft(), QStringList());
}

TEST_F(FilePlaceTest, AReadOnlyFileIsNoSuchFileAndStaysAsItIs) {
    ASSERT_TRUE(AsOrdinaryUser::LetIn(Folder()));
    const QFile::Permissions before = QFileInfo(file).permissions();
    GiveName(file, Path(QStringLiteral("other")));
    if (!AsOrdinaryUser::MakeReadOnly(file)) {
        GTEST_SKIP() << "no file is read-only here";
    }
    {
        const AsOrdinaryUser user;
        EXPECT_FALSE(FilePlace::MustBeKept(file));
        EXPECT_FALSE(Write(file));
    }
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_TRUE(QFile::setPermissions(file, before)); // so that it can be removed
}

TEST_F(FilePlaceTest, WithoutThePlaceForACopyTheFileIsNotTouched) {
    GiveName(file, Path(QStringLiteral("other")));
    ASSERT_TRUE(QDir().mkpath(UserPlaces::States()));
    ASSERT_TRUE(DurableFile::Replace(UserPlaces::StateFolder(), "no folder"));
    EXPECT_FALSE(Write(file));
    EXPECT_EQ(DurableFile::Read(file), "old");
}
