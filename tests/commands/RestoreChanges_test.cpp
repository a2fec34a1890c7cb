#include "commands/RestoreChanges.h"

#include "edit/EditTest.h"
#include "edit/Variations.h"
#include "file/DistrictFileWriter.h"
#include "recovery/OpenMark.h"
#include "recovery/UnsavedChanges.h"
#include "support/Reading.h"

using namespace CommonRoutines;
using namespace Commands;

namespace {

const std::string Content = HeaderOf("North") + "|Ash|Elm|Oak\r\n# note\r\n" + HeaderOf("South") + "|Yew\r\n";

// An editor that reads the file and finds what others have left in the state folder.
class RestoreChangesTest : public EditTest {
protected:
    // Puts a left-over recovery file into the folder.
    void Leave(const std::vector<SlotChange>& changes, const std::string& bytes = Content,
               const std::string& path = DataFilePath, const std::string& name = "0001") {
        std::string content = RecoveryHeader(IdentityOf(path, bytes));
        for (const SlotChange& change : changes) {
            content += RecoveryRecord(change.line, change.slot, change.text);
        }
        desktop.state.storage->files[name + ".changes"] = content;
    }
    void Open(const std::string& content = Content) {
        ReadText(desktop, content);
        RestoreChanges(desktop);
        Unsaved.Write(desktop); // as the end of a command does
    }
    void ExpectQuestion(BoxAnswer answer) {
        desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                          BoxIcon::Question, BoxButtons::YesNo, answer);
    }
    // Names are given in order: the mark of the open file has the first one.
    void ExpectSetAside(const std::string& what, const std::string& name = "1002") {
        desktop.ExpectBox(what + "  None of them has been made.  They are kept in\r\n/state/" + name + ".aside",
                          BoxIcon::Exclamation);
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
    Leave({{1, 2, "Fir"}, {1, 4, "Ivy"}, {3, 1, "\t"}, {3, 2, "Larch"}, {1, 4, "!Ivy"}, {1, 5, "%Elm"}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(DistrictFileContent(),
              HeaderOf("North") + "|Ash|Fir|Oak|!Ivy|%Elm\r\n# note\r\n" + HeaderOf("South") + "|Larch\r\n");
    EXPECT_TRUE(bChanged);
    EXPECT_EQ(lCurrentDistrict, 0);
}

TEST_F(RestoreChangesTest, TheProblemsOfTheirDistrictsAreCountedAnew) {
    Leave({{1, 1, "ELM"}, {1, 4, "bad!"}, {3, 1, "%Yew"}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 1);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 1);
    EXPECT_EQ(DistrictAt(3).iDuplicateCount, 0);
    EXPECT_TRUE(VariationAt(1, 1).bDuplicate || VariationAt(1, 2).bDuplicate);
}

TEST_F(RestoreChangesTest, ThatAreBackAreThisEditorsOwn) {
    Leave({{1, 2, "Fir"}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(desktop.state.Kept(), Texts{"1002.changes"});
    StoreText(1, 1, "Larch");
    Unsaved.Write(desktop);
    desktop.state.Die();
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(Texts({VariationAt(1, 1).Text, VariationAt(1, 2).Text}), (Texts{"Larch", "Fir"}));
}

TEST_F(RestoreChangesTest, ThatCannotBeWrittenAnewStayWhereTheyWere) {
    Leave({{1, 2, "Fir"}});
    desktop.state.canWrite = false;
    ExpectQuestion(BoxAnswer::Yes);
    desktop.ExpectBox("Your changes cannot be written to the recovery file.  They are only safe once the file is "
                      "saved.\r\n/state/1002.changes",
                      BoxIcon::Exclamation);
    Open();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes"});
    Unsaved.Remove(desktop);
    EXPECT_EQ(desktop.state.Kept(), Texts());
}

TEST_F(RestoreChangesTest, NoKeepsThemAside) {
    Leave({{1, 2, "Fir"}});
    ExpectQuestion(BoxAnswer::No);
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"1002.aside"});
    Open(); // asks no more
}

TEST_F(RestoreChangesTest, LeftTwiceByAnEditorThatWasStoppedWhileItTookThemOverAreOfferedOnce) {
    const SlotChange fir{1, 2, "Fir"};
    const SlotChange ivy{1, 4, "Ivy"};
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
        desktop.state.storage->files.clear();
        Leave({fir}, Content, DataFilePath, "0001");
        Leave({fir}, Content, DataFilePath, "0002");
        Leave({fir, ivy}, Content, DataFilePath, "0003");
        ExpectQuestion(answer);
        Open();
        EXPECT_EQ(desktop.state.Kept().size(), 1U);
        EXPECT_FALSE(desktop.state.storage->locks.contains("0001.changes.lock"));
    }
    EXPECT_EQ(VariationAt(1, 4).Text, "Ivy");
}

TEST_F(RestoreChangesTest, OfTheSameBytesElsewhereAreOfferedWithTheirPath) {
    Leave({{1, 2, "Fir"}}, Content, "/data/before it was moved \xC4\x8D.txt");
    desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to a file that was the same:\r\n" +
                          Wording::OfPath("/data/before it was moved \xC4\x8D.txt") + "\r\nDo you want them back?",
                      BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 2).Text, "Fir");
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
    Leave({{1, 2, "Fir"}}, "other bytes", "/data/other.txt", "0002");
    Leave({{1, 2, "Fir"}});
    watching.state.storage = desktop.state.storage;
    watching.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                       BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No);
    ReadText(watching, Content);
    RestoreChanges(watching);
    Unsaved.Write(watching);
    EXPECT_TRUE(watching.locksAtQuestion.contains("0001.changes.lock"));
    EXPECT_FALSE(watching.locksAtQuestion.contains("0002.changes.lock"));
}

