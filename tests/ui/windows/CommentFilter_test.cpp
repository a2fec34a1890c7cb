// Filtering the districts by a type of comment.

#include "ui/windows/ProposalsTest.h"

using namespace CommonRoutines;
using namespace Ui;

namespace {

class CommentFilterTest : public ProposalsTest {
protected:
    CommentFilterTest() {
        OpenContent("#QX_SEAT of the county\r\n" + HeaderOf("Gamma") +
                    "|War_n|Other\r\n#QX_BOUNDARY moved\r\n#QX_seat\r\n" + HeaderOf("Alpha") +
                    "|Alfa\r\n# see #QX_NOTE\r\n" + HeaderOf("Beta") + "|Betta\r\n#QX_NOTE\r\n" + HeaderOf("Delta") +
                    "\r\n# the end\r\n");
    }

    const QStringList All{QStringLiteral("Alpha"), QStringLiteral("Beta"), QStringLiteral("Delta"),
                          QStringLiteral("Gamma")};
};

} // namespace

TEST_F(CommentFilterTest, ATypeListsTheDistrictsThatHaveItByName) {
    ClickRow("lbComments", QStringLiteral("SEAT"));
    EXPECT_EQ(Column("lvAlpha"), (QStringList{QStringLiteral("Alpha"), QStringLiteral("Gamma")}));
    ClickRow("lbComments", QStringLiteral("BOUNDARY"));
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Alpha")});
}

TEST_F(CommentFilterTest, AMarkerInTheMiddleOfALineDoesNotCount) {
    ClickRow("lbComments", QStringLiteral("NOTE"));
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Delta")});
}

TEST_F(CommentFilterTest, AllListsEveryDistrictAndNoRetainedLine) {
    ClickRow("lbComments", QStringLiteral("SEAT"));
    ClickRow("lbComments", QStringLiteral(" All"));
    EXPECT_EQ(Column("lvAlpha"), All);
}

TEST_F(CommentFilterTest, KeysFilterAsClicksDo) {
    Key("lbComments", Qt::Key_End);
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Delta")});
    Key("lbComments", Qt::Key_Home);
    EXPECT_EQ(Column("lvAlpha"), All);
}

TEST_F(CommentFilterTest, FilteringClearsWhatTheDistrictShowed) {
    ClickRow("lvAlpha", QStringLiteral("Gamma"));
    Process("Proposal\r\n");
    ClickRow("lvAlpha", QStringLiteral("Gamma"));
    ASSERT_NE(TextOf("lbWhyError"), QString());
    ClickRow("lbComments", QStringLiteral("SEAT"));
    for (const char* list : {"lvVariations", "lvComments", "LvChanges"}) {
        EXPECT_EQ(Column(list), QStringList()) << list;
    }
    EXPECT_EQ(Selected("lvAlpha"), QStringList());
    EXPECT_EQ(TextOf("lbApplyTo"), QString());
    EXPECT_EQ(TextOf("lbWhyError"), QString());
}

TEST_F(CommentFilterTest, TheCommentsStayClearedWhenTheWindowIsResized) {
    ClickRow("lvAlpha", QStringLiteral("Gamma"));
    ASSERT_EQ(Column("lvComments").size(), 1);
    ClickRow("lbComments", QStringLiteral(" All"));
    form->resize(1400, 760);
    QCoreApplication::processEvents();
    EXPECT_EQ(Column("lvComments"), QStringList());
}

TEST_F(CommentFilterTest, ADistrictOfTheFilteredListCanBeChosen) {
    ClickRow("lbComments", QStringLiteral("SEAT"));
    ClickRow("lvAlpha", QStringLiteral("Gamma"));
    EXPECT_EQ(Districts[static_cast<std::size_t>(lCurrentDistrict)].Name(), "Gamma");
    EXPECT_EQ(Column("lvVariations").size(), 2);
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(CommentFilterTest, FilteringIsPossibleWhileSeveralVariationsAreSelected) {
    ClickRow("lvAlpha", QStringLiteral("Gamma"));
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    ASSERT_EQ(iEditMode, SeveralSelected);
    ClickRow("lbComments", QStringLiteral("BOUNDARY"));
    EXPECT_EQ(Column("lvAlpha"), QStringList{QStringLiteral("Alpha")});
}

TEST_F(CommentFilterTest, ADisabledListDoesNotFilter) {
    ClickRow("lvAlpha", QStringLiteral("Gamma"));
    ClickRow("lvVariations", QStringLiteral("Other"));
    ClickDisabledRow("lbComments", QStringLiteral("BOUNDARY"));
    EXPECT_EQ(Column("lvAlpha"), All);
}

TEST_F(CommentFilterTest, AfterACancelledDialogueThereIsOnlyAllAndItListsTheTable) {
    desktop.ExpectOpen(std::nullopt);
    Click("cbOpen");
    ClickRow("lbComments", QStringLiteral(" All"));
    EXPECT_EQ(Column("lvAlpha"), All);
}
