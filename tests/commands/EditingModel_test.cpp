#include "commands/EditingRound.h"
#include "edit/Variations.h"
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

// Records are values: what was copied of a table holds its texts, and can be edited, when the file has been given back.
TEST_P(EditingModel, WhatWasCopiedOfATableOutlivesItsFile) {
    for (std::uint32_t i = 0; i < Rounds / 5; ++i) {
        const std::uint32_t seed = 300'000 + GetParam() + i;
        ResetEverything();
        CommandPlayer player;
        EditingRound round(player, seed, i % 2 == 0);
        ASSERT_TRUE(Run(round, seed));
        const std::vector<Texts> before = EditingRound::SlotsInTable();
        const std::string file = DistrictFileContent();
        std::vector<DistrictRecord> copies = Districts;
        const std::vector<DupePair> pairs = DupePairs;
        const std::int32_t lineCount = lLineCount;
        Texts pairTexts;
        for (const DupePair& pair : pairs) {
            pairTexts.push_back(pair.first + "=" + std::string(pair.second));
        }

        ResetEverything();
        ScriptedDesktop desktop;
        desktop.recordReports = true;
        ReadText(desktop, "Other+1+Shire+1837+3+9999+0+A+B|Another|Others\r\n");

        Districts = std::move(copies);
        lLineCount = lineCount;
        ASSERT_EQ(EditingRound::SlotsInTable(), before) << "seed " << seed;
        ASSERT_EQ(DistrictFileContent(), file) << "seed " << seed;
        for (std::size_t pair = 0; pair < pairs.size(); ++pair) {
            ASSERT_EQ(pairs[pair].first + "=" + std::string(pairs[pair].second), pairTexts[pair]);
        }
        for (std::int32_t line = 1; line <= lLineCount; ++line) {
            if (IsDistrict(line)) {
                StoreText(line, AddSlot(line, "Added"), "Changed");
                EXPECT_EQ(VariationAt(line, DistrictAt(line).lVariationCount).Text, "Changed");
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditingModel, testing::Values(1'000U, 2'000U, 3'000U));
