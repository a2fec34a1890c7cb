// Which controls are enabled, in every state of the window that the user can bring about.

#include "ui/windows/ProposalsTest.h"

#include <QLineEdit>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class WindowModesTest : public ProposalsTest {};

} // namespace

TEST_F(WindowModesTest, AtTheStartOnlyOpeningIsPossible) {
    ExpectEnabled("cbOpen");
}

TEST_F(WindowModesTest, WithAFileOpenItCanBeCheckedAndFiltered) {
    OpenContent(HeaderOf("Alpha") + "|Alfa\r\n");
    ExpectEnabled("cbOpen cbCompleteCheck lbComments");
}

TEST_F(WindowModesTest, ARepairedFileCanBeSavedAtOnce) {
    OpenNullVariation("Remove");
    ExpectEnabled("cbOpen cbSave cbCompleteCheck lbComments");
}

TEST_F(WindowModesTest, WithADistrictChosenVariationsCanBeAdded) {
    OpenDistrict();
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(WindowModesTest, WithADistrictChosenChangesCanBeSaved) {
    OpenDistrict();
    bChanged = true;
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled("cbAdd cbOpen cbSave tbEdit btnProcess cbCompleteCheck lbComments");
}

TEST_F(WindowModesTest, WithOneVariationSelectedItCanBeEditedMarkedAndDeleted) {
    OpenDistrict();
    bChanged = true;
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    ExpectEnabled("cbCancel cbDelete cbSaveVariations tbEdit cbShriek cbDate");
}

TEST_F(WindowModesTest, WithSeveralVariationsSelectedTheyCanBeMarkedAndDeleted) {
    OpenDistrict();
    bChanged = true;
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    ExpectEnabled("cbDelete cbSaveVariations cbShriek cbDate lbComments");
}

TEST_F(WindowModesTest, ProposalsThatAreNotSelectedCanOnlyBeAppliedTogether) {
    OpenDistrict();
    Process("One\r\nTwo\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled("cbAdd cbOpen tbEdit btnProcess cbApplyAll cbApplyAllSpell cbCompleteCheck lbComments");
}

TEST_F(WindowModesTest, SelectedProposalsCanBeAppliedAlone) {
    const char* const all = "cbAdd cbOpen tbEdit btnProcess cbApplySelected cbApplyAll cbApplyAllSpell "
                            "cbApplySelSpell cbClearSel cbCompleteCheck lbComments";
    OpenDistrict();
    Process("One\r\nTwo\r\n");
    ClickRow("LvChanges", QStringLiteral("One"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled(all);

    Process("One\r\n");
    ClickBox(QStringLiteral("One"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled(all);
}

TEST_F(WindowModesTest, TheStatusOfTheEditRowIsClearedWhenTheModeChanges) {
    OpenDistrict();
    Find<QLineEdit>("tbEdit").insert(QStringLiteral("alfa"));
    ASSERT_EQ(TextOf("lbStatus"), QStringLiteral("Duplicates Alfa"));
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    EXPECT_EQ(TextOf("lbStatus"), QString());
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));
}

TEST_F(WindowModesTest, NoCommandWorksWhileItIsDisabled) {
    OpenDistrict();
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    ClickDisabled("cbOpen");
    ClickDisabled("cbSave");
    EXPECT_EQ(iEditMode, OneSelected);
}
