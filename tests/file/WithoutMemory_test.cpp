// A file that there is not enough memory for ends in a message and an empty table, wherever in it the memory
// is used up.

#include "file/CommentTypes.h"
#include "support/LittleMemory.h"
#include "support/Reading.h"
#include "support/Table.h"

#include <new>

using namespace CommonRoutines;

namespace {

// A user who sees every message, and on whose machine the memory is used up at one of them; or, without
// such a message, already when the file is read.
class SmallMachine : public ScriptedDesktop {
public:
    explicit SmallMachine(std::string failsAt = "") : m_failsAt(std::move(failsAt)) { recordReports = true; }

    BoxAnswer MsgBox(const Wording& text, BoxIcon, BoxButtons) override {
        lastText = text.Utf8();
        if (!m_failsAt.empty() && lastText.starts_with(m_failsAt)) {
            throw std::bad_alloc();
        }
        return BoxAnswer::Ok;
    }
    std::string MyMsgBox(const std::string&, std::int32_t, const std::string&, std::span<const std::string>) override {
        return "Remove";
    }
    std::optional<std::string> ReadFile(const std::string& path) override {
        if (m_failsAt.empty()) {
            throw std::bad_alloc();
        }
        return ScriptedDesktop::ReadFile(path);
    }

    std::string lastText;

private:
    std::string m_failsAt;
};

class WithoutMemory : public StateTest {
protected:
    WithoutMemory() { CommentTypes.Reset(); }
    ~WithoutMemory() override { CommentTypes.Reset(); }

    static void ExpectNothingIsOpen(const SmallMachine& desktop) {
        EXPECT_EQ(desktop.lastText, "There is not enough memory for the file:\r\n" + DataFilePath);
        EXPECT_EQ(sDataFileName, "");
        EXPECT_EQ(lLineCount, 0);
        EXPECT_TRUE(Districts.empty());
        EXPECT_EQ(lDistrictTotal + lInvalidTotal + lCapsOkTotal, 0);
        EXPECT_EQ(lDupePairCount, 0);
        EXPECT_EQ(CommentTypes.Items().size(), 1U);
        EXPECT_FALSE(bChanged);
        EXPECT_FALSE(desktop.busy);
        EXPECT_TRUE(desktop.reports.empty());
    }
};

} // namespace

TEST_F(WithoutMemory, AFileThatCannotBeHeldIsNotOpened) {
    SmallMachine desktop;
    ReadText(desktop, "x");
    ExpectNothingIsOpen(desktop);
}

TEST_F(WithoutMemory, AFileThatIsReadHalfWayIsNotOpened) {
    SmallMachine desktop("Line 4 is incomplete");
    ReadText(desktop, "#QX_NOTE\r\n" + HeaderOf("Alpha") + "|Alfa|Alfa|%\r\n" + HeaderOf("Beta") + "\r\nx\r\n");
    ExpectNothingIsOpen(desktop);
}

TEST_F(WithoutMemory, TheNextFileIsReadAsEver) {
    SmallMachine without;
    ReadText(without, "x");
    ScriptedDesktop with;
    ReadText(with, HeaderOf("Alpha") + "|Alfa\r\n");
    EXPECT_EQ(lDistrictTotal, 1);
    EXPECT_EQ(sDataFileName, DataFilePath);
}

// A gigabyte is less than the records of the file need.
TEST_F(WithoutMemory, AFileOfLineEndsOnlyIsNotOpened) {
    constexpr std::size_t gigabyte = 1UL << 30U;
    DoWithin(gigabyte, [] {
        SmallMachine desktop("no such message");
        ReadText(desktop, std::string(20'000'000, '\n'));
        ExpectNothingIsOpen(desktop);
    });
}
