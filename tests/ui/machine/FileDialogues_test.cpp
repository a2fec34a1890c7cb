// Choosing files to open and to save.

#include "ui/machine/AsOrdinaryUser.h"
#include "ui/machine/DesktopTest.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>

#include <filesystem>
#include <fstream>
#include <iterator>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class FileDialoguesTest : public DesktopTest {
protected:
    std::string Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    std::string Folder() const { return m_folder.path().toStdString(); }
    std::string Existing(const char* name) const {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return Path(name);
    }
    void ChooseNext(const std::string& path) {
        guide.Next([path](QWidget& dialogue) { DialogueGuide::ChooseFile(dialogue, path); });
    }
    void LetOthersOnlyEnterFolder() const {
        QFile::setPermissions(QString::fromStdString(Folder()),
                              ForAllToRead | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    }
    void ExpectRefused(const std::string& path, bool isThere);
    // The guide takes one that comes again for answered.
    static void RejectWhenShown(QDialog& dialogue) {
        auto* const timer = new QTimer(&dialogue);
        QObject::connect(timer, &QTimer::timeout, &dialogue, [&dialogue] {
            if (dialogue.isVisible()) {
                dialogue.reject();
            }
        });
        timer->start(10);
    }
    FileRequest InFolder() const { return {"", Folder(), "", ""}; }

    static constexpr QFile::Permissions ForAllToRead = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;

private:
    QTemporaryDir m_folder;
};

// To choose this file is refused with a message, and the dialogue comes again.
void FileDialoguesTest::ExpectRefused(const std::string& path, bool isThere) {
    const AsOrdinaryUser user;
    // The same dialogue comes up again, which the guide takes for answered.
    QTimer again;
    bool cameAgain = false;
    guide.Next([&](QWidget& dialogue) {
        if (isThere) {
            PressNext("Yes");
        }
        guide.Next([](QWidget& refusal) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(refusal).text(),
                      QStringLiteral("This file is read-only. Please choose another name."));
            DialogueGuide::Press(refusal, "OK");
        });
        DialogueGuide::ChooseFile(dialogue, path);
        QObject::connect(&again, &QTimer::timeout, &dialogue, [&] {
            if (QApplication::activeModalWidget() == &dialogue && guide.AllAnswered()) {
                again.stop();
                cameAgain = true;
                dynamic_cast<QFileDialog&>(dialogue).reject();
            }
        });
        again.start(10);
    });
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), std::nullopt);
    EXPECT_TRUE(cameAgain);
}

} // namespace

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

TEST_F(FileDialoguesTest, ANameThatLooksLikeMarkupIsShownAsItIs) {
    const QString name = QStringLiteral("<img src=x><b>x.txt");
    const auto expectPlain = [&](QWidget& box, const char* button) {
        auto& question = dynamic_cast<QMessageBox&>(box);
        EXPECT_EQ(question.textFormat(), Qt::PlainText);
        EXPECT_TRUE(question.text().contains(name)) << question.text().toStdString();
        EXPECT_EQ(question.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->textFormat(), Qt::PlainText);
        DialogueGuide::Press(box, button);
    };
    const std::string missing = Folder() + "/" + name.toStdString();
    guide.Next([&](QWidget& dialogue) {
        guide.Next([&](QWidget& box) { expectPlain(box, "OK"); });
        DialogueGuide::ChooseFile(dialogue, missing);
        dynamic_cast<QFileDialog&>(dialogue).reject();
    });
    EXPECT_EQ(desktop.ChooseFileToOpen(InFolder()), std::nullopt);
    const std::string existing = Existing("<img src=x><b>x.txt");
    guide.Next([&](QWidget& dialogue) {
        guide.Next([&](QWidget& box) { expectPlain(box, "Yes"); });
        DialogueGuide::ChooseFile(dialogue, existing);
    });
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), existing);
}

TEST_F(FileDialoguesTest, AReadOnlyFileIsRefusedAndTheDialogueComesAgain) {
    const std::string path = Existing("data.txt");
    QFile::setPermissions(QString::fromStdString(path), ForAllToRead);
    LetOthersOnlyEnterFolder();
    ExpectRefused(path, true);
}

TEST_F(FileDialoguesTest, SoIsANewNameInAFolderInWhichNoFileCanBeMade) {
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

TEST_F(FileDialoguesTest, AForeignFileNameComesThroughUnchanged) {
    const std::string path = Path("d") + "\xC4\x85\xC3\xA9.txt";
    ChooseNext(path);
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
