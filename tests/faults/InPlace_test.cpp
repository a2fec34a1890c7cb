// Saves of files that have to stay where they are. They are overwritten, behind a copy in the state folder.

#include "FaultTest.h"

#include <sys/mount.h>
#include <sys/stat.h>

#include <algorithm>

namespace {

class InPlaceTest : public FaultTest {
protected:
    InPlaceTest() { place.watched = {disk, state}; }

    // A second name, outside, makes the data file one that stays. What a session calls first is not about saving.
    void PrepareFileWithTwoNames() {
        PrepareDisk();
        std::filesystem::remove(otherName);
        std::filesystem::create_hard_link(place.file, otherName);
    }
    int CallsBeforeSaving() {
        PrepareFileWithTwoNames();
        Session session(place, EditAndPause());
        EXPECT_TRUE(session.WaitForStop());
        return static_cast<int>(session.Calls().size());
    }
    // Whether the state folder has a copy from which the file can be mended.
    [[nodiscard]] bool HasCopy() const {
        const auto entries = std::filesystem::directory_iterator(state);
        return std::any_of(begin(entries), end(entries),
                           [](const auto& entry) { return entry.path().extension() == ".copy"; });
    }
    // One file with two names, and nothing else beside it.
    void ExpectSameFile() const {
        EXPECT_TRUE(std::filesystem::equivalent(place.file, otherName));
        const auto entries = std::filesystem::directory_iterator(disk);
        EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
    }
    void ExpectSavedOrToBeMended(const Session& session) {
        if (session.Reached("saved")) {
            ExpectContent(place.file, ContentAfter(Edits));
        } else if (!HasCopy()) {
            ExpectOldOrNew(place.file, OldContent(), ContentAfter(Edits));
        }
    }
    // A fault at each call of a save, until a session comes to its end without it. The next session has all edits.
    template <typename Judge>
    void ForEveryCallOfTheSave(Fault fault, Judge judge) {
        const int before = CallsBeforeSaving();
        bool met = true;
        for (fault.call = before + 1; met; ++fault.call) {
            SCOPED_TRACE(fault.Description());
            PrepareFileWithTwoNames();
            Session session(place, EditAndSave(), fault);
            session.Finish();
            met = static_cast<int>(session.Calls().size()) >= fault.call;
            EXPECT_TRUE(met || session.Reached("saved"));
            ExpectSavedOrToBeMended(session);
            judge(session);
            ExpectRecovered(Edits);
            ExpectSameFile();
        }
        EXPECT_GT(fault.call, before + FewestCalls);
    }
    void KillAtEveryCall(const char* action) {
        ForEveryCallOfTheSave({action},
                              [](const Session& session) { EXPECT_NE(session.WasKilled(), session.Finished()); });
    }

    const std::filesystem::path otherName = folder.Path() / "other name";
    // Of the copy: lock, open, write, sync, rename, folder. Of the file: open, write, sync, close.
    static constexpr int FewestCalls = 10;
};

// A single failing call leaves nothing to be mended: what could not be written whole is put back.
void ExpectNothingToMend(const Session& session) {
    EXPECT_TRUE(session.Finished());
    EXPECT_EQ(session.Said().find("box This file could not be written as a whole"), std::string::npos);
}

} // namespace

TEST_F(InPlaceTest, ACallThatFailsOnceLeavesTheOldOrTheNewFile) {
    for (const int error : {ENOSPC, EIO}) {
        ForEveryCallOfTheSave({"fail", 0, error}, [&](const Session& session) {
            ExpectOldOrNew(place.file, OldContent(), ContentAfter(Edits));
            ExpectNothingToMend(session);
        });
    }
}

TEST_F(InPlaceTest, WhereAllCallsFailFromOneOnTheFileIsWholeOrCanBeMended) {
    for (const int error : {ENOSPC, EIO}) {
        ForEveryCallOfTheSave({"fail-on", 0, error}, [](const Session& session) { EXPECT_TRUE(session.Finished()); });
    }
}

TEST_F(InPlaceTest, AWriteThatTakesOnlyAPartIsContinued) {
    ForEveryCallOfTheSave({"short"}, [](const Session& session) { EXPECT_TRUE(session.Reached("saved")); });
}

TEST_F(InPlaceTest, KilledBeforeAnyCallTheFileIsWholeOrCanBeMended) {
    KillAtEveryCall("kill-before");
}

TEST_F(InPlaceTest, KilledAfterAnyCallTheFileIsWholeOrCanBeMended) {
    KillAtEveryCall("kill-after");
}

TEST_F(InPlaceTest, KilledInTheMiddleOfAnyWriteTheFileIsWholeOrCanBeMended) {
    int torn = 0;
    ForEveryCallOfTheSave({"tear"}, [&](const Session&) {
        const auto content = ContentOf(place.file);
        torn += content != OldContent() && content != ContentAfter(Edits) ? 1 : 0;
    });
    EXPECT_EQ(torn, 1);
}

TEST_F(InPlaceTest, KilledWhileItIsMendedTheFileCanBeMendedAgain) {
    PrepareFileWithTwoNames();
    Session undisturbed(place, EditAndSave());
    undisturbed.Finish();
    const std::vector<Call> calls = undisturbed.Calls();
    const auto write = std::find_if(calls.begin(), calls.end(),
                                    [&](const Call& call) { return call.kind == "write" && call.path == place.file; });
    ASSERT_NE(write, calls.end());
    const Fault tearing{"tear", static_cast<int>(write - calls.begin()) + 1};
    bool killed = true;
    Fault fault{"kill-before"};
    for (fault.call = 1; killed; ++fault.call) {
        SCOPED_TRACE(fault.Description());
        PrepareFileWithTwoNames();
        Session(place, EditAndSave(), tearing).Finish();
        EXPECT_TRUE(HasCopy());
        Session mending(place, {"open", place.file}, fault);
        mending.Finish();
        killed = mending.WasKilled();
        ExpectRecovered(Edits);
        ExpectSameFile();
    }
    EXPECT_GT(fault.call, 4);
}

