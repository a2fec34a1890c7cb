// Adding, editing and deleting variations in the edit panel.

#include "ui/windows/EditingTest.h"

using namespace CommonRoutines;

namespace {

const QColor LightGrey(192, 192, 192);
const QColor BlueGreen(0, 255, 255);
const QColor Red(236, 0, 0);
const QColor Blue(0, 0, 255);

} // namespace

TEST_F(EditingTest, AddOpensAnEmptyEditBox) {
    OpenDistrict("|Alfa|alfa");
    ASSERT_NE(TextOf("lbWhyError"), QString());
    Click("cbAdd");
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_EQ(iLastAction, AddStarted);
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    EXPECT_EQ(Focus(), "tbEdit");
    ExpectEnabled("cbCancel tbEdit");
}

TEST_F(EditingTest, AnAddedVariationIsListedStoredAndCanBeTakenBack) {
    OpenDistrict();
    Click("cbAdd");
    Type(QStringLiteral("Al Zeta"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    ExpectEnabled("cbCancel cbOk tbEdit");
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Alfa|Betta|Al Zeta");
    EXPECT_EQ(Column("lvVariations"),
              (QStringList{QStringLiteral("Al Zeta"), QStringLiteral("Alfa"), QStringLiteral("Betta")}));
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Add Al Zeta to Alpha"));
    EXPECT_EQ(EditText(), QString());
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(Focus(), "lvAlpha");
    ExpectEnabled("cbAdd cbOpen cbSave tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(EditingTest, TypingIntoTheIdlePanelStartsAnAdd) {
    OpenDistrict();
    Type(QStringLiteral("!"));
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    EXPECT_FALSE(Enabled("cbOk"));
    Type(QStringLiteral("G"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    EXPECT_TRUE(Enabled("cbOk"));
    Type(QStringLiteral("amma"));
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Alfa|Betta|!Gamma");
}

TEST_F(EditingTest, TypingWhileNothingIsSelectedAnyMoreStartsAnAdd) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    ClickBelowRows("lvVariations");
    ASSERT_EQ(iEditMode, OneSelected);
    Type(QStringLiteral("Gamma"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Alfa|Betta|Gamma");
}

// The controls stay as they were, too: what is in memory can still be saved.
TEST_F(EditingTest, WithoutADistrictTypingStartsNothing) {
    OpenDistrict();
    Add(QStringLiteral("Gamma"));
    ExpectLooseChanges(BoxAnswer::Yes);
    desktop.ExpectOpen(std::nullopt);
    Click("cbOpen");
    ASSERT_EQ(lCurrentDistrict, 0);
    ASSERT_TRUE(Enabled("tbEdit"));
    Type(QStringLiteral("G"));
    EXPECT_EQ(iEditMode, NothingOpen);
    EXPECT_TRUE(Enabled("cbSave"));
    EXPECT_FALSE(Enabled("cbOk"));
}

TEST_F(EditingTest, ASpellingOfTheDistrictIsNamedAndCannotBeStored) {
    OpenDistrict();
    Type(QStringLiteral("!alfa"));
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("Duplicates Alfa"));
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    ClickDisabled("cbOk");
    ExpectNothingChanged();
    EXPECT_EQ(EditText(), QStringLiteral("!alfa"));
    Type(QStringLiteral("x"));
    EXPECT_EQ(TextOf("lbStatus"), QString());
    EXPECT_EQ(iEditMode, AddingAcceptable);
}

TEST_F(EditingTest, TheDistrictsOwnNameIsTakenToo) {
    OpenDistrict();
    Type(QStringLiteral("alpha"));
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("Duplicates Alpha"));
    EXPECT_FALSE(Enabled("cbOk"));
}

TEST_F(EditingTest, ATextEmptiedAgainIsUnacceptableAndLeavesTheStatus) {
    OpenDistrict();
    Type(QStringLiteral("Alfa"));
    Box().selectAll();
    Key("tbEdit", Qt::Key_Backspace);
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("Duplicates Alfa"));
}

TEST_F(EditingTest, EveryKeystrokeDecidesAnewWhetherAnAddIsAcceptable) {
    OpenDistrict();
    const auto expectAfter = [this](const char* typed, const char* text, bool acceptable) {
        Type(QString::fromLatin1(typed));
        EXPECT_EQ(EditText(), QString::fromLatin1(text));
        EXPECT_EQ(Enabled("cbOk"), acceptable) << text;
    };
    expectAfter("%", "%", false);
    expectAfter("G", "%G", true);
    expectAfter("amma", "%Gamma", true);
    expectAfter("%", "%Gamma%", false);
    expectAfter("1", "%Gamma%1", true);
    expectAfter("%", "%Gamma%1%", false);
    expectAfter("2", "%Gamma%1%2", true);
    expectAfter(" ", "%Gamma%1%2 ", false);
}

TEST_F(EditingTest, TheOptionBoxesMirrorTheMarkersOfTheText) {
    OpenDistrict();
    const auto expectAfter = [this](const char* typed, const char* ticked) {
        Type(QString::fromLatin1(typed));
        QStringList found;
        for (const char* box : {"cbVariation", "cbSpelling", "cbValidinyears", "cbVNF"}) {
            if (BoxTicked(box)) {
                found.append(QString::fromLatin1(box));
            }
        }
        EXPECT_EQ(found.join(QLatin1Char(' ')).toStdString(), ticked) << EditText().toStdString();
    };
    expectAfter("Gamma", "cbVariation");
    expectAfter("%12", "cbVariation cbVNF");
    Key("tbEdit", Qt::Key_Home);
    expectAfter("%", "cbValidinyears cbVNF");
    Key("tbEdit", Qt::Key_Home);
    Key("tbEdit", Qt::Key_Delete);
    expectAfter("!", "cbSpelling cbVNF");
    expectAfter("%", "cbSpelling cbValidinyears cbVNF");
}

TEST_F(EditingTest, AnEditedVariationIsReplacedAndCanBeTakenBack) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Type(QStringLiteral("n"));
    EXPECT_EQ(iEditMode, EditingVariation);
    ExpectEnabled("cbCancel cbOk tbEdit");
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Alfan|Betta");
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Change Alfa to Alfan"));
    EXPECT_EQ(Focus(), "lvAlpha");
    EXPECT_EQ(lEditIndex, 0);
    ExpectEnabled("cbAdd cbOpen cbSave tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(EditingTest, AnEditedVariationIsNotCheckedWhileItIsTyped) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Box().selectAll();
    for (const QString& text : {QStringLiteral("Betta"), QStringLiteral("%")}) {
        Type(text);
        EXPECT_EQ(iEditMode, EditingVariation);
        EXPECT_TRUE(Enabled("cbOk"));
        EXPECT_EQ(TextOf("lbStatus"), QString());
    }
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Betta%|Betta");
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Betta%")), Red);
    EXPECT_EQ(PaperOf("lbWhyError"), LightGrey);
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(EditingTest, AnEditThatMakesADuplicateIsStoredAndSeen) {
    OpenDistrict();
    Edit(QStringLiteral("Betta"), QStringLiteral("Alfa "));
    EXPECT_EQ(Slots(), "|Alfa|Alfa");
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Alfa")), Blue);
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Duplicates(Blue).\n"));
}

TEST_F(EditingTest, AStoredWarningBeepsOnABlueGreenGround) {
    OpenDistrict();
    Add(QStringLiteral("Ga_ma"));
    EXPECT_EQ(Slots(), "|Alfa|Betta|Ga_ma");
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(PaperOf("lbWhyError"), BlueGreen);
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 warnings (Brown)."));
}

TEST_F(EditingTest, AWarningIsForgottenWhenTheNextTextIsStored) {
    OpenDistrict();
    Add(QStringLiteral("Ga_ma"));
    Edit(QStringLiteral("Alfa"), QStringLiteral("Alfa%"));
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(PaperOf("lbWhyError"), LightGrey);
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Invalid (red).\n1 warnings (Brown)."));
}

TEST_F(EditingTest, TypingClearsTheReasonShown) {
    OpenDistrict("|War_n");
    Select(QStringLiteral("War_n"));
    ASSERT_EQ(TextOf("lbWhyError"), QStringLiteral("Should have !"));
    Type(QStringLiteral("s"));
    EXPECT_EQ(TextOf("lbWhyError"), QString());
}

TEST_F(EditingTest, CancelGivesUpAnAdd) {
    OpenDistrict();
    Type(QStringLiteral("!Gamma"));
    Click("cbCancel");
    ExpectNothingChanged();
    EXPECT_EQ(EditText(), QString());
    EXPECT_FALSE(BoxTicked("cbSpelling"));
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(EditingTest, CancelGivesUpAnEditAndTypingThenStartsAnAdd) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Type(QStringLiteral("n"));
    Click("cbCancel");
    ExpectNothingChanged();
    EXPECT_EQ(iEditMode, DistrictIdle);
    Type(QStringLiteral("Gamma"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Alfa|Betta|Gamma");
}

TEST_F(EditingTest, AfterCancelTheSameRowCanBeSelectedAgain) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Click("cbCancel");
    Select(QStringLiteral("Alfa"));
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
}

TEST_F(EditingTest, ADeletedVariationLeavesTheListAndAFreeSlot) {
    OpenDistrict();
    Delete(QStringLiteral("Alfa"));
    EXPECT_EQ(Slots(), "|\t|Betta");
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Betta")});
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Delete Alfa from Alpha"));
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(iLastAction, VariationDeleted);
    EXPECT_EQ(lEditIndex, 0);
    EXPECT_EQ(Focus(), "lvAlpha");
    ExpectEnabled("cbAdd cbOpen cbSave tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(EditingTest, TheQuestionNamesTheVariationWithoutBlanksAtItsEnds) {
    OpenDistrict("|Inva lid |Alfa");
    Select(QStringLiteral("Inva lid "));
    ExpectDeleteQuestion("variation Inva lid");
    Click("cbDelete");
    EXPECT_EQ(Slots(), "|\t|Alfa");
}

TEST_F(EditingTest, ThreeVariationsAreDeletedAfterOneQuestion) {
    OpenDistrict("|Betta|Alfa|Gamma|Delte");
    Select(QStringLiteral("Alfa"));
    Select(QStringLiteral("Delte"), Qt::ShiftModifier);
    ExpectDeleteQuestion("these 3 variations?");
    Click("cbDelete");
    EXPECT_EQ(Slots(), "|\t|\t|Gamma|\t");
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Delete Delte from Alpha"));
}

TEST_F(EditingTest, AfterDeletingTheOthersAreLookedThroughForDuplicatesAgain) {
    OpenDistrict("|Dupe|!Dupe|Alfa");
    ASSERT_EQ(RowColour("lvVariations", QStringLiteral("Dupe")), Blue);
    Delete(QStringLiteral("!Dupe"));
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Dupe")), RowColour("lvVariations", QStringLiteral("Alfa")));
    EXPECT_EQ(TextOf("lbWhyError"), QString());
}

TEST_F(EditingTest, AnsweringNoDeletesNothingAndReturnsToIdle) {
    OpenDistrict("|War_n|Alfa");
    Select(QStringLiteral("War_n"));
    ExpectDeleteQuestion("variation War_n", BoxAnswer::No);
    Click("cbDelete");
    ExpectNothingChanged("|War_n|Alfa");
    EXPECT_EQ(EditText(), QString());
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    EXPECT_EQ(Focus(), "lvAlpha");
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(EditingTest, DeletingAllLeavesADistrictThatCanBeAddedTo) {
    OpenDistrict();
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    ExpectDeleteQuestion("these 2 variations?");
    Click("cbDelete");
    EXPECT_EQ(Column("lvVariations"), QStringList());
    Add(QStringLiteral("Gamma"));
    EXPECT_EQ(Slots(), "|\t|\t|Gamma");
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Gamma")});
}

TEST_F(EditingTest, WithoutTickedProposalsAnIdleOptionBoxBeepsAndUnticks) {
    OpenDistrict();
    ClickOption("cbSpelling");
    EXPECT_FALSE(BoxTicked("cbSpelling"));
    EXPECT_EQ(desktop.beeps, 1);
    ClickOption("cbVariation");
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(desktop.beeps, 2);
}

TEST_F(EditingTest, WhileATextIsEditedSpellingStaysAsClickedAndVariationDoesNot) {
    OpenDistrict();
    Type(QStringLiteral("Gamma"));
    ClickOption("cbSpelling");
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    ClickOption("cbVariation");
    EXPECT_TRUE(BoxTicked("cbVariation"));
    Key("tbEdit", Qt::Key_Home);
    Type(QStringLiteral("!"));
    ClickOption("cbVariation");
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(desktop.beeps, 0);
    EXPECT_EQ(EditText(), QStringLiteral("!Gamma"));
}

TEST_F(EditingTest, ADistrictWhoseDuplicatesAreDeletedIsNoLongerRed) {
    OpenDistrict("|Cold Elm|!Cold elm|Oak");
    EXPECT_NE(RowColour("lvAlpha", QStringLiteral("Alpha")), RowColour("lvAlpha", QStringLiteral("Beta")));
    Select(QStringLiteral("Cold Elm"));
    Select(QStringLiteral("!Cold elm"), Qt::ControlModifier);
    ExpectDeleteQuestion("these 2 variations?");
    Click("cbDelete");
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Oak")});
    EXPECT_EQ(RowColour("lvAlpha", QStringLiteral("Alpha")), RowColour("lvAlpha", QStringLiteral("Beta")));
}
