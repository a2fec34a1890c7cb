// Edits that are not saved yet, when the program is killed or the disk with the recovery file fails.

#include "FaultTest.h"

#include <cerrno>
#include <functional>

namespace {

class RecoveryTest : public FaultTest {
protected:
    // In both folders calls are watched.
    RecoveryTest() { place.watched = {disk, state}; }

    // Runs sessions with a fault at the first call, at the second and so on, until one makes fewer calls.
    // `prepare` comes before and `judge` after each.
    void AtEveryCall(Fault fault, const Steps& steps, const std::function<void()>& prepare,
                     const std::function<void(Session&)>& judge) {
        bool met = true;
        for (fault.call = 1; met; ++fault.call) {
            SCOPED_TRACE(fault.Description());
            prepare();
            Session session(place, steps, fault);
            session.Finish();
            const std::vector<Call> calls = session.Calls();
            met = static_cast<int>(calls.size()) >= fault.call;
            SCOPED_TRACE(calls.back().kind + " " + calls.back().path);
            judge(session);
        }
        EXPECT_GT(fault.call, 10);
    }
    // Leaves so many edits behind that were never saved.
    void LeaveEdits(int edits) {
        PrepareDisk();
        Session session(place, EditAndPause(edits));
        ASSERT_TRUE(session.WaitForStop());
        session.Kill();
    }
    [[nodiscard]] Steps EditOnly(int edits) const { return {"open", place.file, "edits", "1", std::to_string(edits)}; }
};

constexpr std::string_view Warning = "box Your changes cannot be written to the recovery file."
                                     "  They are only safe once the file is saved.";

} // namespace

TEST_F(RecoveryTest, KilledAfterAnyOf50EditsAllOfThemComeBack) {
    for (int edits = 1; edits <= 50; ++edits) {
        SCOPED_TRACE(std::to_string(edits) + " edits");
        LeaveEdits(edits);
        ExpectContent(place.file, OldContent());
        ExpectRecovered(edits);
    }
}

TEST_F(RecoveryTest, KilledAfterAnyEditBehindASaveAllOfThemComeBack) {
    for (int edits = Edits + 1; edits <= 2 * Edits; ++edits) {
        SCOPED_TRACE(std::to_string(edits) + " edits");
        PrepareDisk();
        Steps steps = EditAndSave();
        const Steps more{"edits", std::to_string(Edits + 1), std::to_string(edits), "pause"};
        steps.insert(steps.end(), more.begin(), more.end());
        Session session(place, steps);
        ASSERT_TRUE(session.WaitForStop());
        session.Kill();
        ExpectContent(place.file, ContentAfter(Edits));
        ExpectRecovered(edits);
    }
}

TEST_F(RecoveryTest, KilledAtAnyCallNoEditThatWasMadeIsLost) {
    for (const char* action : {"kill-before", "kill-after"}) {
        AtEveryCall(
            {action}, EditAndSave(), [&] { PrepareDisk(); },
            [&](const Session& session) {
                ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
                ExpectRecovered(session.LastEdit(), std::min(session.LastEdit() + 1, Edits));
            });
    }
}

TEST_F(RecoveryTest, KilledAtAnyCallOfARecoveryTheNextOneFindsEverything) {
    for (const char* action : {"kill-before", "kill-after"}) {
        AtEveryCall(
            {action}, RecoverAndSave(), [&] { LeaveEdits(Edits); },
            [&](const Session& session) {
                ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
                ExpectRecovered(Edits);
            });
    }
}

TEST_F(RecoveryTest, ACallThatFailsOnceLosesNoEditOfASessionThatEndsWithoutSaving) {
    for (const int error : {ENOSPC, EIO}) {
        AtEveryCall(
            {"fail", 0, error}, EditOnly(Edits), [&] { PrepareDisk(); },
            [&](const Session& session) {
                EXPECT_TRUE(session.Finished());
                // Only the last edit has no later one with which it is written again.
                ExpectRecovered(session.Reached(Warning) ? Edits - 1 : Edits, Edits);
            });
    }
}

TEST_F(RecoveryTest, ADiskThatFailsFromACallOnIsToldAndTheEditsUpToThenComeBack) {
    for (const int error : {ENOSPC, EIO}) {
        AtEveryCall(
            {"fail-on", 0, error}, EditOnly(Edits), [&] { PrepareDisk(); },
            [&](const Session& session) {
                EXPECT_TRUE(session.Finished());
                ExpectRecovered(session.LastEditBefore(Warning), Edits);
            });
    }
}

