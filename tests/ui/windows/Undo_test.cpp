// Taking back changes, last change first.

#include "ui/windows/EditingTest.h"

using namespace CommonRoutines;

namespace {

class UndoTest : public EditingTest {
protected:
    UndoTest() { OpenDistrict(); }

    void Choose(const QString& district) { ClickRow("lvAlpha", district); }
    // Takes one change back and compares what the next one would be.
    void ExpectUndo(const std::string& slots, const char* next) {
        Click("cbUndo");
        EXPECT_EQ(Slots(), slots);
        EXPECT_EQ(TextOf("lbUndo"), QString::fromLatin1(next));
    }
};

} // namespace

TEST_F(UndoTest, WithNothingToTakeBackNothingHappens) {
    OpenDistrict("|Dupe|dupe");
    Click("cbUndo");
    ExpectNothingChanged("|Dupe|dupe");
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Duplicates(Blue).\n"));
}

TEST_F(UndoTest, AnAddIsTakenBack) {
    Add(QStringLiteral("Gamma"));
    ExpectUndo("|Alfa|Betta|\t", "");
    EXPECT_EQ(Column("lvVariations"), (QStringList{QStringLiteral("Alfa"), QStringLiteral("Betta")}));
}

TEST_F(UndoTest, AChangeIsTakenBackAndTheSummaryFollows) {
    Edit(QStringLiteral("Betta"), QStringLiteral("!Alfa"));
    ASSERT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Duplicates(Blue).\n"));
    ExpectUndo("|Alfa|Betta", "");
    EXPECT_EQ(TextOf("lbWhyError"), QString());
}

TEST_F(UndoTest, ThreeDeletionsAndAnAddAreTakenBackInReverseOrder) {
    OpenDistrict("|Alfa|Betta|Delte");
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    ExpectDeleteQuestion("these 3 variations?");
    Click("cbDelete");
    Add(QStringLiteral("Gamma"));
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add Gamma to Alpha"));
    ExpectUndo("|\t|\t|\t|\t", "Delete Delte from Alpha");
    ExpectUndo("|Delte|\t|\t|\t", "Delete Betta from Alpha");
    ExpectUndo("|Delte|Betta|\t|\t", "Delete Alfa from Alpha");
    ExpectUndo("|Delte|Betta|Alfa|\t", "");
    EXPECT_EQ(Column("lvVariations"),
              (QStringList{QStringLiteral("Alfa"), QStringLiteral("Betta"), QStringLiteral("Delte")}));
}

TEST_F(UndoTest, ADeletedVariationThatComesBackTakesTheFirstFreeSlot) {
    Delete(QStringLiteral("Alfa"));
    Delete(QStringLiteral("Betta"));
    ExpectUndo("|Betta|\t", "Delete Alfa from Alpha");
    ExpectUndo("|Betta|Alfa", "");
}

TEST_F(UndoTest, UndoGoesToTheDistrictOfTheChange) {
    Add(QStringLiteral("Gamma"));
    Choose(QStringLiteral("Beta"));
    Add(QStringLiteral("Bee"));
    Choose(QStringLiteral("Alpha"));
    Add(QStringLiteral("Delte"));
    Choose(QStringLiteral("Beta"));
    ASSERT_EQ(TextOf("lbApplyTo"), QStringLiteral("Beta"));

    ExpectUndo("|Alfa|Betta|Gamma|\t", "Add Bee to Beta");
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Alpha")});
    EXPECT_EQ(Column("lvVariations"),
              (QStringList{QStringLiteral("Alfa"), QStringLiteral("Betta"), QStringLiteral("Gamma")}));
    EXPECT_EQ(Column("lvComments", 0), QStringList());

    ExpectUndo("|Alfa|Betta|Gamma|\t", "Add Gamma to Alpha");
    EXPECT_EQ(Slots(Beta), "|\t");
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Beta")});
    EXPECT_EQ(Column("lvComments", 0), QStringList{QStringLiteral("NOTE")});

    ExpectUndo("|Alfa|Betta|\t|\t", "");
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));
}

TEST_F(UndoTest, OnlyTheLastTwentyStepsCanBeTakenBack) {
    for (int i = 0; i < 21; ++i) {
        Choose(i % 2 == 0 ? QStringLiteral("Alpha") : QStringLiteral("Beta"));
        Add(QStringLiteral("Gam") + QChar(u'a' + i));
    }
    for (int i = 0; i < 20; ++i) {
        ASSERT_NE(TextOf("lbUndo"), QString());
        Click("cbUndo");
    }
    EXPECT_EQ(TextOf("lbUndo"), QString());
    EXPECT_EQ(Column("lvVariations"), QStringList());
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Beta"));
    Click("cbUndo");
    EXPECT_EQ(Slots(), "|Alfa|Betta|Gama|\t|\t|\t|\t|\t|\t|\t|\t|\t|\t");
    EXPECT_EQ(Slots(Beta), "|\t|\t|\t|\t|\t|\t|\t|\t|\t|\t");
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Beta"));
}

