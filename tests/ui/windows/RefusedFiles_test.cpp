// What is no file, or too large a one, is refused with a message, whichever command wants to read it.

#include "commands/Session.h"
#include "ui/windows/RefusedFilesTest.h"

#include <QDir>

#include <new>
#include <optional>

using namespace CommonRoutines;
using namespace Ui;

TEST_F(RefusedFiles, AFolderALargeFileAndAMissingOneCannotBeRead) {
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(Path("folder"))));
    for (const std::string& path : {Path("folder"), FileOfSize("large", TwoGigabytes), Path("missing")}) {
        ExpectRefusedAsDataFile(path);
        ExpectRefusedAsChangeFile(path);
    }
}

TEST_F(RefusedFiles, NorCanTheyBeTheWordList) {
    ExpectNoWordList(); // which is missing
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(Path(WordList))));
    ExpectNoWordList();
    ASSERT_TRUE(QDir().rmdir(QString::fromStdString(Path(WordList))));
    FileOfSize(WordList, TwoGigabytes);
    ExpectNoWordList();
}

TEST_F(RefusedFiles, ACommandWithoutMemoryEndsWithAMessage) {
    int runs = 0;
    Commands::WithinMemory(desktop, [&] { ++runs; });
    EXPECT_TRUE(desktop.messages.empty());
    Commands::WithinMemory(desktop, [&]() {
        ++runs;
        throw std::bad_alloc();
    });
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(desktop.messages, std::vector<std::string>{"There is not enough memory for that."});
}

TEST_F(RefusedFiles, AChangeFileWithoutMemoryForItLeavesTheWindowAsItWas) {
    class SmallMachine : public RefusingDesktop {
        std::optional<std::string> ReadFile(const std::string& /*path*/) override { throw std::bad_alloc(); }
    };
    SmallMachine machine;
    Form1 form(machine);
    form.findChild<QPushButton*>(QStringLiteral("btnProcess"))->setEnabled(true);
    Click(form, "btnProcess");
    EXPECT_EQ(machine.messages, std::vector<std::string>{"There is not enough memory for that."});
    EXPECT_EQ(iEditMode, NothingOpen);
}
