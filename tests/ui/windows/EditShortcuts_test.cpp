// Working by keyboard alone.

#include "ui/windows/EditingTest.h"

#include <QPushButton>

#include <map>

using namespace CommonRoutines;

TEST_F(EditingTest, TheToolTipsNameTheShortcuts) {
    const std::map<const char*, const char*> keys{
        {"cbOpen", "(Ctrl+O)"},   {"cbSave", "(Ctrl+S)"}, {"cbUndo", "(Ctrl+Z)"}, {"cbAdd", "(Insert)"},
        {"cbDelete", "(Delete)"}, {"tbEdit", "(F2)"},     {"cbOk", "(Enter)"},    {"cbCancel", "(Esc)"},
    };
    for (const auto& [control, key] : keys) {
        const QString tip = Find<QWidget>(control).toolTip();
        EXPECT_TRUE(tip.contains(QString::fromLatin1(key))) << control << ": " << tip.toStdString();
    }
}

TEST_F(EditingTest, InsertStartsAnAdd) {
    OpenDistrict();
    Press(Qt::Key_Insert);
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_EQ(Focus(), "tbEdit");
}

TEST_F(EditingTest, InsertIsIgnoredWhileAddIsDisabled) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Press(Qt::Key_Insert);
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
}

TEST_F(EditingTest, DeleteDeletesTheSelectedVariations) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    ExpectDeleteQuestion("variation Alfa");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Slots(), "|\t|Betta");
}

TEST_F(EditingTest, DeleteDeletesACharacterInTheEditBoxAndNothingElsewhere) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Find<QWidget>("lvAlpha").setFocus();
    Press(Qt::Key_Delete);
    Box().setFocus();
    Press(Qt::Key_Home);
    Press(Qt::Key_Delete);
    EXPECT_EQ(EditText(), QStringLiteral("lfa"));
    EXPECT_EQ(Slots(), "|Alfa|Betta");
}

TEST_F(EditingTest, DeleteIsIgnoredWhileItsButtonIsDisabled) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Click("cbDate");
    Find<QWidget>("lvVariations").setFocus();
    ASSERT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("%Alfa")});
    Press(Qt::Key_Delete);
    EXPECT_EQ(Slots(), "|%Alfa|Betta");
}

TEST_F(EditingTest, F2LeadsIntoTheEditBox) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    ASSERT_EQ(Focus(), "lvVariations");
    Press(Qt::Key_F2);
    EXPECT_EQ(Focus(), "tbEdit");
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
    EXPECT_EQ(iEditMode, OneSelected);
}

TEST_F(EditingTest, F2IsIgnoredWhileTheEditBoxIsDisabled) {
    OpenDistrict();
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    Find<QWidget>("lvVariations").setFocus();
    Press(Qt::Key_F2);
    EXPECT_EQ(Focus(), "lvVariations");
}

TEST_F(EditingTest, F1ShowsTheGuideInEveryModeAndChangesNothing) {
    const auto expectGuide = [this](std::int16_t mode) {
        desktop.shownDocuments.clear();
        Press(Qt::Key_F1);
        EXPECT_EQ(desktop.shownDocuments, std::vector<std::string>{"/program/guide/user-guide.html"}) << mode;
        EXPECT_EQ(iEditMode, mode);
    };
    expectGuide(NothingOpen);
    OpenDistrict();
    expectGuide(DistrictIdle);
    Press(Qt::Key_Insert);
    expectGuide(AddingUnacceptable);
    Type(QStringLiteral("Gamma"));
    expectGuide(AddingAcceptable);
    EXPECT_EQ(EditText(), QStringLiteral("Gamma"));
    Press(Qt::Key_Escape);
    Select(QStringLiteral("Alfa"));
    expectGuide(OneSelected);
    Type(QStringLiteral("x"));
    expectGuide(EditingVariation);
    Press(Qt::Key_Escape);
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    expectGuide(SeveralSelected);
    ExpectNothingChanged();
}

TEST_F(EditingTest, BothEnterKeysStoreTheText) {
    OpenDistrict();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Press(Qt::Key_Insert);
        Type(key == Qt::Key_Return ? QStringLiteral("Gamma") : QStringLiteral("Delte"));
        Press(key);
    }
    EXPECT_EQ(Slots(), "|Alfa|Betta|Gamma|Delte");
}

TEST_F(EditingTest, EnterIsIgnoredWhileTheTextIsUnacceptable) {
    OpenDistrict();
    Press(Qt::Key_Insert);
    Type(QStringLiteral("Alfa"));
    Press(Qt::Key_Return);
    ExpectNothingChanged();
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
    EXPECT_EQ(iEditMode, AddingUnacceptable);
}

