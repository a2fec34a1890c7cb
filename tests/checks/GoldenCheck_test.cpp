#include "checks/CompleteCheck.h"
#include "file/DistrictFileReader.h"
#include "support/GoldenFolder.h"
#include "support/ScriptedDesktop.h"

using namespace CommonRoutines;

namespace {

class GoldenCheckTest : public Golden::Test {
protected:
    GoldenCheckTest() : Test("check") { m_desktop.recordReports = true; }

    ScriptedDesktop m_desktop;
};

} // namespace

TEST_P(GoldenCheckTest, ReportsTheLinesRecorded) {
    sDataFileName = "/data/input.txt";
    m_desktop.files[sDataFileName] = Needed("input.txt");
    ReadDistrictFile(m_desktop);
    std::string lines;
    for (const std::string& line : CompleteVariationCheck(m_desktop).items.All()) {
        lines += Golden::Escaped(line) + '\n';
    }
    EXPECT_EQ(lines, Needed("report.txt"));
}

INSTANTIATE_TEST_SUITE_P(Check, GoldenCheckTest, testing::ValuesIn(Golden::CaseNames("check")), Golden::TestName);
