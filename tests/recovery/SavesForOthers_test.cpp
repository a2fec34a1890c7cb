// Changes that somebody else has made to a file which is saved meanwhile.

#include "recovery/SavesForOthers.h"

#include "commands/RestoreChanges.h"
#include "edit/EditTest.h"
#include "edit/Variations.h"
#include "file/DistrictFileWriter.h"
#include "recovery/OpenMark.h"
#include "recovery/UnsavedChanges.h"
#include "support/Reading.h"
#include "support/RecoveryText.h"

using namespace CommonRoutines;

namespace {

const std::string Content = HeaderOf("North") + "|Ash|Elm|Oak|Yew\r\n# note\r\n" + HeaderOf("South") + "||Ivy\r\n";
const std::string Theirs = "0001.changes";

class SavesForOthersTest : public EditTest {
protected:
    // What another editor has made of the file.
    void Leave(const std::vector<SlotChange>& changes) {
        RecoveryFile file;
        file.file = {DataFilePath, FingerprintOf(Content)};
        file.changes = changes;
        desktop.state.storage->files[Theirs] = RecoveryText(file);
    }
    // Opens the file, of which nobody can have the changes.
    void OpenWithoutThem(const std::string& content = Content) {
        desktop.recordReports = true;
        ASSERT_EQ(other.Lock(Theirs + ".lock"), LockResult::Taken);
        ReadText(desktop, content);
        Commands::RestoreChanges(desktop);
    }
    void Save() {
        Unsaved.Write(desktop);
        desktop.ExpectSave(DataFilePath);
        desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
        SaveDistrictFile(desktop);
    }
    // The other editor dies, and somebody wants its changes.
    std::string OpenWithThem(const std::string& missing = "") {
        other.Unlock(Theirs + ".lock");
        desktop.state.Die();
        desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?" +
                              missing,
                          BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes);
        ReadText(desktop, std::string(desktop.files[DataFilePath]));
        Commands::RestoreChanges(desktop);
        Unsaved.Write(desktop);
        return DistrictFileContent();
    }

    ScriptedDesktop desktop;
    MemoryStateFolder other{desktop.state.storage};
};

} // namespace

TEST_F(SavesForOthersTest, ChangesOfALivingEditorAreMadeToWhatWasSavedMeanwhile) {
    Leave({{1, 1, "Ashes", {}}, {1, 3, "Oaks", {}}, {1, 4, "Yews", {}}, {1, 5, "New", {}}, {3, 2, "Ivies", {}}});
    OpenWithoutThem();
    StoreText(1, 2, DeletedText);
    StoreText(1, 4, "Yew Tree");
    AddSlot(1, "Mine");
    Save();
    ASSERT_EQ(desktop.files[DataFilePath],
              HeaderOf("North") + "|Ash|Oak|Yew Tree|Mine\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
    // Of a variation that both have changed the saved text counts, and the other one is kept.
    EXPECT_EQ(OpenWithThem("\r\n1 more is left out: it is about what has been changed and saved since.  Their file is "
                           "kept aside."),
              HeaderOf("North") + "|Ashes|Oaks|Yew Tree|Mine|New\r\n# note\r\n" + HeaderOf("South") + "|Ivies\r\n");
    EXPECT_EQ(desktop.state.Kept(".aside"), Texts{Theirs + ".aside"});
}

TEST_F(SavesForOthersTest, ChangesThatAreLeftOutAreCounted) {
    Leave({{1, 1, "Ashes", {}}, {1, 3, "Oaks", {}}, {1, 4, "Yews", {}}});
    OpenWithoutThem();
    StoreText(1, 3, "Oak Tree");
    StoreText(1, 4, "Yew Tree");
    Save();
    EXPECT_EQ(
        OpenWithThem("\r\n2 more are left out: they are about what has been changed and saved since.  Their file is "
                     "kept aside."),
        HeaderOf("North") + "|Ashes|Elm|Oak Tree|Yew Tree\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
}

TEST_F(SavesForOthersTest, WhatWasAddedAndTakenBackBeforeTheSaveHidesNothing) {
    Leave({{1, 5, "New", {}}, {3, 3, "South New", {}}});
    OpenWithoutThem();
    StoreText(1, AddSlot(1, "Mine"), DeletedText);
    StoreText(3, 2, "Ivies");
    Save();
    EXPECT_EQ(OpenWithThem(),
              HeaderOf("North") + "|Ash|Elm|Oak|Yew|New\r\n# note\r\n" + HeaderOf("South") + "|Ivies|South New\r\n");
}

TEST_F(SavesForOthersTest, WhatWasHadBackBeforeTheSaveHidesNothing) {
    Leave({{1, 5, "New", {}}, {1, 6, "After Ash", 1}});
    const std::string mine = "0002.changes";
    RecoveryFile file;
    file.file = {DataFilePath, FingerprintOf(Content)};
    file.changes = {{1, 5, "Mine", {}}, {1, 6, "Inserted", 2}};
    desktop.state.storage->files[mine] = RecoveryText(file);
    desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                      BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes);
    OpenWithoutThem();
    Save();
    EXPECT_EQ(OpenWithThem(), HeaderOf("North") + "|Ash|After Ash|Elm|Inserted|Oak|Yew|Mine|New\r\n# note\r\n" +
                                  HeaderOf("South") + "|Ivy\r\n");
}

// Its file could not be removed when that was done.
TEST_F(SavesForOthersTest, WhatWasTakenOverAndSavedIsNotOfferedOnceMore) {
    class Stubborn : public MemoryStateFolder {
    public:
        bool Remove(const std::string& name) override { return name != Theirs && MemoryStateFolder::Remove(name); }
    };
    class StubbornDesktop : public ScriptedDesktop {
    public:
        Stubborn folder;
        StateFolder& State() override { return folder; }
    } stubborn;
    stubborn.folder.storage = desktop.state.storage;
    Leave({{1, 5, "New", {}}});
    stubborn.recordReports = true;
    stubborn.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                       BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes);
    ReadText(stubborn, Content);
    Commands::RestoreChanges(stubborn);
    Unsaved.Write(stubborn);
    stubborn.ExpectSave(DataFilePath);
    stubborn.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    SaveDistrictFile(stubborn);
    stubborn.folder.Die();
    ASSERT_TRUE(desktop.state.storage->files.contains(Theirs));

    desktop.recordReports = true;
    ReadText(desktop, std::string(stubborn.files[DataFilePath]));
    Commands::RestoreChanges(desktop);
    EXPECT_EQ(SlotsOf(1), (Texts{"Ash", "Elm", "Oak", "Yew", "New"}));
    EXPECT_FALSE(desktop.state.storage->files.contains(Theirs));
}

