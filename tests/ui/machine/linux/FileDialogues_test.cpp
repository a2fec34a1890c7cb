// Folders in which no file can be made, and names that only this system has.

#include "ui/machine/FileDialoguesTest.h"

#include <QScopeGuard>

#include <filesystem>
#include <fstream>
#include <iterator>

using namespace CommonRoutines;
using namespace Ui;

TEST_F(FileDialoguesTest, ANameThatLooksLikeMarkupIsShownAsItIs) {
    const char* const name = "<img src=x><b>x.txt";
    const std::string path = Existing(name);
    guide.Next([&](QWidget& dialogue) {
        guide.Next([&](QWidget& question) {
            ExpectPlain(question, QString::fromLatin1(name));
            DialogueGuide::Press(question, "Yes");
        });
        DialogueGuide::ChooseFile(dialogue, path);
    });
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), path);
}

TEST_F(FileDialoguesTest, ANewNameInAFolderInWhichNoFileCanBeMadeIsRefused) {
    LetOthersOnlyEnterFolder();
    ExpectRefused(Path("new.txt"), false);
}

TEST_F(FileDialoguesTest, AFileThatMayBeWrittenIsChosenThoughNoneCanBeMadeBesideIt) {
    const std::string path = Existing("data.txt");
    QFile::setPermissions(QString::fromStdString(path), ForAllToRead | QFile::WriteGroup | QFile::WriteOther);
    LetOthersOnlyEnterFolder();
    const AsOrdinaryUser user;
    guide.Next([&](QWidget& dialogue) {
        PressNext("Yes");
        DialogueGuide::ChooseFile(dialogue, path);
    });
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), path);
}

// The toolkit can neither show such a name nor know that there is a file.
TEST_F(FileDialoguesTest, AFileWhoseNameIsNoTextIsSavedUnderItsOwnNameAfterAQuestion) {
    const std::string name = "caf\xE9.txt";
    const std::string path = Folder() + '/' + name;
    std::ofstream(path) << "old";
    const auto removed = qScopeGuard([&] { std::filesystem::remove(path); }); // which the toolkit cannot
    const FileRequest request{"", Folder(), name, ""};
    for (const bool isWanted : {false, true}) {
        guide.Next([=, this](QWidget& dialogue) {
            guide.Next([&dialogue, isWanted](QWidget& question) {
                EXPECT_TRUE(dynamic_cast<QMessageBox&>(question).text().startsWith(
                    QStringLiteral("This file exists already:")));
                if (!isWanted) {
                    RejectWhenShown(dynamic_cast<QDialog&>(dialogue));
                }
                DialogueGuide::Press(question, isWanted ? "Yes" : "No");
            });
            dynamic_cast<QDialog&>(dialogue).accept();
        });
        EXPECT_EQ(desktop.ChooseFileToSave(request), isWanted ? std::optional(path) : std::nullopt);
    }
    const std::string stamp = desktop.StampOf(path);
    EXPECT_NE(stamp, "");
    EXPECT_TRUE(desktop.HasContent(path));
    EXPECT_TRUE(desktop.StaysInPlace(path)) << "a new file would get another name";
    EXPECT_TRUE(desktop.OverwriteFile(path, "what is new"));
    EXPECT_EQ(desktop.ReadFile(path), "what is new");
    EXPECT_NE(desktop.StampOf(path), stamp);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder()), std::filesystem::directory_iterator()), 1);
}

TEST_F(FileDialoguesTest, ANameThatOnlyLooksLikeTheProposedOneIsItself) {
    const std::string name = "caf\xE9.txt";
    std::ofstream(Folder() + '/' + name) << "old";
    const auto removed = qScopeGuard([&] { std::filesystem::remove(Folder() + '/' + name); });
    const std::string alike = Existing("caf\uFFFD.txt");
    guide.Next([&, this](QWidget& dialogue) {
        PressNext("Yes"); // of the toolkit
        DialogueGuide::ChooseFile(dialogue, alike);
    });
    EXPECT_EQ(desktop.ChooseFileToSave({"", Folder(), name, ""}), alike);
}
