#include "commands/FileCommands.h"

#include "commands/EditingPlayer.h"
#include "edit/EditPanel.h"
#include "edit/Variations.h"
#include "recovery/OpenMark.h"

#include <functional>
#include <optional>

using namespace CommonRoutines;
using namespace Commands;

namespace {

const std::string CopyPath = "/copies/copy.txt";

// Opens a data file, changes it, and saves it here or there.
class FileCommandsTest : public StateTest {
protected:
    FileCommandsTest() {
        desktop.recordReports = true;
        other.state.storage = desktop.state.storage;
        desktop.files[DataFilePath] = HeaderOf("Alpha") + "|Ash|Elm\r\n";
        OpenFile();
    }
    void OpenFile(
        const std::string& path = DataFilePath, const std::function<void()>& expectPrompts = [] {}) {
        desktop.ExpectOpen(path);
        expectPrompts();
        session.Run(Open);
    }
    void Change(const std::string& text) {
        session.Run([&](Session&) {
            StoreText(1, 1, text);
            bChanged = true;
        });
    }
    void SaveTo(const std::optional<std::string>& path) {
        desktop.ExpectSave(path);
        if (path && desktop.canWrite && !desktop.failsAfterWriting) {
            desktop.ExpectBox("File Saved to " + *path, BoxIcon::Information);
        }
        session.Run(Save);
    }
    void ExpectChanged(const std::string& path, BoxAnswer answer) { ExpectChanged(path, answer, desktop); }
    static void ExpectChanged(const std::string& path, BoxAnswer answer, ScriptedDesktop& asked) {
        asked.ExpectBox(
            "This file is not what was opened or last saved any more.  Another program may have changed it:\r\n" +
                path + "\r\nDo you want to replace it?",
            BoxIcon::Question, BoxButtons::YesNoDefaultNo, answer);
    }
    // The path that a save would propose.
    std::string Proposed() {
        SaveTo(std::nullopt);
        return desktop.lastRequest.folder + '/' + desktop.lastRequest.fileName;
    }
    void ExpectQuestion(BoxAnswer answer) {
        desktop.ExpectBox("This will loose your changes.\r\nAre you sure you want to do this?", BoxIcon::Question,
                          BoxButtons::YesNoDefaultNo, answer);
    }
    // Whatever would take the table away asks first.
    void ExpectThatNoKeeps(const std::string& variation) {
        ExpectQuestion(BoxAnswer::No);
        session.Run(Open);
        ExpectQuestion(BoxAnswer::No);
        session.Run([](Session& now) { OpenPath(now, CopyPath); });
        ExpectQuestion(BoxAnswer::No);
        session.Run([](Session& now) { EXPECT_FALSE(ConfirmClose(now)); });
        EXPECT_EQ(VariationAt(1, 1).Text, variation);
    }
    // Whether another editor that opens a file now is told.
    bool IsMarked(const std::string& path) {
        OpenMark theirs;
        const bool isMarked = theirs.Set(other, path);
        theirs.Clear(other);
        return isMarked;
    }
    // Proposal, mark and what the window shows belong to one file.
    void ExpectOpen(const std::string& path, const std::string& closed) {
        EXPECT_EQ(screen.shown.openFile, path);
        EXPECT_EQ(Proposed(), path);
        EXPECT_TRUE(IsMarked(path));
        EXPECT_FALSE(IsMarked(closed));
    }
    // The editor is killed, and another one opens a file.
    void DieAndOpen(
        const std::string& path, const std::function<void()>& expectPrompts = [] {}) {
        desktop.state.Die();
        ResetEverything();
        OpenFile(path, expectPrompts);
    }
    void ExpectOfferedAfterDeath(const std::string& path) {
        DieAndOpen(path, [this] {
            desktop.ExpectBox("There are unsaved changes of 05 Mar 2026 14:07 to this file.\r\nDo you want them back?",
                              BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes);
        });
    }

    ScriptedDesktop desktop;
    ScriptedDesktop other;
    QuietScreen screen;
    Session session{desktop, screen};
};

} // namespace

