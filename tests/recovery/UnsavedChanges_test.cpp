#include "recovery/UnsavedChanges.h"

#include "edit/EditTest.h"
#include "edit/Variations.h"
#include "recovery/LeftOvers.h"
#include "support/RecoveryText.h"

using namespace CommonRoutines;

namespace {

using Changes = std::vector<SlotChange>;

const std::string Path = "/data/districts.txt";
const std::string Bytes = "the bytes of the file";
const std::string Own = RecoveryName(1001, Path);

// A table of two districts whose file has just been read.
class UnsavedChangesTest : public EditTest {
protected:
    UnsavedChangesTest() {
        AddDistrict("North", {"Ash", "Elm", "Oak"});
        AddDistrict("South", {"Yew"});
        Unsaved.Begin(desktop, Path, FingerprintOf(Bytes), Numbering::AsRead);
        lCurrentDistrict = 1;
    }

    // The only recovery file; nothing when there is none.
    std::optional<RecoveryFile> OnDisk() {
        const std::vector<std::string> names = desktop.state.Kept();
        EXPECT_LE(names.size(), 1U);
        return names.empty() ? std::nullopt : ParseRecoveryFile(*desktop.state.Read(names.front()));
    }
    Changes ChangesOnDisk() {
        const auto file = OnDisk();
        return file ? file->changes : Changes();
    }
    // As the program does after every command.
    void Store(std::int32_t slot, std::string_view text) {
        StoreText(lCurrentDistrict, slot, text);
        Unsaved.Write(desktop);
    }
    void Add(std::string_view text) {
        AddSlot(lCurrentDistrict, text);
        Unsaved.Write(desktop);
    }
    void ExpectTold() {
        desktop.ExpectBox("Your changes cannot be written to the recovery file.  They are only safe once the file is "
                          "saved.\r\n/state/" +
                              (desktop.state.canLock ? Own : std::string()),
                          BoxIcon::Exclamation);
    }

    ScriptedDesktop desktop;
};

} // namespace

TEST_F(UnsavedChangesTest, MakeNoFileUntilThereIsOne) {
    Unsaved.Write(desktop);
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(UnsavedChangesTest, AreOnTheDiskInTheirOrder) {
    Store(2, "Fir");
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 2, "Fir", {}}}));
    Add("Ivy");
    lCurrentDistrict = 2;
    Store(1, DeletedText);
    Store(1, "Yew Tree");
    EXPECT_EQ(ChangesOnDisk(),
              (Changes{{1, 2, "Fir", {}}, {1, 4, "Ivy", {}}, {2, 1, "\t", {}}, {2, 1, "Yew Tree", {}}}));
}

TEST_F(UnsavedChangesTest, SayToWhichFileTheyBelong) {
    Store(2, "Fir");
    EXPECT_EQ(OnDisk()->file, (FileIdentity{Path, FingerprintOf(Bytes)}));
}

TEST_F(UnsavedChangesTest, OfOneCommandAreWrittenTogether) {
    StoreText(1, 1, "Fir");
    AddSlot(1, "");
    EXPECT_TRUE(desktop.state.Names().empty());
    Unsaved.Write(desktop);
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 1, "Fir", {}}, {1, 4, "", {}}}));
}

