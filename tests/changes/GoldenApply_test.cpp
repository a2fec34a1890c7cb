#include "changes/ApplyChanges.h"
#include "changes/ChangeFile.h"
#include "core/Ansi.h"
#include "core/Lines.h"
#include "edit/UndoJournal.h"
#include "file/DialogueScript.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "support/GoldenFolder.h"
#include "support/ScriptedDesktop.h"

using namespace CommonRoutines;

namespace {

class GoldenApplyTest : public Golden::Test {
protected:
    GoldenApplyTest() : Test("apply") {
        ClearUndoRing();
        iUndoStep = 1;
    }

    void ReadDistricts() {
        ScriptedDesktop reading;
        reading.recordReports = true;
        sDataFileName = "/data/district.txt";
        reading.files[sDataFileName] = Needed("district.txt");
        ReadDistrictFile(reading);
        iEditMode = DistrictIdle;
    }

    void ReadOptions() {
        const std::string options = Needed("options.txt");
        Lines lines(options);
        while (const auto line = lines.Next()) {
            ReadOption(*line);
        }
    }

    void ReadOption(std::string_view line) {
        const std::string_view word = Ansi::FirstWord(line);
        const std::string_view rest = line.substr(std::min(word.size() + 1, line.size()));
        if (word == "district") {
            lCurrentDistrict = std::stoi(std::string(rest));
        } else if (word == "tick") {
            for (const std::string_view row : Ansi::Split(rest, ',')) {
                m_proposals.at(std::stoul(std::string(row)) - 1).ticked = true;
            }
        } else if (line == "selected only") {
            m_selectedOnly = true;
        } else if (line == "as spelling") {
            m_asSpelling = true;
        } else {
            ADD_FAILURE() << "unknown option: " << line;
        }
    }

    // What repeated undoing would take back, the last change first.
    static std::string Journal() {
        std::string journal;
        for (std::string what = CurrentUndoStep().WhatAmI(); !what.empty(); what = DescribeNextUndo()) {
            journal += Golden::Escaped(what) + '\n';
            CurrentUndoStep().LastItem();
        }
        return journal.empty() ? "nothing\n" : journal;
    }

    std::vector<Proposal> m_proposals;
    bool m_selectedOnly = false;
    bool m_asSpelling = false;
    ScriptedDesktop m_desktop;
};

} // namespace

TEST_P(GoldenApplyTest, IsAskedReportedSavedAndJournalledAsRecorded) {
    ReadDistricts();
    lCurrentDistrict = 1;
    m_proposals = ReadProposals(Needed("change.txt")).proposals;
    ReadOptions();
    ASSERT_TRUE(IsDistrict(lCurrentDistrict));
    ASSERT_EQ(ExpectDialogue(Needed("dialogue.txt"), m_desktop), "");

    if (const auto applied = ApplyChanges(m_proposals, m_selectedOnly, m_asSpelling, m_desktop)) {
        ReportAppliedProposals(*applied, m_desktop);
    }
    m_desktop.CheckDone();
    EXPECT_EQ(DistrictFileContent(), Needed("saved.txt"));
    EXPECT_EQ(Journal(), Needed("journal.txt"));
}

INSTANTIATE_TEST_SUITE_P(Apply, GoldenApplyTest, testing::ValuesIn(Golden::CaseNames("apply")), Golden::TestName);
