// Another program that writes the open file before it is saved.

#include "FaultTest.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <functional>
#include <thread>

namespace {

void WriteFromOutside(const std::filesystem::path& file) {
    WriteContent(file, "of another program");
}

// All but the time at which the system saw the change is as before.
void WriteWithSameSizeAndTime(const std::filesystem::path& file) {
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    std::string content = ContentOf(file).value();
    content.back() = 'x';
    WriteContent(file, content);
    const timespec times[] = {status.st_atim, status.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

void ReplaceWithSameSizeAndTime(const std::filesystem::path& file) {
    const std::filesystem::path newFile = file.parent_path().parent_path() / "new";
    std::filesystem::copy_file(file, newFile, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::last_write_time(newFile, std::filesystem::last_write_time(file));
    WriteWithSameSizeAndTime(newFile);
    std::filesystem::rename(newFile, file);
}

constexpr std::string_view Asked = "box This file is not what was opened or last saved any more."
                                   "  Another program may have changed it:";
constexpr std::string_view KeptOpen = "box This will loose your changes.\nstill open\n";

class OtherProgramsTest : public FaultTest {
protected:
    OtherProgramsTest() { place.watched = {disk, state}; }

    // What makes the file another one, while a session pauses at its first pause. The bytes that are there then.
    std::string WriteMeanwhile(Session& session, const std::function<void(const std::filesystem::path&)>& write) const {
        EXPECT_TRUE(session.WaitForStop());
        // The times of files go in steps. What happens within one leaves no trace but in the bytes.
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        write(place.file);
        session.Continue();
        return ContentOf(place.file).value_or("");
    }
    static bool HasAsked(const Session& session) { return session.Reached(Asked); }
    [[nodiscard]] int CallsBefore(const Steps& pausing, Fault fault) const {
        fault.action.clear();
        Session session(place, pausing, fault);
        EXPECT_TRUE(session.WaitForStop());
        return static_cast<int>(session.Calls().size());
    }
    // Fails the calls that come behind the edits, each in its turn, of sessions during which the file is written anew.
    void FailEveryCall(Fault fault, const Steps& behindTheEdits,
                       const std::function<void(Session&, const std::string& others)>& judge) {
        PrepareDisk();
        const int before = CallsBefore(EditAndPause(), fault);
        bool met = true;
        for (fault.call = before + 1; met; ++fault.call) {
            SCOPED_TRACE(fault.Description());
            PrepareDisk();
            Session session(place, EditAndPause() + behindTheEdits, fault);
            const std::string others = WriteMeanwhile(session, WriteWithSameSizeAndTime);
            session.Finish();
            const std::vector<Call> calls = session.Calls();
            met = static_cast<int>(calls.size()) >= fault.call;
            SCOPED_TRACE(met ? calls[static_cast<std::size_t>(fault.call) - 1].kind : "no call");
            EXPECT_TRUE(session.Finished());
            judge(session, others);
        }
        EXPECT_GT(fault.call, before + 1);
    }

    const Steps save{"save", place.file};
};

} // namespace

TEST_F(OtherProgramsTest, WhatTheyHaveWrittenIsKeptUntilAYesAndTheWindowAsksBeforeItCloses) {
    for (const auto& write : {WriteFromOutside, WriteWithSameSizeAndTime, ReplaceWithSameSizeAndTime}) {
        PrepareDisk();
        Session session(place, EditAndPause() + Steps{"defaults"} + save +
                                   Steps{"close", "save", place.file, "close", "pause", "agree"} + save +
                                   Steps{"close"});
        const std::string others = WriteMeanwhile(session, write);
        ASSERT_TRUE(session.WaitForStop());
        const std::string kept = "\nsaving\n" + std::string(Asked) + "\n" + std::string(KeptOpen);
        EXPECT_TRUE(session.Said().ends_with(kept.substr(1) + kept.substr(1))) << session.Said();
        ExpectContent(place.file, others);
        session.Continue();
        session.Finish();
        EXPECT_TRUE(session.Said().ends_with("\nsaving\n" + std::string(Asked) + "\nsaved\nclosed\nfinished\n"))
            << session.Said();
        ExpectContent(place.file, ContentAfter(Edits));
    }
}

TEST_F(OtherProgramsTest, AFileThatTheyHaveRemovedIsWrittenUnasked) {
    PrepareDisk();
    Session session(place, EditAndPause() + Steps{"defaults"} + save + Steps{"close"});
    WriteMeanwhile(session, [](const auto& file) { std::filesystem::remove(file); });
    session.Finish();
    EXPECT_TRUE(session.Said().ends_with("\nsaving\nsaved\nclosed\nfinished\n")) << session.Said();
    ExpectContent(place.file, ContentAfter(Edits));
}

TEST_F(OtherProgramsTest, ACallThatFailsReplacesWhatTheyHaveWrittenOnlyBehindAYes) {
    for (const int error : {ENOSPC, EIO}) {
        FailEveryCall({"fail", 0, error}, save, [&](Session& session, const std::string& others) {
            EXPECT_TRUE(HasAsked(session)) << session.Said();
            ExpectOldOrNew(session, place.file, others, ContentAfter(Edits));
        });
    }
}

TEST_F(OtherProgramsTest, ACallThatFailsReplacesNothingOfTheirsBehindANo) {
    const Steps refused = Steps{"defaults"} + save + Steps{"close"};
    // Some more calls come with the next edit, which is recorded.
    const Steps more = Steps{"edits", std::to_string(Edits + 1), std::to_string(Edits + 1)} + save + Steps{"close"};
    for (const int error : {ENOSPC, EIO}) {
        FailEveryCall({"fail", 0, error}, refused + more, [&](Session& session, const std::string& others) {
            EXPECT_TRUE(HasAsked(session)) << session.Said();
            EXPECT_FALSE(session.Reached("saved"));
            EXPECT_FALSE(session.Reached("closed"));
            ExpectContent(place.file, others);
        });
    }
}

// Whether or not that save has put its bytes into the place of the file.
TEST_F(OtherProgramsTest, WhatTheyWriteBehindASaveThatFailedAtAnyCallIsKept) {
    PrepareDisk();
    const Steps saving = EditAndSave() + Steps{"pause"};
    const int calls = CallsBefore(saving, {});
    PrepareDisk();
    const int before = CallsBefore(EditAndPause(), {});
    const std::string next = std::to_string(Edits + 1);
    for (Fault fault{"fail", before + 1, EIO}; fault.call <= calls; ++fault.call) {
        SCOPED_TRACE(fault.Description());
        PrepareDisk();
        Session session(place, saving + Steps{"edits", next, next, "defaults"} + save + Steps{"close"}, fault);
        const std::string others = WriteMeanwhile(session, WriteWithSameSizeAndTime);
        session.Finish();
        const std::string kept = "\nsaving\n" + std::string(Asked) + "\n" + std::string(KeptOpen) + "finished\n";
        EXPECT_TRUE(session.Said().ends_with(kept)) << session.Said();
        ExpectContent(place.file, others);
    }
}

TEST_F(OtherProgramsTest, AfterALookThatFailedAtTheOpeningWhatTheyWriteIsKeptAllTheSame) {
    int opened = 0;
    bool met = true;
    for (Fault fault{"fail", 1, EIO, false, true}; met; ++fault.call) {
        SCOPED_TRACE(fault.Description());
        PrepareDisk();
        const Steps edits{"edits", "1", std::to_string(Edits)};
        Session session(place, Steps{"open", place.file, "pause"} + edits + Steps{"defaults"} + save + Steps{"close"},
                        fault);
        EXPECT_TRUE(session.WaitForStop());
        met = static_cast<int>(session.Calls().size()) >= fault.call;
        if (session.Said().starts_with("box The file cannot be read:\n")) {
            continue;
        }
        ++opened;
        WriteWithSameSizeAndTime(place.file);
        const std::string others = ContentOf(place.file).value();
        session.Continue();
        session.Finish();
        EXPECT_TRUE(HasAsked(session)) << session.Said();
        ExpectContent(place.file, others);
    }
    EXPECT_GT(opened, 20);
}