TEST_F(FileCommandsTest, TheFileThatWasReadIsOpen) {
    ExpectOpen(DataFilePath, CopyPath);
}

TEST_F(FileCommandsTest, TheFileThatWasSavedUnderAnotherNameIsOpenFromThenOn) {
    Change("Fir");
    SaveTo(CopyPath);
    ExpectOpen(CopyPath, DataFilePath);
    Change("Oak");
    SaveTo(CopyPath); // asks nothing of another editor
    ExpectOpen(CopyPath, DataFilePath);
}

TEST_F(FileCommandsTest, ReportsStayAboutTheFileThatWasOpened) {
    SaveTo(CopyPath);
    EXPECT_EQ(sDataFileName, DataFilePath);
}

TEST_F(FileCommandsTest, BehindTheMessageOfASaveTheNewFileIsOpenAlready) {
    class Watching : public ScriptedDesktop {
    public:
        std::function<void()> look;
        BoxAnswer MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons) override {
            look();
            return ScriptedDesktop::MsgBox(text, icon, buttons);
        }
    } watching;
    watching.state.storage = desktop.state.storage;
    Session watched{watching, screen};
    watching.look = [&] {
        EXPECT_EQ(screen.shown.openFile, CopyPath);
        EXPECT_TRUE(IsMarked(CopyPath));
    };
    watching.ExpectSave(CopyPath);
    watching.ExpectBox("File Saved to " + CopyPath, BoxIcon::Information);
    watched.Run(Save);
}

TEST_F(FileCommandsTest, ACancelledSaveLeavesTheOpenFileAsItWas) {
    Change("Fir");
    SaveTo(std::nullopt);
    ExpectOpen(DataFilePath, CopyPath);
}

TEST_F(FileCommandsTest, AFailedSaveUnderAnotherNameLeavesTheOpenFileAsItWas) {
    Change("Fir");
    desktop.canWrite = false;
    SaveTo(CopyPath);
    ExpectOpen(DataFilePath, CopyPath);
    Change("Oak");
    ExpectOfferedAfterDeath(DataFilePath);
    EXPECT_EQ(VariationAt(1, 1).Text, "Oak");
}

TEST_F(FileCommandsTest, SoDoesOneThatFailsWithItsFileInPlace) {
    Change("Fir");
    desktop.failsAfterWriting = true;
    SaveTo(CopyPath);
    ExpectOpen(DataFilePath, CopyPath);
    Change("Oak");
    EXPECT_EQ(desktop.state.Kept(".changes").size(), 1U);
    ExpectOfferedAfterDeath(DataFilePath);
    EXPECT_EQ(VariationAt(1, 1).Text, "Oak");
}

TEST_F(FileCommandsTest, ChangesAfterASaveUnderAnotherNameAreOfferedForThatFileAlone) {
    Change("Fir");
    SaveTo(CopyPath);
    Change("Oak");
    DieAndOpen(DataFilePath); // where nothing is asked
    EXPECT_EQ(VariationAt(1, 1).Text, "Ash");
    ExpectOfferedAfterDeath(CopyPath);
    EXPECT_EQ(VariationAt(1, 1).Text, "Oak");
}

TEST_F(FileCommandsTest, OneWhoSavesOverTheFileOfAnotherEditorIsTold) {
    OpenMark theirs;
    ASSERT_FALSE(theirs.Set(other, CopyPath));
    desktop.ExpectSave(CopyPath);
    desktop.ExpectBox("File Saved to " + CopyPath, BoxIcon::Information);
    desktop.ExpectBox("Another editor has this file open.  What is saved last replaces what was saved before.",
                      BoxIcon::Exclamation);
    session.Run(Save);
}

