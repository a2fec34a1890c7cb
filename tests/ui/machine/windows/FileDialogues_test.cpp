// Names that are typed into the dialogues there, and the folders that they begin in.

#include "OnDisk.h"
#include "ui/machine/DesktopTest.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class NamesOnWindowsTest : public DesktopTest {
protected:
    [[nodiscard]] std::string Folder() const { return m_folder.path().toStdString(); }
    [[nodiscard]] QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    // The folder that a dialogue shows first.
    std::string BeginningOf(const std::string& folder) {
        std::string shown;
        guide.Next([&](QWidget& dialogue) {
            shown = dynamic_cast<QFileDialog&>(dialogue).directory().absolutePath().toStdString();
            DialogueGuide::Press(dialogue, "Cancel");
        });
        EXPECT_EQ(desktop.ChooseFileToOpen({"", folder, "", ""}), std::nullopt);
        return shown;
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(NamesOnWindowsTest, ANameThatNoFileCanHaveIsRefusedAndTheDialogueComesAgain) {
    for (const char* name : {"CON", "nul.txt", "x.txt:y", "a*b"}) {
        QTimer again;
        guide.Next([&](QWidget& dialogue) {
            guide.Next([](QWidget& refusal) {
                EXPECT_EQ(dynamic_cast<QMessageBox&>(refusal).text(),
                          QStringLiteral("A file cannot have this name. Please choose another name."));
                DialogueGuide::Press(refusal, "OK");
            });
            QObject::connect(&again, &QTimer::timeout, &dialogue, [&] {
                if (dialogue.isVisible() && guide.AllAnswered()) {
                    again.stop();
                    dynamic_cast<QFileDialog&>(dialogue).reject();
                }
            });
            again.start(10);
            DialogueGuide::ChooseFile(dialogue, Folder() + '/' + name);
        });
        EXPECT_EQ(desktop.ChooseFileToSave({"", Folder(), "", ""}), std::nullopt) << name;
        EXPECT_EQ(Names(), QStringList()) << name;
    }
}

// The folder of a file in the root of a drive is remembered without its separator.
TEST_F(NamesOnWindowsTest, ADriveAloneBeginsInItsRoot) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QDir::tempPath())); // the current folder of its drive
    const QString drive = QDir::currentPath().left(2);
    EXPECT_EQ(BeginningOf(drive.toStdString()), (drive + QLatin1Char('/')).toStdString());
    EXPECT_TRUE(QDir::setCurrent(before));
}

TEST_F(NamesOnWindowsTest, AFolderWithTheSystemsSeparatorsIsBegunIn) {
    const QString native = QDir::toNativeSeparators(QString::fromStdString(Folder()));
    EXPECT_EQ(BeginningOf(native.toStdString()), Folder());
}
