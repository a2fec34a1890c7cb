#include "commands/RestoreChanges.h"

#include "edit/EditTest.h"
#include "edit/Variations.h"
#include "file/DistrictFileWriter.h"
#include "recovery/LeftOvers.h"
#include "recovery/OpenMark.h"
#include "recovery/UnsavedChanges.h"
#include "support/Reading.h"
#include "support/RecoveryText.h"

using namespace CommonRoutines;
using namespace Commands;

namespace {

const std::string Content = HeaderOf("North") + "|Ash|Elm|Oak\r\n# note\r\n" + HeaderOf("South") + "|Yew\r\n";

// An editor that reads the file and finds what others have left in the state folder.
class RestoreChangesTest : public EditTest {
protected:
    // Puts a left-over recovery file into the folder.
    void Leave(const RecoveryFile& file, const std::string& name = "0001") {
        desktop.state.storage->files[name + ".changes"] = RecoveryText(file);
    }
    void Leave(const std::vector<SlotChange>& changes, const std::string& bytes = Content,
               const std::string& path = DataFilePath, const std::string& name = "0001") {
        RecoveryFile file;
        file.file = {path, FingerprintOf(bytes)};
        file.changes = changes;
        Leave(file, name);
    }
    void Open(const std::string& content = Content) {
        ReadText(desktop, content);
        RestoreChanges(desktop);
        Unsaved.Write(desktop); // as the end of a command does
    }
    void ExpectQuestion(BoxAnswer answer, const std::string& name = "0001") {
        desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                          BoxIcon::Question, BoxButtons::YesNoCancel, answer);
        if (answer == BoxAnswer::No) {
            desktop.ExpectBox("The changes are kept in\r\n/state/" + name +
                                  ".changes.aside\r\nThey are offered again when \".aside\" is taken off that name.",
                              BoxIcon::Information);
        }
    }
    void ExpectSetAside(const std::string& what) {
        desktop.ExpectBox(what + "  None of them has been made.  They are kept in\r\n/state/0001.changes.aside",
                          BoxIcon::Exclamation);
    }
    // Names are given in order: the mark of the open file has the first one.
    static std::string Own(int number = 1002) { return RecoveryName(number, DataFilePath); }
    void ExpectProblem(const std::string& problem, const std::string& name) {
        desktop.ExpectBox("There are unsaved changes to this file that cannot be had back now.\r\n" + problem +
                              ".\r\nThey stay in\r\n/state/" + name,
                          BoxIcon::Exclamation);
    }
    // Of the only variation of a district, which is null.
    void ExpectRepair(const std::string& answer) {
        desktop.ExpectChoice("District North has a null variation.\r\n"
                             "The invalid dependency is % and it is variation #1\r\n"
                             " As it is the only variation it can only be removed or replaced.\r\nRemove\r\n"
                             "Type = Type a complete replacement for this variation\r\n"
                             "Quit = Stop processing this file\r\n\r\n",
                             {"Remove", "Type", "Quit"}, answer);
    }
    void ExpectUntouched() {
        EXPECT_EQ(DistrictFileContent(), Content);
        EXPECT_FALSE(bChanged);
    }

    ScriptedDesktop desktop;
};

const std::string DoNotFit = "The unsaved changes of 05 Mar 2026 14:07 do not fit this file.";

} // namespace

TEST_F(RestoreChangesTest, AskNothingWhereNothingIsLeft) {
    Open();
    ExpectUntouched();
}

