// Unsaved changes that outlive the window, as its user meets them.

#include "ui/windows/EditingTest.h"

#include "recovery/OpenFile.h"
#include "recovery/RecoveryFile.h"
#include "recovery/UnsavedChanges.h"
#include "support/RecoveryText.h"

#include <QLineEdit>
#include <QPushButton>

using namespace CommonRoutines;
using namespace Ui;

namespace {

const std::string Content = HeaderOf("Alpha") + "|Ash|Elm\r\n" + HeaderOf("Beta") + "|Yew\r\n";

class RecoveryTest : public FormTest {
protected:
    RecoveryTest() { OpenContent(Content); }

    // The changes that are on the disk.
    std::vector<SlotChange> OnDisk() {
        const std::vector<std::string> names = desktop.state.Kept(".changes");
        const auto file = names.empty() ? std::nullopt : ParseRecoveryFile(*desktop.state.Read(names.back()));
        return file ? file->changes : std::vector<SlotChange>();
    }
    void Add(const char* text) {
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
        Click("cbAdd");
        Type(QString::fromLatin1(text));
        Click("cbOk");
    }
    // To be expected when the next editor opens the file.
    void ExpectWantedBack(BoxAnswer answer) {
        ExpectOpening();
        desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                          BoxIcon::Question, BoxButtons::YesNoCancel, answer);
    }
    void ExpectOpening() {
        if (!m_expectsOpening) {
            desktop.ExpectOpen(DataFilePath);
        }
        m_expectsOpening = true;
    }
    // The window goes without a word, as it does when the program is killed, and a new one opens the file.
    void DieAndOpenAgain() {
        desktop.state.Die();
        form.reset();
        ResetEverything();
        ShowForm();
        ExpectOpening();
        Click("cbOpen");
    }

private:
    bool m_expectsOpening = false;
};

} // namespace

TEST_F(RecoveryTest, AnOkWritesTheChange) {
    Add("Fir");
    EXPECT_EQ(OnDisk(), (std::vector<SlotChange>{{1, 3, "Fir", {}}}));
}

TEST_F(RecoveryTest, ADeletionAMarkerAndAnUndoWriteTheirs) {
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickRow("lvVariations", QStringLiteral("Elm"));
    desktop.ExpectBox("Are you sure you want to delete variation Elm", BoxIcon::Question, BoxButtons::YesNo,
                      BoxAnswer::Yes);
    Click("cbDelete");
    EXPECT_EQ(OnDisk(), (std::vector<SlotChange>{{1, 2, "\t", {}}}));
    ClickRow("lvVariations", QStringLiteral("Ash"));
    Click("cbShriek");
    EXPECT_EQ(OnDisk().back(), (SlotChange{1, 1, "!Ash", {}}));
    Click("cbUndo");
    EXPECT_EQ(OnDisk().back(), (SlotChange{1, 1, "Ash", {}}));
    Click("cbUndo");
    EXPECT_EQ(OnDisk().back(), (SlotChange{1, 2, "Elm", {}}));
    EXPECT_EQ(OnDisk().size(), 4U);
}

