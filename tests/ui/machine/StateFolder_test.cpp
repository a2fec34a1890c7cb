#include "ui/machine/StateFolderTest.h"

#include "ui/machine/DurableFile.h"
#include "ui/machine/QtDesktop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdlib>

using namespace CommonRoutines;
using namespace Ui;

TEST_F(StateFolderTest, IsNotMadeByLookingIntoIt) {
    EXPECT_EQ(folder.Names(), Texts());
    EXPECT_EQ(folder.Read("a"), std::nullopt);
    EXPECT_FALSE(QFileInfo::exists(FolderPath()));
}

TEST_F(StateFolderTest, KeepsItsFilesInTheOrderOfTheirNames) {
    ASSERT_TRUE(folder.Replace("b", "second"));
    ASSERT_TRUE(folder.Replace("a", "first"));
    EXPECT_EQ(folder.Names(), (Texts{"a", "b"}));
    EXPECT_EQ(folder.Read("a"), "first");
    EXPECT_TRUE(folder.Rename("a", "c"));
    EXPECT_FALSE(folder.Rename("a", "d"));
    EXPECT_TRUE(folder.Remove("b"));
    EXPECT_FALSE(folder.Remove("b"));
    EXPECT_EQ(folder.Names(), Texts{"c"});
}

TEST_F(StateFolderTest, GivesNamesThatGetGreater) {
    std::string last;
    for (int i = 0; i < 5; ++i) {
        const std::string next = folder.NewName();
        EXPECT_LT(last, next);
        last = next;
    }
}

TEST_F(StateFolderTest, NumbersNamesBehindAllThatAreThereWhateverTheClockSays) {
    for (const char* name : {"00000041-1-abc.changes", "7-1.changes.aside", "99999999999999999999999.changes", "x"}) {
        ASSERT_TRUE(folder.Replace(name, "content"));
    }
    EXPECT_TRUE(folder.NewName().starts_with("00000042-")) << folder.NewName();
    EXPECT_TRUE(folder.NewName().starts_with("00000043-"));
    ASSERT_TRUE(folder.Replace("20260102-030405-678-9.changes", "content")); // as names were once given
    EXPECT_TRUE(folder.NewName().starts_with("20260103-"));
}

TEST_F(StateFolderTest, KnowsWhatHasGone) {
    EXPECT_TRUE(folder.IsGone("a"));
    ASSERT_TRUE(folder.Replace("a", "content"));
    EXPECT_FALSE(folder.IsGone("a"));
}

TEST_F(StateFolderTest, RenamesNothingOntoAnotherFile) {
    EXPECT_TRUE(folder.Replace("1.changes", "one"));
    EXPECT_TRUE(folder.Replace("1.changes.aside", "kept by the user"));
    EXPECT_FALSE(folder.Rename("1.changes", "1.changes.aside"));
    EXPECT_EQ(folder.Read("1.changes"), "one");
    EXPECT_EQ(folder.Read("1.changes.aside"), "kept by the user");
    EXPECT_TRUE(folder.Rename("1.changes", "2.changes.aside"));
    EXPECT_TRUE(folder.IsGone("1.changes"));
    EXPECT_EQ(folder.Read("2.changes.aside"), "one");
}

TEST_F(StateFolderTest, SaysWhyItCannot) {
    static_cast<void>(folder.Names());
    EXPECT_EQ(folder.Problem(), ""); // that there is no folder yet is none
    EXPECT_FALSE(folder.Read("a"));
    EXPECT_NE(folder.Problem(), "");
    ASSERT_TRUE(folder.Replace("a", "content"));
    EXPECT_TRUE(folder.Read("a"));
    EXPECT_EQ(folder.Problem(), "");
    ASSERT_TRUE(QFile::resize(FolderPath() + QStringLiteral("/a"), DurableFile::LargestFile + 1));
    EXPECT_FALSE(folder.Read("a"));
    EXPECT_EQ(folder.Problem(), "It is larger than 2 GiB");
    ASSERT_TRUE(QDir(FolderPath()).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(FolderPath() + QStringLiteral("/b.lock")));
    EXPECT_EQ(folder.Lock("b.lock"), LockResult::Impossible);
    EXPECT_NE(folder.Problem(), "");
}