TEST_F(RestoreChangesTest, YesBringsThemBackAsUnsavedChanges) {
    Leave({{1, 2, "Fir", {}},
           {1, 4, "Ivy", {}},
           {3, 1, "\t", {}},
           {3, 2, "Larch", {}},
           {1, 4, "!Ivy", {}},
           {1, 5, "%Elm", {}}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(DistrictFileContent(),
              HeaderOf("North") + "|Ash|Fir|Oak|!Ivy|%Elm\r\n# note\r\n" + HeaderOf("South") + "|Larch\r\n");
    EXPECT_TRUE(bChanged);
    EXPECT_EQ(lCurrentDistrict, 0);
}

TEST_F(RestoreChangesTest, TheProblemsOfTheirDistrictsAreCountedAnew) {
    Leave({{1, 1, "ELM", {}}, {1, 4, "bad!", {}}, {3, 1, "%Yew", {}}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 1);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 1);
    EXPECT_EQ(DistrictAt(3).iDuplicateCount, 0);
    EXPECT_TRUE(VariationAt(1, 1).bDuplicate || VariationAt(1, 2).bDuplicate);
}

TEST_F(RestoreChangesTest, ThatAreBackAreThisEditorsOwn) {
    Leave({{1, 2, "Fir", {}}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(desktop.state.Kept(), Texts{Own()});
    StoreText(1, 1, "Larch");
    Unsaved.Write(desktop);
    desktop.state.Die();
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(Texts({VariationAt(1, 1).Text, VariationAt(1, 2).Text}), (Texts{"Larch", "Fir"}));
}

TEST_F(RestoreChangesTest, ThatCannotBeWrittenAnewStayWhereTheyWere) {
    Leave({{1, 2, "Fir", {}}});
    desktop.state.canWrite = false;
    ExpectQuestion(BoxAnswer::Yes);
    desktop.ExpectBox("Your changes cannot be written to the recovery file.  They are only safe once the file is "
                      "saved.\r\n/state/" +
                          Own(),
                      BoxIcon::Exclamation);
    Open();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes"});
    Unsaved.Remove(desktop);
    EXPECT_EQ(desktop.state.Kept(), Texts());
}

TEST_F(RestoreChangesTest, NoKeepsThemAside) {
    Leave({{1, 2, "Fir", {}}});
    ExpectQuestion(BoxAnswer::No);
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes.aside"});
    Open(); // asks no more
}

TEST_F(RestoreChangesTest, SetAsideAreOfferedAgainUnderTheirOldName) {
    Leave({{1, 2, "Fir", {}}});
    ExpectQuestion(BoxAnswer::No);
    Open();
    ASSERT_TRUE(desktop.state.Rename("0001.changes.aside", "0001.changes"));
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 2).Text, "Fir");
}

TEST_F(RestoreChangesTest, ThatAreUnwantedOnceMoreThoughACopyWasPutBackAreKeptAsideUnderAnotherName) {
    Leave({{1, 2, "Fir", {}}});
    desktop.state.storage->files["0001.changes.aside"] = "kept before";
    desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                      BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::No);
    desktop.ExpectBox("The changes are kept in\r\n/state/1002-0001.changes.aside\r\nThey are offered again when "
                      "\".aside\" is taken off that name.",
                      BoxIcon::Information);
    Open();
    EXPECT_EQ(desktop.state.storage->files["0001.changes.aside"], "kept before");
    EXPECT_EQ(desktop.state.Kept(".aside").size(), 2U);
    EXPECT_TRUE(RecoveryFiles(desktop.state).empty());
}

TEST_F(RestoreChangesTest, EscLeavesThemToBeOfferedAgain) {
    Leave({{1, 2, "Fir", {}}});
    for (int time = 0; time < 2; ++time) {
        ExpectQuestion(BoxAnswer::Cancel);
        Open();
        ExpectUntouched();
        EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes"});
        EXPECT_FALSE(desktop.state.storage->locks.contains("0001.changes.lock"));
    }
}

TEST_F(RestoreChangesTest, LeftTwiceByAnEditorThatWasStoppedWhileItTookThemOverAreOfferedOnce) {
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
        desktop.state.storage->files.clear();
        Leave({{1, 2, "Fir", {}}}, Content, DataFilePath, "0001");
        RecoveryFile both;
        both.file = {DataFilePath, FingerprintOf(Content)};
        both.changes = {{1, 2, "Fir", {}}, {1, 4, "Ivy", {}}};
        both.holds = {"0001.changes"};
        Leave(both, "0002");
        ExpectQuestion(answer, "0002");
        Open();
        EXPECT_EQ(desktop.state.Kept().size(), 1U);
        EXPECT_FALSE(desktop.state.storage->locks.contains("0001.changes.lock"));
    }
    EXPECT_EQ(VariationAt(1, 4).Text, "Ivy");
}

TEST_F(RestoreChangesTest, OfTheSameBytesElsewhereAreOfferedWithTheirPath) {
    const auto expectQuestion = [&](BoxAnswer answer) {
        desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 (made to " +
                              Wording::OfPath("/data/before it was moved \xC4\x8D.txt") +
                              ").  That file had the same content as this one.\r\nDo you want them in this file?",
                          BoxIcon::Question, BoxButtons::YesNoCancel, answer);
    };
    Leave({{1, 2, "Fir", {}}}, Content, "/data/before it was moved \xC4\x8D.txt");
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Cancel}) {
        expectQuestion(answer);
        if (answer == BoxAnswer::No) {
            desktop.ExpectBox("The changes stay for the file to which they were made.  They are "
                              "in\r\n/state/0001.changes",
                              BoxIcon::Information);
        }
        Open();
        EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes"});
    }
    expectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 2).Text, "Fir");
    EXPECT_EQ(desktop.state.Kept(), Texts{Own(1004)});
}