TEST_F(SavesForOthersTest, ChangesThatWereSetAsideFitWhatWasSavedSince) {
    Leave({{1, 1, "Ashes", {}}});
    ASSERT_TRUE(desktop.state.Rename(Theirs, Theirs + ".aside"));
    OpenWithoutThem();
    StoreText(1, 2, DeletedText);
    Save();
    ASSERT_TRUE(desktop.state.Rename(Theirs + ".aside", Theirs));
    EXPECT_EQ(OpenWithThem(), HeaderOf("North") + "|Ashes|Oak|Yew\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
}

TEST_F(SavesForOthersTest, SoDoThoseOfAnEditorThatHadNoneYetWhenItWasSaved) {
    OpenMark mark;
    ScriptedDesktop second;
    second.state.storage = desktop.state.storage;
    ASSERT_FALSE(mark.Set(second, DataFilePath));
    desktop.ExpectBox("Another editor has this file open.  What is saved last replaces what was saved before.",
                      BoxIcon::Exclamation);
    OpenWithoutThem();
    StoreText(1, 2, DeletedText);
    Save();
    mark.Clear(second);
    Leave({{1, 1, "Ashes", {}}});
    EXPECT_EQ(OpenWithThem(), HeaderOf("North") + "|Ashes|Oak|Yew\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
}

TEST_F(SavesForOthersTest, TheyAreMadeAfterSeveralSavesAsWell) {
    Leave({{1, 4, "Yews", {}}, {1, 5, "After Elm", 2}, {1, 6, "New", {}}, {1, 6, "Newer", {}}});
    OpenWithoutThem();
    StoreText(1, 2, DeletedText);
    Save();
    StoreText(1, 1, DeletedText);
    AddSlot(1, "Mine");
    Save();
    StoreText(1, 2, "Elm"); // back again
    Save();
    EXPECT_EQ(OpenWithThem(),
              HeaderOf("North") + "|After Elm|Elm|Oak|Yews|Mine|Newer\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
}

TEST_F(SavesForOthersTest, ASaveThatChangesNoMoreThanTheBlankVariationsIsKeptToo) {
    Leave({{3, 2, "Ivies", {}}, {3, 3, "New", {}}});
    OpenWithoutThem();
    Save();
    EXPECT_EQ(OpenWithThem(),
              HeaderOf("North") + "|Ash|Elm|Oak|Yew\r\n# note\r\n" + HeaderOf("South") + "|Ivies|New\r\n");
}

TEST_F(SavesForOthersTest, ATextThatWasSavedAsSeveralVariationsIsCounted) {
    Leave({{1, 3, "Oaks", {}}, {1, 5, "New", {}}});
    OpenWithoutThem();
    StoreText(1, 1, "Ash|Fir");
    Save();
    EXPECT_EQ(OpenWithThem(),
              HeaderOf("North") + "|Ash|Fir|Elm|Oaks|Yew|New\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
}

TEST_F(SavesForOthersTest, NothingIsKeptWhereNobodyHasChanges) {
    desktop.recordReports = true;
    ReadText(desktop, Content);
    Commands::RestoreChanges(desktop);
    AddSlot(1, "Mine");
    Save();
    EXPECT_EQ(desktop.state.Kept(), Texts());
}

TEST_F(SavesForOthersTest, WhatIsKeptGoesOnceTheChangesAreHadBack) {
    Leave({{1, 1, "Ashes", {}}});
    OpenWithoutThem();
    StoreText(1, 2, DeletedText);
    Save();
    EXPECT_EQ(desktop.state.Kept(".saved").size(), 1U);
    OpenWithThem();
    Save();
    ReadText(desktop, std::string(desktop.files[DataFilePath]));
    Commands::RestoreChanges(desktop);
    EXPECT_EQ(desktop.state.Kept(), Texts());
}

// Another program has written the file since.
TEST_F(SavesForOthersTest, OfAStateThatNoSaveLedToTheyAreSetAside) {
    Leave({{1, 1, "Ashes", {}}});
    OpenWithoutThem();
    StoreText(1, 2, DeletedText);
    Save();
    other.Unlock(Theirs + ".lock");
    desktop.state.Die();
    desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to an earlier state of this file.  None of them "
                      "has been made.  They are kept in\r\n/state/0001.changes.aside",
                      BoxIcon::Exclamation);
    ReadText(desktop, Content + "\r\n");
    Commands::RestoreChanges(desktop);
    EXPECT_FALSE(bChanged);
}

// Its editor died, and the file was moved, with those bytes.
TEST_F(SavesForOthersTest, ChangesToAFileThatWasMovedAndThatAreNotWantedYetSurviveASaveOfIt) {
    RecoveryFile file;
    file.file = {"/data/before.txt", FingerprintOf(Content)};
    file.changes = {{1, 3, "Oaks", {}}};
    desktop.state.storage->files[Theirs] = RecoveryText(file);
    const auto expectQuestion = [&](BoxAnswer answer) {
        desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 (made to /data/before.txt).  That file had "
                          "the same content as this one.\r\nDo you want them in this file?",
                          BoxIcon::Question, BoxButtons::YesNoCancel, answer);
    };
    desktop.recordReports = true;
    expectQuestion(BoxAnswer::Cancel);
    ReadText(desktop, Content);
    Commands::RestoreChanges(desktop);
    for (const char* text : {"Elms", "Elm Tree"}) { // and of one more save
        StoreText(1, 2, text);
        Save();
    }
    desktop.state.Die();
    for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::Yes}) {
        expectQuestion(answer);
        ReadText(desktop, std::string(desktop.files[DataFilePath]));
        Commands::RestoreChanges(desktop);
    }
    EXPECT_EQ(DistrictFileContent(),
              HeaderOf("North") + "|Ash|Elm Tree|Oaks|Yew\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
}

TEST_F(SavesForOthersTest, ASaveThatCannotBeKeptIsAskedAbout) {
    Leave({{1, 3, "Oaks", {}}});
    OpenWithoutThem();
    StoreText(1, 2, "Elms");
    Unsaved.Write(desktop);
    desktop.state.canWrite = false;
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
        desktop.ExpectSave(DataFilePath);
        if (answer == BoxAnswer::No) { // told once for an outage
            desktop.ExpectBox(
                "Your changes cannot be written to the recovery file.  They are only safe once the file is "
                "saved.\r\n/state/" +
                    Unsaved.Name(),
                BoxIcon::Exclamation);
        }
        desktop.ExpectBox("There may be unsaved changes to this file that were not taken up.  What this save changes "
                          "cannot be noted beside them, so that they would not fit the file any more.  They are "
                          "in\r\n/state/\r\nDo you want to save all the same?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo, answer);
        if (answer == BoxAnswer::Yes) {
            desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
        }
        SaveDistrictFile(desktop);
        EXPECT_EQ(desktop.files[DataFilePath] == Content, answer == BoxAnswer::No);
    }
}

TEST_F(SavesForOthersTest, ThatCannotBeReadNowLeaveTheChangesWhereTheyAre) {
    Leave({{1, 3, "Oaks", {}}});
    OpenWithoutThem();
    StoreText(1, 2, "Elms");
    Save();
    other.Unlock(Theirs + ".lock");
    desktop.state.Die();
    desktop.state.unreadable = {desktop.state.Kept(".saved").front()};
    desktop.ExpectBox("There are unsaved changes to this file that cannot be had back now.\r\nInput/output "
                      "error.\r\nThey stay in\r\n/state/" +
                          Theirs,
                      BoxIcon::Exclamation);
    ReadText(desktop, std::string(desktop.files[DataFilePath]));
    Commands::RestoreChanges(desktop);
    desktop.state.unreadable.clear();
    EXPECT_EQ(OpenWithThem(), HeaderOf("North") + "|Ash|Elms|Oaks|Yew\r\n# note\r\n" + HeaderOf("South") + "|Ivy\r\n");
}

TEST_F(SavesForOthersTest, AreWantedWhereItCannotBeToldWhetherThereAreOthers) {
    SavesForOthers saves(desktop.state, DataFilePath);
    EXPECT_FALSE(saves.AreWanted({}, {}));
    desktop.state.canList = false;
    EXPECT_TRUE(saves.AreWanted({}, {}));
}
