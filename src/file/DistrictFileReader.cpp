#include "file/DistrictFileReader.h"

#include "core/Desktop.h"
#include "core/Lines.h"
#include "core/State.h"
#include "file/CommentTypes.h"
#include "file/DistrictLines.h"
#include "file/FileKind.h"
#include "recovery/OpenFile.h"
#include "rules/Duplicates.h"

#include <new>
#include <string>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::size_t InitialUpperBound = 20;

// Leaves nothing of a table, above all no memory.
void ForgetTable() {
    Districts = {};
    TableSlots = {};
    KeepDupePairs(sTableContent);
    sTableContent = std::string();
    ++lTableNumber;
    lLineCount = 0;
    lDistrictTotal = lInvalidTotal = lCapsOkTotal = 0;
    bChanged = false;
    iRepairAction = NoRepair;
}

// Any other file would be complained about line by line.
bool IsWanted(Desktop& desktop, std::string_view content) {
    return !IsHardlyADataFile(content) ||
           desktop.MsgBox("This is hardly a data file: none of its lines is a district.\r\n" +
                              Wording::OfPath(sDataFileName) + "\r\nDo you want to open it all the same?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

enum class Outcome { Read, Unreadable, NotWanted };

Outcome ReadTable(Desktop& desktop, const std::function<void()>& takeEncoding) {
    ForgetTable(); // before the file is read, so that two files are never in memory at once
    TheOpenFile.Close(desktop);
    std::string stamp = desktop.StampOf(sDataFileName); // before reading: what is changed meanwhile is not what is read
    auto content = desktop.ReadFile(sDataFileName);
    if (!content) {
        return Outcome::Unreadable;
    }
    TheOpenFile.BeginReading(desktop, sDataFileName, *content, std::move(stamp));
    eFileEncoding = eEncodingOnDisk = EncodingOf(*content);
    takeEncoding();
    sTableContent = Decoded(std::move(*content), eFileEncoding);
    if (!IsWanted(desktop, sTableContent)) {
        return Outcome::NotWanted;
    }
    const std::size_t lineCount = CountLines(sTableContent);
    Districts.reserve(lineCount + InitialUpperBound);
    Districts.resize(InitialUpperBound + 1);
    ReadDistrictLines(desktop, lineCount);
    return Outcome::Read;
}

} // namespace

void ForgetDistrictFile(Desktop& desktop) {
    EmptyDupePairs();
    ForgetTable();
    CommentTypes.Reset();
    TheOpenFile.Close(desktop);
    sDataFileName.clear();
}

void ReadDistrictFile(Desktop& desktop, const std::function<void()>& takeEncoding) {
    desktop.ShowBusy(true);
    desktop.EnterProgramFolder();
    std::string_view problem;
    auto outcome = Outcome::Unreadable;
    try {
        outcome = ReadTable(desktop, takeEncoding);
        problem = "The file cannot be read:\r\n";
    } catch (const std::bad_alloc&) {
        // A line end takes a whole record: a file may need a hundred times its size.
        problem = "There is not enough memory for the file:\r\n";
    }
    if (outcome == Outcome::Read) {
        return;
    }
    const std::string path = sDataFileName;
    ForgetDistrictFile(desktop);
    desktop.ShowBusy(false);
    if (outcome == Outcome::Unreadable) {
        desktop.MsgBox(problem + Wording::OfPath(path), BoxIcon::Exclamation);
    }
}

} // namespace CommonRoutines
