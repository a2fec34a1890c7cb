// What is no file, or too large a one, is refused with a message, whichever command wants to read it.

#include "commands/Session.h"
#include "driver/AnsweringDesktop.h"
#include "rules/Capitals.h"
#include "support/Table.h"
#include "ui/machine/Memory.h"
#include "ui/windows/Form1.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <new>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class RefusingDesktop : public AnsweringDesktop {
public:
    std::vector<std::string> messages;

    RefusingDesktop() {
        onBox = [this](std::string_view text) { messages.emplace_back(text); };
    }
    void EnterProgramFolder() override {}
};

class RefusedFiles : public StateTest {
protected:
    RefusedFiles() { desktop.programFolder = m_folder.path().toStdString(); }

    std::string Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    // A file of a size that takes no room on the disk.
    std::string FileOfSize(const char* name, off_t size) const {
        QFile file(QString::fromStdString(Path(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(ftruncate(file.handle(), size), 0);
        return Path(name);
    }
    // What must not be read: a pipe, a folder, a device, a file of more than 2 GiB, and none.
    std::vector<std::string> Refused() const {
        EXPECT_EQ(mkfifo(Path("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
        EXPECT_TRUE(QDir().mkdir(QString::fromStdString(Path("folder"))));
        EXPECT_EQ(symlink(Path("pipe").c_str(), Path("link").c_str()), 0);
        constexpr off_t twoGigabytes = off_t{1} << 31U;
        return {Path("pipe"),    Path("folder"),
                Path("link"),    "/dev/zero",
                "/dev/tty",      FileOfSize("large", twoGigabytes),
                Path("missing"), FileOfSize("larger", 1000 * twoGigabytes)};
    }
    static std::string CannotBeRead(const std::string& path) { return "The file cannot be read:\r\n" + path; }
    static void Click(Form1& form, const char* button) {
        form.findChild<QPushButton*>(QString::fromLatin1(button))->click();
    }

    RefusingDesktop desktop;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RefusedFiles, AsADataFile) {
    Form1 form(desktop);
    for (const std::string& path : Refused()) {
        desktop.fileToOpen = path;
        desktop.messages.clear();
        Click(form, "cbOpen");
        EXPECT_EQ(desktop.messages, std::vector<std::string>{CannotBeRead(path)});
        EXPECT_EQ(lLineCount, 0);
        EXPECT_EQ(sDataFileName, "");
    }
}

TEST_F(RefusedFiles, AsAChangeFile) {
    Form1 form(desktop);
    for (const std::string& path : Refused()) {
        form.findChild<QPushButton*>(QStringLiteral("btnProcess"))->setEnabled(true);
        desktop.fileToOpen = path;
        desktop.messages.clear();
        Click(form, "btnProcess");
        EXPECT_EQ(desktop.messages, std::vector<std::string>{CannotBeRead(path)});
    }
}

TEST_F(RefusedFiles, AsTheWordList) {
    for (const std::string& path : Refused()) {
        unlink(Path("qx_lower.txt").c_str());
        ASSERT_EQ(symlink(path.c_str(), Path("qx_lower.txt").c_str()), 0);
        desktop.messages.clear();
        LoadLowerCaseWords(desktop);
        EXPECT_EQ(desktop.messages, std::vector<std::string>{"No lowercase file found - no words will be ignored"});
        EXPECT_EQ(LowerCaseWords().count, 0);
    }
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

#ifdef Q_OS_LINUX

// In a process of its own, since the limit stays.
TEST_F(RefusedFiles, WhoeverAsksForMoreMemoryThanThereIsIsRefused) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer ends a program that is refused memory";
#else
    const auto ask = [] {
        Memory::LimitToWhatIsLeft();
        rlimit limit{};
        getrlimit(RLIMIT_DATA, &limit);
        std::vector<std::unique_ptr<std::string>> taken;
        try {
            // Each is little enough to be given out where more is given out than there is.
            for (rlim_t bytes = 0; bytes <= limit.rlim_cur; bytes += 1U << 28U) {
                taken.push_back(std::make_unique<std::string>());
                taken.back()->reserve(1U << 28U);
            }
        } catch (const std::bad_alloc&) {
            std::exit(limit.rlim_cur == RLIM_INFINITY ? 1 : 0);
        }
        std::exit(2);
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(0), "");
#endif
}

#endif
