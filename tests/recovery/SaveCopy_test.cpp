#include "recovery/SaveCopy.h"

#include "recovery/RecoveryFile.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

const std::string Path = "/data/districts.txt";
const std::string Old = "what was there before";
const std::string New = "what is to be there from now on";

// A file that stays where it is, as a rule.
class SaveCopyTest : public testing::Test {
protected:
    SaveCopyTest() {
        desktop.files[Path] = Old;
        desktop.inPlace = {Path};
    }
    bool Write(const std::string& content = New) { return WriteFile(desktop, Path, content); }
    [[nodiscard]] const std::string& Content() { return desktop.files[Path]; }
    [[nodiscard]] const MemoryStateFolder::Storage& Kept() const { return *desktop.state.storage; }
    // The program dies while it overwrites the file, and another one starts.
    void DieWriting(const std::string& content = New) {
        desktop.diesOverwriting = true;
        EXPECT_THROW(Write(content), ScriptedDesktop::Killed);
        desktop.diesOverwriting = false;
        desktop.state.Die();
        EXPECT_NE(Content(), Old);
        EXPECT_NE(Content(), content);
    }
    void ExpectOffered(BoxAnswer answer, const std::string& path = Path) {
        desktop.ExpectBox("The editor was stopped on 05 Mar 2026 14:07 while it wrote this file, which may be "
                          "damaged:\r\n" +
                              path + "\r\nDo you want it to be written now, in place of what it holds?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo, answer);
    }
    void ExpectKeptForLater(const std::string& name) {
        desktop.ExpectBox("This file could not be written as a whole:\r\n" + Path +
                              "\r\nWhat it should hold is kept, and is offered when the editor is started or the file "
                              "is opened.  It is in\r\n/state/" +
                              name,
                          BoxIcon::Exclamation);
    }
    void ExpectNothingKept() const {
        EXPECT_TRUE(Kept().files.empty());
        EXPECT_TRUE(Kept().locks.empty());
    }

    ScriptedDesktop desktop;
};

} // namespace

// Writing

TEST_F(SaveCopyTest, AFileThatMayBeReplacedIsReplacedWithoutACopy) {
    desktop.inPlace.clear();
    desktop.state.canWrite = false;
    EXPECT_TRUE(Write());
    EXPECT_EQ(Content(), New);
}

TEST_F(SaveCopyTest, AFileThatStaysIsOverwrittenAndTheCopyGoes) {
    EXPECT_TRUE(Write());
    EXPECT_EQ(Content(), New);
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, TheCopyIsThereAndLockedBeforeTheFileIsTouched) {
    class Watched : public ScriptedDesktop {
    public:
        bool OverwriteFile(const std::string& path, std::string_view content) override {
            const auto copies = state.Kept(".copy");
            EXPECT_EQ(copies.size(), 1U);
            EXPECT_EQ(state.storage->files[copies.at(0)], "Quexal Editor, a file being written, version 1\n" +
                                                              IdentityLine({path, FingerprintOf(content)}) +
                                                              std::string(content));
            EXPECT_TRUE(state.storage->locks.contains(copies.at(0) + ".lock"));
            EXPECT_EQ(files[path], Old);
            return ScriptedDesktop::OverwriteFile(path, content);
        }
    } watched;
    watched.files[Path] = Old;
    watched.inPlace = {Path};
    EXPECT_TRUE(WriteFile(watched, Path, New));
}

TEST_F(SaveCopyTest, WithoutACopyTheFileIsNotTouched) {
    desktop.state.canWrite = false;
    EXPECT_FALSE(Write());
    EXPECT_EQ(Content(), Old);
    ExpectNothingKept();
    desktop.state.canWrite = true;
    desktop.state.canLock = false;
    EXPECT_FALSE(Write());
    EXPECT_EQ(Content(), Old);
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, WhereOverwritingFailsTheOldContentIsPutBack) {
    desktop.failingOverwrites = 1;
    EXPECT_FALSE(Write());
    EXPECT_EQ(Content(), Old);
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, WhereThatFailsTooTheCopyIsKeptAndOffered) {
    desktop.failingOverwrites = 2;
    ExpectKeptForLater("1001.copy");
    EXPECT_FALSE(Write());
    EXPECT_NE(Content(), Old);
    ExpectOffered(BoxAnswer::Yes);
    MendFile(desktop, Path);
    EXPECT_EQ(Content(), New);
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, ANewFileThatCannotBeMadeLeavesNoCopy) {
    desktop.files.clear();
    desktop.canWrite = false;
    EXPECT_FALSE(Write());
    EXPECT_TRUE(desktop.files.empty());
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, OfANewFileThatCouldNotBeRemovedTheCopyIsKept) {
    desktop.files.clear();
    desktop.failingOverwrites = 1;
    ExpectKeptForLater("1001.copy");
    EXPECT_FALSE(Write());
    ExpectOffered(BoxAnswer::Yes);
    MendFiles(desktop);
    EXPECT_EQ(Content(), New);
}