TEST_F(InPlaceTest, TheCopyIsOnTheDiskBeforeTheFileIsTouchedAndTheFileBeforeTheCopyGoes) {
    PrepareFileWithTwoNames();
    Session session(place, EditAndSave());
    session.Finish();
    EXPECT_TRUE(session.Reached("saved"));
    const std::vector<Call> calls = session.Calls();
    const auto isCopy = [](const Call& call) { return call.path.ends_with(".copy"); };
    const auto goTo = [&](auto from, const char* kind, auto wanted) {
        return std::find_if(from, calls.end(), [&](const Call& call) { return call.kind == kind && wanted(call); });
    };
    const auto isFile = [&](const Call& call) { return call.path == place.file; };
    const auto renamed = goTo(calls.begin(), "rename", isCopy);
    const auto linked = goTo(calls.begin(), "link", isCopy);
    const auto named = std::min(renamed, linked);
    const auto synced = goTo(named, "sync", [&](const Call& call) { return call.path == state; });
    const auto written = goTo(calls.begin(), "write", isFile);
    const auto saved = goTo(written, "sync", isFile);
    const auto dropped = goTo(calls.begin(), "unlink", isCopy);
    ASSERT_NE(dropped, calls.end());
    EXPECT_LT(named, synced);
    EXPECT_LT(synced, written);
    EXPECT_LT(written, saved);
    EXPECT_LT(saved, dropped);
}

TEST_F(InPlaceTest, AtNoCallOfASaveAnybodyMayReadWhoCouldNotBefore) {
    constexpr mode_t othersRights = S_IRWXG | S_IRWXO;
    umask(S_IWGRP | S_IWOTH);
    for (const bool twoNames : {false, true}) {
        for (const bool namedFilesOnly : {false, true}) {
            PrepareFileWithTwoNames();
            if (!twoNames) {
                std::filesystem::remove(otherName);
            }
            std::filesystem::permissions(place.file, std::filesystem::perms(S_IRUSR | S_IWUSR));
            Session session(place, EditAndSave(), {"stop", 0, 0, namedFilesOnly});
            int stops = 0;
            for (; session.WaitForStop(); ++stops) {
                for (const auto& entry : std::filesystem::directory_iterator(disk)) {
                    struct stat status {};
                    ASSERT_EQ(stat(entry.path().c_str(), &status), 0);
                    EXPECT_EQ(status.st_mode & othersRights, 0U) << entry.path() << " at call " << stops;
                }
                struct stat status {};
                if (stat(state.c_str(), &status) == 0 && !std::filesystem::is_empty(state)) {
                    EXPECT_EQ(status.st_mode & othersRights, 0U) << "at call " << stops;
                }
                session.Continue();
            }
            session.Finish();
            EXPECT_TRUE(session.Reached("saved"));
            EXPECT_GT(stops, FewestCalls);
        }
    }
}

TEST_F(InPlaceTest, AFileWithTheLongestNameIsSavedAndSoIsOneThatIsMade) {
    const std::filesystem::path longest = disk / std::string(255, 'n');
    PrepareDisk();
    for (int save = 1; save <= 2; ++save) {
        Session session(place, EditAndSave(longest));
        session.Finish();
        EXPECT_TRUE(session.Reached("saved"));
        ExpectContent(longest, ContentAfter(Edits));
        std::filesystem::remove_all(home / ".local");
        WriteContent(longest, save == 1 ? "something else, and much shorter" : "");
    }
}

class InPlaceMountTest : public MountingTest {};

TEST_F(InPlaceMountTest, AFileOnWhichAnotherIsMountedIsSaved) {
    PrepareDisk("of the file below");
    const std::filesystem::path source = folder.Path() / "source";
    WriteContent(source, OldContent());
    ASSERT_EQ(mount(source.c_str(), place.file.c_str(), nullptr, MS_BIND, nullptr), 0);
    Session session(place, EditAndSave());
    session.Finish();
    EXPECT_TRUE(session.Reached("saved")) << session.Said();
    ExpectContent(source, ContentAfter(Edits));
    EXPECT_EQ(umount(place.file.c_str()), 0);
    ExpectContent(place.file, "of the file below");
}

TEST_F(InPlaceMountTest, InAFolderThatLetsNoFileGoAFileIsSavedAndNoneIsLeftBeside) {
    const TemporaryFolder images{TemporaryFolder::Kind::OnDisk};
    const LoopImage image(images.Path() / "image", disk);
    if (!image.Mounted()) {
        GTEST_SKIP() << "left out: this machine has no loop devices";
    }
    std::filesystem::create_directory(disk / "data");
    place.file = disk / "data/districts.txt";
    WriteContent(place.file, OldContent());
    ASSERT_TRUE(RunProgram({"chattr", "+a", disk / "data"}));
    for (const auto& name : {place.file, disk / "data/new.txt"}) {
        Session session(place, EditAndSave(name));
        session.Finish();
        EXPECT_TRUE(session.Reached("saved")) << session.Said();
        ExpectContent(name, ContentAfter(Edits));
        std::filesystem::remove_all(home / ".local");
        WriteContent(place.file, OldContent());
    }
    const auto entries = std::filesystem::directory_iterator(disk / "data");
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2);
    ASSERT_TRUE(RunProgram({"chattr", "-a", disk / "data"}));
}
