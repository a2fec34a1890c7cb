// Applying proposals to the district, and taking that back.

#include "ui/windows/ProposalsTest.h"

#include "edit/UndoJournal.h"

using namespace CommonRoutines;

namespace {

const QString Elm = QStringLiteral("Elm");
const QString Oak = QStringLiteral("Oak");

// Four proposals are listed, one of them invalid.
class ApplyingProposalsTest : public ProposalsTest {
protected:
    ApplyingProposalsTest() {
        OpenDistrict();
        Process("Elm\n!Ash\nSm?th\nOak\n");
    }
    void ExpectAdded(int count) {
        desktop.ExpectBox(std::to_string(count) + " New variations added.\r\n1 invalid variations were ignored",
                          BoxIcon::Information);
    }
    QString Variations() { return Column("lvVariations").join(QLatin1Char(' ')); }
};

} // namespace

TEST_F(ApplyingProposalsTest, ApplyAllAddsEveryValidProposal) {
    ExpectAdded(3);
    Click("cbApplyAll");
    EXPECT_EQ(Variations(), QStringLiteral("!Ash Alfa Betta Elm Oak"));
    EXPECT_EQ(iEditMode, ChangesApplied);
    EXPECT_TRUE(bChanged);
    EXPECT_EQ(TextOf("lbApplyTo"), QString());
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add Oak to Alpha"));
    EXPECT_TRUE(desktop.reports.empty());
    ExpectEnabled("cbAdd cbDelete cbSaveVariations cbOpen cbSave cbClearSel cbCompleteCheck lbComments");
}

TEST_F(ApplyingProposalsTest, ApplyAllAsSpellingMarksThem) {
    ExpectAdded(3);
    Click("cbApplyAllSpell");
    EXPECT_EQ(Variations(), QStringLiteral("!Ash !Elm !Oak Alfa Betta"));
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add !Oak to Alpha"));
}

TEST_F(ApplyingProposalsTest, ApplySelectedAddsTheTickedOnes) {
    ClickBox(Elm);
    ClickBox(QStringLiteral("!Ash"));
    ExpectAdded(2);
    Click("cbApplySelected");
    EXPECT_EQ(Variations(), QStringLiteral("!Ash Alfa Betta Elm"));
}

TEST_F(ApplyingProposalsTest, ApplySelectedAsSpellingMarksTheTickedOnes) {
    ClickBox(Oak);
    ExpectAdded(1);
    Click("cbApplySelSpell");
    EXPECT_EQ(Variations(), QStringLiteral("!Oak Alfa Betta"));
}

TEST_F(ApplyingProposalsTest, RowsAndTicksStayWhereTheyAre) {
    ClickBox(Oak);
    ExpectAdded(1);
    Click("cbApplySelected");
    EXPECT_EQ(Column("LvChanges").size(), 4);
    EXPECT_EQ(Ticked(), QStringList{Oak});
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=1"));
    Click("cbClearSel");
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(iEditMode, ChangesApplied);
    ExpectEnabled(
        "cbAdd cbDelete cbSaveVariations cbOpen cbSave cbApplyAll cbApplyAllSpell cbCompleteCheck lbComments");
}

TEST_F(ApplyingProposalsTest, ATickAfterApplyingOffersTheNextApplication) {
    ExpectAdded(3);
    Click("cbApplyAll");
    ClickBox(Elm);
    ExpectEnabled("cbAdd cbDelete cbSaveVariations cbOpen cbSave cbApplySelected cbApplySelSpell cbClearSel "
                  "cbCompleteCheck lbComments cbEditSel");
}

TEST_F(ApplyingProposalsTest, WithTheDistrictChosenAgainProposalsCanBeApplied) {
    ClickBox(Oak);
    ExpectAdded(1);
    Click("cbApplySelected");
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Beta"));
    ExpectAdded(1);
    Click("cbApplySelected");
    EXPECT_EQ(Variations(), Oak);
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add Oak to Beta"));
}

TEST_F(ApplyingProposalsTest, IgnoredProposalsAreListed) {
    Process("ALFA\nElm\nalpha\n");
    desktop.ExpectBox("1 New variations added.\r\n2 lines ignored which duplicate existing variations.",
                      BoxIcon::Information);
    Click("cbApplyAll");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].caption, "Details of Duplicates");
    EXPECT_EQ(desktop.reports[0].items.All(),
              (std::vector<std::string>{"Variation ALFA duplicates Alfa", "Variation alpha duplicates Alpha"}));
    EXPECT_TRUE(desktop.reports[0].canPrintAndSave);
}