TEST_F(SaveCopyTest, ALaterSaveDropsACopyThatWasLeftOver) {
    DieWriting();
    EXPECT_TRUE(Write("newer"));
    MendFiles(desktop); // which asks nothing
    EXPECT_EQ(Content(), "newer");
    ExpectNothingKept();
    DieWriting();
    desktop.inPlace.clear();
    EXPECT_TRUE(Write("newest"));
    ExpectNothingKept();
}

// Mending

TEST_F(SaveCopyTest, AYesFinishesWhatWasInterrupted) {
    DieWriting();
    ExpectOffered(BoxAnswer::Yes);
    MendFiles(desktop);
    EXPECT_EQ(Content(), New);
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, ANoKeepsTheCopyAsideAndSaysWhere) {
    DieWriting();
    const std::string torn = Content();
    ExpectOffered(BoxAnswer::No);
    desktop.ExpectBox("What the file should have held is kept in\r\n/state/1001.copy.aside", BoxIcon::Exclamation);
    MendFiles(desktop);
    EXPECT_EQ(Content(), torn);
    EXPECT_TRUE(Kept().files.at("1001.copy.aside").ends_with(New));
    MendFiles(desktop); // which asks no more
    EXPECT_TRUE(Kept().locks.empty());
}

// Its disk may not be there, and what is made is then in another place.
TEST_F(SaveCopyTest, AFileThatIsNotThereIsMadeIfWantedAndTheCopyIsKept) {
    DieWriting();
    desktop.files.erase(Path);
    desktop.ExpectBox("The editor was stopped on 05 Mar 2026 14:07 while it wrote this file, which is not there "
                      "now:\r\n" +
                          Path + "\r\nDo you want it to be made there?",
                      BoxIcon::Question, BoxButtons::YesNoDefaultNo, BoxAnswer::Yes);
    desktop.ExpectBox("The file has been made.  Should its own place come back, what it holds is also "
                      "in\r\n/state/1001.copy.aside",
                      BoxIcon::Exclamation);
    MendFiles(desktop);
    EXPECT_EQ(Content(), New);
    EXPECT_TRUE(Kept().files.at("1001.copy.aside").ends_with(New));
}

TEST_F(SaveCopyTest, AFileThatIsWholeAlreadyIsNotAskedAbout) {
    DieWriting();
    desktop.files[Path] = New;
    MendFiles(desktop);
    EXPECT_EQ(Content(), New);
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, AFileThatCannotBeFinishedIsOfferedAgain) {
    DieWriting();
    desktop.canWrite = false;
    ExpectOffered(BoxAnswer::Yes);
    ExpectKeptForLater("1001.copy");
    MendFiles(desktop);
    desktop.canWrite = true;
    ExpectOffered(BoxAnswer::Yes);
    MendFiles(desktop);
    EXPECT_EQ(Content(), New);
}

TEST_F(SaveCopyTest, ADamagedCopyIsNeverWritten) {
    DieWriting();
    const std::string torn = Content();
    desktop.state.storage->files["1001.copy"].back() ^= 1;
    desktop.ExpectBox("The copy of a file that was being written is damaged.  It is kept in\r\n/state/1001.copy.aside",
                      BoxIcon::Exclamation);
    MendFiles(desktop);
    EXPECT_EQ(Content(), torn);
    EXPECT_EQ(desktop.state.Kept().size(), 1U);
}

TEST_F(SaveCopyTest, ACopyIsDamagedWhereverABitHasFlipped) {
    DieWriting();
    const std::string whole = desktop.state.storage->files.at("1001.copy");
    desktop.confirmsBoxes = true; // a Yes to every question
    for (std::size_t i = 0; i < whole.size(); ++i) {
        desktop.state.storage->files = {{"1.copy", whole}};
        desktop.state.storage->files["1.copy"][i] ^= 4;
        desktop.files[Path] = "torn";
        MendFiles(desktop);
        EXPECT_EQ(desktop.files, (std::map<std::string, std::string>{{Path, "torn"}})) << i;
        EXPECT_EQ(desktop.state.Kept(".aside").size(), 1U) << i;
    }
}

TEST_F(SaveCopyTest, ACopyThatALivingEditorHasIsLeftAlone) {
    desktop.diesOverwriting = true;
    EXPECT_THROW(Write(), ScriptedDesktop::Killed);
    ScriptedDesktop other;
    other.state.storage = desktop.state.storage;
    MendFiles(other);
    MendFile(other, Path);
    EXPECT_EQ(desktop.state.Kept(".copy").size(), 1U);
}

TEST_F(SaveCopyTest, ALockThatLostItsCopyGoes) {
    desktop.state.storage->files["1.copy.lock"];
    MendFiles(desktop);
    ExpectNothingKept();
}

TEST_F(SaveCopyTest, OnlyTheFileThatIsReadIsAskedAbout) {
    DieWriting();
    MendFile(desktop, "/data/other.txt");
    EXPECT_EQ(desktop.state.Kept(".copy").size(), 1U);
    EXPECT_TRUE(Kept().locks.empty());
    ExpectOffered(BoxAnswer::Yes);
    MendFile(desktop, Path);
    EXPECT_EQ(Content(), New);
}
