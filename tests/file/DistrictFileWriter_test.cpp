#include "file/DistrictFileWriter.h"

#include "recovery/OpenFile.h"
#include "recovery/UnsavedChanges.h"
#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class DistrictFileWriterTest : public StateTest {
protected:
    ScriptedDesktop m_desktop;
};

} // namespace

TEST_F(DistrictFileWriterTest, AnEmptyTableIsAnEmptyFile) {
    EXPECT_EQ(DistrictFileContent(), "");
}

TEST_F(DistrictFileWriterTest, EveryLineIsWrittenInTableOrderWithCrLf) {
    AddRetained("# note|with a bar");
    AddDistrict("Ash", {"Elm", " Oak ", "!Fir%12"});
    AddRetained("");
    AddDistrict("Yew");
    EXPECT_EQ(DistrictFileContent(), "# note|with a bar\r\n"
                                     "Ash+1+Shire+1837+3+9999+0+A+B|Elm| Oak |!Fir%12\r\n"
                                     "\r\n"
                                     "Yew+1+Shire+1837+3+9999+0+A+B\r\n");
}

TEST_F(DistrictFileWriterTest, DeletedSlotsLeaveNoTrace) {
    AddDistrict("Ash", {"\t", "Elm", "\t", "Oak", "\t"});
    EXPECT_EQ(DistrictFileContent(), "Ash+1+Shire+1837+3+9999+0+A+B|Elm|Oak\r\n");
}

TEST_F(DistrictFileWriterTest, ATextThatHoldsMoreThanATabIsNoDeletedSlot) {
    AddDistrict("Ash", {"\tElm", "\t\t"});
    EXPECT_EQ(DistrictFileContent(), "Ash+1+Shire+1837+3+9999+0+A+B|\tElm|\t\t\r\n");
}

TEST_F(DistrictFileWriterTest, ADistrictWhoseVariationsAreAllDeletedIsItsHeaderAlone) {
    AddDistrict("Ash", {"\t", "\t"});
    EXPECT_EQ(DistrictFileContent(), "Ash+1+Shire+1837+3+9999+0+A+B\r\n");
}

TEST_F(DistrictFileWriterTest, OnlyTheHeaderTextIsWrittenNeverTheFieldsReadFromIt) {
    AddDistrict("Ash");
    DistrictAt(1).Founded = 1;
    EXPECT_EQ(DistrictFileContent(), "Ash+1+Shire+1837+3+9999+0+A+B\r\n");
}

TEST_F(DistrictFileWriterTest, SlotsBeyondTheCountAreNotWritten) {
    AddDistrict("Ash", {"Elm", "Oak"});
    DistrictAt(1).lVariationCount = 1;
    EXPECT_EQ(DistrictFileContent(), "Ash+1+Shire+1837+3+9999+0+A+B|Elm\r\n");
}

TEST_F(DistrictFileWriterTest, LinesBeyondTheCountAreNotWritten) {
    AddRetained("# one");
    AddRetained("# two");
    lLineCount = 1;
    EXPECT_EQ(DistrictFileContent(), "# one\r\n");
}

TEST_F(DistrictFileWriterTest, AFileReadComesBackTrimmedAndWithoutBlankVariations) {
    m_desktop.recordReports = true;
    ReadText(m_desktop, "  # note  \n   \n  Ash + 1+B +1837+ 3+9999+0+x+ y | Elm ||Oak|\nYew+1+B+1837+3+9999+0+x+y");
    EXPECT_EQ(DistrictFileContent(), "# note\r\n"
                                     "\r\n"
                                     "Ash + 1+B +1837+ 3+9999+0+x+ y | Elm |Oak\r\n"
                                     "Yew+1+B+1837+3+9999+0+x+y\r\n");
}

TEST_F(DistrictFileWriterTest, SavingProposesTheOpenFileAndSaysWhereItWent) {
    TheOpenFile.BeginReading(m_desktop, "/data/north/districts.txt", "", "");
    AddRetained("# note");
    m_desktop.ExpectSave("/data/caf\xC3\xA9/new.txt");
    m_desktop.ExpectBox("File Saved to /data/caf\xE9/new.txt", BoxIcon::Information);
    SaveDistrictFile(m_desktop);
    EXPECT_EQ(m_desktop.lastRequest.folder, "/data/north");
    EXPECT_EQ(m_desktop.lastRequest.fileName, "districts.txt");
    EXPECT_EQ(m_desktop.files, (std::map<std::string, std::string>{{"/data/caf\xC3\xA9/new.txt", "# note\r\n"}}));
}

TEST_F(DistrictFileWriterTest, ANameThatTheCodePageLacksIsSaidAsItIs) {
    for (const std::string path : {"/data/\xC4\x8D\xE2\x82\xAC.txt", "/data/no utf-8 \xE9.txt"}) {
        m_desktop.ExpectSave(path);
        m_desktop.ExpectBox("File Saved to " + Wording::OfPath(path), BoxIcon::Information);
        SaveDistrictFile(m_desktop);
    }
}