TEST_F(RestoreChangesTest, OfOtherFilesAreFreeWhileOthersAreAskedAbout) {
    class Watching : public ScriptedDesktop {
    public:
        std::set<std::string> locksAtQuestion;
        BoxAnswer MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons) override {
            locksAtQuestion = state.storage->locks;
            return ScriptedDesktop::MsgBox(text, icon, buttons);
        }
    } watching;
    Leave({{1, 2, "Fir", {}}}, "other bytes", "/data/other.txt", "0002");
    Leave({{1, 2, "Fir", {}}});
    watching.state.storage = desktop.state.storage;
    watching.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                       BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Cancel);
    ReadText(watching, Content);
    RestoreChanges(watching);
    Unsaved.Write(watching);
    EXPECT_TRUE(watching.locksAtQuestion.contains("0001.changes.lock"));
    EXPECT_FALSE(watching.locksAtQuestion.contains("0002.changes.lock"));
}

TEST_F(RestoreChangesTest, OfOtherFilesAreLeftAlone) {
    Leave({{1, 2, "Fir", {}}}, "other bytes", "/data/other.txt");
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes"});
    EXPECT_FALSE(desktop.state.storage->locks.contains("0001.changes.lock"));
}

TEST_F(RestoreChangesTest, OfAnEarlierStateAreSetAside) {
    Leave({{1, 2, "Fir", {}}}, "bytes of yesterday");
    ExpectSetAside("There are unsaved changes of 05 Mar 2026 14:07 to an earlier state of this file.");
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes.aside"});
}

TEST_F(RestoreChangesTest, ThatTheFileHasSinceTheyWereSavedAreSetAsideUnasked) {
    Leave({{1, 2, "Fir", {}}}, "bytes of yesterday");
    RecoveryFile saved = *ParseRecoveryFile(*desktop.state.Read("0001.changes"));
    saved.savedAs = {"/data/whatever.txt", FingerprintOf(Content)};
    Leave(saved);
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes.aside"});
}

TEST_F(RestoreChangesTest, MadeAfterAnAttemptToSaveAreNotTakenForSaved) {
    Leave({{1, 2, "Fir", {}}}, "bytes of yesterday");
    RecoveryRecords records({DataFilePath, FingerprintOf("bytes of yesterday")}, Encoding::Windows1252);
    records.AddSaving({DataFilePath, FingerprintOf(Content)});
    records.AddChange({1, 3, "Larch", {}});
    desktop.state.storage->files["0001.changes"] = records.Content();
    ExpectSetAside("There are unsaved changes of 05 Mar 2026 14:07 to an earlier state of this file.");
    Open();
    ExpectUntouched();
}

TEST_F(RestoreChangesTest, OfASaveThatDidNotComeAboutAreOffered) {
    Leave({{1, 2, "Fir", {}}});
    RecoveryFile saving = *ParseRecoveryFile(*desktop.state.Read("0001.changes"));
    saving.savedAs = {DataFilePath, FingerprintOf("never written")};
    Leave(saving);
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 2).Text, "Fir");
}

TEST_F(RestoreChangesTest, WhoseHeaderIsDamagedAreSetAside) {
    Leave({{1, 2, "Fir", {}}, {1, 1, "Larch", {}}});
    desktop.state.storage->files["0001.changes"][70] ^= 1;
    ExpectSetAside("The recovery file with unsaved changes of 05 Mar 2026 14:07 is damaged.");
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes.aside"});
}

TEST_F(RestoreChangesTest, ThatAreDamagedAreOfferedUpToThere) {
    Leave({{1, 2, "Fir", {}}, {1, 1, "Larch", {}}, {1, 3, "Ivy", {}}});
    std::string& content = desktop.state.storage->files["0001.changes"];
    content[content.find("Larch")] ^= 1;
    const std::string damaged = content;
    desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?\r\n"
                      "Their file is damaged: only the first can be had.  Their file is kept aside.",
                      BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(1), (Texts{"Ash", "Fir", "Oak"}));
    EXPECT_EQ(desktop.state.Kept(), (Texts{"0001.changes.aside", Own()}));
    EXPECT_EQ(desktop.state.Read("0001.changes.aside"), damaged);
}

