#include "file/DistrictComments.h"

#include "support/Table.h"

using namespace CommonRoutines;

namespace {

constexpr double Room = 20;

double OneEach(std::string_view text) {
    return static_cast<double>(text.size());
}

using Rows = std::vector<CommentRow>;

class DistrictCommentsTest : public StateTest {
protected:
    static Rows RowsOf(std::int32_t district) { return CommentRows(district, Room, OneEach); }

    // The rows of a district with this one comment line.
    static Rows RowsFor(const std::string& line) {
        ResetEverything();
        AddRetained(line);
        return RowsOf(AddDistrict("Ash"));
    }

    static bool HasType(const std::string& line, std::string_view type) {
        ResetEverything();
        AddRetained(line);
        return DistrictHasCommentType(AddDistrict("Ash"), type);
    }
};

} // namespace

// GoogleTest prints rows with this.
namespace CommonRoutines {
void PrintTo(const CommentRow& row, std::ostream* out) {
    *out << "[" << row.type << "|" << row.comment << "]";
}
} // namespace CommonRoutines

TEST_F(DistrictCommentsTest, ACommentIsSplitAtTheFirstBlankBehindTheMarker) {
    EXPECT_EQ(RowsFor("#QX_Seat of a court"), (Rows{{"Seat", "of a court"}}));
    EXPECT_EQ(RowsFor("#qx_SEAT  of  it"), (Rows{{"SEAT", " of  it"}}));
    EXPECT_EQ(RowsFor("#QX_ no type"), (Rows{{"", "no type"}}));
}

TEST_F(DistrictCommentsTest, ALineWithOnlyATypeHasAnEmptyComment) {
    EXPECT_EQ(RowsFor("#QX_Seat"), (Rows{{"Seat", ""}}));
    EXPECT_EQ(RowsFor("#QX_Seat "), (Rows{{"Seat", ""}}));
    EXPECT_EQ(RowsFor("#QX_"), (Rows{{"", ""}}));
}

TEST_F(DistrictCommentsTest, AMarkerInTheMiddleOfALineIsShownButNotFilteredBy) {
    EXPECT_EQ(RowsFor("# see #Qx_Seat of a court"), (Rows{{"Seat", "of a court"}}));
    EXPECT_FALSE(HasType("# see #Qx_Seat of a court", "Seat"));
    EXPECT_EQ(RowsFor("text #QX_Area 12 #QX_Seat"), (Rows{{"Area", "12 #QX_Seat"}}));
}

TEST_F(DistrictCommentsTest, LinesWithoutTheMarkerAreNotShown) {
    EXPECT_EQ(RowsFor("# QX_Seat"), Rows{});
    EXPECT_EQ(RowsFor("#QX Seat"), Rows{});
    EXPECT_EQ(RowsFor(""), Rows{});
}

TEST_F(DistrictCommentsTest, TheCommentsOfADistrictAreTheRetainedLinesDirectlyAboveIt) {
    AddRetained("#QX_One 1");
    AddRetained("");
    AddRetained("#QX_Two 2");
    const auto first = AddDistrict("Ash");
    AddRetained("#QX_Three 3");
    const auto second = AddDistrict("Elm");
    const auto third = AddDistrict("Oak");
    AddRetained("#QX_Four 4");
    EXPECT_EQ(RowsOf(first), (Rows{{"One", "1"}, {"Two", "2"}}));
    EXPECT_EQ(RowsOf(second), (Rows{{"Three", "3"}}));
    EXPECT_EQ(RowsOf(third), Rows{});
    EXPECT_TRUE(DistrictHasCommentType(first, "one"));
    EXPECT_TRUE(DistrictHasCommentType(first, "TWO"));
    EXPECT_FALSE(DistrictHasCommentType(first, "three"));
    EXPECT_TRUE(DistrictHasCommentType(second, "three"));
    EXPECT_FALSE(DistrictHasCommentType(second, "two"));
    EXPECT_FALSE(DistrictHasCommentType(third, "three"));
    EXPECT_FALSE(DistrictHasCommentType(third, "four"));
}

TEST_F(DistrictCommentsTest, NoDistrictHasNoRows) {
    AddRetained("#QX_One 1");
    const auto note = AddRetained("#QX_Two 2");
    EXPECT_EQ(RowsOf(0), Rows{});
    EXPECT_EQ(RowsOf(note), Rows{});
    EXPECT_EQ(RowsOf(note + 1), Rows{});
}

TEST_F(DistrictCommentsTest, TypesAreComparedWholeAndWithoutCase) {
    EXPECT_TRUE(HasType("#QX_Caf\xE9 one", "CAF\xC9"));
    EXPECT_TRUE(HasType("#qx_Seat", "seat"));
    EXPECT_FALSE(HasType("#QX_Seats", "Seat"));
    EXPECT_FALSE(HasType("#QX_Seat", "Seats"));
    EXPECT_FALSE(HasType("#QX_Seat", " Seat"));
    EXPECT_FALSE(HasType("#QX_ Seat", "Seat"));
    EXPECT_FALSE(HasType("Seat", "Seat"));
    EXPECT_FALSE(HasType("#QX", ""));
}

TEST_F(DistrictCommentsTest, ACommentThatFillsTheRoomExactlyIsNotWrapped) {
    EXPECT_EQ(RowsFor("#QX_T aaaa bbbb cccc ddddd"), (Rows{{"T", "aaaa bbbb cccc ddddd"}}));
}

TEST_F(DistrictCommentsTest, AWiderCommentIsWrappedAtBlanks) {
    EXPECT_EQ(RowsFor("#QX_T aaaa bbbb cccc dddddd"), (Rows{{"T", "aaaa bbbb cccc"}, {" ", "dddddd"}}));
}

TEST_F(DistrictCommentsTest, ARestThatFillsTheRoomExactlyIsWrappedOnceMore) {
    EXPECT_EQ(RowsFor("#QX_T aaaa bbbb cccc dddd eeee ffff gggg hhhhh"),
              (Rows{{"T", "aaaa bbbb cccc dddd"}, {" ", "eeee ffff gggg"}, {" ", "hhhhh"}}));
}

TEST_F(DistrictCommentsTest, ATooWideCommentWithoutBlanksStaysOnOneRow) {
    const std::string word(35, 'x');
    EXPECT_EQ(RowsFor("#QX_T " + word), (Rows{{"T", word}}));
    EXPECT_EQ(RowsFor("#QX_T " + word + " and more"), (Rows{{"T", word + " and more"}}));
}

TEST_F(DistrictCommentsTest, ABlankAmongTheFirstThreeCharactersIsNoPlaceToBreak) {
    const std::string word(25, 'x');
    EXPECT_EQ(RowsFor("#QX_T ab " + word), (Rows{{"T", "ab " + word}}));
    EXPECT_EQ(RowsFor("#QX_T abc " + word), (Rows{{"T", "abc"}, {" ", word}}));
}
