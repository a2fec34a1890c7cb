// What becomes of a file when it is replaced or overwritten, and where it cannot be.

#include "ui/machine/AsOrdinaryUser.h"
#include "ui/machine/DurableFileTest.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <vector>

TEST_F(DurableFileTest, AReadOnlyFileIsNotReplaced) {
    ASSERT_TRUE(AsOrdinaryUser::LetIn(Folder()));
    const QFile::Permissions before = QFileInfo(file).permissions();
    if (!AsOrdinaryUser::MakeReadOnly(file)) {
        GTEST_SKIP() << "no file is read-only here";
    }
    {
        const AsOrdinaryUser user;
        EXPECT_FALSE(DurableFile::Replace(file, "new"));
        EXPECT_FALSE(DurableFile::Overwrite(file, "new"));
    }
    EXPECT_EQ(DurableFile::Read(file), "old");
    EXPECT_EQ(Names(), QStringList{QStringLiteral("file")});
    EXPECT_TRUE(QFile::setPermissions(file, before)); // so that it can be removed
}

TEST_F(DurableFileTest, AFileWhoseFolderHasVanishedIsNotMade) {
    const QString inner = Path("inner");
    ASSERT_TRUE(QDir().mkdir(inner));
    ASSERT_TRUE(DurableFile::Replace(inner + QStringLiteral("/file"), "old"));
    ASSERT_TRUE(QDir(inner).removeRecursively());
    EXPECT_FALSE(DurableFile::Replace(inner + QStringLiteral("/file"), "new"));
    EXPECT_FALSE(QDir(inner).exists());
}

TEST_F(DurableFileTest, AFileIsOverwrittenWhereItIs) {
    const QString other = Path("other");
    std::filesystem::create_hard_link(QFileInfo(file).filesystemFilePath(), QFileInfo(other).filesystemFilePath());
    for (const char* content : {"longer than before", "", "x"}) {
        EXPECT_TRUE(DurableFile::Overwrite(file, content));
        EXPECT_EQ(DurableFile::Read(file), content);
        EXPECT_EQ(DurableFile::Read(other), content);
    }
    EXPECT_EQ(Names(), (QStringList{QStringLiteral("file"), QStringLiteral("other")}));
}

TEST_F(DurableFileTest, WhatIsNoFileIsNeverOverwritten) {
    EXPECT_FALSE(DurableFile::Overwrite(Folder(), "new"));
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
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts.back(), 1);
}

TEST_F(DurableFileTest, AnEmptyFileIsReadAndWrittenToo) {
    EXPECT_TRUE(DurableFile::Replace(file, ""));
    EXPECT_EQ(DurableFile::Read(file), "");
}
