#include "checks/ReportOutput.h"

#include "core/State.h"
#include "recovery/OpenFile.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

using Texts = std::vector<std::string>;

const Report TwoFindings{"Duplicate Check", {"Ash in North duplicates Ash in South", "Elm"}, true};
const Report NoFindings{"Duplicate Check", {}, true};

const std::string ForeignPath = "/data/\xC4\x8D\xE2\x82\xAC.txt"; // only the second is of the code page

// The lines as a reader sees them.
Texts Lines(const Report& report, const std::string& dataFile) {
    ScriptedDesktop desktop;
    Texts lines;
    const LineSource source = ReportLines(report, dataFile, desktop);
    for (auto line = source(); line; line = source()) {
        lines.push_back(line->Utf8());
    }
    return lines;
}

// Notes what a user would see happen, in its order.
class WatchedDesktop : public ScriptedDesktop {
public:
    Texts seen;

    std::optional<std::string> ChooseFileToSave(const FileRequest& request) override {
        seen.emplace_back("dialogue");
        return ScriptedDesktop::ChooseFileToSave(request);
    }
    bool ReplaceFile(const std::string& path, std::string_view content) override {
        seen.emplace_back("written");
        return ScriptedDesktop::ReplaceFile(path, content);
    }
    bool Print(const LineSource& lines) override {
        seen.emplace_back("printed");
        return ScriptedDesktop::Print(lines);
    }
    BoxAnswer MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons) override {
        seen.emplace_back("box");
        return ScriptedDesktop::MsgBox(text, icon, buttons);
    }
    void ShowBusy(bool isBusy) override {
        seen.emplace_back(isBusy ? "busy" : "free");
        ScriptedDesktop::ShowBusy(isBusy);
    }
};

// A report about a data file that is there.
class SavedReportTest : public StateTest {
protected:
    SavedReportTest() { desktop.files[DataFile] = "districts"; }
    void ExpectDataFileQuestion(BoxAnswer answer) {
        desktop.ExpectBox("This is the data file itself:\r\n" + DataFile + "\r\nDo you want the list to replace it?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo, answer);
    }

    const std::string DataFile = "/data/north.txt";
    ScriptedDesktop desktop;
};

} // namespace

// Lines

TEST(ReportOutputTest, ThreeHeadingLinesStandBeforeTheItems) {
    EXPECT_EQ(Lines(TwoFindings, "C:\\data\\north.txt"),
              (Texts{"Duplicate Check on File C:\\data\\north.txt", "Check performed on 05 Mar 2026 at 14:07", "",
                     "Ash in North duplicates Ash in South", "Elm"}));
}

TEST(ReportOutputTest, AReportWithoutItemsHasItsHeadingLines) {
    EXPECT_EQ(Lines(NoFindings, "/data/north.txt"),
              (Texts{"Duplicate Check on File /data/north.txt", "Check performed on 05 Mar 2026 at 14:07", ""}));
}

TEST(ReportOutputTest, TheCaptionIsNoLine) {
    const Report details{"Details of Duplicates", {"Variation Ash duplicates !Ash"}, true};
    EXPECT_EQ(Lines(details, "/data/north.txt"),
              (Texts{"Duplicate Check on File /data/north.txt", "Check performed on 05 Mar 2026 at 14:07", "",
                     "Variation Ash duplicates !Ash"}));
}

TEST(ReportOutputTest, ThePathIsShownAsItIs) {
    EXPECT_EQ(Lines(NoFindings, ForeignPath).front(), "Duplicate Check on File " + ForeignPath);
}

// Proposed name

TEST(ReportOutputTest, TheProposedNameKeepsTheExtension) {
    EXPECT_EQ(ReportFileName("C:\\data\\north.txt"), "Dupe_north.txt");
    EXPECT_EQ(ReportFileName("/data/north.txt"), "Dupe_north.txt");
    EXPECT_EQ(ReportFileName("/data/north.dat"), "Dupe_north.dat");
}

TEST(ReportOutputTest, ANameWithoutAFolderIsProposedWhole) {
    EXPECT_EQ(ReportFileName("north.txt"), "Dupe_north.txt");
    EXPECT_EQ(ReportFileName("north"), "Dupe_north");
}

TEST(ReportOutputTest, TheProposedNameIsInTheMachinesEncoding) {
    EXPECT_EQ(ReportFileName("/data/caf\xC3\xA9.txt"), "Dupe_caf\xC3\xA9.txt");
}