TEST_F(StateFolderTest, LetsAFileGoOnBehindWhatIsKept) {
    ASSERT_TRUE(folder.Replace("a", "0123456789"));
    EXPECT_TRUE(folder.Extend("a", 10, "abc"));
    EXPECT_EQ(folder.Read("a"), "0123456789abc");
    EXPECT_TRUE(folder.Extend("a", 5, "x"));
    EXPECT_EQ(folder.Read("a"), "01234x");
    EXPECT_TRUE(folder.Extend("a", 0, ""));
    EXPECT_EQ(folder.Read("a"), "");
}

TEST_F(StateFolderTest, ExtendsNothingThatIsShorterOrGone) {
    ASSERT_TRUE(folder.Replace("a", "0123456789"));
    EXPECT_FALSE(folder.Extend("a", 11, "abc"));
    EXPECT_EQ(folder.Read("a"), "0123456789");
    EXPECT_FALSE(folder.Extend("b", 0, "abc"));
    EXPECT_EQ(folder.Names(), Texts{"a"});
}

TEST_F(StateFolderTest, IsMadeAgainWhenItHasGone) {
    ASSERT_TRUE(folder.Replace("a", "content"));
    ASSERT_TRUE(QDir(FolderPath()).removeRecursively());
    EXPECT_FALSE(folder.Extend("a", 7, "more"));
    EXPECT_TRUE(folder.Replace("a", "content, more"));
    EXPECT_EQ(folder.Read("a"), "content, more");
}

TEST_F(StateFolderTest, LocksForOneEditorAtATime) {
    QtStateFolder other;
    EXPECT_EQ(folder.Lock("a.lock"), LockResult::Taken);
    EXPECT_EQ(folder.Lock("a.lock"), LockResult::HeldByAnother);
    EXPECT_EQ(other.Lock("a.lock"), LockResult::HeldByAnother);
    EXPECT_EQ(folder.Names(), Texts{"a.lock"});
    other.Unlock("a.lock"); // not its own
    EXPECT_EQ(other.Lock("a.lock"), LockResult::HeldByAnother);
    folder.Unlock("a.lock");
    EXPECT_EQ(folder.Names(), Texts());
    EXPECT_EQ(other.Lock("a.lock"), LockResult::Taken);
}

TEST_F(StateFolderTest, ALockOfAProcessThatDiedIsTakenOver) {
    const auto lockAndDie = [] {
        auto* theirs = new QtStateFolder; // never destroyed, so never unlocked
        std::_Exit(theirs->Lock("a.lock") == LockResult::Taken ? 0 : 1);
    };
    EXPECT_EXIT(lockAndDie(), testing::ExitedWithCode(0), "");
    ASSERT_EQ(folder.Names(), Texts{"a.lock"});
    EXPECT_EQ(folder.Lock("a.lock"), LockResult::Taken);
}

TEST_F(StateFolderTest, ALockThatNobodyHasIsTakenOverWhateverIsInIt) {
    ASSERT_TRUE(folder.Replace("a.lock", "")); // a process that died early has written nothing into it
    EXPECT_EQ(folder.Lock("a.lock"), LockResult::Taken);
    folder.Unlock("a.lock");
    ASSERT_TRUE(folder.Replace("a.lock", "1\nquexal-editor\nhere\n"));
    EXPECT_EQ(folder.Lock("a.lock"), LockResult::Taken);
}

TEST_F(StateFolderTest, WhereNothingCanBeMadeNothingIsLockedOrWritten) {
    ASSERT_TRUE(QDir().mkpath(UserPlaces::States()));
    QFile blocker(FolderPath());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly)); // a file where a folder is needed
    EXPECT_EQ(folder.Lock("a.lock"), LockResult::Impossible);
    EXPECT_FALSE(folder.Replace("a", "content"));
    EXPECT_EQ(folder.Names(), Texts());
}

TEST_F(StateFolderTest, SaysWhereAndWhenAFileWasWritten) {
    ASSERT_TRUE(folder.Replace("a", "content"));
    EXPECT_EQ(folder.PathOf("a"), (FolderPath() + QStringLiteral("/a")).toStdString());
    const std::string now = QtDesktop().Today();
    EXPECT_EQ(folder.TimeOf("a").substr(0, now.size()), now);
    EXPECT_GT(folder.TimeOf("a").size(), now.size() + 3);
}