TEST_F(RestoreChangesTest, ThatAreDamagedAreCounted) {
    Leave({{1, 2, "Fir", {}}, {1, 1, "Larch", {}}, {1, 3, "Ivy", {}}});
    std::string& content = desktop.state.storage->files["0001.changes"];
    content[content.find("Ivy")] ^= 1;
    desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?\r\n"
                      "Their file is damaged: only the first 2 can be had.  Their file is kept aside.",
                      BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(1), (Texts{"Larch", "Fir", "Oak"}));
}

TEST_F(RestoreChangesTest, ThatAreDamagedFromTheFirstOneOnAreSetAside) {
    Leave({{1, 2, "Fir", {}}});
    std::string& content = desktop.state.storage->files["0001.changes"];
    content[content.find("Fir")] ^= 1;
    ExpectSetAside("The unsaved changes of 05 Mar 2026 14:07 are damaged from the first one on.");
    Open();
    ExpectUntouched();
}

TEST_F(RestoreChangesTest, OfANewerVersionAreNamedAndStay) {
    const std::string name = Own(1);
    desktop.state.storage->files[name] = "Quexal Editor, unsaved changes, version 3\nwhatever\n";
    ExpectProblem("A newer version of this program has written it", name);
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{name});
    EXPECT_FALSE(desktop.state.storage->locks.contains(name + ".lock"));
}

TEST_F(RestoreChangesTest, ThatCannotBeLockedOrReadAreNamedWithTheReasonAndStay) {
    Leave({{1, 2, "Fir", {}}});
    desktop.state.canLock = false;
    ExpectProblem("Permission denied", "0001.changes");
    Open();
    ExpectUntouched();
    desktop.state.canLock = true;
    desktop.state.unreadable = {"0001.changes"};
    ExpectProblem("Input/output error", "0001.changes");
    Open();
    ExpectUntouched();
    desktop.state.unreadable.clear();
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 2).Text, "Fir");
}

TEST_F(RestoreChangesTest, OfAnotherFileThatCannotBeReadAreNotNamed) {
    const std::string name = RecoveryName(1, "/data/other.txt");
    desktop.state.storage->files[name] = "any";
    desktop.state.unreadable = {name};
    Open();
    ExpectUntouched();
}

TEST_F(RestoreChangesTest, ThatCannotBeListedAreNamedAsWell) {
    Leave({{1, 2, "Fir", {}}});
    desktop.state.canList = false;
    desktop.ExpectBox("It cannot be told whether there are unsaved changes to this file.\r\nToo many open files."
                      "\r\n/state/",
                      BoxIcon::Exclamation);
    Open();
    ExpectUntouched();
}

TEST_F(RestoreChangesTest, OfWhichOneDoesNotFitAreNotMadeAtAll) {
    const SlotChange misfits[] = {{2, 1, "Fir", {}}, {4, 1, "Fir", {}}, {2147483647, 1, "Fir", {}},
                                  {1, 5, "Fir", {}}, {3, 3, "Fir", {}}, {1, 2147483647, "Fir", {}},
                                  {1, 4, "Fir", 4},  {1, 3, "Fir", 1},  {1, 4, "Fir", 2147483647}};
    for (const SlotChange& misfit : misfits) {
        Leave({{1, 1, "Larch", {}}, misfit, {1, 2, "Fir", {}}});
        desktop.state.storage->files.erase("0001.changes.aside");
        ExpectSetAside(DoNotFit);
        Open();
        ExpectUntouched();
        desktop.CheckDone();
    }
}

TEST_F(RestoreChangesTest, MayNameASlotOnceAnEarlierOneHasMadeIt) {
    Leave({{3, 2, "Fir", {}}, {3, 3, "Larch", {}}, {3, 3, "Ivy", {}}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(3), (Texts{"Yew", "Fir", "Ivy"}));
}

TEST_F(RestoreChangesTest, WithoutAnyAreRemovedUnasked) {
    Leave(std::vector<SlotChange>());
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts());
}

