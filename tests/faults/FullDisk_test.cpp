// A disk on which a save has too little room, or just enough.

#include "FaultTest.h"

namespace {

constexpr std::size_t PageSize = TmpfsMount::PageSize;
constexpr int FarFromBorder = 5; // pages: 20 KiB

std::size_t PagesOf(const std::string& content) {
    return (content.size() + PageSize - 1) / PageSize;
}

class FullDiskTest : public MountingTest {
protected:
    // Saves where there are so many free pages beside the file. True when the program said "saved".
    bool SaveInto(std::size_t freePages, const std::string& before, const std::string& after,
                  const std::filesystem::path& name = "districts.txt") {
        const TmpfsMount full(disk, PagesOf(before) + freePages);
        PrepareDisk(before);
        Session session(place, EditAndSave(disk / name));
        session.Finish();
        EXPECT_TRUE(session.Finished());
        const bool sameFile = disk / name == place.file;
        ExpectOldOrNew(session, disk / name, sameFile ? std::optional(before) : std::nullopt, after);
        if (!sameFile) {
            ExpectContent(place.file, before);
        }
        return session.Reached("saved");
    }
};

} // namespace

TEST_F(FullDiskTest, WithAnyRoomTheFileIsTheOldOrTheNewOneAndSavedIsSaidOfTheNewOneOnly) {
    const std::string& after = ContentAfter(Edits);
    const int needed = static_cast<int>(PagesOf(after));
    for (int room = needed - FarFromBorder; room <= needed + FarFromBorder; ++room) {
        SCOPED_TRACE(std::to_string(room) + " of " + std::to_string(needed) + " pages are free");
        EXPECT_EQ(SaveInto(static_cast<std::size_t>(room), OldContent(), after), room >= needed);
        EXPECT_EQ(SaveInto(static_cast<std::size_t>(room), OldContent(), after, "other.txt"), room >= needed);
    }
}

TEST_F(FullDiskTest, WithNoRoomAtAllTheOldFileStays) {
    for (std::size_t room = 0; room < 3; ++room) {
        SCOPED_TRACE(std::to_string(room) + " pages are free");
        EXPECT_FALSE(SaveInto(room, OldContent(), ContentAfter(Edits)));
    }
}

TEST_F(FullDiskTest, AroundTheBorderOfAPageEveryByteCounts) {
    // A comment at the end makes the file as long as it is to be.
    const std::size_t border = (PagesOf(ContentAfter(Edits)) + 1) * PageSize;
    const std::size_t missing = border - ContentAfter(Edits).size();
    for (int distance = -3; distance <= 3; ++distance) {
        SCOPED_TRACE("the new file is " + std::to_string(distance) + " bytes beyond its room");
        const std::string end =
            "#" + std::string(static_cast<std::size_t>(static_cast<int>(missing) + distance - 3), 'x') + "\r\n";
        const std::string after = SavedWithoutFault(OldContent() + end, Edits);
        ASSERT_EQ(static_cast<int>(after.size()), static_cast<int>(border) + distance);
        EXPECT_EQ(SaveInto(border / PageSize, OldContent() + end, after), distance <= 0);
    }
}

TEST_F(FullDiskTest, WhereNoFurtherFileCanBeMadeTheOldOneStays) {
    const TmpfsMount full(disk, 100 * PagesOf(OldContent()), 1);
    PrepareDisk();
    Session session(place, EditAndSave());
    session.Finish();
    EXPECT_TRUE(session.Finished());
    EXPECT_FALSE(session.Reached("saved"));
    ExpectOldOrNew(session, place.file, OldContent(), OldContent());
}

TEST_F(FullDiskTest, OnADiskThatBecameReadOnlyTheOldFileStays) {
    TmpfsMount readOnly(disk, 100 * PagesOf(OldContent()));
    PrepareDisk();
    Session session(place, {"open", place.file, "edits", "1", std::to_string(Edits), "pause", "save", place.file});
    ASSERT_TRUE(session.WaitForStop());
    readOnly.MakeReadOnly();
    session.Continue();
    session.Finish();
    EXPECT_TRUE(session.Finished());
    EXPECT_FALSE(session.Reached("saved"));
    ExpectOldOrNew(session, place.file, OldContent(), OldContent());
}
