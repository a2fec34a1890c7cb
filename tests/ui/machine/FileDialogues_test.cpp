// Choosing files to open and to save.

#include "ui/machine/FileDialoguesTest.h"

#include <QDir>
#include <QLineEdit>

using namespace CommonRoutines;
using namespace Ui;

TEST_F(FileDialoguesTest, AnExistingFileIsOpened) {
    const std::string path = Existing("data.txt");
    guide.Next([&](QWidget& dialogue) {
        const auto& files = dynamic_cast<QFileDialog&>(dialogue);
        EXPECT_EQ(files.windowTitle(), QStringLiteral("Open"));
        EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(files.directory().path().toStdString(), Folder());
        EXPECT_EQ(dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), QString());
        DialogueGuide::ChooseFile(dialogue, path);
    });
    EXPECT_EQ(desktop.ChooseFileToOpen(InFolder()), path);
}

TEST_F(FileDialoguesTest, AMissingFileIsNotOpened) {
    guide.Next([this](QWidget& dialogue) {
        PressNext("OK"); // that there is no such file
        DialogueGuide::ChooseFile(dialogue, Path("missing.txt"));
        EXPECT_TRUE(dialogue.isVisible());
        dynamic_cast<QFileDialog&>(dialogue).reject();
    });
    EXPECT_EQ(desktop.ChooseFileToOpen(InFolder()), std::nullopt);
}

TEST_F(FileDialoguesTest, CancelChoosesNothing) {
    PressNext("Cancel");
    EXPECT_EQ(desktop.ChooseFileToOpen(InFolder()), std::nullopt);
    PressNext("Cancel");
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), std::nullopt);
    KeyNext(Qt::Key_Escape);
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), std::nullopt);
}

TEST_F(FileDialoguesTest, TheCallersTitleAndNameAreProposed) {
    guide.Next([](QWidget& dialogue) {
        EXPECT_EQ(dialogue.windowTitle(), QStringLiteral("Choose a list"));
        EXPECT_EQ(dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), QStringLiteral("list.txt"));
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialogue).acceptMode(), QFileDialog::AcceptSave);
        DialogueGuide::Press(dialogue, "Save");
    });
    EXPECT_EQ(desktop.ChooseFileToSave({"Choose a list", Folder(), "list.txt", ""}), Path("list.txt"));
}

TEST_F(FileDialoguesTest, TheDefaultExtensionIsAddedToANameThatHasNone) {
    FileRequest request = InFolder();
    request.defaultExtension = "txt";
    ChooseNext(Path("list"));
    EXPECT_EQ(desktop.ChooseFileToSave(request), Path("list.txt"));
    ChooseNext(Path("list.csv"));
    EXPECT_EQ(desktop.ChooseFileToSave(request), Path("list.csv"));
    ChooseNext(Path("plain"));
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), Path("plain"));
}

TEST_F(FileDialoguesTest, AnExistingFileIsReplacedOnlyAfterAQuestion) {
    const std::string path = Existing("data.txt");
    guide.Next([&](QWidget& dialogue) {
        guide.Next([](QWidget& question) {
            EXPECT_TRUE(dynamic_cast<QMessageBox&>(question).text().contains(QStringLiteral("data.txt")));
            DialogueGuide::Press(question, "No");
        });
        DialogueGuide::ChooseFile(dialogue, path);
        EXPECT_TRUE(dialogue.isVisible());
        PressNext("Yes");
        DialogueGuide::ChooseFile(dialogue, path);
    });
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), path);
}

TEST_F(FileDialoguesTest, AMissingNameThatLooksLikeMarkupIsShownAsItIs) {
    const char* const name = "<img src=x><b>x.txt";
    guide.Next([&](QWidget& dialogue) {
        guide.Next([&](QWidget& box) {
            ExpectPlain(box, QString::fromLatin1(name));
            DialogueGuide::Press(box, "OK");
        });
        DialogueGuide::ChooseFile(dialogue, Path(name));
        dynamic_cast<QFileDialog&>(dialogue).reject();
    });
    EXPECT_EQ(desktop.ChooseFileToOpen(InFolder()), std::nullopt);
}

TEST_F(FileDialoguesTest, AReadOnlyFileIsRefusedAndTheDialogueComesAgain) {
    const std::string path = Existing("data.txt");
    QFile::setPermissions(QString::fromStdString(path), ForAllToRead);
    LetOthersOnlyEnterFolder();
    ExpectRefused(path, true);
}

TEST_F(FileDialoguesTest, AForeignFileNameComesThroughUnchanged) {
    const std::string path = Path("d") + "\xC4\x85\xC3\xA9.txt";
    ChooseNext(path);
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), path);
}