TEST_F(RestoreChangesTest, TheLatestAreAskedAboutFirst) {
    Leave({{1, 1, "Older", {}}}, Content, DataFilePath, "0001");
    Leave({{1, 1, "Newer", {}}}, Content, DataFilePath, "0002");
    ExpectQuestion(BoxAnswer::No, "0002");
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 1).Text, "Older");
    EXPECT_EQ(desktop.state.Kept(".aside").size(), 1U);
}

// Of one variation the later change counts; what was added by either is there.
TEST_F(RestoreChangesTest, OfTwoEditorsCanBothBeHadBack) {
    Leave({{1, 1, "Older", {}}, {1, 2, "Fir", {}}, {1, 4, "Ivy", {}}, {1, 4, "!Ivy", {}}}, Content, DataFilePath,
          "0001");
    Leave({{1, 1, "Newer", {}}, {1, 4, "Larch", {}}, {3, 2, "Oak", {}}}, Content, DataFilePath, "0002");
    ExpectQuestion(BoxAnswer::Yes, "0002");
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(1), (Texts{"Newer", "Fir", "Oak", "!Ivy", "Larch"}));
    EXPECT_EQ(SlotsOf(3), (Texts{"Yew", "Oak"}));
    EXPECT_EQ(desktop.state.Kept().size(), 1U); // of this editor's own
}

TEST_F(RestoreChangesTest, OfALivingEditorAreNotTouchedAndTheSecondEditorIsTold) {
    ScriptedDesktop first;
    first.state.storage = desktop.state.storage;
    OpenMark mark;
    ASSERT_FALSE(mark.Set(first, DataFilePath));
    ReadText(first, Content);
    UnsavedChanges theirs;
    theirs.Begin(first, DataFilePath, FingerprintOf(Content), Numbering::AsRead);
    theirs.Note(1, 1, "Theirs");
    theirs.Write(first);
    const auto before = desktop.state.storage->files;

    desktop.ExpectBox("Another editor has this file open.  What is saved last replaces what was saved before.",
                      BoxIcon::Exclamation);
    Open();
    ExpectUntouched();
    StoreText(1, 1, "Mine");
    Unsaved.Write(desktop);
    for (const auto& [name, content] : before) {
        EXPECT_EQ(desktop.state.Read(name), content) << name;
    }
    EXPECT_EQ(desktop.state.Kept().size(), 2U);
}

TEST_F(RestoreChangesTest, RepairsMadeWhileReadingAreAmongThem) {
    const std::string content = HeaderOf("North") + "|%\r\n";
    ExpectRepair("Type");
    desktop.ExpectInput("Please enter a replacement for the variation %", "Fir");
    Open(content);
    desktop.state.Die();
    ExpectRepair("Remove");
    ExpectQuestion(BoxAnswer::Yes);
    Open(content);
    EXPECT_EQ(SlotsOf(1), Texts{"Fir"});
}

// A line is repaired in one way or in another, never half in each.
TEST_F(RestoreChangesTest, ThatBeganWithAnotherRepairReplaceTheOneOfThisReading) {
    const std::string content = HeaderOf("North") + "|Elm|%|12\r\n";
    const auto expectRepair = [&](const std::string& answer) {
        desktop.ExpectChoice("District North has a null variation.\r\n"
                             "The invalid dependency is % and it is variation #2\r\n"
                             "With the preceding and following variations the string is...\r\nElm|%|12\r\n\r\n"
                             "Combined with the previous gives an invalid variation\r\n\r\n"
                             "Combine Next = Elm|%12\r\nRemove = Elm|12\r\n"
                             "Type = Type a complete replacement for this variation\r\n"
                             "Quit = Stop processing this file\r\n",
                             {"Combine Next", "Remove", "Type", "Quit"}, answer);
    };
    desktop.recordReports = true;
    expectRepair("Remove");
    Open(content);
    const Texts before = SlotsOf(1);
    desktop.state.Die();
    expectRepair("Combine Next");
    ExpectQuestion(BoxAnswer::Yes);
    Open(content);
    EXPECT_EQ(SlotsOf(1), before);
}

