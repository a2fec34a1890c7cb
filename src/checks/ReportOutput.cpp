#include "checks/ReportOutput.h"

#include "core/Desktop.h"
#include "core/Encoding.h"
#include "core/Paths.h"
#include "core/State.h"
#include "recovery/SaveCopy.h"
#include "recovery/UnsavedChanges.h"

#include <utility>

namespace CommonRoutines {

LineSource ReportLines(const Report& report, std::string_view dataFile, Desktop& desktop) {
    const std::vector<Wording> head{
        "Duplicate Check on File " + Wording::OfPath(std::string(dataFile)),
        "Check performed on " + desktop.Today() + " at " + desktop.ShortTime(),
        "",
    };
    return [&items = report.items, head, next = std::size_t{0}]() mutable -> std::optional<Wording> {
        const std::size_t place = next++;
        if (place < head.size()) {
            return head[place];
        }
        const std::size_t item = place - head.size();
        return item < items.size() ? std::optional<Wording>(items[item]) : std::nullopt;
    };
}

std::string ReportFileName(std::string_view dataFile) {
    return "Dupe_" + std::string(Paths::NameOf(dataFile));
}

void PrintReport(const Report& report, const std::string& dataFile, Desktop& desktop) {
    desktop.ShowBusy(true);
    const bool isPrinted = desktop.Print(ReportLines(report, dataFile, desktop));
    desktop.ShowBusy(false);
    if (!isPrinted) {
        desktop.MsgBox("The list cannot be printed: there is no printer, or it did not accept the job.  "
                       "Save List keeps it in a file.",
                       BoxIcon::Exclamation);
    }
}

namespace {

// Of an installed program the folder is not the user's.
std::string FolderToStartIn(Desktop& desktop) {
    std::string folder = desktop.ProgramFolder();
    return desktop.MayMakeFilesIn(folder) ? folder : desktop.DocumentsFolder();
}

// The list replaces any file unasked but the one with the districts.
bool MayReplace(Desktop& desktop, const std::string& path, const std::string& dataFile) {
    const bool isDataFile = desktop.AreOneFile(path, Unsaved.File().path) || desktop.AreOneFile(path, dataFile);
    return !isDataFile || desktop.MsgBox("This is the data file itself:\r\n" + Wording::OfPath(path) +
                                             "\r\nDo you want the list to replace it?",
                                         BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

} // namespace

void SaveReport(const Report& report, const std::string& dataFile, Desktop& desktop) {
    FileRequest request;
    request.fileName = ReportFileName(dataFile);
    request.folder = FolderToStartIn(desktop);
    request.defaultExtension = "txt";
    request.asksBeforeReplacing = false; // a newer report takes the place of the one before
    const auto path = desktop.ChooseFileToSave(request);
    if (!path || !MayReplace(desktop, *path, dataFile)) {
        return;
    }
    desktop.ShowBusy(true);
    // A byte order mark stands in front of the first line.
    const auto piece = [lines = ReportLines(report, dataFile, desktop),
                        front = Encoded({}, eFileEncoding)]() mutable -> std::optional<std::string> {
        const auto line = lines();
        return line ? std::optional(std::exchange(front, {}) + line->AsText() + "\r\n") : std::nullopt;
    };
    // Where that fails its window stands, so that it can be saved elsewhere.
    desktop.PutTogether(piece, [&](std::string_view content) { return WriteFile(desktop, *path, content); });
    desktop.ShowBusy(false);
}

} // namespace CommonRoutines
