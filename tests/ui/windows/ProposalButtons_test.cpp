// The commands beside the proposals, other than applying them.

#include "ui/windows/ProposalsTest.h"

using namespace CommonRoutines;

namespace {

const QString Elm = QStringLiteral("Elm");
const QString Oak = QStringLiteral("Oak");
const QString Alfa = QStringLiteral("Alfa");
const QString Betta = QStringLiteral("Betta");

// Two proposals are listed, the second of which the district has already.
class ProposalButtonsTest : public ProposalsTest {
protected:
    ProposalButtonsTest() {
        OpenDistrict();
        Process("Elm\nALFA\n!Oak\n");
    }
};

// A change file is listed, but another data file has been opened since.
class NoDistrictTest : public ProposalsTest {
protected:
    NoDistrictTest() {
        OpenDistrict();
        Process("Elm\nOak\n");
    }
    void ExpectNothingButTicks(const char* enabled) {
        ClickBox(Elm);
        EXPECT_EQ(Ticked(), QStringList{Elm});
        EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=1"));
        ExpectEnabled(enabled);
        ClickText(Oak);
        EXPECT_EQ(Ticked(), (QStringList{Elm, Oak}));
        EXPECT_EQ(EditText(), QString());
        EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=2"));
        ExpectEnabled(enabled);
        ClickBox(Elm);
        ClickBox(Oak);
        EXPECT_EQ(Ticked(), QStringList());
        EXPECT_EQ(TextOf("lbSelectCount"), QString());
        ExpectEnabled(enabled);
    }
};

} // namespace

// Edit.

TEST_F(ProposalButtonsTest, EditStartsAnAddWithTheTickedProposal) {
    ClickBox(Elm);
    Click("cbEditSel");
    EXPECT_EQ(EditText(), Elm);
    EXPECT_EQ(iEditMode, AddingAcceptable);
    EXPECT_TRUE(BoxTicked("cbVariation"));
    EXPECT_EQ(Ticked(), QStringList{Elm});
    ExpectEnabled("cbCancel cbOk tbEdit");
    Click("cbOk");
    EXPECT_EQ(Column("lvVariations"), (QStringList{Alfa, Betta, Elm}));
}

TEST_F(ProposalButtonsTest, EditSaysWhatTheProposalRepeats) {
    ClickBox(QStringLiteral("ALFA"));
    Click("cbEditSel");
    EXPECT_EQ(EditText(), QStringLiteral("ALFA"));
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("Duplicates Alfa"));
    ExpectEnabled("cbCancel tbEdit");
}

TEST_F(ProposalButtonsTest, EditReplacesTheTextOfTheSelectedVariation) {
    ClickRow("lvVariations", Betta);
    ClickBox(QStringLiteral("!Oak"));
    Click("cbEditSel");
    EXPECT_EQ(iEditMode, EditingVariation);
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    Click("cbOk");
    EXPECT_EQ(Column("lvVariations"), (QStringList{QStringLiteral("!Oak"), Alfa}));
    EXPECT_EQ(TextOf("lbUndo"), QStringLiteral("Change Betta to !Oak"));
}

TEST_F(ProposalButtonsTest, TicksSurviveACancelledEdit) {
    ClickBox(Elm);
    Click("cbEditSel");
    Click("cbCancel");
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(Ticked(), QStringList{Elm});
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=1"));
    EXPECT_TRUE(Enabled("cbApplySelected"));
    EXPECT_TRUE(Enabled("cbClearSel"));
}

// Clear.

TEST_F(ProposalButtonsTest, ClearUnticksAllProposals) {
    ClickBox(Elm);
    ClickBox(QStringLiteral("!Oak"));
    Click("cbClearSel");
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbApplyAll cbApplyAllSpell cbCompleteCheck lbComments");
}

TEST_F(ProposalButtonsTest, ClearLeavesTheTextBeingAddedAlone) {
    ClickText(Elm);
    ASSERT_FALSE(Enabled("cbClearSel"));
    ClickBox(QStringLiteral("!Oak"));
    Click("cbClearSel");
    EXPECT_EQ(EditText(), Elm);
    EXPECT_EQ(iEditMode, AddingAcceptable);
    EXPECT_EQ(Ticked(), QStringList());
}

