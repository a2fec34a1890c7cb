// Saving, and closing the window.

#include "ui/windows/FormTest.h"

#include "ui/lists/StateColours.h"

using namespace CommonRoutines;

namespace {

// Lets the window save: the button follows the unsaved changes.
class SavingTest : public FormTest {
protected:
    SavingTest() {
        OpenContent(HeaderOf("Alpha") + "|Al fa|al fa\r\n# note\r\n" + HeaderOf("Beta") + "\r\n", "/data/all.txt");
        bChanged = true;
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
        EXPECT_TRUE(Enabled("cbSave"));
    }
};

} // namespace

TEST_F(SavingTest, SavingWritesEveryLineAndSaysWhere) {
    desktop.ExpectSave("/data/copy.txt");
    desktop.ExpectBox("File Saved to /data/copy.txt", BoxIcon::Information);
    Click("cbSave");
    EXPECT_EQ(desktop.files["/data/copy.txt"], desktop.files["/data/all.txt"]);
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(sDataFileName, "/data/all.txt");
}

TEST_F(SavingTest, TheOpenFileIsProposed) {
    desktop.ExpectSave(std::nullopt);
    Click("cbSave");
    EXPECT_EQ(desktop.lastRequest.folder, "/data");
    EXPECT_EQ(desktop.lastRequest.fileName, "all.txt");
}

TEST_F(SavingTest, SavingClearsTheProblemsOnAGreyGround) {
    ASSERT_NE(TextOf("lbWhyError"), QString());
    desktop.ExpectSave(std::nullopt);
    Click("cbSave");
    EXPECT_EQ(TextOf("lbWhyError"), QString());
    EXPECT_EQ(PaperOf("lbWhyError"), QColor(192, 192, 192));
}

TEST_F(SavingTest, ACancelledSaveCountsAsSaved) {
    desktop.ExpectSave(std::nullopt);
    Click("cbSave");
    EXPECT_FALSE(bChanged);
}

TEST_F(SavingTest, AFailedSaveIsSilentAndCountsAsSaved) {
    desktop.canWrite = false;
    desktop.ExpectSave("/data/all.txt");
    Click("cbSave");
    EXPECT_FALSE(bChanged);
}

TEST_F(SavingTest, CtrlSSaves) {
    Activate(*form);
    desktop.ExpectSave(std::nullopt);
    Key("lvAlpha", Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(bChanged);
}

TEST_F(SavingTest, ClosingWithChangesAsksAndNoKeepsTheWindow) {
    ExpectLooseChanges(BoxAnswer::No);
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(bChanged);
}

TEST_F(SavingTest, ClosingWithChangesAsksAndYesClosesTheWindow) {
    ExpectLooseChanges(BoxAnswer::Yes);
    EXPECT_TRUE(form->close());
    EXPECT_FALSE(form->isVisible());
}

TEST_F(SavingTest, ClosingWithoutChangesAsksNothing) {
    bChanged = false;
    EXPECT_TRUE(form->close());
    EXPECT_FALSE(form->isVisible());
}
