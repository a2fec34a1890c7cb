#include "ui/machine/FileDialogues.h"

#include "ui/Text.h"
#include "ui/machine/FileLook.h"
#include "ui/machine/PlainBoxes.h"
#include "ui/machine/ReadableName.h"
#include "ui/machine/SettingsFile.h"

#include <QFileDialog>
#include <QFileInfo>

using namespace CommonRoutines;

namespace FileDialogues {

namespace {

std::optional<std::string> Choose(QFileDialog& dialog, const FileRequest& request) {
    if (!request.title.empty()) {
        dialog.setWindowTitle(Text::ForList(request.title));
    }
    if (!request.folder.empty()) {
        dialog.setDirectory(FileLook::FolderLeft(Text::PathToQt(request.folder)));
    }
    if (!request.fileName.empty()) {
        dialog.selectFile(Text::PathToQt(request.fileName));
    }
    const PlainBoxes plain;
    dialog.setDefaultSuffix(Text::ToQt(request.defaultExtension));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return Text::PathFromQt(dialog.selectedFiles().constFirst());
}

// Also where no file is and none could be made.
bool IsReadOnly(const std::string& path) {
    const ReadableName name(path);
    const QFileInfo file(name.ForToolkit());
    if (file.exists()) {
        return !FileLook::MayWrite(file.filePath());
    }
    const QFileInfo made(file.isSymLink() ? file.symLinkTarget() : file.filePath());
    return !FileLook::MayWrite(made.absolutePath());
}

// Whether the file that was proposed is meant: the toolkit cannot show its name as it is, and the one that it shows was
// left and is none of another file.
bool IsProposed(const std::string& proposed, const std::string& chosen) {
    return chosen != proposed && chosen == Text::PathFromQt(Text::PathToQt(proposed)) &&
           !QFileInfo::exists(Text::PathToQt(chosen));
}

// The toolkit has not asked about a file that it does not know.
bool MayReplace(const FileRequest& request, const std::string& path, Desktop& desktop) {
    return !request.asksBeforeReplacing ||
           desktop.MsgBox("This file exists already:\r\n" + Wording::OfPath(path) + "\r\nDo you want to replace it?",
                          BoxIcon::Exclamation, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

} // namespace

std::optional<std::string> ChooseToOpen(QWidget* parent, const FileRequest& request) {
    SettingsFile::KeepToolkitFromWaiting();
    QFileDialog dialog(parent, QStringLiteral("Open"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Choose(dialog, request);
}

std::optional<std::string> ChooseToSave(QWidget* parent, const FileRequest& request, Desktop& desktop) {
    SettingsFile::KeepToolkitFromWaiting();
    QFileDialog dialog(parent, QStringLiteral("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.asksBeforeReplacing);
    while (const auto chosen = Choose(dialog, request)) {
        const std::string proposed = request.folder + '/' + request.fileName;
        const bool isProposed = IsProposed(proposed, *chosen);
        const std::string& path = isProposed ? proposed : *chosen;
        if (isProposed && !ReadableName(proposed).IsStandIn()) {
            desktop.MsgBox(
                "This file is not there any more, and its name cannot be written. Please choose another name.",
                BoxIcon::Exclamation);
        } else if (!FileLook::MayBeNamed(Text::PathToQt(path))) {
            desktop.MsgBox("A file cannot have this name. Please choose another name.", BoxIcon::Exclamation);
        } else if (IsReadOnly(path)) {
            desktop.MsgBox("This file is read-only. Please choose another name.", BoxIcon::Exclamation);
        } else if (!isProposed || MayReplace(request, path, desktop)) {
            return path;
        }
    }
    return std::nullopt;
}

} // namespace FileDialogues