TEST_F(DistrictFileWriterTest, SavingReplacesTheOldContent) {
    m_desktop.files["C:\\data\\old.txt"] = "a much longer old content";
    TheOpenFile.BeginReading(m_desktop, "C:\\data\\old.txt", m_desktop.files["C:\\data\\old.txt"], "");
    AddRetained("# new");
    m_desktop.ExpectSave("C:\\data\\old.txt");
    m_desktop.ExpectBox("File Saved to C:\\data\\old.txt", BoxIcon::Information);
    SaveDistrictFile(m_desktop);
    EXPECT_EQ(m_desktop.lastRequest.folder, "C:\\data");
    EXPECT_EQ(m_desktop.lastRequest.fileName, "old.txt");
    EXPECT_EQ(m_desktop.files["C:\\data\\old.txt"], "# new\r\n");
}

TEST_F(DistrictFileWriterTest, WhatWasWrittenIsKnownByItsFingerprint) {
    const std::string path = "/data/new.txt";
    const std::string longLine = "# " + std::string(200'000, 'x') + "\r\n";
    for (const std::string mark : {"", "\xEF\xBB\xBF"}) {
        ReadText(m_desktop, mark + longLine + HeaderOf("Ash") + "|Elm|Oak|Yew\r\n" + longLine);
        VariationAt(2, 2).Text = "Fir";
        m_desktop.ExpectSave(path);
        m_desktop.ExpectBox("File Saved to " + path, BoxIcon::Information);
        SaveDistrictFile(m_desktop);
        EXPECT_EQ(m_desktop.files[path], mark + longLine + HeaderOf("Ash") + "|Elm|Fir|Yew\r\n" + longLine);
        EXPECT_EQ(Unsaved.File(), (FileIdentity{path, FingerprintOf(m_desktop.files[path])}));
    }
}

TEST_F(DistrictFileWriterTest, NothingReplacesAFileOnlyWhenThatIsWanted) {
    const std::string path = "/data/caf\xC3\xA9.txt";
    const auto save = [&](BoxAnswer answer) {
        m_desktop.ExpectSave(path);
        m_desktop.ExpectBox("There are no lines to save.  This will empty the file:\r\n" + Wording::OfPath(path) +
                                "\r\nAre you sure you want to do this?",
                            BoxIcon::Question, BoxButtons::YesNoDefaultNo, answer);
        if (answer == BoxAnswer::Yes) {
            m_desktop.ExpectBox("File Saved to " + Wording::OfPath(path), BoxIcon::Information);
        }
        SaveDistrictFile(m_desktop);
    };
    m_desktop.files[path] = "old";
    save(BoxAnswer::No);
    EXPECT_EQ(m_desktop.files[path], "old");
    save(BoxAnswer::Yes);
    EXPECT_EQ(m_desktop.files[path], "");
}

TEST_F(DistrictFileWriterTest, WhereNothingIsLostNothingIsAsked) {
    const auto save = [&](const std::string& path) {
        m_desktop.ExpectSave(path);
        m_desktop.ExpectBox("File Saved to " + path, BoxIcon::Information);
        SaveDistrictFile(m_desktop);
    };
    m_desktop.files["/data/empty.txt"] = "";
    save("/data/empty.txt");
    save("/data/new.txt");
    m_desktop.files["/data/old.txt"] = "old";
    AddRetained("");
    save("/data/old.txt");
    EXPECT_EQ(m_desktop.files["/data/old.txt"], "\r\n");
}

TEST_F(DistrictFileWriterTest, ATableWhoseReadingWasQuitProposesNoName) {
    TheOpenFile.BeginReading(m_desktop, "/data/north/districts.txt", "", "");
    iRepairAction = Quit;
    m_desktop.ExpectSave(std::nullopt);
    SaveDistrictFile(m_desktop);
    EXPECT_EQ(m_desktop.lastRequest.folder, "/data/north");
    EXPECT_EQ(m_desktop.lastRequest.fileName, "");
}

TEST_F(DistrictFileWriterTest, ACancelledDialogueEndsSilently) {
    AddRetained("# note");
    m_desktop.ExpectSave(std::nullopt);
    SaveDistrictFile(m_desktop);
    EXPECT_TRUE(m_desktop.files.empty());
}

TEST_F(DistrictFileWriterTest, AFailedWriteEndsSilentlyAndLeavesTheOldFile) {
    m_desktop.files["/data/old.txt"] = "old";
    m_desktop.canWrite = false;
    AddRetained("# note");
    m_desktop.ExpectSave("/data/old.txt");
    SaveDistrictFile(m_desktop);
    EXPECT_EQ(m_desktop.files["/data/old.txt"], "old");
}

TEST_F(DistrictFileWriterTest, TheDesktopIsBusyUntilTheFileIsWritten) {
    class WatchedDesktop : public ScriptedDesktop {
    public:
        bool ReplaceFile(const std::string& path, std::string_view content) override {
            EXPECT_TRUE(busy);
            return ScriptedDesktop::ReplaceFile(path, content);
        }
        BoxAnswer MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons) override {
            EXPECT_FALSE(busy);
            return ScriptedDesktop::MsgBox(text, icon, buttons);
        }
    } desktop;
    AddRetained("# note");
    desktop.ExpectSave("/data/new.txt");
    desktop.ExpectBox("File Saved to /data/new.txt", BoxIcon::Information);
    SaveDistrictFile(desktop);
    desktop.canWrite = false;
    desktop.ExpectSave("/data/new.txt");
    SaveDistrictFile(desktop);
    EXPECT_FALSE(desktop.busy);
}