TEST_F(UnsavedChangesTest, AreNoneWhereATextStaysTheSame) {
    Store(1, "Ash");
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(UnsavedChangesTest, AreLockedWhileTheirEditorLives) {
    Store(1, "Fir");
    ScriptedDesktop other;
    other.state.storage = desktop.state.storage;
    EXPECT_FALSE(TakeLeftOver(other.state, Own));
    desktop.state.Die();
    EXPECT_TRUE(TakeLeftOver(other.state, Own));
}

TEST_F(UnsavedChangesTest, ThatAreRemovedLeaveNothing) {
    Store(1, "Fir");
    Unsaved.Remove(desktop);
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(UnsavedChangesTest, AfterARemovalAreNotNotedSinceTheyWouldNotFit) {
    Store(1, "Fir");
    Unsaved.Remove(desktop);
    Store(2, "Larch");
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(UnsavedChangesTest, NameTheFileThatIsToHaveThem) {
    EXPECT_TRUE(Unsaved.NoteSaving(desktop, Path, FingerprintOf("nothing has changed")));
    EXPECT_TRUE(desktop.state.Names().empty());
    Store(1, "Fir");
    EXPECT_TRUE(Unsaved.NoteSaving(desktop, "/data/new.txt", FingerprintOf("new bytes")));
    EXPECT_EQ(OnDisk()->savedAs, (FileIdentity{"/data/new.txt", FingerprintOf("new bytes")}));
    Store(1, "Larch");
    EXPECT_EQ(OnDisk()->savedAs, std::nullopt);
}

TEST_F(UnsavedChangesTest, ThatAreReleasedAreLeftOver) {
    Store(1, "Fir");
    Unsaved.Release(desktop);
    const auto leftOver = TakeLeftOver(desktop.state, Own);
    ASSERT_TRUE(leftOver);
    EXPECT_EQ(leftOver->file->changes, (Changes{{1, 1, "Fir", {}}}));
}

TEST_F(UnsavedChangesTest, OfTheNextFileGetAFileOfTheirOwn) {
    Store(1, "Fir");
    Unsaved.Begin(desktop, "/data/next.txt", FingerprintOf("other bytes"), Numbering::AsRead);
    Store(2, "Larch");
    const std::string next = RecoveryName(1002, "/data/next.txt");
    EXPECT_EQ(desktop.state.Kept(), (Texts{Own, next}));
    EXPECT_TRUE(TakeLeftOver(desktop.state, Own));
    EXPECT_FALSE(TakeLeftOver(desktop.state, next));
}

TEST_F(UnsavedChangesTest, AfterASaveAreNumberedAsTheSavedFileIs) {
    Store(2, DeletedText);
    Unsaved.Remove(desktop);
    Unsaved.Begin(desktop, Path, FingerprintOf("saved bytes"), Numbering::AsSaved);
    Store(3, "Fir");       // the second one that is saved
    Store(2, "Elm again"); // in the file a new one
    Add("Ivy");
    Store(3, "Larch");
    EXPECT_EQ(ChangesOnDisk(),
              (Changes{{1, 2, "Fir", {}}, {1, 3, "Elm again", 1}, {1, 4, "Ivy", {}}, {1, 2, "Larch", {}}}));
    EXPECT_EQ(OnDisk()->file, (FileIdentity{Path, FingerprintOf("saved bytes")}));
}

TEST_F(UnsavedChangesTest, OfATextThatWasSavedAsSeveralFieldsFreeTheOthers) {
    Store(2, "Elm|Fir|Ivy");
    Unsaved.Remove(desktop);
    Unsaved.Begin(desktop, Path, FingerprintOf("saved bytes"), Numbering::AsSaved);
    Store(2, "Elm");
    Store(2, "Larch");
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 2, "Elm", {}}, {1, 3, "\t", {}}, {1, 4, "\t", {}}, {1, 2, "Larch", {}}}));
}

TEST_F(UnsavedChangesTest, ThatCannotBeWrittenAreToldOnceAndWrittenLater) {
    Store(1, "Fir");
    desktop.state.canWrite = false;
    ExpectTold();
    Store(2, "Larch");
    Store(3, "Ivy"); // says nothing more
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 1, "Fir", {}}}));
    desktop.state.canWrite = true;
    Store(3, "Oak");
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 1, "Fir", {}}, {1, 2, "Larch", {}}, {1, 3, "Ivy", {}}, {1, 3, "Oak", {}}}));
}

TEST_F(UnsavedChangesTest, AreToldOnceAlsoWhenTheFileIsSavedInBetween) {
    desktop.state.canWrite = false;
    ExpectTold();
    Store(1, "Fir");
    Unsaved.Remove(desktop);
    Unsaved.Begin(desktop, Path, FingerprintOf("saved bytes"), Numbering::AsSaved);
    Store(1, "Larch");
}

TEST_F(UnsavedChangesTest, OfAnotherFileAreToldAgain) {
    desktop.state.canLock = false;
    ExpectTold();
    Store(1, "Fir");
    Unsaved.Begin(desktop, Path, FingerprintOf(Bytes), Numbering::AsRead);
    ExpectTold();
    Store(1, "Larch");
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(UnsavedChangesTest, AreToldOfAgainAtTheNextOutage) {
    desktop.state.canWrite = false;
    ExpectTold();
    Store(1, "Fir");
    desktop.state.canWrite = true;
    Store(1, "Larch");
    desktop.state.canWrite = false;
    ExpectTold();
    Store(1, "Ivy");
    Store(1, "Yew"); // of the same outage
}

TEST_F(UnsavedChangesTest, WhoseFileHasGoneAreAllWrittenAnewAndTheUserIsTold) {
    Store(1, "Fir");
    desktop.state.storage->files.clear();
    desktop.ExpectBox("The recovery file of your changes had been removed.  It has been written anew.\r\n/state/" +
                          RecoveryName(1002, Path),
                      BoxIcon::Exclamation);
    Store(2, "Larch");
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 1, "Fir", {}}, {1, 2, "Larch", {}}}));
    ScriptedDesktop other;
    other.state.storage = desktop.state.storage;
    EXPECT_FALSE(TakeLeftOver(other.state, RecoveryName(1002, Path)));
}

