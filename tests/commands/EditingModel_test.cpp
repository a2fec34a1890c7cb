#include "commands/EditingRound.h"
#include "file/DistrictFileWriter.h"

using namespace CommonRoutines;

namespace {

// What a file that was just saved has in its districts when it is read again.
std::vector<Texts> ReadAgain(const std::string& file) {
    ScriptedDesktop desktop;
    desktop.recordReports = true;
    ResetEverything();
    ReadText(desktop, file);
    return EditingRound::SurvivorsInTable();
}

std::vector<Texts> Sorted(std::vector<Texts> lines) {
    for (Texts& texts : lines) {
        std::sort(texts.begin(), texts.end());
    }
    return lines;
}

class EditingModel : public testing::TestWithParam<std::uint32_t> {
protected:
    static constexpr int Rounds = 500;
    static constexpr int LongestRound = 120;

    // Plays a round, comparing after every command; false when something differed.
    static bool Run(EditingRound& round, std::uint32_t seed) {
        const auto length = 1 + seed * 7919 % LongestRound;
        for (std::uint32_t i = 0; i < length; ++i) {
            round.DoSomething();
            EXPECT_EQ(round.Shown(), round.Expected()) << "seed " << seed << ", command " << i;
            if (testing::Test::HasFailure()) {
                return false;
            }
        }
        return true;
    }
};

} // namespace

TEST_P(EditingModel, EveryRoundGoesAsDescribedAndIsSavedAsItStands) {
    std::map<std::string, int> met;
    for (std::uint32_t i = 0; i < Rounds; ++i) {
        const std::uint32_t seed = GetParam() + i;
        const bool wild = i % 2 == 0;
        ResetEverything();
        CommandPlayer player;
        EditingRound round(player, seed, wild);
        ASSERT_TRUE(Run(round, seed));
        const std::string file = DistrictFileContent();
        ASSERT_EQ(file, round.ExpectedFile()) << "seed " << seed;
        for (const auto& [what, times] : round.SlowEditor().met) {
            met[what] += times;
        }
        if (!wild) {
            const auto survivors = EditingRound::Survivors(round.SlowEditor().lines);
            ASSERT_EQ(ReadAgain(file), survivors) << "seed " << seed;
            ASSERT_EQ(DistrictFileContent(), file) << "seed " << seed;
        }
    }
    for (const char* rare :
         {"undo in another district", "undo that changes nothing", "marker that changes nothing", "step used again"}) {
        EXPECT_GT(met[rare], 0) << rare;
    }
}

TEST_P(EditingModel, UndoingEverythingGivesTheTableBackUpToFreeSlots) {
    int reversible = 0;
    for (std::uint32_t i = 0; i < Rounds; ++i) {
        const std::uint32_t seed = 100'000 + GetParam() + i;
        ResetEverything();
        CommandPlayer player;
        EditingRound round(player, seed, i % 3 == 0);
        ASSERT_TRUE(Run(round, seed));
        const bool expected = round.SlowEditor().reversible;
        round.UndoAll();
        ASSERT_EQ(round.Shown(), round.Expected()) << "seed " << seed;
        if (expected) {
            ++reversible;
            ASSERT_EQ(Sorted(EditingRound::SurvivorsInTable()), Sorted(EditingRound::Survivors(round.Original())))
                << "seed " << seed;
        }
    }
    EXPECT_GT(reversible, Rounds / 4);
}

// What comes back is saved as the editor would have saved it. Free slots have gone from a file that was saved.
TEST_P(EditingModel, AnEditorThatDiesLosesNothing) {
    int saved = 0;
    for (std::uint32_t i = 0; i < Rounds; ++i) {
        const std::uint32_t seed = 200'000 + GetParam() + i;
        ResetEverything();
        CommandPlayer player;
        EditingRound round(player, seed, i % 2 == 0);
        ASSERT_TRUE(Run(round, seed));
        saved += round.HasSaved() ? 1 : 0;
        if (round.HasSaved()) {
            const std::string before = DistrictFileContent();
            round.AfterCrash();
            ASSERT_EQ(DistrictFileContent(), before) << "seed " << seed;
        } else {
            const std::vector<Texts> before = EditingRound::SlotsInTable();
            ASSERT_EQ(round.AfterCrash(), before) << "seed " << seed;
        }
    }
    EXPECT_GT(saved, Rounds / 20);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditingModel, testing::Values(1'000U, 2'000U, 3'000U));
