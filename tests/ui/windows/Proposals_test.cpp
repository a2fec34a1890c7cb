// The list of proposals: what a change file puts into it, and what ticking and clicking does.

#include "ui/windows/ProposalsTest.h"

using namespace CommonRoutines;
using namespace Ui;

namespace {

const QColor Red(236, 0, 0);
const QColor Brown(204, 102, 0);
const QColor LightGrey(192, 192, 192);

// What is enabled with a district chosen, a change file listed and nothing ticked.
constexpr const char* Listed = "cbAdd cbOpen tbEdit btnProcess cbApplyAll cbApplyAllSpell cbCompleteCheck lbComments";

const QString Elm = QStringLiteral("Elm");
const QString Oak = QStringLiteral("Oak");
const QString Invalid = QStringLiteral("As?h");

// The three proposals are listed.
class ListedProposalsTest : public ProposalsTest {
protected:
    ListedProposalsTest() {
        OpenDistrict();
        Process("Elm\nOak\nAs?h\n");
    }
};

} // namespace

TEST_F(ProposalsTest, ProcessingAFileListsItsProposals) {
    OpenDistrict();
    Process("Elm\r\nOak\r\n");
    EXPECT_EQ(Column("LvChanges"), (QStringList{Elm, Oak}));
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
    ExpectEnabled(Listed);
}

TEST_F(ProposalsTest, TheProposalsHaveTheColourOfTheirState) {
    OpenDistrict();
    Process("<TR><TD>Name_</TD>\n<TR><TD x>Elm</TD>\n<TR><TD x>Sm?th</TD>\n<TR><TD x>Sm_th</TD>\n<TR><TD x>S?_th</TD>");
    const QColor plain = Find<RowList>("LvChanges").palette().color(QPalette::Text);
    EXPECT_EQ(RowColour("LvChanges", QStringLiteral("NAME_")), plain);
    EXPECT_EQ(RowColour("LvChanges", Elm), plain);
    EXPECT_EQ(RowColour("LvChanges", QStringLiteral("Sm?th")), Red);
    EXPECT_EQ(RowColour("LvChanges", QStringLiteral("Sm_th")), Brown);
    EXPECT_EQ(RowColour("LvChanges", QStringLiteral("S?_th")), Brown);
}

TEST_F(ProposalsTest, TheProblemsAreCountedInBlackOnGrey) {
    OpenDistrict();
    Process("Sm?th\na|b\n!\nSm_th\nSm*th\n");
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("3 invalid variations (red). 2 warnings (Brown)."));
    EXPECT_EQ(InkOf("lbWhyError"), QColor(Qt::black));
    EXPECT_EQ(PaperOf("lbWhyError"), LightGrey);
    Process("Elm\n");
    EXPECT_EQ(TextOf("lbWhyError"), QString());
}

TEST_F(ProposalsTest, ForeignCharactersAreShownAsTheyAre) {
    OpenDistrict();
    Process("Caf\xE9 \x80\n");
    EXPECT_EQ(Column("LvChanges"), QStringList{QStringLiteral("Caf\u00E9 \u20AC")});
}

TEST_F(ProposalsTest, TheFolderOfTheChangeFileIsRemembered) {
    OpenDistrict();
    desktop.settings["Paths/ProcessFile"] = "/before";
    Process("Elm\n", "/some/folder/new.txt");
    EXPECT_EQ(desktop.lastRequest.folder, "/before");
    EXPECT_EQ(desktop.lastRequest.fileName, "");
    EXPECT_EQ(desktop.settings["Paths/ProcessFile"], "/some/folder");
    Process("Elm\n", "/new.txt");
    EXPECT_EQ(desktop.lastRequest.folder, "/some/folder");
    EXPECT_EQ(desktop.settings["Paths/ProcessFile"], "/some/folder");
    EXPECT_EQ(desktop.settings["Paths/InFile"], "/data");
}

TEST_F(ProposalsTest, AnEmptyFileLeavesNothingToApply) {
    OpenDistrict();
    Process("Elm\n");
    Process("");
    EXPECT_EQ(Column("LvChanges"), QStringList());
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(ListedProposalsTest, ACancelledDialogueLeavesTheListAsItWas) {
    ClickBox(Elm);
    desktop.ExpectOpen(std::nullopt);
    Click("btnProcess");
    EXPECT_EQ(Column("LvChanges"), (QStringList{Elm, Oak, Invalid}));
    EXPECT_EQ(Ticked(), QStringList{Elm});
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=1"));
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    EXPECT_EQ(desktop.settings["Paths/ProcessFile"], "/changes");
}

TEST_F(ListedProposalsTest, AFileThatCannotBeReadLeavesTheListAsItWas) {
    desktop.ExpectOpen("/changes/n\xC5\x8Dne.txt");
    desktop.ExpectBox("The file cannot be read:\r\n" + Wording::OfPath("/changes/n\xC5\x8Dne.txt"),
                      BoxIcon::Exclamation);
    Click("btnProcess");
    EXPECT_EQ(Column("LvChanges"), (QStringList{Elm, Oak, Invalid}));
}

TEST_F(ListedProposalsTest, ANewFileReplacesTheRowsAndTheirTicks) {
    ClickBox(Elm);
    Process("Elm\nYew\n");
    EXPECT_EQ(Column("LvChanges"), (QStringList{Elm, QStringLiteral("Yew")}));
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
    ExpectEnabled(Listed);
}

TEST_F(ListedProposalsTest, AFilterDiscardsTheRows) {
    ClickRow("lbComments", QStringLiteral("NOTE"));
    EXPECT_EQ(Column("LvChanges"), QStringList());
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(ListedProposalsTest, AFilterForgetsTheCount) {
    ClickBox(Elm);
    ClickRow("lbComments", QStringLiteral("NOTE"));
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
}

// The check boxes.

TEST_F(ListedProposalsTest, ATickedRowCanBeAppliedAndEdited) {
    ClickBox(Elm);
    EXPECT_EQ(Ticked(), QStringList{Elm});
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=1"));
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    EXPECT_EQ(desktop.beeps, 0);
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbApplySelected cbApplySelSpell cbClearSel cbCompleteCheck "
                  "lbComments cbEditSel");
}

TEST_F(ListedProposalsTest, TwoTickedRowsCanOnlyBeApplied) {
    ClickBox(Elm);
    ClickBox(Oak);
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=2"));
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbApplySelected cbApplySelSpell cbClearSel cbCompleteCheck "
                  "lbComments");
}

