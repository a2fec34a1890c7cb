// Which controls are enabled, in every state of the window that the user can bring about.

#include "ui/windows/FormTest.h"

#include "ui/lists/ChangeModel.h"

#include <QLabel>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class WindowModesTest : public FormTest {
protected:
    // Of the controls that follow the mode, exactly these must be enabled.
    void ExpectEnabled(const QStringList& enabled) {
        QStringList found;
        for (const char* name :
             {"cbAdd", "cbCancel", "cbDelete", "cbSaveVariations", "cbOk", "cbOpen", "cbSave", "tbEdit", "btnProcess",
              "cbApplySelected", "cbApplyAll", "cbApplyAllSpell", "cbApplySelSpell", "cbClearSel", "cbCompleteCheck",
              "cbShriek", "cbDate", "lbComments", "cbEditSel"}) {
            if (Enabled(name)) {
                found.append(QString::fromLatin1(name));
            }
        }
        EXPECT_EQ(found.join(QLatin1Char(' ')), enabled.join(QLatin1Char(' ')));
    }
    static QStringList Names(const char* names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); }

    void OpenDistrict() {
        OpenContent(HeaderOf("Alpha") + "|Alfa|Beta\r\n");
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
    }
    ChangeModel& Changes() { return dynamic_cast<ChangeModel&>(*Find<RowList>("LvChanges").model()); }
};

} // namespace

TEST_F(WindowModesTest, AtTheStartOnlyOpeningIsPossible) {
    ExpectEnabled(Names("cbOpen"));
}

TEST_F(WindowModesTest, WithAFileOpenItCanBeCheckedAndFiltered) {
    OpenContent(HeaderOf("Alpha") + "|Alfa\r\n");
    ExpectEnabled(Names("cbOpen cbCompleteCheck lbComments"));
}

TEST_F(WindowModesTest, ARepairedFileCanBeSavedAtOnce) {
    OpenNullVariation("Remove");
    ExpectEnabled(Names("cbOpen cbSave cbCompleteCheck lbComments"));
}

TEST_F(WindowModesTest, WithADistrictChosenVariationsCanBeAdded) {
    OpenDistrict();
    ExpectEnabled(Names("cbAdd cbOpen tbEdit btnProcess cbCompleteCheck lbComments"));
}

TEST_F(WindowModesTest, WithADistrictChosenChangesCanBeSaved) {
    OpenDistrict();
    bChanged = true;
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled(Names("cbAdd cbOpen cbSave tbEdit btnProcess cbCompleteCheck lbComments"));
}

TEST_F(WindowModesTest, WithOneVariationSelectedItCanBeEditedMarkedAndDeleted) {
    OpenDistrict();
    bChanged = true;
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    ExpectEnabled(Names("cbCancel cbDelete cbSaveVariations tbEdit cbShriek cbDate"));
}

TEST_F(WindowModesTest, WithSeveralVariationsSelectedTheyCanBeMarkedAndDeleted) {
    OpenDistrict();
    bChanged = true;
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    ExpectEnabled(Names("cbDelete cbSaveVariations cbShriek cbDate lbComments"));
}

TEST_F(WindowModesTest, ProposalsThatAreNotSelectedCanOnlyBeAppliedTogether) {
    OpenDistrict();
    Changes().SetRows({{"One"}, {"Two"}});
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled(Names("cbAdd cbOpen tbEdit btnProcess cbApplyAll cbApplyAllSpell cbCompleteCheck lbComments"));
}

TEST_F(WindowModesTest, SelectedProposalsCanBeAppliedAlone) {
    const QStringList all = Names("cbAdd cbOpen tbEdit btnProcess cbApplySelected cbApplyAll cbApplyAllSpell "
                                  "cbApplySelSpell cbClearSel cbCompleteCheck lbComments");
    OpenDistrict();
    Changes().SetRows({{"One"}, {"Two"}});
    ClickRow("LvChanges", QStringLiteral("One"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled(all);

    Changes().SetRows({{"One", ChangeRow::Valid, false, true}});
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ExpectEnabled(all);
}

TEST_F(WindowModesTest, TheStatusOfTheEditRowIsClearedWhenTheModeChanges) {
    OpenDistrict();
    Find<QLabel>("lbStatus").setText(QStringLiteral("Duplicates Alfa"));
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
