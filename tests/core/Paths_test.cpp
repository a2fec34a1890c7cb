#include "core/Paths.h"

#include <gtest/gtest.h>

TEST(Paths, AFolderEndsAtEitherSeparator) {
    EXPECT_EQ(Paths::FolderOf("C:\\data\\north\\file.txt"), "C:\\data\\north");
    EXPECT_EQ(Paths::FolderOf("/data/north/file.txt"), "/data/north");
    EXPECT_EQ(Paths::FolderOf("C:\\data/north\\file.txt"), "C:\\data/north");
    EXPECT_EQ(Paths::FolderOf("C:\\data\\north/file.txt"), "C:\\data\\north");
}

TEST(Paths, AFileAtTheRootOfADriveLeavesTheDrive) {
    EXPECT_EQ(Paths::FolderOf("C:\\file.txt"), "C:");
}

TEST(Paths, ASeparatorAtTheFrontLeavesNoFolder) {
    EXPECT_EQ(Paths::FolderOf("\\file.txt"), "");
    EXPECT_EQ(Paths::FolderOf("/file.txt"), "");
    EXPECT_EQ(Paths::FolderOf("file.txt"), "");
    EXPECT_EQ(Paths::FolderOf(""), "");
}

TEST(Paths, TheNameStandsBehindTheLastSeparator) {
    EXPECT_EQ(Paths::NameOf("C:\\data/north\\file.txt"), "file.txt");
    EXPECT_EQ(Paths::NameOf("C:\\data\\north/file.txt"), "file.txt");
    EXPECT_EQ(Paths::NameOf("/file.txt"), "file.txt");
    EXPECT_EQ(Paths::NameOf("file.txt"), "file.txt");
    EXPECT_EQ(Paths::NameOf("/data/"), "");
}