TEST_F(EditingTest, EscGivesUpTheText) {
    OpenDistrict();
    Press(Qt::Key_Insert);
    Type(QStringLiteral("Gamma"));
    Press(Qt::Key_Escape);
    ExpectNothingChanged();
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(EditingTest, EscIsIgnoredWhileThereIsNothingToGiveUp) {
    OpenDistrict();
    Press(Qt::Key_F2);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Focus(), "tbEdit");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(EditingTest, CtrlZTakesBackTheLastChangeFromEveryList) {
    OpenDistrict();
    for (const char* list : {"lvAlpha", "lvVariations", "LvChanges", "lvComments"}) {
        Add(QStringLiteral("Gamma"));
        Find<QWidget>(list).setFocus();
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(TextOf("lbUndo"), QString()) << list;
        EXPECT_EQ(Column("lvVariations").size(), 2) << list;
    }
}

TEST_F(EditingTest, CtrlOAndCtrlSAreIgnoredWhileTheirButtonsAreDisabled) {
    OpenDistrict();
    Press(Qt::Key_S, Qt::ControlModifier);
    Add(QStringLiteral("Gamma"));
    Select(QStringLiteral("Alfa"));
    Press(Qt::Key_S, Qt::ControlModifier);
    Press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_TRUE(bChanged);
    EXPECT_EQ(iEditMode, OneSelected);
}

TEST_F(EditingTest, EscInTheListEndsTheChoiceOfVariations) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    EXPECT_FALSE(Enabled("cbOpen"));
    Press(Qt::Key_Escape);
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_TRUE(Enabled("cbOpen"));
    EXPECT_EQ(EditText(), QString());
    Select(QStringLiteral("Alfa"));
    Select(QStringLiteral("Betta"), Qt::ControlModifier);
    EXPECT_EQ(iEditMode, SeveralSelected);
    Press(Qt::Key_Escape);
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(EditingTest, ProposalsGetTheFocusWhenTheyAreReadAndTheEditBoxWhenOneIsEdited) {
    OpenDistrict();
    Process("Alvah\r\nAlfar\r\n");
    EXPECT_EQ(Focus(), "LvChanges");
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    EXPECT_EQ(Ticked(), QStringList{QStringLiteral("Alvah")});
    Find<QPushButton>("cbEditSel").setFocus();
    Press(Qt::Key_Space);
    EXPECT_EQ(Focus(), "tbEdit");
    EXPECT_EQ(EditText(), QStringLiteral("Alvah"));
}

TEST_F(EditingTest, AButtonThatItsCommandDisablesGivesTheFocusToItsList) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Find<QPushButton>("cbShriek").setFocus();
    Press(Qt::Key_Space);
    EXPECT_FALSE(Enabled("cbShriek"));
    EXPECT_EQ(Focus(), "lvVariations");
    Process("Alvah\r\nAlfar\r\n");
    ClickBox(QStringLiteral("Alvah"));
    Find<QPushButton>("cbClearSel").setFocus();
    Press(Qt::Key_Space);
    EXPECT_FALSE(Enabled("cbClearSel"));
    EXPECT_EQ(Focus(), "LvChanges");
    Click("cbAdd");
    Type(QStringLiteral("Alvah"));
    Find<QPushButton>("cbOk").setFocus();
    Press(Qt::Key_Space);
    EXPECT_EQ(Focus(), "lvAlpha");
}

TEST_F(EditingTest, AWholeDaysWorkNeedsNoMouse) {
    const std::string rest = "#QX_NOTE kept as it is\r\n" + HeaderOf("Beta") + "|Bee\r\n";
    ExpectFile(HeaderOf("Alpha") + "|Alfa\r\n" + rest);
    Press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_EQ(Focus(), "lvAlpha");
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Beta"));
    Press(Qt::Key_Up);
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));

    for (const QString& text : {QStringLiteral("!Alder"), QStringLiteral("Betta"), QStringLiteral("Gamma")}) {
        Press(Qt::Key_Insert);
        QTest::keyClicks(form->focusWidget(), text);
        Press(Qt::Key_Return);
    }
    EXPECT_EQ(Slots(), "|Alfa|!Alder|Betta|Gamma");

    Press(Qt::Key_Tab);
    ASSERT_EQ(Focus(), "lvVariations");
    Press(Qt::Key_Down);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    ExpectDeleteQuestion("these 3 variations?");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Gamma")});
    EXPECT_EQ(Focus(), "lvAlpha");

    Press(Qt::Key_Z, Qt::ControlModifier);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Delete !Alder from Alpha"));

    desktop.ExpectSave(DataFilePath);
    desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desktop.files[DataFilePath], HeaderOf("Alpha") + "|Betta|Alfa|Gamma\r\n" + rest);
    EXPECT_FALSE(bChanged);
}
