#include "checks/ReportOutput.h"

#include "core/Desktop.h"
#include "core/Paths.h"

namespace CommonRoutines {

std::vector<Wording> ReportLines(const Report& report, std::string_view dataFile, Desktop& desktop) {
    std::vector<Wording> lines{
        "Duplicate Check on File " + Wording::OfPath(std::string(dataFile)),
        "Check performed on " + desktop.Today() + " at " + desktop.ShortTime(),
        "",
    };
    lines.insert(lines.end(), report.items.begin(), report.items.end());
    return lines;
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

void SaveReport(const Report& report, const std::string& dataFile, Desktop& desktop) {
    FileRequest request;
    request.fileName = ReportFileName(dataFile);
    request.folder = desktop.ProgramFolder();
    request.defaultExtension = "txt";
    request.asksBeforeReplacing = false; // a newer report takes the place of the one before
    const auto path = desktop.ChooseFileToSave(request);
    if (!path) {
        return;
    }
    desktop.ShowBusy(true);
    std::string content;
    for (const Wording& line : ReportLines(report, dataFile, desktop)) {
        content += line.InCodePage() + "\r\n";
    }
    desktop.ReplaceFile(*path, content);
    desktop.ShowBusy(false);
}

} // namespace CommonRoutines