// The option boxes.

TEST_F(ProposalButtonsTest, WithoutTickedRowsTheOptionsCannotBeChosen) {
    ClickOption("cbSpelling");
    EXPECT_FALSE(BoxTicked("cbSpelling"));
    EXPECT_EQ(desktop.beeps, 1);
    ClickOption("cbVariation");
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(desktop.beeps, 2);
}

TEST_F(ProposalButtonsTest, WithTickedRowsOneOfTheTwoOptionsCanBeChosen) {
    ClickBox(Elm);
    ClickOption("cbSpelling");
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    ClickOption("cbVariation");
    EXPECT_TRUE(BoxTicked("cbVariation"));
    EXPECT_FALSE(BoxTicked("cbSpelling"));
    ClickOption("cbSpelling");
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    EXPECT_FALSE(BoxTicked("cbVariation"));
    ClickOption("cbSpelling");
    EXPECT_FALSE(BoxTicked("cbSpelling"));
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_EQ(desktop.beeps, 0);
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(ProposalButtonsTest, WhileAProposalIsAddedVariationSaysWhatTheTextIs) {
    ClickText(QStringLiteral("!Oak"));
    ClickOption("cbVariation");
    EXPECT_FALSE(BoxTicked("cbVariation"));
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    ClickOption("cbSpelling");
    EXPECT_FALSE(BoxTicked("cbSpelling"));
    EXPECT_EQ(EditText(), QStringLiteral("!Oak"));
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(ProposalButtonsTest, WhileAProposalIsAddedSpellingMayBeTickedBesideVariation) {
    ClickText(Elm);
    ClickOption("cbSpelling");
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    EXPECT_TRUE(BoxTicked("cbVariation"));
    EXPECT_EQ(EditText(), Elm);
}

// No district.

TEST_F(NoDistrictTest, InANewFileRowsCanOnlyBeTicked) {
    OpenContent(HeaderOf("Gamma") + "\r\n");
    ASSERT_EQ(Column("LvChanges"), (QStringList{Elm, Oak}));
    ExpectNothingButTicks("cbOpen cbClearSel cbCompleteCheck lbComments");
    EXPECT_EQ(iEditMode, FileOpen);
    ClickBox(Elm);
    Click("cbClearSel");
    EXPECT_EQ(Ticked(), QStringList());
    ExpectEnabled("cbOpen cbCompleteCheck lbComments");
}

TEST_F(NoDistrictTest, TicksAreThereForTheNextDistrict) {
    OpenContent(HeaderOf("Gamma") + "\r\n");
    ClickBox(Oak);
    ClickRow("lvAlpha", QStringLiteral("Gamma"));
    EXPECT_TRUE(Enabled("cbApplySelected"));
    desktop.ExpectBox("1 New variations added.", BoxIcon::Information);
    Click("cbApplySelected");
    EXPECT_EQ(Column("lvVariations"), QStringList{Oak});
}

TEST_F(NoDistrictTest, AfterACancelledOpeningThereIsNothingToApplyTo) {
    desktop.ExpectOpen(std::nullopt);
    Click("cbOpen");
    ASSERT_EQ(lCurrentDistrict, 0);
    for (const char* button :
         {"cbApplyAll", "cbApplyAllSpell", "cbApplySelected", "cbApplySelSpell", "cbEditSel", "cbDelete"}) {
        EXPECT_FALSE(Enabled(button)) << button;
    }
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(Districts[0].lVariationCount, 0);
    EXPECT_EQ(Column("lvVariations"), QStringList());
    EXPECT_EQ(DistrictAt(1).lVariationCount, 2);
}

TEST_F(NoDistrictTest, AfterACancelledOpeningAChangeFileCanBeLookedAt) {
    desktop.ExpectOpen(std::nullopt);
    Click("cbOpen");
    Process("Yew\nSm?th\n");
    EXPECT_EQ(Column("LvChanges"), (QStringList{QStringLiteral("Yew"), QStringLiteral("Sm?th")}));
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 invalid variations (red). "));
    EXPECT_EQ(iEditMode, DistrictIdle);
}
