// Unsaved changes of an earlier session that cannot be locked or read at once.

#include "FaultTest.h"

#include <cerrno>
#include <fstream>
#include <functional>

namespace {

class LeftOversTest : public FaultTest {
protected:
    LeftOversTest() { PrepareDisk(); }

    void LeaveEdits(int edits) const {
        Session session(place, EditAndPause(edits));
        ASSERT_TRUE(session.WaitForStop());
        session.Kill();
    }
    // What a session says that opens the file and makes no change.
    std::string SaidAtOpening() const {
        Session session(place, {"open", place.file});
        session.Finish();
        EXPECT_TRUE(session.Finished());
        return session.Said();
    }
    std::filesystem::path RecoveryFile() const {
        for (const auto& entry : std::filesystem::directory_iterator(state)) {
            if (entry.path().extension() == ".changes") {
                return entry.path();
            }
        }
        ADD_FAILURE() << "no recovery file";
        return {};
    }
    void FailEveryCallThatFindsThem(Fault fault);
    static int CountIn(const std::string& said, std::string_view sought) {
        int count = 0;
        for (auto at = said.find(sought); at != std::string::npos; at = said.find(sought, at + 1)) {
            ++count;
        }
        return count;
    }
};

constexpr std::string_view Named = "box There are unsaved changes to this file that cannot be had back now.";
constexpr std::string_view NotListed = "box It cannot be told whether there are unsaved changes to this file.";
constexpr std::string_view NotTakenUp = "box There may be unsaved changes to this file that were not taken up.";
constexpr std::string_view Added = "|Faultby Number 1"; // by the first edit
constexpr std::string_view EarlierState = "earlier state";
constexpr std::string_view Outage = "box Your changes cannot be written to the recovery file.";

// A call of the session that finds them fails, and it saves other changes: they are no less offered.
void LeftOversTest::FailEveryCallThatFindsThem(Fault fault) {
    place.watched = {state};
    int told = 0;
    bool isMet = true;
    for (fault.call = 1; isMet; ++fault.call) {
        SCOPED_TRACE(fault.Description());
        PrepareDisk();
        LeaveEdits(1); // an addition
        Session session(place, {"open", place.file, "edits", "3", "4", "save", place.file}, fault);
        session.Finish();
        ASSERT_TRUE(session.Reached("saved"));
        isMet = static_cast<int>(session.Calls().size()) >= fault.call;
        const bool isNamed = CountIn(session.Said(), Named) > 0;
        const bool isToldOf = isNamed || CountIn(session.Said(), NotListed) > 0;
        told += isToldOf ? 1 : 0;
        const std::string before = ContentOf(place.file).value();
        const bool isTakenUp = before.find(Added) != std::string::npos; // it may stand in the half of a list
        EXPECT_TRUE(isTakenUp ? !isNamed : isToldOf) << session.Said();

        Session next(place, {"open", place.file, "save", place.file});
        next.Finish();
        EXPECT_EQ(CountIn(next.Said(), EarlierState), 0) << next.Said();
        const std::string after = ContentOf(place.file).value();
        EXPECT_NE(after.find(Added), std::string::npos) << next.Said();
        EXPECT_EQ(after.size() - before.size(), isTakenUp ? 0U : Added.size());
    }
    EXPECT_GT(told, 1);
}

class MountedLeftOversTest : public LeftOversTest {
protected:
    void SetUp() override {
        if (!MayMount()) {
            GTEST_SKIP() << "left out: only root may mount file systems";
        }
    }
    // Does this while the state folder, with the recovery file in it, is on a disk that cannot be written.
    void WhileReadOnly(const std::function<void()>& work) {
        const std::filesystem::path file = RecoveryFile();
        const std::string content = ContentOf(file).value();
        TmpfsMount readOnly(state, 100);
        WriteContent(state / file.filename(), content);
        readOnly.MakeReadOnly();
        work();
    }
};

} // namespace

TEST_F(MountedLeftOversTest, InAReadOnlyStateFolderAreNamedAndComeBackLater) {
    LeaveEdits(Edits);
    WhileReadOnly([&] { EXPECT_EQ(CountIn(SaidAtOpening(), Named), 1); });
    ExpectRecovered(Edits);
}

TEST_F(MountedLeftOversTest, InAReadOnlyStateFolderMakeASaveAskAndComeBackBehindANo) {
    LeaveEdits(Edits);
    WhileReadOnly([&] {
        const std::string next = std::to_string(Edits + 1);
        Session session(place, {"open", place.file, "edits", next, next, "defaults", "save", place.file, "close"});
        session.Finish();
        EXPECT_EQ(CountIn(session.Said(), Named), 1) << session.Said();
        EXPECT_EQ(CountIn(session.Said(), NotTakenUp), 1) << session.Said();
        EXPECT_TRUE(session.Said().ends_with("\nbox This will loose your changes.\nstill open\nfinished\n"))
            << session.Said();
        ExpectContent(place.file, OldContent());
    });
    ExpectRecovered(Edits);
}