TEST_F(UndoTest, AnUndoAfterSavingIsAChangeToSave) {
    Add(QStringLiteral("Gamma"));
    Save();
    Choose(QStringLiteral("Alpha"));
    ASSERT_FALSE(Enabled("cbSave"));
    Click("cbUndo");
    EXPECT_TRUE(bChanged);
    EXPECT_TRUE(Enabled("cbSave"));
    Save();
    EXPECT_EQ(desktop.files[DataFilePath],
              HeaderOf("Alpha") + "|Alfa|Betta\r\n#QX_NOTE\r\n" + HeaderOf("Beta") + "\r\n");
}

TEST_F(UndoTest, AnUndoThatTakesNothingBackLeavesTheFileSaved) {
    Edit(QStringLiteral("Alfa"), QStringLiteral("Alfa"));
    Save();
    ExpectUndo("|Alfa|Betta", "");
    EXPECT_FALSE(bChanged);
    EXPECT_FALSE(Enabled("cbSave"));
}

TEST_F(UndoTest, TheControlsFollowAlsoWhenTheDistrictHasNoVariationLeft) {
    Choose(QStringLiteral("Beta"));
    Add(QStringLiteral("Gamma"));
    Save();
    Choose(QStringLiteral("Beta"));
    ASSERT_FALSE(Enabled("cbSave"));
    Click("cbUndo");
    EXPECT_EQ(Column("lvVariations"), QStringList());
    ExpectEnabled("cbAdd cbOpen cbSave tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(UndoTest, AnEditOfTheOnlyVariationEndsWhenItIsTakenBack) {
    Choose(QStringLiteral("Beta"));
    Add(QStringLiteral("Gamma"));
    Select(QStringLiteral("Gamma"));
    Type(QStringLiteral("s"));
    ASSERT_EQ(iEditMode, EditingVariation);
    Click("cbUndo");
    EXPECT_EQ(Slots(Beta), "|\t");
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_FALSE(Enabled("cbOk"));
    EXPECT_TRUE(Enabled("cbAdd"));
}

TEST_F(UndoTest, TheSelectionOfTheOnlyVariationEndsWhenItIsTakenBack) {
    Choose(QStringLiteral("Beta"));
    Add(QStringLiteral("Gamma"));
    Select(QStringLiteral("Gamma"));
    ASSERT_EQ(iEditMode, OneSelected);
    Click("cbUndo");
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(Box().text(), QString());
    EXPECT_FALSE(Enabled("cbDelete"));
}

TEST_F(UndoTest, ATextBeingTypedOutlivesAnUndo) {
    Add(QStringLiteral("Gamma"));
    Click("cbAdd");
    Type(QStringLiteral("Delta"));
    Click("cbUndo");
    EXPECT_EQ(Box().text(), QStringLiteral("Delta"));
}

TEST_F(UndoTest, AChangeIsTakenBackAlsoWhenAFilterHasClearedTheList) {
    Edit(QStringLiteral("Alfa"), QStringLiteral("Alpho"));
    ClickRow("lbComments", QStringLiteral(" All"));
    ASSERT_EQ(Column("lvVariations"), QStringList());
    Click("cbUndo");
    EXPECT_TRUE(Column("lvVariations").contains(QStringLiteral("Alfa")));
    EXPECT_FALSE(Column("lvVariations").contains(QStringLiteral("Alpho")));
}

TEST_F(UndoTest, BehindAFilterTheSummaryIsThatOfWhatIsThereNow) {
    Add(QStringLiteral("Sm_th"));
    ASSERT_EQ(TextOf("lbWhyError"), QStringLiteral("1 warnings (Brown)."));
    ClickRow("lbComments", QStringLiteral(" All"));
    Click("cbUndo");
    EXPECT_FALSE(Column("lvVariations").contains(QStringLiteral("Sm_th")));
    EXPECT_EQ(TextOf("lbWhyError"), QString());
}

TEST_F(UndoTest, AMarkedVariationIsSelectedNoMoreWhenTheMarkIsTakenBack) {
    Select(QStringLiteral("Alfa"));
    Click("cbShriek");
    ASSERT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("!Alfa")});
    Click("cbUndo");
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    EXPECT_EQ(Box().text(), QString());
    EXPECT_EQ(lEditIndex, 0);
}

TEST_F(UndoTest, AChangeOfADistrictThatIsFilteredAwayIsLostWithTwoBoxes) {
    Add(QStringLiteral("Gamma"));
    Edit(QStringLiteral("Betta"), QStringLiteral("Gamma"));
    ClickRow("lbComments", QStringLiteral("NOTE"));
    Choose(QStringLiteral("Beta"));
    desktop.ExpectBox("Undo crash - Failed to find District 1", BoxIcon::Critical);
    desktop.ExpectBox("Please save your work and exit", BoxIcon::Critical);
    Click("cbUndo");
    desktop.CheckDone();
    EXPECT_EQ(Slots(), "|Alfa|Gamma|Gamma");
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Beta"));

    // With the lost change out of the way, the add is next; all equal texts go with it.
    ClickRow("lbComments", QStringLiteral(" All"));
    ExpectUndo("|Alfa|\t|\t", "");
}