TEST_F(ListedProposalsTest, WithTheLastTickGoneAllCanBeAppliedAgain) {
    ClickBox(Elm);
    ClickBox(Elm);
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbApplyAll cbApplyAllSpell cbClearSel cbCompleteCheck lbComments");
}

TEST_F(ListedProposalsTest, AnInvalidRowCannotBeTicked) {
    ClickBox(Invalid);
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
    EXPECT_EQ(iEditMode, DistrictIdle);
    ExpectEnabled(Listed);
}

TEST_F(ProposalsTest, AHeadingCannotBeTicked) {
    OpenDistrict();
    Process("<TR><TD>Name</TD>\n");
    ClickBox(QStringLiteral("NAME"));
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(Ticked(), QStringList());
}

TEST_F(ListedProposalsTest, TheSpaceKeyTicksAndUnticks) {
    Key("LvChanges", Qt::Key_Down);
    Key("LvChanges", Qt::Key_Space);
    EXPECT_EQ(Ticked(), QStringList{Elm});
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=1"));
    EXPECT_EQ(EditText(), QString());
    Key("LvChanges", Qt::Key_Space);
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(desktop.beeps, 0);
    Key("LvChanges", Qt::Key_End);
    Key("LvChanges", Qt::Key_Space);
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(desktop.beeps, 1);
}

TEST_F(ListedProposalsTest, ATextCanBeClickedAfterTheSpaceKey) {
    Key("LvChanges", Qt::Key_Down);
    Key("LvChanges", Qt::Key_Space);
    ClickText(Oak);
    EXPECT_EQ(EditText(), Oak);
    EXPECT_EQ(Ticked(), (QStringList{Elm, Oak}));
}

// Clicking on the text.

TEST_F(ListedProposalsTest, AClickOnTheTextTicksTheRowAndTakesItIntoTheEditBox) {
    ClickText(Elm);
    EXPECT_EQ(Ticked(), QStringList{Elm});
    EXPECT_EQ(Selected("LvChanges"), QStringList());
    EXPECT_EQ(EditText(), Elm);
    EXPECT_EQ(iEditMode, AddingAcceptable);
    EXPECT_TRUE(BoxTicked("cbVariation"));
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=1"));
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    ExpectEnabled("cbCancel cbOk tbEdit");
}

TEST_F(ListedProposalsTest, SpaceOnAnInvalidProposalIsRefusedThere) {
    auto& list = List("LvChanges");
    const int row = RowOf("LvChanges", Invalid);
    list.setCurrentIndex(list.model()->index(row, 0));
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(list.currentIndex().row(), row);
}

TEST_F(ListedProposalsTest, ASecondClickOnTheTextKeepsTheTick) {
    ClickText(Elm);
    ClickText(Elm);
    EXPECT_EQ(Ticked(), QStringList{Elm});
    ClickText(Oak);
    EXPECT_EQ(Ticked(), (QStringList{Elm, Oak}));
    EXPECT_EQ(EditText(), Oak);
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=2"));
}

TEST_F(ListedProposalsTest, AClickOnAnInvalidTextTakesItIntoTheEditBoxUnticked) {
    ClickText(Invalid);
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(desktop.beeps, 0);
    EXPECT_EQ(EditText(), Invalid);
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
    ExpectEnabled("cbCancel tbEdit");
}

TEST_F(ProposalsTest, AClickOnASpellingOfTheDistrictSaysSo) {
    OpenDistrict();
    Process("!ALFA\n");
    ClickText(QStringLiteral("!ALFA"));
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("Duplicates Alfa"));
    EXPECT_EQ(EditText(), QStringLiteral("!ALFA"));
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    EXPECT_FALSE(Enabled("cbOk"));
}

TEST_F(ListedProposalsTest, AClickEndsTheEditingOfAVariation) {
    ClickRow("lvVariations", QStringLiteral("Betta"));
    ClickText(Elm);
    EXPECT_EQ(iEditMode, AddingAcceptable);
    Click("cbOk");
    EXPECT_EQ(Column("lvVariations"), (QStringList{QStringLiteral("Alfa"), QStringLiteral("Betta"), Elm}));
}

TEST_F(ListedProposalsTest, AClickBelowTheRowsDoesNothing) {
    ClickBelowRows("LvChanges");
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(EditText(), QString());
    ExpectEnabled(Listed);
}

TEST_F(ListedProposalsTest, AClickedProposalCanBeChangedAndAdded) {
    ClickText(Elm);
    Key("tbEdit", Qt::Key_S);
    Click("cbOk");
    EXPECT_EQ(VariationAt(1, 3).Text, "Elms");
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add Elms to Alpha"));
    EXPECT_EQ(Ticked(), QStringList{Elm});
    EXPECT_EQ(iEditMode, DistrictIdle);
}
