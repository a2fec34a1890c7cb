// A program that is killed while it saves.

#include "FaultTest.h"

#include <chrono>
#include <random>
#include <thread>

namespace {

class KilledTest : public FaultTest {
protected:
    // Kills at the first call, at the second and so on, until a session comes to its end.
    void KillAtEveryCall(Fault fault, const std::filesystem::path& name) {
        const bool sameFile = disk / name == place.file;
        const auto before = sameFile ? std::optional(OldContent()) : std::nullopt;
        bool killed = true;
        for (fault.call = 1; killed; ++fault.call) {
            SCOPED_TRACE(fault.Description());
            PrepareDisk();
            Session session(place, EditAndSave(disk / name), fault);
            session.Finish();
            killed = session.WasKilled();
            EXPECT_NE(killed, session.Finished());
            ExpectOldOrNew(session, disk / name, before, ContentAfter(Edits));
            if (sameFile || ContentOf(disk / name) != ContentAfter(Edits)) {
                ExpectRecovered(Edits);
            }
        }
        EXPECT_GT(fault.call, FewestCalls);
    }

    static constexpr int FewestCalls = 6;
};

using Clock = std::chrono::steady_clock;

Clock::duration TimeOfASave(Session& session) {
    session.WaitFor("saving");
    const auto start = Clock::now();
    session.WaitFor("saved");
    return Clock::now() - start;
}

} // namespace

TEST_F(KilledTest, KilledBeforeAnyCallOfASaveTheOldOrTheNewFileIsThere) {
    KillAtEveryCall({"kill-before"}, "districts.txt");
    KillAtEveryCall({"kill-before"}, "other.txt");
}

TEST_F(KilledTest, KilledAfterAnyCallOfASaveTheOldOrTheNewFileIsThere) {
    KillAtEveryCall({"kill-after"}, "districts.txt");
    KillAtEveryCall({"kill-after"}, "other.txt");
}

TEST_F(KilledTest, KilledAtAnyCallWithNamedTemporaryFilesTheOldOrTheNewFileIsThere) {
    for (const char* action : {"kill-before", "kill-after"}) {
        KillAtEveryCall({action, 0, 0, true}, "districts.txt");
    }
}

TEST_F(KilledTest, KilledAtRandomMomentsOf200SavesTheOldOrTheNewFileIsThere) {
    constexpr int saves = 200;
    PrepareDisk();
    Session undisturbed(place, EditAndSave());
    const auto longest = 3 * TimeOfASave(undisturbed) / 2;
    std::mt19937 random(20);
    std::uniform_int_distribution<Clock::rep> moment(0, longest.count());
    int replaced = 0;
    for (int save = 1; save <= saves; ++save) {
        SCOPED_TRACE("save " + std::to_string(save));
        PrepareDisk();
        Session session(place, EditAndSave());
        ASSERT_TRUE(session.WaitFor("saving"));
        std::this_thread::sleep_for(Clock::duration(moment(random)));
        session.Kill();
        ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
        replaced += ContentOf(place.file) == ContentAfter(Edits) ? 1 : 0;
        ExpectRecovered(Edits);
    }
    std::printf("  killed in %d saves: %d files were old, %d new\n", saves, saves - replaced, replaced);
}