TEST_F(ProposalsTest, DuplicatesThatWereThereBeforeAreListedAndStayInTheSummary) {
    OpenDistrict("|Alfa|ALFA");
    desktop.reports.clear();
    Process("alfa\n");
    desktop.ExpectBox("0 New variations added.\r\n2 lines ignored which duplicate existing variations.",
                      BoxIcon::Information);
    Click("cbApplyAll");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].items.All(),
              (std::vector<std::string>{"Variation alfa duplicates Alfa",
                                        "The following duplicates already existed in this district",
                                        "Variation ALFA duplicates Alfa"}));
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Duplicates(Blue).\n"));
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Alfa")), QColor(0, 0, 255));
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(iEditMode, ChangesApplied);
    EXPECT_FALSE(Enabled("cbSave"));
}

TEST_F(ProposalsTest, ADistrictWithoutVariationsStaysWithoutThemWhenNothingIsAdded) {
    OpenDistrict("");
    Process("Sm?th\n");
    desktop.ExpectBox("0 New variations added.\r\n1 invalid variations were ignored", BoxIcon::Information);
    Click("cbApplyAll");
    EXPECT_EQ(Column("lvVariations"), QStringList());
    EXPECT_EQ(iEditMode, ChangesApplied);
    EXPECT_EQ(TextOf("lbUndo"), QString());
}

TEST_F(ProposalsTest, NoToManyProposalsLeavesTheWindowAsItWas) {
    OpenDistrict();
    std::string content;
    for (int i = 1; i <= 21; ++i) {
        content += "Name " + std::to_string(i) + "\n";
    }
    Process(content);
    desktop.ExpectBox("Warning - That will add approximately 21 Variations\r\nIs that what you want to do?",
                      BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No);
    Click("cbApplyAll");
    EXPECT_EQ(Column("lvVariations").size(), 2);
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));
    EXPECT_FALSE(bChanged);
    desktop.ExpectBox("Warning - That will add approximately 21 Variations\r\nIs that what you want to do?",
                      BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::Yes);
    desktop.ExpectBox("21 New variations added.", BoxIcon::Information);
    Click("cbApplyAll");
    EXPECT_EQ(Column("lvVariations").size(), 23);
}

TEST_F(ApplyingProposalsTest, UndoTakesAnApplicationBackOneByOne) {
    ExpectAdded(3);
    Click("cbApplyAll");
    Click("cbUndo");
    EXPECT_EQ(Variations(), QStringLiteral("!Ash Alfa Betta Elm"));
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add !Ash to Alpha"));
    Click("cbUndo");
    EXPECT_EQ(Variations(), QStringLiteral("Alfa Betta Elm"));
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add Elm to Alpha"));
    Click("cbUndo");
    EXPECT_EQ(Variations(), QStringLiteral("Alfa Betta"));
    EXPECT_EQ(TextOf("lbUndo"), QString());
    Click("cbUndo");
    EXPECT_EQ(Variations(), QStringLiteral("Alfa Betta"));
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(ApplyingProposalsTest, UndoGoesBackToTheDistrictThatWasAppliedTo) {
    ExpectAdded(3);
    Click("cbApplyAll");
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    Click("cbUndo");
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Alpha")});
    EXPECT_EQ(Variations(), QStringLiteral("!Ash Alfa Betta Elm"));
}

TEST_F(ApplyingProposalsTest, AppliedVariationsAreSaved) {
    ClickBox(Oak);
    ExpectAdded(1);
    Click("cbApplySelSpell");
    desktop.ExpectSave("/data/saved.txt");
    desktop.ExpectBox("File Saved to /data/saved.txt", BoxIcon::Information);
    Click("cbSave");
    EXPECT_TRUE(desktop.files["/data/saved.txt"].starts_with(HeaderOf("Alpha") + "|Alfa|Betta|!Oak\r\n"));
}

TEST_F(ApplyingProposalsTest, FromALineOfTheDetailsTheUserGoesToTheRepeatedVariation) {
    Process("Elm\n!betta\n");
    desktop.lineToGoTo = 0;
    desktop.ExpectBox("1 New variations added.\r\n1 lines ignored which duplicate existing variations.",
                      BoxIcon::Information);
    Click("cbApplyAll");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].items.All(), std::vector<std::string>{"Variation !betta duplicates Betta"});
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("Betta")});
    EXPECT_EQ(Variations(), QStringLiteral("Alfa Betta Elm"));
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_TRUE(bChanged);
}
