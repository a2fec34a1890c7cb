#include "recovery/LeftOvers.h"

#include "support/MemoryStateFolder.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

using Texts = std::vector<std::string>;

class LeftOversTest : public testing::Test {
protected:
    void Put(const std::string& name, const std::string& content = RecoveryHeader(IdentityOf("/data/a", "a"))) {
        folder.storage->files[name] = content;
    }
    static Texts NamesOf(const std::vector<LeftOver>& leftOvers) {
        Texts names;
        for (const LeftOver& leftOver : leftOvers) {
            names.push_back(leftOver.name);
        }
        return names;
    }

    MemoryStateFolder folder;
    MemoryStateFolder other{folder.storage};
};

} // namespace

TEST_F(LeftOversTest, AreThoseWithoutALivingEditorTheLatestFirst) {
    Put("1.changes");
    Put("2.changes");
    Put("3.changes");
    Put("4.aside");
    Put("5.open", "");
    ASSERT_EQ(other.Lock("2.changes.lock"), LockResult::Taken);
    EXPECT_EQ(NamesOf(TakeLeftOvers(folder)), (Texts{"3.changes", "1.changes"}));
}

TEST_F(LeftOversTest, AreLockedUntilTheyAreGivenBack) {
    Put("1.changes");
    const std::vector<LeftOver> taken = TakeLeftOvers(folder);
    EXPECT_TRUE(TakeLeftOvers(other).empty());
    GiveBack(folder, taken.front());
    EXPECT_EQ(NamesOf(TakeLeftOvers(other)), Texts{"1.changes"});
}

TEST_F(LeftOversTest, OfAnEditorThatDiedAreTakenInSpiteOfItsLock) {
    Put("1.changes");
    ASSERT_EQ(other.Lock("1.changes.lock"), LockResult::Taken);
    other.Die();
    EXPECT_EQ(NamesOf(TakeLeftOvers(folder)), Texts{"1.changes"});
}

TEST_F(LeftOversTest, LocksOfTheDeadWithoutAFileAreRemoved) {
    ASSERT_EQ(other.Lock("1.changes.lock"), LockResult::Taken);
    other.Die();
    EXPECT_TRUE(TakeLeftOvers(folder).empty());
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(LeftOversTest, SayWhenTheyAreDamaged) {
    Put("1.changes");
    Put("2.changes", "no recovery file");
    Put("3.changes", "");
    const std::vector<LeftOver> taken = TakeLeftOvers(folder);
    ASSERT_EQ(taken.size(), 3U);
    EXPECT_FALSE(taken[0].file);
    EXPECT_FALSE(taken[1].file);
    EXPECT_TRUE(taken[2].file);
}

TEST_F(LeftOversTest, AreLeftWhereNothingCanBeLocked) {
    Put("1.changes");
    folder.canLock = false;
    EXPECT_TRUE(TakeLeftOvers(folder).empty());
    EXPECT_EQ(folder.Names(), Texts{"1.changes"});
}

TEST_F(LeftOversTest, SetAsideAreKeptButNotOffered) {
    Put("1.changes", "content");
    const std::vector<LeftOver> taken = TakeLeftOvers(folder);
    EXPECT_EQ(SetAside(folder, taken.front()), "/state/1001.aside");
    EXPECT_TRUE(TakeLeftOvers(folder).empty());
    EXPECT_EQ(folder.Names(), Texts{"1001.aside"});
    EXPECT_EQ(folder.Read("1001.aside"), "content");
}

TEST_F(LeftOversTest, OnlyTheLastThreeAreKept) {
    for (const char* name : {"5.changes", "4.changes", "3.changes", "2.changes", "1.changes"}) {
        Put(name, name);
        for (const LeftOver& leftOver : TakeLeftOvers(folder)) {
            SetAside(folder, leftOver);
        }
    }
    EXPECT_EQ(folder.Names(), (Texts{"1003.aside", "1004.aside", "1005.aside"}));
    EXPECT_EQ(folder.Read("1005.aside"), "1.changes"); // the one that was set aside last, whenever it was made
}
