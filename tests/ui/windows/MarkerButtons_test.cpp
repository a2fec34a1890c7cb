// The buttons that mark and unmark the selected variations.

#include "ui/windows/EditingTest.h"

using namespace CommonRoutines;

TEST_F(EditingTest, AddShriekMarksTheVariationAtOnceAndLeavesItInPlace) {
    OpenDistrict("|Alfa|Ze_ta");
    Select(QStringLiteral("Ze_ta"));
    Click("cbShriek");
    EXPECT_EQ(Slots(), "|Alfa|!Ze_ta");
    const QStringList inPlace{QStringLiteral("Alfa"), QStringLiteral("!Ze_ta")};
    EXPECT_EQ(Column("lvVariations"), inPlace);
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("!Ze_ta")});
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("!Ze_ta")), RowColour("lvVariations", QStringLiteral("Alfa")));
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Change Ze_ta to !Ze_ta"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(Column("lvVariations"), (QStringList{QStringLiteral("!Ze_ta"), QStringLiteral("Alfa")}));
}

TEST_F(EditingTest, AMarkedVariationLeavesTheEditPanelEmptyAndStaysSelected) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Click("cbDate");
    EXPECT_EQ(EditText(), QString());
    EXPECT_FALSE(BoxTicked("cbValidinyears"));
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("%Alfa")});
    EXPECT_EQ(Focus(), "lvVariations");
}

TEST_F(EditingTest, WhatIsTypedAfterAMarkIsANewVariation) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Click("cbDate");
    Type(QStringLiteral("Gamma"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    Click("cbOk");
    EXPECT_EQ(Slots(), "|%Alfa|Betta|Gamma");
}

TEST_F(EditingTest, SpaceAndEnterTakeExactlyTheMarkedRowsUpAgain) {
    OpenDistrict();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
        const QStringList all = Selected("lvVariations");
        ASSERT_EQ(all.size(), 2);
        Click("cbShriek");
        ASSERT_EQ(iEditMode, DistrictIdle);
        Key("lvVariations", key);
        EXPECT_EQ(iEditMode, SeveralSelected);
        EXPECT_EQ(Selected("lvVariations").size(), 2);
        Click("cbDate");
        Key("lvVariations", key);
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
    }
    EXPECT_EQ(Slots(), "|!%Alfa|!%Betta");
}

TEST_F(EditingTest, ARefusedKeySaysWhyBelowTheButtons) {
    OpenDistrict();
    Click("cbAdd");
    Type(QStringLiteral("Ash|"));
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(EditText(), QStringLiteral("Ash"));
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("\"|\" separates variations and cannot be part of one."));
    Type(QStringLiteral("e"));
    EXPECT_EQ(TextOf("lbStatus"), QString());
}

TEST_F(EditingTest, AGreyOkSaysWhyAlsoToScreenReaders) {
    OpenDistrict();
    Click("cbAdd");
    Type(QStringLiteral("alfa"));
    ASSERT_FALSE(Enabled("cbOk"));
    EXPECT_EQ(Find("cbOk").accessibleDescription(), QStringLiteral("Store the text (Enter) - Duplicates Alfa"));
    EXPECT_TRUE(Find("cbOk").toolTip().contains(QStringLiteral("Store the text (Enter) - Duplicates Alfa")));
    Type(QStringLiteral("s"));
    EXPECT_EQ(Find("cbOk").accessibleDescription(), QStringLiteral("Store the text (Enter)"));
}

TEST_F(EditingTest, SpaceDoesNotTakeUpWhatIsBeingEdited) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Type(QStringLiteral("x"));
    ASSERT_EQ(iEditMode, EditingVariation);
    Key("lvVariations", Qt::Key_Space);
    EXPECT_EQ(iEditMode, EditingVariation);
    EXPECT_EQ(EditText(), QStringLiteral("Alfax"));
}

TEST_F(EditingTest, EscInTheListGivesUpWhatWasMarked) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Click("cbDate");
    Key("lvVariations", Qt::Key_Escape);
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(EditingTest, GivingAChoiceUpLeavesNoRowSelected) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Click("cbCancel");
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    Find<QWidget>("lvVariations").setFocus();
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    ASSERT_EQ(iEditMode, SeveralSelected);
    Key("lvVariations", Qt::Key_Escape);
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(EditingTest, AnOnlyVariationThatWasGivenUpIsChosenAgainByAnyOfTheKeys) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_Space, Qt::Key_Return}) {
        OpenDistrict("|Alfa");
        Select(QStringLiteral("Alfa"));
        Click("cbCancel");
        Key("lvVariations", key);
        EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("Alfa")}) << key;
        EXPECT_EQ(iEditMode, OneSelected) << key;
        Click("cbCancel");
        bChanged = false;
    }
}

TEST_F(EditingTest, WithSeveralMarkedTheEditBoxStaysEmpty) {
    OpenDistrict();
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    Click("cbDate");
    EXPECT_EQ(Slots(), "|%Alfa|%Betta");
    EXPECT_EQ(Selected("lvVariations"), (QStringList{QStringLiteral("%Alfa"), QStringLiteral("%Betta")}));
    EXPECT_EQ(EditText(), QString());
}

TEST_F(EditingTest, TheMarkerButtonsLeaveThePanelIdleAndAreDisabled) {
    OpenDistrict();
    for (const char* button : {"cbShriek", "cbDate"}) {
        Select(QStringLiteral("Betta"));
        Select(QStringLiteral("Alfa"));
        Click(button);
        EXPECT_EQ(iEditMode, DistrictIdle) << button;
        ExpectEnabled("cbAdd cbOpen cbSave tbEdit btnProcess cbCompleteCheck lbComments");
        Click("cbUndo");
    }
}

TEST_F(EditingTest, TheDateMarkStandsBehindTheShriek) {
    OpenDistrict("|!Spell|!%Both");
    Select(QStringLiteral("!Spell"));
    Click("cbDate");
    EXPECT_EQ(Slots(), "|!%Spell|!%Both");
}

TEST_F(EditingTest, RemovingOneOfTwoMarkersLeavesTheOther) {
    OpenDistrict("|!%Both|!%Booth");
    Select(QStringLiteral("!%Both"));
    ASSERT_EQ(CaptionOf("cbShriek"), QStringLiteral("Remove !"));
    Click("cbShriek");
    Select(QStringLiteral("!%Booth"));
    ASSERT_EQ(CaptionOf("cbDate"), QStringLiteral("Remove Date%"));
    Click("cbDate");
    EXPECT_EQ(Slots(), "|%Both|!Booth");
}

TEST_F(EditingTest, AMixtureLosesItsShrieksAndEveryRowIsRecorded) {
    OpenDistrict("|!Alfa|Betta");
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    Click("cbShriek");
    EXPECT_EQ(Slots(), "|Alfa|Betta");
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Change Betta to Betta"));
    Click("cbUndo");
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Change !Alfa to Alfa"));
    EXPECT_EQ(Slots(), "|Alfa|Betta");
    Click("cbUndo");
    EXPECT_EQ(Slots(), "|!Alfa|Betta");
}

TEST_F(EditingTest, AMarkedVariationCountsAsAnUnsavedChange) {
    OpenDistrict();
    ASSERT_FALSE(Enabled("cbSave"));
    Select(QStringLiteral("Alfa"));
    Click("cbShriek");
    EXPECT_TRUE(Enabled("cbSave"));
    Save();
    EXPECT_EQ(desktop.files[DataFilePath],
              HeaderOf("Alpha") + "|!Alfa|Betta\r\n#QX_NOTE\r\n" + HeaderOf("Beta") + "\r\n");
}
