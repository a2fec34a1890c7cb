#include "file/DialogueScript.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "rules/Capitals.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

using namespace CommonRoutines;
namespace fs = std::filesystem;

namespace {

std::optional<std::string> ContentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(QUEXAL_GOLDEN_DIR "/read")) {
        if (entry.is_directory()) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::string_view("-. ").find(c) != std::string_view::npos; },
        '_');
    return name;
}

std::string Counts() {
    return "lines " + std::to_string(lLineCount) + "\ndistricts " + std::to_string(lDistrictTotal) + "\ninvalid " +
           std::to_string(lInvalidTotal) + "\ncapitals ok " + std::to_string(lCapsOkTotal) + "\nchanged " +
           (bChanged ? "yes" : "no") + "\nlast repair " + std::to_string(iRepairAction) + "\n";
}

class GoldenReadTest : public StateTest, public testing::WithParamInterface<std::string> {
protected:
    [[nodiscard]] fs::path Folder() const { return fs::path(QUEXAL_GOLDEN_DIR "/read") / GetParam(); }
    [[nodiscard]] std::optional<std::string> Content(const char* name) const { return ContentOf(Folder() / name); }

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

INSTANTIATE_TEST_SUITE_P(Read, GoldenReadTest, testing::ValuesIn(CaseNames()), TestName);
