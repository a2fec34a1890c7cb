#include "SessionWindow.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <unistd.h>

using namespace CommonRoutines;
using namespace Ui;

namespace {

constexpr std::string_view UnsavedChanges = "There are unsaved changes of ";
constexpr std::string_view FileSaved = "File Saved to ";

// The rows that follow each other in the numbers of edits are far apart in the list.
constexpr int RowStride = 37;
constexpr int InsideRow = 5; // pixels from its left end

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

BoxAnswer SessionDesktop::MsgBox(std::string_view text, BoxIcon /*icon*/, BoxButtons buttons) {
    Milestone(text.starts_with(FileSaved) ? "saved" : "box " + FirstLine(text));
    if (buttons != BoxButtons::YesNo) {
        return BoxAnswer::Ok;
    }
    return text.starts_with(UnsavedChanges) && !wantsUnsavedChanges ? BoxAnswer::No : BoxAnswer::Yes;
}

std::string SessionDesktop::MyMsgBox(const std::string& Prompt, std::int32_t /*Img*/, const std::string& /*Title*/,
                                     std::span<const std::string> /*ButtonCaptions*/) {
    Milestone("box " + FirstLine(Prompt));
    return "Remove";
}

std::optional<std::string> SessionDesktop::InputBox(std::string_view prompt) {
    Milestone("box " + FirstLine(prompt));
    return std::nullopt;
}

SessionWindow::SessionWindow() : m_form(desktop) {
    desktop.SetWindow(&m_form);
    m_form.LoadForm();
    m_form.show();
    m_form.activateWindow();
    if (!QTest::qWaitForWindowActive(&m_form)) {
        qFatal("the window gets no keys");
    }
}

void SessionWindow::Click(const char* button) {
    auto& control = Find<QPushButton>(button);
    if (!control.isEnabled()) {
        qFatal("%s is disabled", button);
    }
    QTest::mouseClick(&control, Qt::LeftButton);
}

void SessionWindow::ClickRow(const char* list, int row) {
    auto& rows = Find<RowList>(list);
    const QModelIndex index = rows.model()->index(row, 0);
    if (!index.isValid()) {
        qFatal("%s has no row %d", list, row);
    }
    rows.scrollTo(index);
    const QRect place = rows.visualRect(index);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, {place.left() + InsideRow, place.center().y()});
}

bool SessionWindow::SelectVariation(int number) {
    const int rows = Find<RowList>("lvVariations").model()->rowCount();
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
    if (!Find<QPushButton>("cbSave").isEnabled()) {
        Milestone("nothing to save");
        return;
    }
    Milestone("saving");
    Click("cbSave");
}

void SessionWindow::MakeEdit(int number) {
    constexpr int undo = 0;
    constexpr int kinds = 7;
    if (number % kinds == undo) {
        Click("cbUndo");
        return;
    }
    ClickRow("lvAlpha", number * RowStride % Find<RowList>("lvAlpha").model()->rowCount());
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
    QTest::keyClicks(&Find<QLineEdit>("tbEdit"), QStringLiteral("Faultby Number ") + letters);
    Click("cbOk");
}

void SessionWindow::Edit(int number) {
    if (!SelectVariation(number)) {
        return Add(number);
    }
    QTest::keyClicks(&Find<QLineEdit>("tbEdit"), QStringLiteral("ey"));
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
