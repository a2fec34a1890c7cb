// Saving, and closing the window.

#include "ui/windows/FormTest.h"

#include "ui/lists/StateColours.h"

#include <QDir>
#include <QLineEdit>
#include <QTextDocument>

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

TEST_F(SavingTest, AfterASaveUnderAnotherNameThatNameIsProposed) {
    desktop.ExpectSave("/copies/copy.txt");
    desktop.ExpectBox("File Saved to /copies/copy.txt", BoxIcon::Information);
    Click("cbSave");
    bChanged = true;
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    desktop.ExpectSave(std::nullopt);
    Click("cbSave");
    EXPECT_EQ(desktop.lastRequest.folder, "/copies");
    EXPECT_EQ(desktop.lastRequest.fileName, "copy.txt");
}

TEST_F(SavingTest, TheDistrictsSayWhichFileIsOpen) {
    const auto expectSaid = [&](const QString& path) {
        for (const char* name : {"Label1", "lvAlpha"}) {
            EXPECT_EQ(Find(name).accessibleDescription(), path) << name;
            EXPECT_TRUE(Find(name).toolTip().contains(path)) << Find(name).toolTip().toStdString();
        }
    };
    const QString opened = QDir::toNativeSeparators(QStringLiteral("/data/all.txt"));
    expectSaid(opened);
    const QString save = QStringLiteral("Write the data file (Ctrl+S): ") + opened;
    EXPECT_EQ(Find("cbSave").accessibleDescription(), save);
    EXPECT_TRUE(Find("cbSave").toolTip().contains(save));
    desktop.ExpectSave("/copies/\xC4\x8D\n<b>.txt");
    desktop.ExpectBox("File Saved to " + Wording::OfPath("/copies/\xC4\x8D\n<b>.txt"), BoxIcon::Information);
    Click("cbSave");
    const QString shown = QDir::toNativeSeparators(QStringLiteral("/copies/\u010D\uFFFD<b>.txt"));
    for (const char* name : {"Label1", "lvAlpha"}) {
        EXPECT_EQ(Find(name).accessibleDescription(), shown) << name;
        QTextDocument document;
        document.setHtml(Find(name).toolTip());
        EXPECT_EQ(document.toPlainText(), shown) << name;
    }
    QTextDocument document;
    document.setHtml(Find("cbSave").toolTip());
    EXPECT_TRUE(document.toPlainText().contains(QStringLiteral("): ") + shown)) << document.toPlainText().toStdString();
}

TEST_F(SavingTest, WithoutAFileTheDistrictsSayWhatToDo) {
    bChanged = false;
    desktop.ExpectOpen("/data/missing.txt");
    desktop.ExpectBox("The file cannot be read:\r\n/data/missing.txt", BoxIcon::Exclamation);
    Click("cbOpen");
    EXPECT_EQ(Find("Label1").toolTip(), QString());
    EXPECT_EQ(Find("lvAlpha").toolTip(), QString());
    EXPECT_EQ(Find("Label1").accessibleDescription(), QString());
    EXPECT_EQ(Find("lvAlpha").accessibleDescription(), List("lvAlpha").Hint());
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

TEST_F(SavingTest, ClosingWithATextInTheBoxAsksAndNoKeepsTheText) {
    bChanged = false;
    Click("cbAdd");
    Type(QStringLiteral("Fir"));
    ExpectLooseChanges(BoxAnswer::No);
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Find<QLineEdit>("tbEdit").text(), QStringLiteral("Fir"));
    EXPECT_TRUE(Enabled("cbOk"));
    ExpectLooseChanges(BoxAnswer::Yes);
    EXPECT_TRUE(form->close());
}

TEST_F(SavingTest, ClosingWithoutChangesAsksNothing) {
    bChanged = false;
    EXPECT_TRUE(form->close());
    EXPECT_FALSE(form->isVisible());
}