TEST_F(FileCommandsTest, WhereAFileCannotBeReadNoneIsOpen) {
    OpenFile("/data/missing.txt",
             [this] { desktop.ExpectBox("The file cannot be read:\r\n/data/missing.txt", BoxIcon::Exclamation); });
    EXPECT_EQ(screen.shown.openFile, "");
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(FileCommandsTest, AFileThatIsNotChosenLeavesTheOpenOneAsItWas) {
    desktop.ExpectOpen(std::nullopt);
    session.Run(Open);
    ExpectOpen(DataFilePath, CopyPath);
}

// Changes of other programs

TEST_F(FileCommandsTest, AFileThatAnotherProgramHasChangedIsReplacedOnlyAfterAYes) {
    Change("Fir");
    const std::string theirs = HeaderOf("Alpha") + "|Oak\r\n";
    desktop.files[DataFilePath] = theirs;
    desktop.ExpectSave(DataFilePath);
    ExpectChanged(DataFilePath, BoxAnswer::No);
    session.Run(Save);
    EXPECT_EQ(desktop.files[DataFilePath], theirs);
    EXPECT_FALSE(bChanged); // as after a cancelled dialogue
    EXPECT_EQ(desktop.state.Kept(".changes").size(), 1U);
    desktop.ExpectSave(DataFilePath);
    ExpectChanged(DataFilePath, BoxAnswer::Yes);
    desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    session.Run(Save);
    EXPECT_EQ(desktop.files[DataFilePath], HeaderOf("Alpha") + "|Fir|Elm\r\n");
    SaveTo(DataFilePath); // asks no more
}

TEST_F(FileCommandsTest, AFileThatWasWrittenAnewWithTheSameContentIsReplacedUnasked) {
    ++desktop.touched[DataFilePath];
    Change("Fir");
    SaveTo(DataFilePath);
}

TEST_F(FileCommandsTest, AFileThatHasVanishedIsWrittenAgainUnasked) {
    desktop.files.erase(DataFilePath);
    Change("Fir");
    SaveTo(DataFilePath);
    EXPECT_EQ(desktop.files[DataFilePath], HeaderOf("Alpha") + "|Fir|Elm\r\n");
}

TEST_F(FileCommandsTest, AnotherFileIsReplacedUnasked) {
    desktop.files[CopyPath] = "something else";
    SaveTo(CopyPath);
    desktop.files[CopyPath] = "what another program wrote";
    desktop.ExpectSave(CopyPath);
    ExpectChanged(CopyPath, BoxAnswer::No);
    session.Run(Save);
    SaveTo(DataFilePath); // which is another one now
}

TEST_F(FileCommandsTest, AFileThatChangesWhileItIsReadIsAskedAbout) {
    class Changing : public ScriptedDesktop {
    public:
        std::optional<std::string> ReadFile(const std::string& path) override {
            auto content = ScriptedDesktop::ReadFile(path);
            if (path == CopyPath) {
                files[path] = "newer";
            }
            return content;
        }
    } changing;
    changing.recordReports = true;
    changing.files[CopyPath] = HeaderOf("Alpha") + "|Ash\r\n";
    Session reading{changing, screen};
    reading.Run([](Session& now) { OpenPath(now, CopyPath); });
    changing.ExpectSave(CopyPath);
    ExpectChanged(CopyPath, BoxAnswer::No, changing);
    reading.Run(Save);
    EXPECT_EQ(changing.files[CopyPath], "newer");
}

// Files that stay in place

TEST_F(FileCommandsTest, AFileThatWasTornWhileItWasSavedIsMendedBeforeItIsOpened) {
    Change("Fir");
    desktop.inPlace = {DataFilePath};
    desktop.failingOverwrites = 2;
    desktop.ExpectSave(DataFilePath);
    desktop.confirmsBoxes = true;
    session.Run(Save);
    desktop.confirmsBoxes = false;
    EXPECT_EQ(screen.shown.openFile, DataFilePath);
    DieAndOpen(DataFilePath, [this] {
        desktop.ExpectBox("The editor was stopped on 05 Mar 2026 14:07 while it wrote this file, which may be damaged:"
                          "\r\n" +
                              DataFilePath + "\r\nDo you want it to be written now, in place of what it holds?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo, BoxAnswer::Yes);
    });
    EXPECT_EQ(VariationAt(1, 1).Text, "Fir"); // and nothing is left to be offered
}

TEST_F(FileCommandsTest, WithoutThePlaceForACopyASaveFailsSilentlyAndKeepsTheFile) {
    desktop.inPlace = {DataFilePath};
    const std::string before = desktop.files[DataFilePath];
    desktop.state.canWrite = false;
    desktop.ExpectSave(DataFilePath);
    session.Run(Save);
    EXPECT_EQ(desktop.files[DataFilePath], before);
}

TEST_F(FileCommandsTest, BeforeChangesAreLostNoIsTheDefault) {
    Change("Fir");
    ExpectThatNoKeeps("Fir");
}

TEST_F(FileCommandsTest, WhatACancelledSaveHasNotSavedIsAskedAbout) {
    Change("Fir");
    SaveTo(std::nullopt);
    EXPECT_FALSE(bChanged);
    ExpectThatNoKeeps("Fir");
    EXPECT_TRUE(bChanged) << "so that it can be saved now";
}

TEST_F(FileCommandsTest, WhatAFailedSaveHasNotSavedIsAskedAbout) {
    Change("Fir");
    desktop.canWrite = false;
    SaveTo(DataFilePath);
    EXPECT_FALSE(bChanged);
    ExpectThatNoKeeps("Fir");
}

TEST_F(FileCommandsTest, WhatIsGivenUpAfterACancelledSaveIsNotOfferedAgain) {
    Change("Fir");
    SaveTo(std::nullopt);
    ExpectQuestion(BoxAnswer::Yes);
    EXPECT_TRUE(ConfirmClose(session));
    DieAndOpen(DataFilePath);
    EXPECT_EQ(VariationAt(1, 1).Text, "Ash");
}

TEST_F(FileCommandsTest, WhatIsInTheFileIsNotAskedAbout) {
    Change("Fir");
    SaveTo(DataFilePath);
    EXPECT_TRUE(ConfirmClose(session));
    OpenFile();
    EXPECT_EQ(VariationAt(1, 1).Text, "Fir");
}

TEST_F(FileCommandsTest, ATextThatIsNotCommittedIsAskedAbout) {
    // Acceptable, not acceptable, and longer than what can be edited.
    for (const std::string& text :
         {std::string("Fir"), std::string("Ash"), std::string(LongestEditableText + 1, 'x')}) {
        session.Run([](Session& now) { ChooseDistrict(now, {0}); });
        session.Run([&](Session& now) { TypeText(now, text); });
        ExpectThatNoKeeps("Ash");
        EXPECT_EQ(screen.shown.edit.text, text);
        EXPECT_FALSE(bChanged) << "there is nothing to save";
    }
}

TEST_F(FileCommandsTest, AnEditThatIsNotCommittedIsAskedAbout) {
    for (const std::string text : {"Ashes", ""}) {
        session.Run([](Session& now) { ChooseDistrict(now, {0}); });
        session.Run([](Session& now) { SelectVariations(now, {0}); });
        session.Run([&](Session& now) { TypeText(now, text); });
        ExpectThatNoKeeps("Ash");
        EXPECT_EQ(screen.shown.edit.text, text);
    }
}

TEST_F(FileCommandsTest, ATextThatIsGivenUpWithItsFileIsNotAskedAboutAgain) {
    session.Run([](Session& now) { ChooseDistrict(now, {0}); });
    session.Run([](Session& now) { TypeText(now, "Fir"); });
    ExpectQuestion(BoxAnswer::Yes);
    OpenFile();
    EXPECT_TRUE(ConfirmClose(session));
}

TEST_F(FileCommandsTest, ABoxThatHoldsNothingOfItsOwnIsNotAskedAbout) {
    session.Run([](Session& now) { ChooseDistrict(now, {0}); });
    for (const auto& command :
         std::vector<std::function<void(Session&)>>{[](Session& now) { SelectVariations(now, {0}); }, StartAdding,
                                                    [](Session& now) {
                                                        TypeText(now, "F");
                                                        TypeText(now, "");
                                                    },
                                                    [](Session& now) {
                                                        TypeText(now, "Fir");
                                                        Cancel(now);
                                                    }}) {
        session.Run(command);
        EXPECT_TRUE(ConfirmClose(session));
    }
}