// Saving

TEST(ReportOutputTest, SavingAsksForANameInTheProgramsFolder) {
    ScriptedDesktop desktop;
    desktop.ExpectSave(std::nullopt);
    SaveReport(TwoFindings, "C:\\data\\north.txt", desktop);
    EXPECT_EQ(desktop.lastRequest.fileName, "Dupe_north.txt");
    EXPECT_EQ(desktop.lastRequest.folder, "/program");
    EXPECT_EQ(desktop.lastRequest.defaultExtension, "txt");
    EXPECT_EQ(desktop.lastRequest.title, "");
}

TEST(ReportOutputTest, SavingDoesNotAskBeforeItReplacesAFile) {
    ScriptedDesktop desktop;
    desktop.ExpectSave(std::nullopt);
    SaveReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_FALSE(desktop.lastRequest.asksBeforeReplacing);
}

TEST(ReportOutputTest, SavingIsSeenToBeWorkUntilTheFileIsWritten) {
    WatchedDesktop desktop;
    desktop.ExpectSave("/reports/mine.txt");
    SaveReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_EQ(desktop.seen, (Texts{"dialogue", "busy", "written", "free"}));
}

TEST(ReportOutputTest, ASavedReportEndsEveryLineWithCrLf) {
    ScriptedDesktop desktop;
    desktop.ExpectSave("/reports/mine.txt");
    SaveReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_EQ(desktop.files,
              (std::map<std::string, std::string>{{"/reports/mine.txt", "Duplicate Check on File /data/north.txt\r\n"
                                                                        "Check performed on 05 Mar 2026 at 14:07\r\n"
                                                                        "\r\n"
                                                                        "Ash in North duplicates Ash in South\r\n"
                                                                        "Elm\r\n"}}));
}

TEST(ReportOutputTest, ASavedReportHasThePathAsNearAsItsCodePageComes) {
    ScriptedDesktop desktop;
    desktop.ExpectSave("/reports/mine.txt");
    SaveReport({"Duplicate Check", {"Caf\xE9"}, true}, ForeignPath, desktop);
    EXPECT_EQ(desktop.files["/reports/mine.txt"], "Duplicate Check on File /data/?\x80.txt\r\n"
                                                  "Check performed on 05 Mar 2026 at 14:07\r\n"
                                                  "\r\n"
                                                  "Caf\xE9\r\n");
}

TEST(ReportOutputTest, ASavedReportReplacesTheFile) {
    ScriptedDesktop desktop;
    desktop.files["/reports/mine.txt"] = "What stood there before was longer than the report. It is gone, all of it: "
                                         "not a word of it is left behind the lines of the report.\r\n";
    desktop.ExpectSave("/reports/mine.txt");
    SaveReport(NoFindings, "/data/north.txt", desktop);
    EXPECT_EQ(desktop.files["/reports/mine.txt"], "Duplicate Check on File /data/north.txt\r\n"
                                                  "Check performed on 05 Mar 2026 at 14:07\r\n"
                                                  "\r\n");
}

TEST(ReportOutputTest, CancellingTheSaveDialogueWritesNothingAndSaysNothing) {
    ScriptedDesktop desktop;
    desktop.ExpectSave(std::nullopt);
    SaveReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_TRUE(desktop.files.empty());
}

TEST(ReportOutputTest, AFailedSaveSaysNothingAndKeepsTheFile) {
    ScriptedDesktop desktop;
    desktop.files["/reports/mine.txt"] = "kept";
    desktop.canWrite = false;
    desktop.ExpectSave("/reports/mine.txt");
    SaveReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_EQ(desktop.files["/reports/mine.txt"], "kept");
}

TEST_F(SavedReportTest, WhereTheProgramsFolderIsNotTheUsersTheirOwnIsProposed) {
    desktop.mayMakeFiles = false;
    desktop.ExpectSave(std::nullopt);
    SaveReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_EQ(desktop.lastRequest.folder, "/documents");
    EXPECT_EQ(desktop.lastRequest.fileName, "Dupe_north.txt");
}

TEST_F(SavedReportTest, TheDataFileIsReplacedOnlyAfterAYes) {
    desktop.ExpectSave(DataFile);
    ExpectDataFileQuestion(BoxAnswer::No);
    SaveReport(NoFindings, DataFile, desktop);
    EXPECT_EQ(desktop.files[DataFile], "districts");
    desktop.ExpectSave(DataFile);
    ExpectDataFileQuestion(BoxAnswer::Yes);
    SaveReport(NoFindings, DataFile, desktop);
    EXPECT_TRUE(desktop.files[DataFile].starts_with("Duplicate Check on File /data/north.txt\r\n"));
}

