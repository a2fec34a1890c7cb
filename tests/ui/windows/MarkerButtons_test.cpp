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

TEST_F(EditingTest, TheEditBoxFollowsTheMarkedVariation) {
    OpenDistrict();
    Select(QStringLiteral("Alfa"));
    Click("cbDate");
    EXPECT_EQ(EditText(), QStringLiteral("%Alfa"));
    EXPECT_TRUE(BoxTicked("cbValidinyears"));
    EXPECT_FALSE(BoxTicked("cbVariation"));
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