TEST_F(UnsavedChangesTest, WhoseFileHasGoneAreWrittenAnewAlsoWithoutAFurtherChange) {
    Store(1, "Fir");
    Unsaved.WriteAndLook(desktop); // which finds it in its place
    desktop.state.storage->files.clear();
    desktop.ExpectBox("The recovery file of your changes had been removed.  It has been written anew.\r\n/state/" +
                          RecoveryName(1002, Path),
                      BoxIcon::Exclamation);
    Unsaved.WriteAndLook(desktop);
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 1, "Fir", {}}}));
}

TEST_F(UnsavedChangesTest, FollowWhatAFailedWriteLeftHalfDone) {
    Store(1, "Fir");
    desktop.state.storage->files[Own] += "0123 half a li";
    Store(2, "Larch");
    EXPECT_EQ(ChangesOnDisk(), (Changes{{1, 1, "Fir", {}}, {1, 2, "Larch", {}}}));
}

TEST_F(UnsavedChangesTest, TakenOverGoOnceTheyAreWritten) {
    desktop.state.storage->files["0001.changes"] = "left over";
    ASSERT_EQ(desktop.state.Lock("0001.changes.lock"), LockResult::Taken);
    StoreText(1, 1, "Fir");
    Unsaved.TakeOver("0001.changes");
    desktop.state.canWrite = false;
    ExpectTold();
    Unsaved.Write(desktop);
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes"});
    desktop.state.canWrite = true;
    Unsaved.Write(desktop);
    EXPECT_EQ(desktop.state.Names(), (Texts{Own, Own + ".lock"}));
}

TEST_F(UnsavedChangesTest, TakenOverGoWithTheOthers) {
    desktop.state.storage->files["0001.changes"] = "left over";
    ASSERT_EQ(desktop.state.Lock("0001.changes.lock"), LockResult::Taken);
    Unsaved.TakeOver("0001.changes");
    Unsaved.Remove(desktop);
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(UnsavedChangesTest, TakenOverAreNamedSoThatNobodyIsAskedTwice) {
    StoreText(1, 1, "Fir");
    Unsaved.TakeOver("0001.changes");
    Unsaved.Write(desktop);
    EXPECT_EQ(OnDisk()->holds, Texts{"0001.changes"});
}

TEST_F(UnsavedChangesTest, TakenOverFromADamagedFileLeaveItAside) {
    desktop.state.storage->files["0001.changes"] = "left over";
    ASSERT_EQ(desktop.state.Lock("0001.changes.lock"), LockResult::Taken);
    StoreText(1, 1, "Fir");
    Unsaved.TakeOver("0001.changes", UnsavedChanges::Then::IsSetAside);
    Unsaved.Write(desktop);
    EXPECT_EQ(desktop.state.Names(), (Texts{"0001.changes.aside", Own, Own + ".lock"}));
}

// Had they been put behind what is there, a kill in between would leave a part of them in two files.
TEST_F(UnsavedChangesTest, TakenOverAreWrittenAsAWhole) {
    class Watching : public MemoryStateFolder {
    public:
        int extensions = 0;
        bool Extend(const std::string& name, std::size_t kept, std::string_view added) override {
            ++extensions;
            return MemoryStateFolder::Extend(name, kept, added);
        }
    };
    class WatchingDesktop : public ScriptedDesktop {
    public:
        Watching folder;
        StateFolder& State() override { return folder; }
    } watching;
    StoreText(1, 1, "Fir");
    Unsaved.Write(watching);
    StoreText(1, 1, "Ivy");
    Unsaved.Write(watching);
    EXPECT_EQ(watching.folder.extensions, 1);
    StoreText(1, 1, "Larch");
    Unsaved.TakeOver("0001.changes");
    Unsaved.Write(watching);
    EXPECT_EQ(watching.folder.extensions, 1);
}
