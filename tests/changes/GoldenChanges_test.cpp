#include "changes/ChangeFile.h"
#include "support/GoldenFolder.h"

using namespace CommonRoutines;

namespace {

std::string Described(const ChangeRow& row) {
    constexpr const char* Kinds[] = {"invalid", "valid", "heading"}; // tags -1, 0 and 1
    return std::string(Kinds[row.iTag + 1]) + (row.bWarning ? ", warning: " : ": ") + Golden::Escaped(row.sText) + '\n';
}

class GoldenChangesTest : public Golden::Test {
protected:
    GoldenChangesTest() : Test("changes") {
        lCurrentDistrict = AddDistrict("Alpha");
        iEditMode = DistrictIdle;
    }
};

} // namespace

TEST_P(GoldenChangesTest, YieldsTheRowsAndTheSummaryRecorded) {
    const ChangeList list = ReadChanges(Needed("change.txt"));
    std::string rows;
    for (const ChangeRow& row : list.rows) {
        rows += Described(row);
    }
    EXPECT_EQ(rows.empty() ? "no rows\n" : rows, Needed("rows.txt"));
    EXPECT_EQ(Golden::Escaped(list.Summary()) + '\n', Needed("summary.txt"));
}

INSTANTIATE_TEST_SUITE_P(Changes, GoldenChangesTest, testing::ValuesIn(Golden::CaseNames("changes")), Golden::TestName);
