// Calls to the system that fail, each in its turn.

#include "FaultTest.h"

#include <algorithm>
#include <cerrno>
#include <functional>

namespace {

using Calls = std::vector<Call>;

// Goes on in a row of calls to the next one that is as wanted. False when there is none, or when it failed.
template <typename Wanted>
bool GoTo(Calls::const_iterator& call, const Calls& calls, Wanted wanted) {
    call = std::find_if(call, calls.end(), wanted);
    return call != calls.end() && !call->failed;
}

// Whether the content was on the disk before its name was, and the name at the end. Power cuts show why it
// matters (PowerCut_test.cpp); here the disk itself may say that something is not there. A sync that failed is
// not made good by another one, since the system tells of what is lost only once.
bool IsOnDisk(const Calls& calls, const std::filesystem::path& file) {
    const auto writes = [](const Call& call) { return call.kind == "write"; };
    const auto syncs = [](const Call& call) { return call.kind == "sync"; };
    const auto names = [&](const Call& call) {
        return (call.kind == "rename" || call.kind == "link") && call.path == file && !call.failed;
    };
    const auto syncsFolder = [&](const Call& call) { return call.kind == "sync" && call.path == file.parent_path(); };
    const auto last = std::find_if(calls.rbegin(), calls.rend(), writes);
    auto call = last.base();
    return last != calls.rend() && GoTo(call, calls, syncs) && GoTo(call, calls, names) &&
           GoTo(call, calls, syncsFolder);
}

class FailingCallsTest : public FaultTest {
protected:
    // Saves with a fault at the first call, at the second and so on, until a session makes fewer calls, and
    // judges each. Once on a file system that knows files without names, once on one that does not, since
    // the toolkit makes other calls there.
    void ForEveryCall(Fault fault, const std::filesystem::path& name,
                      const std::function<void(const Session&)>& judge) {
        for (const bool namedFilesOnly : {false, true}) {
            fault.namedFilesOnly = namedFilesOnly;
            bool met = true;
            for (fault.call = 1; met; ++fault.call) {
                SCOPED_TRACE(fault.Description());
                PrepareDisk();
                Session session(place, EditAndSave(disk / name), fault);
                session.Finish();
                met = static_cast<int>(session.Calls().size()) >= fault.call;
                EXPECT_TRUE(met || session.Reached("saved"));
                EXPECT_TRUE(IsOnDisk(session.Calls(), disk / name) || !session.Reached("saved"));
                judge(session);
            }
            EXPECT_GT(fault.call, FewestCalls);
        }
    }

    // For a file that is there, and under a new name.
    void FailEveryCall(const Fault& fault) {
        ForEveryCall(fault, "districts.txt", [&](const Session& session) {
            EXPECT_TRUE(session.Finished());
            ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
            ExpectRecovered(Edits);
        });
        ForEveryCall(fault, "other.txt", [&](const Session& session) {
            EXPECT_TRUE(session.Finished());
            ExpectOldOrNew(session, disk / "other.txt", std::nullopt, ContentAfter(Edits));
            ExpectContent(place.file, OldContent());
            if (!session.Reached("saved")) {
                ExpectRecovered(Edits);
            }
        });
    }

    static constexpr int FewestCalls = 6; // open, write, sync, rename; open and sync of the folder
};

} // namespace

TEST_F(FailingCallsTest, ACallThatFindsNoRoomOnceLeavesTheOldOrTheNewFile) {
    FailEveryCall({"fail", 0, ENOSPC});
}

TEST_F(FailingCallsTest, ACallThatTheDiskFailsOnceLeavesTheOldOrTheNewFile) {
    FailEveryCall({"fail", 0, EIO});
}

TEST_F(FailingCallsTest, ADiskThatIsFullFromACallOnLeavesTheOldOrTheNewFile) {
    FailEveryCall({"fail-on", 0, ENOSPC});
}

TEST_F(FailingCallsTest, ADiskThatFailsFromACallOnLeavesTheOldOrTheNewFile) {
    FailEveryCall({"fail-on", 0, EIO});
}

TEST_F(FailingCallsTest, AWriteThatTakesOnlyAPartIsContinued) {
    ForEveryCall({"short"}, "districts.txt", [&](const Session& session) {
        EXPECT_TRUE(session.Reached("saved"));
        ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
    });
}

TEST_F(FailingCallsTest, TheSaveAfterAFailedOneWritesEverything) {
    PrepareDisk();
    Session undisturbed(place, EditAndSave());
    undisturbed.Finish();
    const int calls = static_cast<int>(undisturbed.Calls().size());
    for (int call = 1; call <= calls; ++call) {
        const Fault fault{"fail", call, ENOSPC};
        SCOPED_TRACE(fault.Description());
        PrepareDisk();
        Steps steps = EditAndSave();
        const std::string next = std::to_string(Edits + 1);
        const Steps more{"edits", next, next, "save", place.file};
        steps.insert(steps.end(), more.begin(), more.end());
        Session session(place, steps, fault);
        session.Finish();
        EXPECT_TRUE(session.Reached("saved"));
        ExpectContent(place.file, ContentAfter(Edits + 1));
    }
}

TEST_F(FailingCallsTest, TheContentIsOnTheDiskBeforeItsNameIsAndTheNameBeforeSavedIsSaid) {
    PrepareDisk();
    Session session(place, EditAndSave());
    session.Finish();
    EXPECT_TRUE(session.Reached("saved"));
    EXPECT_TRUE(IsOnDisk(session.Calls(), place.file));
}

TEST_F(FailingCallsTest, BehindAFailedSaveTheWindowAsksBeforeItClosesAndCanSaveAgain) {
    PrepareDisk();
    Steps steps = EditAndSave();
    steps.insert(steps.end(), {"close", "save", place.file, "close"});
    Session undisturbed(place, EditAndSave());
    undisturbed.Finish();
    const Calls calls = undisturbed.Calls();
    const auto written = std::find_if(calls.begin(), calls.end(), [](const Call& call) { return call.kind == "sync"; });
    PrepareDisk();
    Session session(place, steps, {"fail", static_cast<int>(written - calls.begin()) + 1, EIO});
    session.Finish();
    EXPECT_TRUE(session.Said().ends_with("\nsaving\nbox This will loose your changes.\nstill open\n"
                                         "saving\nsaved\nclosed\nfinished\n"))
        << session.Said();
    ExpectContent(place.file, ContentAfter(Edits));
}

TEST_F(FailingCallsTest, BehindACancelledSaveTheWindowAsksBeforeItClosesAndKilledItLosesNothing) {
    PrepareDisk();
    Session session(place, EditAndPause() + Steps{"save", "", "close", "pause"});
    EXPECT_TRUE(session.WaitForStop());
    session.Continue();
    EXPECT_TRUE(session.WaitForStop());
    EXPECT_TRUE(session.Said().ends_with("\nsaving\nbox This will loose your changes.\nstill open\n"))
        << session.Said();
    session.Kill();
    ExpectContent(place.file, OldContent());
    ExpectRecovered(Edits);
}