TEST_F(SavedReportTest, TheFileThatWasLastSavedIsADataFileToo) {
    TheOpenFile.BeginReading(desktop, DataFile, "districts", {});
    desktop.ExpectSave(DataFile);
    ExpectDataFileQuestion(BoxAnswer::No);
    SaveReport(NoFindings, "/data/opened-before.txt", desktop);
    EXPECT_EQ(desktop.files[DataFile], "districts");
}

TEST_F(SavedReportTest, SoIsAFurtherNameOfTheDataFile) {
    TheOpenFile.BeginReading(desktop, DataFile, "districts", {});
    desktop.links["/reports/list.txt"] = DataFile;
    desktop.ExpectSave("/reports/list.txt");
    desktop.ExpectBox("This is the data file itself:\r\n/reports/list.txt\r\nDo you want the list to replace it?",
                      BoxIcon::Question, BoxButtons::YesNoDefaultNo, BoxAnswer::No);
    SaveReport(NoFindings, DataFile, desktop);
    EXPECT_EQ(desktop.files.count("/reports/list.txt"), 0U);
}

TEST_F(SavedReportTest, AFileThatStaysInItsPlaceIsOverwritten) {
    desktop.files["/reports/mine.txt"] = "old";
    desktop.inPlace = {"/reports/mine.txt"};
    desktop.ExpectSave("/reports/mine.txt");
    SaveReport(NoFindings, DataFile, desktop);
    EXPECT_TRUE(desktop.files["/reports/mine.txt"].starts_with("Duplicate Check on File"));
    EXPECT_TRUE(desktop.state.Names().empty());
}

// Printing

TEST(ReportOutputTest, PrintingPrintsTheSameLinesAndSaysNothing) {
    ScriptedDesktop desktop;
    PrintReport(TwoFindings, "C:\\data\\north.txt", desktop);
    EXPECT_EQ(desktop.printed,
              (Texts{"Duplicate Check on File C:\\data\\north.txt", "Check performed on 05 Mar 2026 at 14:07", "",
                     "Ash in North duplicates Ash in South", "Elm"}));
    EXPECT_TRUE(desktop.files.empty());
}

TEST(ReportOutputTest, ThePathIsPrintedAsItIs) {
    ScriptedDesktop desktop;
    PrintReport(TwoFindings, ForeignPath, desktop);
    ASSERT_FALSE(desktop.printed.empty());
    EXPECT_EQ(desktop.printed.front(), "Duplicate Check on File " + ForeignPath);
}

TEST(ReportOutputTest, PrintingIsSeenToBeWorkUntilTheMessage) {
    WatchedDesktop desktop;
    desktop.hasPrinter = false;
    desktop.ExpectBox("The list cannot be printed: there is no printer, or it did not accept the job.  "
                      "Save List keeps it in a file.",
                      BoxIcon::Exclamation);
    PrintReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_EQ(desktop.seen, (Texts{"busy", "printed", "free", "box"}));
}

TEST(ReportOutputTest, WithoutAPrinterAMessageSaysSo) {
    ScriptedDesktop desktop;
    desktop.hasPrinter = false;
    desktop.ExpectBox("The list cannot be printed: there is no printer, or it did not accept the job.  "
                      "Save List keeps it in a file.",
                      BoxIcon::Exclamation);
    PrintReport(TwoFindings, "/data/north.txt", desktop);
    EXPECT_TRUE(desktop.printed.empty());
}

TEST(ReportOutputTest, ASavedReportHasTheEncodingOfTheOpenFile) {
    eFileEncoding = Encoding::Utf8WithMark;
    ScriptedDesktop desktop;
    desktop.ExpectSave("/data/report.txt");
    SaveReport({"Duplicate Check", {"D\xC5\xB5r"}, true}, "/\xC5\xB5/caf\xE9.txt", desktop);
    eFileEncoding = Encoding::Windows1252;
    EXPECT_EQ(
        desktop.files["/data/report.txt"],
        "\xEF\xBB\xBF"
        "Duplicate Check on File /\xC5\xB5/caf?.txt\r\nCheck performed on 05 Mar 2026 at 14:07\r\n\r\nD\xC5\xB5r\r\n");
}
