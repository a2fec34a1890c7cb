#include "SessionWindow.h"

#include <unistd.h>

using namespace CommonRoutines;
using namespace Ui;

namespace {

constexpr std::string_view UnsavedChanges = "There are unsaved changes of ";
constexpr std::string_view LosesChanges = "This will loose your changes.";
constexpr std::string_view FileSaved = "File Saved to ";

// The rows that follow each other in the numbers of edits are far apart in the list.
constexpr int RowStride = 37;

std::string FirstLine(std::string_view text) {
    return std::string(text.substr(0, text.find('\r')));
}

} // namespace

void Milestone(std::string_view text) {
    const std::string line = std::string(text) + "\n";
    if (write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        qFatal("nobody listens");
    }
}

SessionDesktop::SessionDesktop() {
    onBox = [](std::string_view text) { Milestone(text.starts_with(FileSaved) ? "saved" : "box " + FirstLine(text)); };
}

BoxAnswer SessionDesktop::MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons) {
    const BoxAnswer answer = AnsweringDesktop::MsgBox(text, icon, buttons);
    if (buttons == BoxButtons::YesNoCancel && text.Utf8().starts_with(UnsavedChanges)) {
        return aboutUnsavedChanges;
    }
    const bool isDefaultNo = takesDefaults && buttons == BoxButtons::YesNoDefaultNo;
    return isDefaultNo || text.Utf8().starts_with(LosesChanges) ? BoxAnswer::No : answer;
}

std::optional<std::string> SessionDesktop::ChooseFileToSave(const FileRequest& request) {
    return fileToSave.empty() ? std::nullopt : AnsweringDesktop::ChooseFileToSave(request);
}

bool SessionWindow::SelectVariation(int number) {
    const int rows = List("lvVariations").model()->rowCount();
    if (rows == 0) {
        return false;
    }
    ClickRow("lvVariations", number % rows);
    return true;
}

void SessionWindow::Open(const std::string& path) {
    desktop.fileToOpen = path;
    Click("cbOpen");
}

void SessionWindow::Save(const std::string& path) {
    // Only beside a chosen district with nothing selected there is always the command.
    ClickRow("lvAlpha", 0);
    desktop.fileToSave = path;
    if (!Enabled("cbSave")) {
        Milestone("nothing to save");
        return;
    }
    Milestone("saving");
    Click("cbSave");
}

void SessionWindow::Check() {
    ClickRow("lvAlpha", 0); // where the command is enabled
    Click("cbCompleteCheck");
}

void SessionWindow::MakeEdit(int number) {
    constexpr int undo = 0;
    constexpr int kinds = 7;
    if (number % kinds == undo) {
        Click("cbUndo");
        return;
    }
    ClickRow("lvAlpha", number * RowStride % List("lvAlpha").model()->rowCount());
    switch (number % kinds) {
    case 1:
        return Add(number);
    case 2:
        return Edit(number);
    case 3:
        return Press("cbDelete", number);
    case 4:
        return Press("cbShriek", number);
    case 5:
        return ApplyProposals();
    default:
        return Press("cbDate", number);
    }
}

void SessionWindow::Add(int number) {
    Click("cbAdd");
    const QString letters = QString::number(number, 26);
    Type(QStringLiteral("Faultby Number ") + letters);
    Click("cbOk");
}

void SessionWindow::Edit(int number) {
    if (!SelectVariation(number)) {
        return Add(number);
    }
    Type(QStringLiteral("ey"));
    Click("cbOk");
}

void SessionWindow::Press(const char* button, int number) {
    if (!SelectVariation(number)) {
        return Add(number);
    }
    Click(button);
}

void SessionWindow::ApplyProposals() {
    desktop.fileToOpen = QUEXAL_DATA_DIR "/proposals.txt";
    Click("btnProcess");
    Click("cbApplyAll");
}
