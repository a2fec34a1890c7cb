// A power cut while the program works: of the disk, only what it holds at that moment remains.

#include "FaultTest.h"

#include <algorithm>

namespace {

class PowerCutTest : public MountingTest {
protected:
    // A disk as a power cut leaves it, and what had been reached by then.
    struct Remains {
        std::filesystem::path image;
        int lastEdit = 0;
        bool saved = false;
    };

    // The home is on the disk, too.
    PowerCutTest() {
        place.home = disk / "home";
        place.file = disk / "data/districts.txt";
        place.watched = {disk / "data", place.home / ".local"};
    }

    // Edits and saves on a disk of its own; the power is cut before every call, and at the end. Nothing where
    // there are no disks in files.
    std::vector<Remains> CutPower(const std::string& action, const std::filesystem::path& name, int edits) {
        LoopImage image(images.Path() / "image", disk);
        if (!image.Mounted()) {
            return {};
        }
        std::filesystem::create_directories(disk / "data");
        std::filesystem::create_directories(place.home);
        WriteContent(place.file, OldContent());
        if (hasTwoNames) {
            std::filesystem::create_hard_link(place.file, disk / "other name");
        }
        image.Sync();
        std::vector<Remains> cuts;
        const auto cut = [&](const Session& session) {
            const std::string number = std::to_string(cuts.size());
            cuts.push_back({images.Path() / ("cut-" + number), session.LastEdit(), session.Reached("saved")});
            image.CopyTo(cuts.back().image);
        };
        Session session(place, EditAndSave(name, edits), {action});
        while (session.WaitForStop()) {
            cut(session);
            session.Continue();
        }
        session.Finish();
        EXPECT_TRUE(session.Reached("saved"));
        cut(session);
        return cuts;
    }

    void JudgeEveryCut(const std::filesystem::path& name, int edits) {
        const bool sameFile = name == place.file;
        const std::vector<Remains> cuts = CutPower("stop", name, edits);
        if (cuts.empty()) {
            GTEST_SKIP() << "left out: this machine has no loop devices";
        }
        EXPECT_GT(cuts.size(), FewestCuts);
        for (const Remains& cut : cuts) {
            SCOPED_TRACE(cut.image.filename().string() + " behind edit " + std::to_string(cut.lastEdit) +
                         (cut.saved ? ", saved" : ""));
            LoopImage found(cut.image, disk);
            ASSERT_TRUE(found.Mounted());
            if (!HasCopy()) {
                ExpectOldOrNew(name, sameFile ? std::optional(OldContent()) : std::nullopt, ContentAfter(edits));
            }
            if (cut.saved) {
                ExpectContent(name, ContentAfter(edits));
            }
            if (sameFile || !cut.saved) {
                ExpectRecovered(cut.lastEdit, std::min(cut.lastEdit + 1, edits));
            }
            found.Unmount();
            EXPECT_TRUE(found.IsSound());
        }
    }

    // Whether the disk has a copy from which a file that stays in its place can be mended.
    [[nodiscard]] bool HasCopy() const {
        const std::filesystem::path states = place.home / ".local/state/quexal-editor";
        if (!hasTwoNames || !std::filesystem::exists(states)) {
            return false;
        }
        const auto entries = std::filesystem::directory_iterator(states);
        return std::any_of(begin(entries), end(entries),
                           [](const auto& entry) { return entry.path().extension() == ".copy"; });
    }

    bool hasTwoNames = false; // the data file, which is overwritten then
    const TemporaryFolder images{TemporaryFolder::Kind::OnDisk};
    static constexpr std::size_t FewestCuts = 6; // a save alone has more
};

} // namespace

TEST_F(PowerCutTest, APowerCutAtAnyCallLeavesTheOldOrTheNewFileAndEveryEdit) {
    JudgeEveryCut(place.file, Edits);
}

TEST_F(PowerCutTest, APowerCutWhileSavingUnderANewNameLeavesNoFileOrTheWholeOne) {
    JudgeEveryCut(disk / "data/other.txt", 1);
}

TEST_F(PowerCutTest, APowerCutAtAnyCallLeavesAFileWithTwoNamesWholeOrToBeMended) {
    hasTwoNames = true;
    JudgeEveryCut(place.file, Edits);
}

// Shows that the power cuts of this file are cuts: what is not put on the disk is not there afterwards.
TEST_F(PowerCutTest, WithoutItsSyncsASaveWouldNotSurviveAPowerCut) {
    const std::vector<Remains> cuts = CutPower("pretend", place.file, Edits);
    if (cuts.empty()) {
        GTEST_SKIP() << "left out: this machine has no loop devices";
    }
    ASSERT_TRUE(cuts.back().saved);
    const LoopImage found(cuts.back().image, disk);
    ASSERT_TRUE(found.Mounted());
    EXPECT_FALSE(ContentOf(place.file) == ContentAfter(Edits));
}