TEST_F(RecoveryTest, ChangesComeBackAfterADeath) {
    Add("Fir");
    Add("Larch");
    ExpectWantedBack(BoxAnswer::Yes);
    DieAndOpenAgain();
    EXPECT_TRUE(bChanged);
    EXPECT_TRUE(Enabled("cbSave"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(Column("lvVariations"), (QStringList{QStringLiteral("Ash"), QStringLiteral("Elm"), QStringLiteral("Fir"),
                                                   QStringLiteral("Larch")}));
    ExpectLooseChanges(BoxAnswer::No);
    EXPECT_FALSE(form->close());
}

TEST_F(RecoveryTest, ChangesThatAreNotWantedBackAreKeptAside) {
    Add("Fir");
    const std::string name = desktop.state.Kept(".changes").front();
    ExpectWantedBack(BoxAnswer::No);
    desktop.ExpectBox("The changes are kept in\r\n/state/" + name +
                          ".aside\r\nThey are offered again when \".aside\" is taken off that name.",
                      BoxIcon::Information);
    DieAndOpenAgain();
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(desktop.state.Kept(".aside").size(), 1U);
    EXPECT_TRUE(form->close());
}

TEST_F(RecoveryTest, ProblemsOfChangesThatAreBackColourTheDistrict) {
    Unsaved.Note(1, 1, "bad!"); // which the edit panel would not take
    Unsaved.Write(desktop);
    ExpectWantedBack(BoxAnswer::Yes);
    DieAndOpenAgain();
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 1);
    EXPECT_NE(RowColour("lvAlpha", QStringLiteral("Alpha")), RowColour("lvAlpha", QStringLiteral("Beta")));
}

TEST_F(RecoveryTest, ASaveRemovesThem) {
    Add("Fir");
    desktop.ExpectSave(DataFilePath);
    desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    Click("cbSave");
    EXPECT_EQ(desktop.state.Kept(), std::vector<std::string>());
    DieAndOpenAgain(); // nothing is asked
}

TEST_F(RecoveryTest, ChangesAfterASaveBelongToTheSavedFile) {
    Add("Fir");
    desktop.ExpectSave(DataFilePath);
    desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    Click("cbSave");
    Add("Larch");
    ExpectWantedBack(BoxAnswer::Yes);
    DieAndOpenAgain();
    EXPECT_EQ(VariationAt(1, 3).Text, "Fir");
    EXPECT_EQ(VariationAt(1, 4).Text, "Larch");
}

TEST_F(RecoveryTest, ACancelledSaveLeavesThem) {
    Add("Fir");
    desktop.ExpectSave(std::nullopt);
    Click("cbSave");
    EXPECT_FALSE(bChanged);
    ExpectLooseChanges(BoxAnswer::No);
    EXPECT_FALSE(form->close());
    ExpectWantedBack(BoxAnswer::Yes);
    DieAndOpenAgain();
    EXPECT_EQ(VariationAt(1, 3).Text, "Fir");
}

TEST_F(RecoveryTest, AFailedSaveLeavesThem) {
    Add("Fir");
    desktop.canWrite = false;
    desktop.ExpectSave(DataFilePath);
    Click("cbSave");
    Add("Larch");
    ExpectWantedBack(BoxAnswer::Yes);
    DieAndOpenAgain();
    EXPECT_EQ(VariationAt(1, 3).Text, "Fir");
    EXPECT_EQ(VariationAt(1, 4).Text, "Larch");
}

// It may be that the folder could not be put on the disk, so that the old file may yet come back.
TEST_F(RecoveryTest, ASaveThatFailsWithItsFileInPlaceKeepsTheChangesOfBoth) {
    Add("Fir");
    desktop.failsAfterWriting = true;
    desktop.ExpectSave(DataFilePath);
    Click("cbSave");
    EXPECT_NE(desktop.files[DataFilePath], Content);
    Add("Larch");
    EXPECT_EQ(desktop.state.Kept(".changes").size(), 2U);

    ExpectWantedBack(BoxAnswer::Yes); // only the latest: the earlier ones are in the file, and kept aside
    DieAndOpenAgain();
    EXPECT_EQ(desktop.state.Kept(".aside").size(), 1U);
    EXPECT_EQ(VariationAt(1, 3).Text, "Fir");
    EXPECT_EQ(VariationAt(1, 4).Text, "Larch");
}

TEST_F(RecoveryTest, TheOldFileThatComesBackAfterSuchASaveHasItsChanges) {
    Add("Fir");
    desktop.failsAfterWriting = true;
    desktop.ExpectSave(DataFilePath);
    Click("cbSave");
    desktop.files[DataFilePath] = Content;
    ExpectWantedBack(BoxAnswer::Yes);
    DieAndOpenAgain();
    EXPECT_EQ(VariationAt(1, 3).Text, "Fir");
}

TEST_F(RecoveryTest, GivingThemUpWhenClosingRemovesThem) {
    Add("Fir");
    ExpectLooseChanges(BoxAnswer::No);
    EXPECT_FALSE(form->close());
    EXPECT_EQ(OnDisk().size(), 1U);
    ExpectLooseChanges(BoxAnswer::Yes);
    EXPECT_TRUE(form->close());
    EXPECT_EQ(desktop.state.Kept(), std::vector<std::string>());
}

TEST_F(RecoveryTest, GivingThemUpWhenOpeningRemovesThem) {
    Add("Fir");
    ExpectLooseChanges(BoxAnswer::Yes);
    desktop.ExpectOpen(DataFilePath);
    Click("cbOpen");
    EXPECT_EQ(desktop.state.Kept(), std::vector<std::string>());
    EXPECT_EQ(VariationAt(1, 2).Text, "Elm");
    Add("Larch");
    EXPECT_EQ(OnDisk(), (std::vector<SlotChange>{{1, 3, "Larch", {}}}));
}

TEST_F(RecoveryTest, GivingThemUpForAFileThatIsThenNotChosenKeepsThem) {
    Add("Fir");
    ExpectLooseChanges(BoxAnswer::Yes);
    desktop.ExpectOpen(std::nullopt);
    Click("cbOpen");
    EXPECT_EQ(OnDisk(), (std::vector<SlotChange>{{1, 3, "Fir", {}}}));
    ClickRow("lbComments", QStringLiteral(" All")); // which lists the districts of the table again
    Add("Larch");
    EXPECT_EQ(OnDisk(), (std::vector<SlotChange>{{1, 3, "Fir", {}}, {1, 4, "Larch", {}}}));
}

TEST_F(RecoveryTest, ChangesThatAreNowhereOnADiskAreAskedAboutAfterAFailedSave) {
    desktop.state.canWrite = false;
    desktop.canWrite = false;
    desktop.ExpectBox("Your changes cannot be written to the recovery file.  They are only safe once the file is "
                      "saved.\r\n/state/" +
                          RecoveryName(1002, DataFilePath),
                      BoxIcon::Exclamation);
    Add("Fir");
    desktop.ExpectSave(DataFilePath);
    Click("cbSave");
    EXPECT_FALSE(bChanged);
    ExpectLooseChanges(BoxAnswer::No);
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(bChanged);
    ExpectLooseChanges(BoxAnswer::Yes);
    EXPECT_TRUE(form->close());
}

TEST_F(RecoveryTest, OpeningAnotherFileAfterACancelledSaveAsksAboutThem) {
    Add("Fir");
    desktop.ExpectSave(std::nullopt);
    Click("cbSave");
    ExpectLooseChanges(BoxAnswer::No);
    Click("cbOpen");
    EXPECT_EQ(desktop.state.Kept(".changes").size(), 1U);
    ExpectLooseChanges(BoxAnswer::Yes);
    OpenContent(HeaderOf("Gamma") + "\r\n", "/data/other.txt");
    EXPECT_TRUE(desktop.state.Kept(".changes").empty());
}

TEST_F(RecoveryTest, AFileThatCannotBeReadIsNotMarkedAsOpen) {
    desktop.ExpectOpen("/data/missing.txt");
    desktop.ExpectBox("The file cannot be read:\r\n/data/missing.txt", BoxIcon::Exclamation);
    Click("cbOpen");
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(RecoveryTest, AFullDiskIsToldOnceAndEditingGoesOn) {
    desktop.state.canWrite = false;
    desktop.ExpectBox("Your changes cannot be written to the recovery file.  They are only safe once the file is "
                      "saved.\r\n/state/" +
                          RecoveryName(1002, DataFilePath),
                      BoxIcon::Exclamation);
    Add("Fir");
    Add("Larch");
    EXPECT_EQ(VariationAt(1, 4).Text, "Larch");
    EXPECT_TRUE(bChanged);
}

TEST_F(RecoveryTest, TheSecondEditorOfAFileIsTold) {
    ScriptedDesktop other;
    other.state.storage = desktop.state.storage;
    other.recordReports = true;
    other.files = desktop.files;
    Form1 second(other);
    other.ExpectOpen(DataFilePath);
    other.ExpectBox("Another editor has this file open.  What is saved last replaces what was saved before.",
                    BoxIcon::Exclamation);
    TheOpenFile = {}; // that of the first editor stays where it is
    QTest::mouseClick(second.findChild<QPushButton*>(QStringLiteral("cbOpen")), Qt::LeftButton);
    EXPECT_EQ(lLineCount, 2);
}
