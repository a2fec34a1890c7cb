#include "edit/EditingSession.h"
#include "file/DistrictFileWriter.h"

using namespace CommonRoutines;

namespace {

// What a file that was just saved has in its districts when it is read again.
std::vector<Texts> ReadAgain(const std::string& file) {
    ScriptedDesktop desktop;
    desktop.recordReports = true;
    ResetEverything();
    ReadText(desktop, file);
    return EditingSession::SurvivorsInTable();
}

std::vector<Texts> Sorted(std::vector<Texts> lines) {
    for (Texts& texts : lines) {
        std::sort(texts.begin(), texts.end());
    }
    return lines;
}

class EditingModel : public testing::TestWithParam<std::uint32_t> {
protected:
    static constexpr int Sessions = 500;
    static constexpr int LongestSession = 120;

    // Runs a session, comparing after every command; false when something differed.
    static bool Run(EditingSession& session, std::uint32_t seed) {
        const auto length = 1 + seed * 7919 % LongestSession;
        for (std::uint32_t i = 0; i < length; ++i) {
            session.DoSomething();
            EXPECT_EQ(session.Shown(), session.Expected()) << "seed " << seed << ", command " << i;
            if (testing::Test::HasFailure()) {
                return false;
            }
        }
        return true;
    }
};

} // namespace

TEST_P(EditingModel, EverySessionGoesAsDescribedAndIsSavedAsItStands) {
    std::map<std::string, int> met;
    for (std::uint32_t i = 0; i < Sessions; ++i) {
        const std::uint32_t seed = GetParam() + i;
        const bool wild = i % 2 == 0;
        EditingSession session(seed, wild);
        ASSERT_TRUE(Run(session, seed));
        const std::string file = DistrictFileContent();
        ASSERT_EQ(file, session.ExpectedFile()) << "seed " << seed;
        for (const auto& [what, times] : session.SlowEditor().met) {
            met[what] += times;
        }
        if (!wild) {
            const auto survivors = EditingSession::Survivors(session.SlowEditor().lines);
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
    for (std::uint32_t i = 0; i < Sessions; ++i) {
        const std::uint32_t seed = 100'000 + GetParam() + i;
        EditingSession session(seed, i % 3 == 0);
        ASSERT_TRUE(Run(session, seed));
        const bool expected = session.SlowEditor().reversible;
        session.UndoAll();
        ASSERT_EQ(session.Shown(), session.Expected()) << "seed " << seed;
        if (expected) {
            ++reversible;
            ASSERT_EQ(Sorted(EditingSession::SurvivorsInTable()), Sorted(EditingSession::Survivors(session.Original())))
                << "seed " << seed;
        }
    }
    EXPECT_GT(reversible, Sessions / 4);
}

// Where the table was saved in between, slots that were free then have gone from the file, so only the
// texts are the same.
TEST_P(EditingModel, AnEditorThatDiesLosesNothing) {
    int saved = 0;
    for (std::uint32_t i = 0; i < Sessions; ++i) {
        const std::uint32_t seed = 200'000 + GetParam() + i;
        EditingSession session(seed, i % 2 == 0);
        ASSERT_TRUE(Run(session, seed));
        saved += session.HasSaved() ? 1 : 0;
        if (session.HasSaved()) {
            const std::vector<Texts> before = Sorted(EditingSession::SurvivorsInTable());
            session.AfterCrash();
            ASSERT_EQ(Sorted(EditingSession::SurvivorsInTable()), before) << "seed " << seed;
        } else {
            const std::vector<Texts> before = EditingSession::SlotsInTable();
            ASSERT_EQ(session.AfterCrash(), before) << "seed " << seed;
        }
    }
    EXPECT_GT(saved, Sessions / 20);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditingModel, testing::Values(1'000U, 2'000U, 3'000U));
