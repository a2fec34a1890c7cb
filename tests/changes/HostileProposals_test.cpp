// Change files that were made to hurt.

#include "changes/ApplyChanges.h"
#include "changes/ChangeFile.h"
#include "edit/UndoJournal.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

constexpr std::size_t Million = 1'000'000;
constexpr std::size_t TenMegabytes = 10 * Million;

class HostileProposals : public StateTest {
protected:
    HostileProposals() {
        ClearUndoRing();
        lCurrentDistrict = AddDistrict("Alpha", {"Alfa"});
        iEditMode = DistrictIdle;
    }
    ~HostileProposals() override { ClearUndoRing(); }

    AppliedProposals ApplyAll(const ProposalList& list) {
        desktop.ExpectBox("Warning - That will add approximately " + std::to_string(list.proposals.size()) +
                              " Variations\r\nIs that what you want to do?",
                          BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::Yes);
        return ApplyChanges(list.proposals, false, false, desktop).value_or(AppliedProposals());
    }

    ScriptedDesktop desktop;
};

// Texts whose characters differ in pairs of places, so that a hash that goes through them in words of eight
// and multiplies finds them all the same: the highest bit of a word goes through the multiplication
// unchanged and is taken back in the next word.
std::string Colliding(std::size_t number, std::size_t pairs) {
    std::string text;
    for (std::size_t pair = 0; pair < pairs; ++pair) {
        const bool flipped = (number >> pair & 1U) != 0;
        text += flipped ? "\xB0#######" : "0#######";
        text += flipped ? "####\xB0###" : "####0###";
    }
    return text;
}

} // namespace

TEST_F(HostileProposals, ALineOfTenMegabytesIsOneProposal) {
    const ProposalList list = ReadProposals(std::string(TenMegabytes, 'X') + "\r\n");
    ASSERT_EQ(list.proposals.size(), 1U);
    EXPECT_EQ(list.proposals[0].text.size(), TenMegabytes);
    EXPECT_EQ(list.proposals[0].tag, Proposal::Valid);
}

TEST_F(HostileProposals, ALineOfNothingButTagsIsReadOnce) {
    std::string line = "<TR ";
    while (line.size() < TenMegabytes) {
        line += "<TR><TD";
    }
    EXPECT_TRUE(ReadProposals(line + "\r\n").proposals.empty());
}

TEST_F(HostileProposals, AMillionEmptyLinesAreNoProposals) {
    EXPECT_TRUE(ReadProposals(std::string(Million, '\n')).proposals.empty());
}

TEST_F(HostileProposals, OfAHundredThousandEqualProposalsOneIsAdded) {
    constexpr std::int32_t count = 100'000;
    std::string content;
    for (std::int32_t i = 0; i < count; ++i) {
        content += "Betta\n";
    }
    const AppliedProposals applied = ApplyAll(ReadProposals(content));
    EXPECT_EQ(applied.added, 1);
    EXPECT_EQ(applied.ignored, count - 1);
}

TEST_F(HostileProposals, AHundredThousandDifferentProposalsAreAdded) {
    constexpr std::int32_t count = 100'000;
    std::string content;
    for (std::int32_t i = 0; i < count; ++i) {
        content += "Betta " + std::to_string(i) + "\n";
    }
    const AppliedProposals applied = ApplyAll(ReadProposals(content));
    EXPECT_EQ(applied.added, count);
    EXPECT_EQ(DistrictAt(lCurrentDistrict).lVariationCount, count + 1);
    EXPECT_TRUE(bChanged);
}

TEST_F(HostileProposals, OneNameInAHundredThousandVolumesIsAddedAsQuickly) {
    constexpr std::int32_t count = 100'000;
    std::string content;
    for (std::int32_t i = 0; i < count; ++i) {
        content += "Betta%" + std::to_string(i) + "\n";
    }
    EXPECT_EQ(ApplyAll(ReadProposals(content)).added, count);
}

TEST_F(HostileProposals, ProposalsThatWereMadeToCollideAreAddedAsQuickly) {
    constexpr std::size_t pairs = 15;
    std::string content;
    for (std::size_t number = 0; number < 1U << pairs; ++number) {
        content += Colliding(number, pairs) + "\n";
    }
    EXPECT_EQ(ApplyAll(ReadProposals(content)).added, 1 << pairs);
}