TEST_F(RestoreChangesTest, OfOtherFilesAreLeftAlone) {
    Leave({{1, 2, "Fir"}}, "other bytes", "/data/other.txt");
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"0001.changes"});
    EXPECT_FALSE(desktop.state.storage->locks.contains("0001.changes.lock"));
}

TEST_F(RestoreChangesTest, OfAnEarlierStateAreSetAside) {
    Leave({{1, 2, "Fir"}}, "bytes of yesterday");
    ExpectSetAside("There are unsaved changes of 05 Mar 2026 14:07 to an earlier state of this file.");
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"1002.aside"});
}

TEST_F(RestoreChangesTest, ThatTheFileHasSinceTheyWereSavedAreSetAsideUnasked) {
    Leave({{1, 2, "Fir"}}, "bytes of yesterday");
    std::string& leftOver = desktop.state.storage->files["0001.changes"];
    leftOver += SavingRecord(IdentityOf("/data/whatever.txt", Content));
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"1002.aside"});
}

TEST_F(RestoreChangesTest, MadeAfterAnAttemptToSaveAreNotTakenForSaved) {
    Leave({{1, 2, "Fir"}}, "bytes of yesterday");
    std::string& leftOver = desktop.state.storage->files["0001.changes"];
    leftOver += SavingRecord(IdentityOf(DataFilePath, Content)) + RecoveryRecord(1, 3, "Larch");
    ExpectSetAside("There are unsaved changes of 05 Mar 2026 14:07 to an earlier state of this file.");
    Open();
    ExpectUntouched();
}

TEST_F(RestoreChangesTest, OfASaveThatDidNotComeAboutAreOffered) {
    Leave({{1, 2, "Fir"}});
    desktop.state.storage->files["0001.changes"] += SavingRecord(IdentityOf(DataFilePath, "never written"));
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 2).Text, "Fir");
}

TEST_F(RestoreChangesTest, ThatAreDamagedAreSetAside) {
    Leave({{1, 2, "Fir"}, {1, 1, "Larch"}});
    desktop.state.storage->files["0001.changes"][70] ^= 1;
    ExpectSetAside("The recovery file with unsaved changes of 05 Mar 2026 14:07 is damaged.");
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts{"1002.aside"});
}

TEST_F(RestoreChangesTest, OfWhichOneDoesNotFitAreNotMadeAtAll) {
    const SlotChange misfits[] = {{2, 1, "Fir"}, {4, 1, "Fir"}, {2147483647, 1, "Fir"},
                                  {1, 5, "Fir"}, {3, 3, "Fir"}, {1, 2147483647, "Fir"}};
    for (const SlotChange& misfit : misfits) {
        Leave({{1, 1, "Larch"}, misfit, {1, 2, "Fir"}});
        ExpectSetAside(DoNotFit, std::to_string(1002 + desktop.state.storage->names));
        Open();
        ExpectUntouched();
        desktop.CheckDone();
    }
}

TEST_F(RestoreChangesTest, MayNameASlotOnceAnEarlierOneHasMadeIt) {
    Leave({{3, 2, "Fir"}, {3, 3, "Larch"}, {3, 3, "Ivy"}});
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(SlotsOf(3), (Texts{"Yew", "Fir", "Ivy"}));
}

TEST_F(RestoreChangesTest, WithoutAnyAreRemovedUnasked) {
    Leave({});
    Open();
    ExpectUntouched();
    EXPECT_EQ(desktop.state.Kept(), Texts());
}

TEST_F(RestoreChangesTest, TheLatestAreAskedAboutFirst) {
    Leave({{1, 1, "Older"}}, Content, DataFilePath, "0001");
    Leave({{1, 1, "Newer"}}, Content, DataFilePath, "0002");
    ExpectQuestion(BoxAnswer::No);
    ExpectQuestion(BoxAnswer::Yes);
    Open();
    EXPECT_EQ(VariationAt(1, 1).Text, "Older");
    EXPECT_EQ(desktop.state.Kept(".aside").size(), 1U);
}

// Of one variation the later change counts; what was added by either is there.
TEST_F(RestoreChangesTest, OfTwoEditorsCanBothBeHadBack) {
    Leave({{1, 1, "Older"}, {1, 2, "Fir"}, {1, 4, "Ivy"}, {1, 4, "!Ivy"}}, Content, DataFilePath, "0001");
    Leave({{1, 1, "Newer"}, {1, 4, "Larch"}, {3, 2, "Oak"}}, Content, DataFilePath, "0002");
    ExpectQuestion(BoxAnswer::Yes);
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
    UnsavedChanges theirs;
    theirs.Begin(first, DataFilePath, Content, Numbering::AsRead);
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
    const auto expectRepair = [&](const std::string& answer) {
        desktop.ExpectChoice("District North has a null variation.\r\n"
                             "The invalid dependency is % and it is variation #1\r\n"
                             " As it is the only variation it can only be removed or replaced.\r\nRemove\r\n"
                             "Type = Type a complete replacement for this variation\r\n"
                             "Quit = Stop processing this file\r\n\r\n",
                             {"Remove", "Type", "Quit"}, answer);
    };
    const std::string content = HeaderOf("North") + "|%\r\n";
    expectRepair("Type");
    desktop.ExpectInput("Please enter a replacement for the variation %", "Fir");
    Open(content);
    desktop.state.Die();
    expectRepair("Remove");
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
