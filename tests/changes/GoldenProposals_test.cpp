#include "changes/ChangeFile.h"
#include "support/GoldenFolder.h"

using namespace CommonRoutines;

namespace {

std::string Described(const Proposal& proposal) {
    constexpr const char* Kinds[] = {"invalid", "valid", "heading"}; // tags -1, 0 and 1
    return std::string(Kinds[proposal.tag + 1]) + (proposal.warns ? ", warning: " : ": ") +
           Golden::Escaped(proposal.text) + '\n';
}

class GoldenProposalsTest : public Golden::Test {
protected:
    GoldenProposalsTest() : Test("changes") {
        lCurrentDistrict = AddDistrict("Alpha");
        iEditMode = DistrictIdle;
    }
};

} // namespace

TEST_P(GoldenProposalsTest, YieldsTheRowsAndTheSummaryRecorded) {
    const ProposalList list = ReadProposals(Needed("change.txt"));
    std::string rows;
    for (const Proposal& proposal : list.proposals) {
        rows += Described(proposal);
    }
    EXPECT_EQ(rows.empty() ? "no rows\n" : rows, Needed("rows.txt"));
    EXPECT_EQ(Golden::Escaped(list.Summary()) + '\n', Needed("summary.txt"));
}

INSTANTIATE_TEST_SUITE_P(Changes, GoldenProposalsTest, testing::ValuesIn(Golden::CaseNames("changes")),
                         Golden::TestName);