TEST_F(MountedLeftOversTest, InAReadOnlyStateFolderMakeASaveAskAndStayBehindAYes) {
    LeaveEdits(Edits);
    const std::filesystem::path file = RecoveryFile();
    const std::string content = ContentOf(file).value();
    WhileReadOnly([&] {
        Session session(place, {"open", place.file, "edits", "1", "1", "save", place.file, "close"});
        session.Finish();
        EXPECT_EQ(CountIn(session.Said(), NotTakenUp), 1) << session.Said();
        EXPECT_TRUE(session.Said().ends_with("\nsaved\nclosed\nfinished\n")) << session.Said();
        ExpectContent(place.file, ContentAfter(1));
    });
    EXPECT_EQ(CountIn(SaidAtOpening(), EarlierState), 1);
    ExpectContent(file.string() + ".aside", content);
    ExpectContent(place.file, ContentAfter(1));
}

TEST_F(LeftOversTest, OfMoreThan2GiBAreNamedAndStay) {
    LeaveEdits(Edits);
    const std::filesystem::path file = RecoveryFile();
    const auto size = std::filesystem::file_size(file);
    std::filesystem::resize_file(file, std::uintmax_t{1} << 31); // with zeros, which a power cut leaves, too
    EXPECT_EQ(CountIn(SaidAtOpening(), Named), 1);
    std::filesystem::resize_file(file, size);
    ExpectRecovered(Edits);
}

TEST_F(LeftOversTest, AreFoundBehindAThousandOthersWithFewHandles) {
    LeaveEdits(Edits);
    const std::string content = ContentOf(RecoveryFile()).value();
    // Those of other files have other bytes, too.
    const std::string digest = content.substr(content.find(' ', content.find("windows-1252 ") + 13) + 1, 32);
    std::string other = content;
    for (std::size_t at = other.find(digest); at != std::string::npos; at = other.find(digest)) {
        other.replace(at, 32, std::string(32, '0'));
    }
    for (int i = 0; i < 1000; ++i) {
        WriteContent(state / (std::to_string(1'000'000 + i) + "-1-" + std::string(32, 'f') + ".changes"), other);
    }
    Session session(place, {"handles", "6", "open", place.file, "save", place.file});
    session.Finish();
    EXPECT_TRUE(session.Reached("saved")) << session.Said();
    ExpectContent(place.file, ContentAfter(Edits));
}

TEST_F(LeftOversTest, ThatOneCallCouldNotHaveAreOfferedInSpiteOfALaterSave) {
    FailEveryCallThatFindsThem({"fail", 0, EIO});
}

TEST_F(LeftOversTest, ThatOneLookDidNotFindAreOfferedInSpiteOfALaterSave) {
    FailEveryCallThatFindsThem({"fail", 0, EIO, false, true});
}

TEST_F(LeftOversTest, AreWrittenAnewWhereTheirFileIsRemovedFromUnderTheirEditor) {
    Session session(place, {"open", place.file, "edits", "1", "3", "pause", "edits", "4", "5", "pause"});
    ASSERT_TRUE(session.WaitForStop());
    for (const auto& entry : std::filesystem::directory_iterator(state)) {
        std::filesystem::remove(entry);
    }
    session.Continue();
    ASSERT_TRUE(session.WaitForStop());
    EXPECT_EQ(CountIn(session.Said(), "box The recovery file of your changes had been removed."), 1);
    session.Kill();
    ExpectRecovered(5);
}

TEST_F(MountedLeftOversTest, OnADiskThatFillsUpAgainAreToldOfOnceForEachOutage) {
    constexpr std::size_t pages = 64;
    const TmpfsMount small(state, pages);
    const auto fill = [&] {
        std::error_code ignored;
        std::filesystem::resize_file(state / "filler", 0, ignored);
        std::ofstream filler(state / "filler", std::ios::binary);
        const std::string page(TmpfsMount::PageSize, 'x');
        for (std::size_t i = 0; i < pages && filler.write(page.data(), static_cast<std::streamsize>(page.size()));
             ++i) {
            filler.flush();
        }
    };
    // What has been written fills less than a page, in which there is room all the time.
    Session session(place, {"open", place.file, "pause", "edits", "1", "3", "pause", "edits", "4", "5", "pause",
                            "edits", "6", "60", "pause"});
    ASSERT_TRUE(session.WaitForStop());
    const auto next = [&](int outages) {
        session.Continue();
        ASSERT_TRUE(session.WaitForStop());
        EXPECT_EQ(CountIn(session.Said(), Outage), outages) << session.Said();
    };
    fill();
    next(1);
    std::filesystem::remove(state / "filler");
    next(1);
    fill();
    next(2);
    std::filesystem::remove(state / "filler");
    session.Kill();
    ExpectRecovered(5, 60);
}