TEST_F(RecoveryTest, BehindASaveThatFailedAtAnyCallTheNextEditComesBackWithAllOthers) {
    place.watched = {disk};
    Steps steps = EditAndSave();
    const std::string next = std::to_string(Edits + 1);
    steps.insert(steps.end(), {"edits", next, next});
    AtEveryCall(
        {"fail", 0, EIO}, steps, [&] { PrepareDisk(); },
        [&](const Session& session) {
            EXPECT_TRUE(session.Finished());
            ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
            ExpectRecovered(Edits + 1);
        });
}

namespace {

// Saves under another name and goes on with some edits.
class SavedElsewhereTest : public RecoveryTest {
protected:
    [[nodiscard]] Steps SaveElsewhereAndEdit() {
        place.file = opened;
        Steps steps = EditAndSave(other);
        const Steps more{"edits", std::to_string(Edits + 1), std::to_string(AllEdits)};
        steps.insert(steps.end(), more.begin(), more.end());
        return steps;
    }
    void PrepareBoth() {
        place.file = opened;
        PrepareDisk();
    }
    // All edits come back in the file that is the open one, which is the other one once it was saved.
    void ExpectRecoveredIn(const std::filesystem::path& file, const Session& session) {
        const bool isOther = file == other;
        place.file = file;
        ExpectRecovered(std::max(session.LastEdit(), isOther ? Edits : 0),
                        std::min(session.LastEdit() + 1, isOther ? AllEdits : Edits));
        if (isOther) {
            ExpectContent(opened, OldContent());
        }
    }

    static constexpr int AllEdits = Edits + 3;
    const std::filesystem::path opened = place.file;
    const std::filesystem::path other = disk / "other.txt";
};

} // namespace

TEST_F(SavedElsewhereTest, KilledAtAnyCallTheFileThatWasSavedGetsAllEditsBack) {
    for (const char* action : {"kill-before", "kill-after"}) {
        AtEveryCall(
            {action}, SaveElsewhereAndEdit(), [&] { PrepareBoth(); },
            [&](const Session& session) {
                ExpectContent(opened, OldContent());
                ExpectOldOrNew(session, other, std::nullopt, ContentAfter(Edits));
                ExpectRecoveredIn(ContentOf(other) ? other : opened, session);
            });
    }
}

TEST_F(SavedElsewhereTest, BehindASaveThatFailedAtAnyCallTheOpenedFileGetsAllEditsBack) {
    place.watched = {disk};
    AtEveryCall(
        {"fail", 0, EIO}, SaveElsewhereAndEdit(), [&] { PrepareBoth(); },
        [&](const Session& session) {
            EXPECT_TRUE(session.Finished());
            place.file = session.Reached("saved") ? other : opened;
            ExpectRecovered(AllEdits);
        });
}

TEST_F(RecoveryTest, ACallOfARecoveryThatFailsLosesNoEdit) {
    for (const char* action : {"fail", "fail-on"}) {
        AtEveryCall(
            {action, 0, ENOSPC}, RecoverAndSave(), [&] { LeaveEdits(Edits); },
            [&](const Session& session) {
                EXPECT_TRUE(session.Finished());
                ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
                ExpectRecovered(Edits);
            });
    }
}

TEST_F(RecoveryTest, WhateverBecomesOfTheRecoveryFileASaveHasAllEdits) {
    place.watched = {state};
    for (const char* action : {"fail", "fail-on"}) {
        AtEveryCall(
            {action, 0, EIO}, EditAndSave(), [&] { PrepareDisk(); },
            [&](const Session& session) {
                EXPECT_TRUE(session.Reached("saved"));
                ExpectContent(place.file, ContentAfter(Edits));
            });
    }
}

namespace {

class FullStateDiskTest : public MountingTest {};

} // namespace

TEST_F(FullStateDiskTest, OnAFullDiskForRecoveryFilesTheUserIsToldOnceAndWhatWasWrittenBeforeComesBack) {
    constexpr int edits = 60;
    PrepareDisk();
    const TmpfsMount small(state, 1);
    Session session(place, {"open", place.file, "edits", "1", std::to_string(edits), "pause"});
    ASSERT_TRUE(session.WaitForStop());
    session.Kill();
    EXPECT_TRUE(session.Reached(Warning));
    EXPECT_EQ(session.Said().find(Warning), session.Said().rfind(Warning));
    const int safe = session.LastEditBefore(Warning);
    EXPECT_GT(safe, Edits);
    ExpectRecovered(safe, edits);
}