TEST_F(RestoreChangesTest, MayBringAVariationBackBetweenTwoOthers) {
    Leave({{1, 4, "Fir", 1}, {1, 5, "Ivy", 0}, {1, 6, "Larch", 4}, {1, 4, "Fir Tree", {}}, {1, 7, "Yew", {}}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    const Texts expected{"Ivy", "Ash", "Fir Tree", "Larch", "Elm", "Oak", "Yew"};
    EXPECT_EQ(SlotsOf(1), expected);
    // What is changed afterwards comes back in its place, too.
    StoreText(1, 3, DeletedText);
    StoreText(1, 5, "Elms");
    AddSlot(1, "Box");
    Unsaved.Write(desktop);
    desktop.state.Die();
    desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                      BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(1), (Texts{"Ivy", "Ash", "\t", "Larch", "Elms", "Oak", "Yew", "Box"}));
}

TEST_F(RestoreChangesTest, OfTwoFilesStandEachInItsPlace) {
    Leave({{1, 4, "Fir", 1}, {1, 5, "Ivy", 4}}, Content, DataFilePath, "0001");
    Leave({{1, 4, "Box", 1}, {1, 5, "Yew", {}}, {1, 6, "Larch", 4}}, Content, DataFilePath, "0002");
    ExpectQuestion(BoxAnswer::Yes, "0002");
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(1), (Texts{"Ash", "Box", "Larch", "Fir", "Ivy", "Elm", "Oak", "Yew"}));
}

// A thousand files, each with the same change a thousand times, are looked through in no time.
TEST_F(RestoreChangesTest, MadeToTakeLongTakeNoTime) {
    const std::vector<SlotChange> changes(1000, SlotChange{1, 1, "Ash", {}});
    for (int i = 0; i < 1000; ++i) {
        Leave(changes, Content, DataFilePath, "1" + std::to_string(i));
        desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                          BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Cancel);
    }
    Leave(std::vector<SlotChange>(200'000, SlotChange{1, 4, "Fir", {}}), Content, DataFilePath, "0001");
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(1), (Texts{"Ash", "Elm", "Oak", "Fir"}));
}

// The last letter beyond ASCII had gone from the file, but not from the editor.
TEST_F(RestoreChangesTest, ChangesInUtf8ComeBackWholeToAFileOfWhichOnlyAsciiIsLeft) {
    RecoveryFile file;
    file.file = {DataFilePath, FingerprintOf(Content)};
    file.encoding = Encoding::Utf8;
    file.changes = {{1, 1, "D\xC5\xB5r", {}}};
    Leave(file);
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 1).Text, "D\xC5\xB5r");
    EXPECT_EQ(eFileEncoding, Encoding::Utf8);
}

TEST_F(RestoreChangesTest, ChangesInAnotherEncodingKeepTheirCharacters) {
    const std::string utf8 = HeaderOf("D\xC5\xB5r") + "|Ash\r\n";
    RecoveryFile file;
    file.file = {DataFilePath, FingerprintOf(utf8)};
    file.changes = {{1, 1, "Caf\xE9", {}}};
    Leave(file);
    ExpectQuestion(BoxAnswer::Yes);
    Open(utf8);
    EXPECT_EQ(VariationAt(1, 1).Text, "Caf\xC3\xA9");
}

TEST_F(RestoreChangesTest, WithCharactersThatTheFileCannotHoldAreSetAside) {
    const std::string content = HeaderOf("North") + "|Caf\xE9\r\n";
    RecoveryFile file;
    file.file = {DataFilePath, FingerprintOf(content)};
    file.encoding = Encoding::Utf8;
    file.changes = {{1, 1, "D\xC5\xB5r", {}}};
    Leave(file);
    ExpectSetAside("The unsaved changes of 05 Mar 2026 14:07 have characters that this file cannot hold.");
    Open(content);
    EXPECT_EQ(DistrictFileContent(), content);
}

TEST_F(RestoreChangesTest, InUtf8AreWrittenAnewTogetherWithRepairsInAscii) {
    const std::string content = HeaderOf("North") + "|%\r\n" + HeaderOf("South") + "|Yew\r\n";
    RecoveryFile file;
    file.file = {DataFilePath, FingerprintOf(content)};
    file.encoding = Encoding::Utf8;
    file.changes = {{2, 1, "D\xC5\xB5r", {}}};
    Leave(file);
    ExpectRepair("Remove");
    ExpectQuestion(BoxAnswer::Yes);
    Open(content);
    const auto written = ParseRecoveryFile(desktop.state.storage->files[Own(1001)]);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->encoding, Encoding::Utf8);
    EXPECT_EQ(written->changes, (std::vector<SlotChange>{{1, 1, "\t", {}}, {2, 1, "D\xC5\xB5r", {}}}));
    EXPECT_EQ(written->holds, std::vector<std::string>{"0001.changes"});
}
