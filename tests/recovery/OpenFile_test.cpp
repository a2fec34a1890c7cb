#include "recovery/OpenFile.h"

#include "recovery/UnsavedChanges.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

const std::string Read = "/data/read.txt";
const std::string Saved = "/data/saved.txt";

// A file that has been read and is shown, and another editor of the same user.
class OpenFileTest : public StateTest {
protected:
    // Every path leads to a file of its own, but for one link.
    class LinkedDesktop : public ScriptedDesktop {
    public:
        std::string TruePath(const std::string& path) override { return path == "/link" ? Read : path; }
    };

    OpenFileTest() {
        other.state.storage = desktop.state.storage;
        TheOpenFile.BeginReading(desktop, Read, "bytes", {});
        EXPECT_FALSE(TheOpenFile.Mark(desktop));
    }
    // Whether another editor that opens a file now is told.
    bool IsMarked(const std::string& path) {
        OpenMark theirs;
        const bool isMarked = theirs.Set(other, path);
        theirs.Clear(other);
        return isMarked;
    }

    LinkedDesktop desktop;
    ScriptedDesktop other;
};

} // namespace

TEST_F(OpenFileTest, IsTheOneThatWasRead) {
    EXPECT_EQ(TheOpenFile.Path(), Read);
    EXPECT_EQ(Unsaved.File(), (FileIdentity{Read, FingerprintOf("bytes")}));
    EXPECT_TRUE(IsMarked(Read));
}

TEST_F(OpenFileTest, IsTheOneThatWasSavedFromThenOn) {
    EXPECT_FALSE(TheOpenFile.MoveTo(desktop, Saved, FingerprintOf("new bytes")));
    EXPECT_EQ(TheOpenFile.Path(), Saved);
    EXPECT_EQ(Unsaved.File(), (FileIdentity{Saved, FingerprintOf("new bytes")}));
    EXPECT_TRUE(IsMarked(Saved));
    EXPECT_FALSE(IsMarked(Read));
}

TEST_F(OpenFileTest, SavedUnderAnotherNameIsToldOfWhenAnotherEditorHasItOpen) {
    OpenMark theirs;
    ASSERT_FALSE(theirs.Set(other, Saved));
    EXPECT_TRUE(TheOpenFile.MoveTo(desktop, Saved, FingerprintOf("new bytes")));
    EXPECT_FALSE(TheOpenFile.MoveTo(desktop, Saved, FingerprintOf("newer bytes"))); // which was said before
}

TEST_F(OpenFileTest, IsTheSameWhereverALinkLeadsToIt) {
    EXPECT_TRUE(OpenFile::IsAt(desktop, Read));
    EXPECT_TRUE(OpenFile::IsAt(desktop, "/link"));
    EXPECT_FALSE(OpenFile::IsAt(desktop, Saved));
}

TEST_F(OpenFileTest, SavedUnderItsOwnNameKeepsItsMarkAllTheTime) {
    const std::vector<std::string> before = desktop.state.Names();
    ASSERT_EQ(before.size(), 1U);
    EXPECT_FALSE(TheOpenFile.MoveTo(desktop, "/link", FingerprintOf("new bytes")));
    EXPECT_EQ(desktop.state.Names(), before);
    EXPECT_EQ(TheOpenFile.Path(), "/link");
}

TEST_F(OpenFileTest, ThatIsClosedLeavesNeitherPathNorMark) {
    TheOpenFile.Close(desktop);
    EXPECT_EQ(TheOpenFile.Path(), "");
    EXPECT_TRUE(desktop.state.Names().empty());
    EXPECT_FALSE(OpenFile::IsAt(desktop, Read));
}
