#include "file/DistrictFileWriter.h"
#include "rules/Capitals.h"
#include "support/Reading.h"
#include "support/Table.h"

#include <algorithm>
#include <fstream>
#include <iterator>

using namespace CommonRoutines;

namespace {

std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class GazetteerFileTest : public StateTest {
protected:
    GazetteerFileTest() { m_desktop.recordReports = true; }

    // The report as the marks in the table say that it must be.
    static std::vector<std::string> ExpectedReport() {
        std::vector<std::string> items;
        std::int32_t warnings = 0;
        std::int64_t unusual = 0;
        for (std::int32_t i = 1; i <= lLineCount; ++i) {
            const DistrictRecord& record = DistrictAt(i);
            if (record.iDuplicateCount > 0) {
                items.push_back("District " + std::string(record.Name()) + " has duplicate variations.");
            }
            warnings += record.lWarningCount;
            unusual += std::count_if(record.Variations.begin(), record.Variations.end(),
                                     [](const VariationRecord& variation) { return variation.bUnusualCaps; });
        }
        items.push_back("There were " + std::to_string(warnings) + " Variations with warnings.\r\n");
        items.push_back(std::to_string(unusual) + " variations with capitalisation problems");
        return items;
    }

    const std::string m_content = ContentOf(QUEXAL_DATA_DIR "/gazetteer-gb.txt");
    ScriptedDesktop m_desktop;
};

} // namespace

TEST_F(GazetteerFileTest, IsReadWholeAndComesBackByteForByte) {
    ReadText(m_desktop, m_content);
    EXPECT_EQ(lDistrictTotal, 5428);
    EXPECT_EQ(lLineCount, std::count(m_content.begin(), m_content.end(), '\n'));
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(iRepairAction, NoRepair);
    EXPECT_TRUE(DistrictFileContent() == m_content) << "the file came back different";
}

TEST_F(GazetteerFileTest, IsReportedAsItsMarksSay) {
    const std::string words = ContentOf(QUEXAL_DATA_DIR "/qx_lower.txt");
    m_desktop.files["/program/qx_lower.txt"] = words; // an empty list when there is no such file
    LoadLowerCaseWords(m_desktop);
    ReadText(m_desktop, m_content);
    ASSERT_EQ(m_desktop.reports.size(), 1U);
    EXPECT_EQ(m_desktop.reports[0].caption, "Read File Results");
    EXPECT_FALSE(m_desktop.reports[0].canPrintAndSave);
    EXPECT_EQ(m_desktop.reports[0].items.All(), ExpectedReport());
    std::int64_t variations = 0;
    std::int64_t unusual = 0;
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        variations += DistrictAt(i).lVariationCount;
        for (std::int32_t k = 1; k <= DistrictAt(i).lVariationCount; ++k) {
            unusual += VariationAt(i, k).bUnusualCaps ? 1 : 0;
        }
    }
    EXPECT_EQ(lCapsOkTotal + unusual, variations);
}
