#include "recovery/LeftOvers.h"

#include "support/MemoryStateFolder.h"
#include "support/RecoveryText.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

using Texts = std::vector<std::string>;

class LeftOversTest : public testing::Test {
protected:
    void Put(const std::string& name) {
        RecoveryFile file;
        file.file = {"/data/a", FingerprintOf("a")};
        Put(name, RecoveryText(file));
    }
    void Put(const std::string& name, const std::string& content) { folder.storage->files[name] = content; }

    MemoryStateFolder folder;
    MemoryStateFolder other{folder.storage};
};

} // namespace

TEST_F(LeftOversTest, TheLatestIsTheOneWithTheHighestNumber) {
    for (const char* name : {"9-1.changes", "00000010-1.changes", "20260102-030405-678-9.changes", "odd.changes"}) {
        Put(name);
    }
    Put("11-1.changes.aside");
    Put("12.open", "");
    EXPECT_EQ(RecoveryFiles(folder),
              (Texts{"20260102-030405-678-9.changes", "00000010-1.changes", "9-1.changes", "odd.changes"}));
}

TEST_F(LeftOversTest, AreThoseWithoutALivingEditor) {
    Put("1.changes");
    ASSERT_EQ(other.Lock("1.changes.lock"), LockResult::Taken);
    EXPECT_FALSE(TakeLeftOver(folder, "1.changes"));
    other.Unlock("1.changes.lock");
    EXPECT_TRUE(TakeLeftOver(folder, "1.changes")->file);
}

TEST_F(LeftOversTest, AreLockedUntilTheyAreGivenBack) {
    Put("1.changes");
    const auto taken = TakeLeftOver(folder, "1.changes");
    ASSERT_TRUE(taken);
    EXPECT_FALSE(TakeLeftOver(other, "1.changes"));
    GiveBack(folder, taken->name);
    EXPECT_TRUE(TakeLeftOver(other, "1.changes"));
}

TEST_F(LeftOversTest, OfAnEditorThatDiedAreTakenInSpiteOfItsLock) {
    Put("1.changes");
    ASSERT_EQ(other.Lock("1.changes.lock"), LockResult::Taken);
    other.Die();
    EXPECT_EQ(RecoveryFiles(folder), Texts{"1.changes"});
    EXPECT_TRUE(TakeLeftOver(folder, "1.changes"));
}

TEST_F(LeftOversTest, LocksOfTheDeadWithoutAFileAreRemoved) {
    ASSERT_EQ(other.Lock("1.changes.lock"), LockResult::Taken);
    other.Die();
    Put("2.changes");
    ASSERT_EQ(other.Lock("2.changes.lock"), LockResult::Taken);
    RemoveDeadLocks(folder);
    EXPECT_EQ(folder.Names(), (Texts{"2.changes", "2.changes.lock"}));
}

TEST_F(LeftOversTest, ThatHaveGoneMeanwhileAreNone) {
    EXPECT_FALSE(TakeLeftOver(folder, "1.changes"));
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(LeftOversTest, SayWhatTheyAre) {
    Put("1.changes");
    Put("2.changes", "no recovery file");
    Put("3.changes", "Quexal Editor, unsaved changes, version 9\nwhatever\n");
    EXPECT_TRUE(TakeLeftOver(folder, "1.changes")->file);
    const auto none = TakeLeftOver(folder, "2.changes");
    ASSERT_TRUE(none);
    EXPECT_FALSE(none->file);
    EXPECT_FALSE(none->isOfNewerVersion);
    const auto newer = TakeLeftOver(folder, "3.changes");
    EXPECT_FALSE(newer->file);
    EXPECT_TRUE(newer->isOfNewerVersion);
}

TEST_F(LeftOversTest, ThatCannotBeLockedOrReadSayWhyAndStayFree) {
    Put("1.changes");
    folder.canLock = false;
    auto leftOver = TakeLeftOver(folder, "1.changes");
    ASSERT_TRUE(leftOver);
    EXPECT_EQ(leftOver->problem, "Permission denied");
    EXPECT_TRUE(leftOver->file); // whose it is can be told

    folder.canLock = true;
    folder.unreadable = {"1.changes"};
    leftOver = TakeLeftOver(folder, "1.changes");
    ASSERT_TRUE(leftOver);
    EXPECT_EQ(leftOver->problem, "Input/output error");
    EXPECT_EQ(folder.Names(), Texts{"1.changes"});
}

TEST_F(LeftOversTest, ForWhichThereIsNotEnoughMemorySaySo) {
    class Short : public MemoryStateFolder {
    public:
        std::optional<std::string> Read(const std::string& /*name*/) override { throw std::bad_alloc(); }
    } folderOfALargeFile;
    folderOfALargeFile.storage->files["1.changes"] = "large";
    const auto leftOver = TakeLeftOver(folderOfALargeFile, "1.changes");
    ASSERT_TRUE(leftOver);
    EXPECT_EQ(leftOver->problem, "There is not enough memory for it");
}

TEST_F(LeftOversTest, SetAsideAreKeptUnderTheirNameAndNotOffered) {
    for (const char* name : {"5.changes", "4.changes", "3.changes", "2.changes", "1.changes"}) {
        Put(name, name);
        const auto taken = TakeLeftOver(folder, name);
        EXPECT_EQ(SetAside(folder, taken->name), std::string("/state/") + name + ".aside");
    }
    EXPECT_TRUE(RecoveryFiles(folder).empty());
    EXPECT_EQ(folder.Names(),
              (Texts{"1.changes.aside", "2.changes.aside", "3.changes.aside", "4.changes.aside", "5.changes.aside"}));
    EXPECT_EQ(folder.Read("5.changes.aside"), "5.changes");
    folder.Rename("3.changes.aside", "3.changes");
    EXPECT_EQ(RecoveryFiles(folder), Texts{"3.changes"});
}

TEST_F(LeftOversTest, AreNamedAfterTheirFile) {
    const std::string name = RecoveryNames::New(folder, "/data/a.txt");
    EXPECT_EQ(name, RecoveryName(1001, "/data/a.txt"));
    EXPECT_TRUE(RecoveryNames::MayBelongTo(name, "/data/a.txt"));
    EXPECT_FALSE(RecoveryNames::MayBelongTo(name, "/data/b.txt"));
    EXPECT_TRUE(RecoveryNames::MayBelongTo("20260102-030405-678-9.changes", "/data/b.txt")); // says nothing
    EXPECT_TRUE(RecoveryNames::MayBelongTo(".changes", "/data/b.txt"));
}
