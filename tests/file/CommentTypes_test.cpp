#include "file/CommentTypes.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

class CommentTypesTest : public testing::Test {
protected:
    CommentTypesTest() { CommentTypes.Reset(); }

    // Every entry with its number.
    static std::string Listed() {
        std::string list;
        for (const CommentType& type : CommentTypes.Items()) {
            list += "[" + type.type + "=" + std::to_string(type.itemData) + "]";
        }
        return list;
    }
};

} // namespace

TEST_F(CommentTypesTest, TheListBeginsWithAll) {
    EXPECT_EQ(Listed(), "[ All=0]");
}

TEST_F(CommentTypesTest, TypesKeepTheOrderOfTheirAppearanceAndAreNumberedByTheLengthOfTheList) {
    AddCommentType("#QX_SEAT of a court");
    AddCommentType("#QX_AREA 12");
    AddCommentType("#QX_Map");
    EXPECT_EQ(Listed(), "[ All=0][SEAT=2][AREA=3][Map=4]");
}

TEST_F(CommentTypesTest, TheTypeIsTheFirstWordBehindTheMarker) {
    AddCommentType("#QX_   Seat   of a court");
    AddCommentType("#qx_Tab\tis no blank");
    EXPECT_EQ(Listed(), "[ All=0][Seat=2][Tab\tis=3]");
}

TEST_F(CommentTypesTest, ATypeIsListedOnceWhateverItsCase) {
    AddCommentType("#QX_Caf\xE9 one");
    AddCommentType("#QX_CAF\xC9 two");
    AddCommentType("#QX_caf\xE9");
    AddCommentType("#QX_cafe");
    EXPECT_EQ(Listed(), "[ All=0][Caf\xE9=2][cafe=3]");
}

TEST_F(CommentTypesTest, ALineWithoutATypeAddsNothing) {
    AddCommentType("#QX_");
    AddCommentType("#QX_    ");
    EXPECT_EQ(Listed(), "[ All=0]");
}

TEST_F(CommentTypesTest, AllIsATypeLikeAnyOther) {
    AddCommentType("#QX_All of it");
    AddCommentType("#QX_ALL");
    EXPECT_EQ(Listed(), "[ All=0][All=2]");
}

TEST_F(CommentTypesTest, ResettingForgetsTheTypes) {
    AddCommentType("#QX_SEAT");
    CommentTypes.Reset();
    EXPECT_EQ(Listed(), "[ All=0]");
    AddCommentType("#QX_SEAT");
    EXPECT_EQ(Listed(), "[ All=0][SEAT=2]");
}
