#include "recovery/OpenMark.h"

#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

// Two editors of one user.
class OpenMarkTest : public testing::Test {
protected:
    OpenMarkTest() { m_second.state.storage = first.state.storage; }

    ScriptedDesktop first;
    OpenMark mine;
    ScriptedDesktop& second = m_second;
    OpenMark theirs;

private:
    ScriptedDesktop m_second;
};

} // namespace

TEST_F(OpenMarkTest, TellsTheSecondEditorOfAFile) {
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    EXPECT_TRUE(theirs.Set(second, "/data/a"));
}

TEST_F(OpenMarkTest, IsForOneFile) {
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    EXPECT_FALSE(theirs.Set(second, "/data/b"));
}

TEST_F(OpenMarkTest, MovesToTheNextFile) {
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    EXPECT_FALSE(mine.Set(first, "/data/b"));
    EXPECT_FALSE(theirs.Set(second, "/data/a"));
    EXPECT_TRUE(theirs.Set(second, "/data/b"));
}

TEST_F(OpenMarkTest, OfAFileThatIsOpenedAgainIsNoOtherEditors) {
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    EXPECT_FALSE(mine.Set(first, "/data/a"));
}

TEST_F(OpenMarkTest, IsGoneWhenItIsCleared) {
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    mine.Clear(first);
    mine.Clear(first);
    EXPECT_FALSE(theirs.Set(second, "/data/a"));
    EXPECT_EQ(first.state.Names().size(), 1U);
}

TEST_F(OpenMarkTest, OfAnEditorThatDiedIsCleared) {
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    first.state.Die();
    EXPECT_FALSE(theirs.Set(second, "/data/a"));
    EXPECT_EQ(second.state.Names().size(), 1U);
}

TEST_F(OpenMarkTest, OfAThirdEditorSeesTheSecondAfterTheFirstHasGone) {
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    EXPECT_TRUE(theirs.Set(second, "/data/a"));
    mine.Clear(first);
    EXPECT_TRUE(mine.Set(first, "/data/a"));
}

TEST_F(OpenMarkTest, NeedsNoFolder) {
    first.state.canLock = false;
    EXPECT_FALSE(mine.Set(first, "/data/a"));
    EXPECT_FALSE(theirs.Set(second, "/data/a"));
}
