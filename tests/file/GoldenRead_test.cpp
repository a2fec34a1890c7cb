#include "file/DialogueScript.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "rules/Capitals.h"
#include "support/GoldenFolder.h"
#include "support/ScriptedDesktop.h"

using namespace CommonRoutines;

namespace {

std::string Counts() {
    return "lines " + std::to_string(lLineCount) + "\ndistricts " + std::to_string(lDistrictTotal) + "\ninvalid " +
           std::to_string(lInvalidTotal) + "\ncapitals ok " + std::to_string(lCapsOkTotal) + "\nchanged " +
           (bChanged ? "yes" : "no") + "\nlast repair " + std::to_string(iRepairAction) + "\n";
}

class GoldenReadTest : public Golden::Test {
protected:
    GoldenReadTest() : Test("read") {}

    ScriptedDesktop m_desktop;
};

} // namespace

TEST_P(GoldenReadTest, IsAskedReportedAndWrittenBackAsRecorded) {
    const auto input = Content("input.txt");
    const auto dialogue = Content("dialogue.txt");
    const auto saved = Content("saved.txt");
    ASSERT_TRUE(input) << "no input.txt";
    ASSERT_TRUE(dialogue) << "no dialogue.txt";
    ASSERT_TRUE(saved) << "no saved.txt";
    if (const auto words = Content("qx_lower.txt")) {
        m_desktop.files["/program/qx_lower.txt"] = *words;
        LoadLowerCaseWords(m_desktop);
    }
    ASSERT_EQ(ExpectDialogue(*dialogue, m_desktop), "");

    sDataFileName = "/data/input.txt";
    m_desktop.files[sDataFileName] = *input;
    ReadDistrictFile(m_desktop);
    m_desktop.CheckDone();
    if (const auto counts = Content("counts.txt")) {
        EXPECT_EQ(Counts(), *counts);
    }
    if (iRepairAction == Quit) {
        lLineCount = 0; // as opening a file does
    }
    EXPECT_EQ(DistrictFileContent(), *saved);
}

INSTANTIATE_TEST_SUITE_P(Read, GoldenReadTest, testing::ValuesIn(Golden::CaseNames("read")), Golden::TestName);
