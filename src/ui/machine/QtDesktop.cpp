#include "ui/machine/QtDesktop.h"

#include "ui/Text.h"
#include "ui/machine/BoxText.h"
#include "ui/machine/DateTimeText.h"
#include "ui/machine/DurableFile.h"
#include "ui/machine/FileDialogues.h"
#include "ui/machine/FileLook.h"
#include "ui/machine/FilePlace.h"
#include "ui/machine/Memory.h"
#include "ui/machine/OnlyForTheUser.h"
#include "ui/machine/Printing.h"
#include "ui/machine/Process.h"
#include "ui/machine/ReadableName.h"
#include "ui/machine/SettingsFile.h"
#include "ui/machine/Spool.h"
#include "ui/widgets/ButtonMarks.h"
#include "ui/windows/VarCheck.h"
#include "ui/windows/frmCustomMessageBox.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <system_error>

namespace Ui {

using namespace CommonRoutines;

namespace {

constexpr QLatin1String ProgramTitle("Quexal Editor");

constexpr int PromptWidth = 438;

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::YesNo:
    case BoxButtons::YesNoDefaultNo:
        return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

BoxIcon StandardBoxIcon(std::int32_t number) {
    switch (number) {
    case IconStop:
        return BoxIcon::Critical;
    case IconQuestion:
        return BoxIcon::Question;
    case IconExclamation:
        return BoxIcon::Exclamation;
    case IconInformation:
        return BoxIcon::Information;
    default:
        return BoxIcon::None;
    }
}

QIcon StandardPicture(std::int32_t number) {
    const QStyle* style = QApplication::style();
    switch (number) {
    case IconStop:
        return style->standardIcon(QStyle::SP_MessageBoxCritical);
    case IconQuestion:
        return style->standardIcon(QStyle::SP_MessageBoxQuestion);
    case IconExclamation:
        return style->standardIcon(QStyle::SP_MessageBoxWarning);
    case IconInformation:
        return style->standardIcon(QStyle::SP_MessageBoxInformation);
    default:
        return {};
    }
}

QString SettingName(std::string_view section, std::string_view key) {
    return Text::ToQt(section) + QLatin1Char('/') + Text::ToQt(key);
}

// The toolkit's label takes the focus from a click alone. It may only take it by Tab when a button has it already,
// which is known once the box is shown.
void LetTabReachText(QMessageBox& box) {
    QTimer::singleShot(0, &box, [&box] {
        const QList<QAbstractButton*> buttons = box.buttons();
        const auto isDefault = [](QAbstractButton* button) { return qobject_cast<QPushButton*>(button)->isDefault(); };
        const auto found = std::find_if(buttons.begin(), buttons.end(), isDefault);
        (found == buttons.end() ? buttons.constFirst() : *found)->setFocus();
        if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
            label->setFocusPolicy(Qt::StrongFocus);
        }
    });
}

} // namespace

QtDesktop::QtDesktop() {
    Process::LetCallsFail();
}

BoxAnswer QtDesktop::ShowBox(const QString& title, const Wording& text, BoxIcon icon, BoxButtons buttons) {
    QMessageBox box(IconOf(icon), title, {}, ButtonsOf(buttons), m_window);
    box.setTextFormat(Qt::PlainText);
    box.setText(BoxText::WithBrokenWords(Text::WordingForBox(text), box.font(), BoxText::RoomOn(*box.screen())));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (buttons == BoxButtons::YesNoDefaultNo) {
        box.setDefaultButton(QMessageBox::No);
    }
    LetTabReachText(box);
    MarkButtons(box);
    const int answer = box.exec();
    m_work.GoOn();
    switch (answer) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Ok:
        return BoxAnswer::Ok;
    default:
        return BoxAnswer::Cancel;
    }
}

BoxAnswer QtDesktop::MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons) {
    return ShowBox(ProgramTitle, text, icon, buttons);
}

std::string QtDesktop::MyMsgBox(const std::string& Prompt, std::int32_t Img, const std::string& Title,
                                std::span<const std::string> ButtonCaptions) {
    const QString title = Title.empty() ? QString(ProgramTitle) : Text::ToQt(Title);
    const auto showCopy = [&] { ShowBox(title, Prompt, StandardBoxIcon(Img), BoxButtons::Ok); };
    frmCustomMessageBox box(Prompt, StandardPicture(Img), title, ButtonCaptions, showCopy, m_window);
    box.exec();
    m_work.GoOn();
    return box.Result();
}

std::optional<std::string> QtDesktop::InputBox(std::string_view prompt) {
    QInputDialog dialog(m_window);
    dialog.setWindowTitle(ProgramTitle);
    dialog.setLabelText(Text::ForBox(prompt));
    for (auto* label : dialog.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        // The longest word must not set the width of the box.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        label->setMinimumWidth(PromptWidth);
    }
    MarkButtons(dialog);
    const int answer = dialog.exec();
    m_work.GoOn();
    return answer == QDialog::Accepted ? std::optional(Text::FromQt(dialog.textValue())) : std::nullopt;
}

std::optional<ReportPlace> QtDesktop::ShowReport(const Report& report) {
    VarCheck window(report, *this, m_window);
    if (const auto left = m_reportsLeft.find(report.caption); left != m_reportsLeft.end()) {
        if (const auto line = LineLeft(left->second, report.items)) {
            window.OpenAt(*line);
        }
    }
    window.exec();
    m_reportsLeft.erase(report.caption);
    if (const auto line = window.ChosenLine()) {
        m_reportsLeft[report.caption] = {*line, report.items[*line]};
    }
    return window.WantedPlace();
}

std::optional<std::string> QtDesktop::ChooseFileToOpen(const FileRequest& request) {
    return FileDialogues::ChooseToOpen(m_window, request);
}

std::optional<std::string> QtDesktop::ChooseFileToSave(const FileRequest& request) {
    auto path = FileDialogues::ChooseToSave(m_window, request, *this);
    Memory::LimitToWhatIsLeft(); // which may be more than when a file was read
    return path;
}

std::optional<std::string> QtDesktop::ReadFile(const std::string& path) {
    Memory::LimitToWhatIsLeft(); // what a file asks for must not be more
    const ReadableName name(path);
    return DurableFile::Read(name.ForToolkit(), [this](double part) { ShowProgress("Reading the file", part); });
}

bool QtDesktop::HasContent(const std::string& path) {
    const ReadableName name(path);
    std::error_code error;
    const auto size = FileLook::SizeOf(name.ForToolkit(), error);
    return error ? !FileLook::IsMissing(error) : size > 0;
}

bool QtDesktop::ReplaceFile(const std::string& path, std::string_view content) {
    return DurableFile::Replace(Text::PathToQt(path), content,
                                [this](double part) { ShowProgress("Writing the file", part); });
}

bool QtDesktop::PutTogether(const PieceSource& pieces, const std::function<bool(std::string_view)>& use) {
    return Spool::Use(pieces, use);
}

bool QtDesktop::StaysInPlace(const std::string& path) {
    return ReadableName(path).IsStandIn() || FilePlace::MustBeKept(Text::PathToQt(path));
}

bool QtDesktop::OverwriteFile(const std::string& path, std::string_view content) {
    const ReadableName name(path);
    return DurableFile::Overwrite(name.ForToolkit(), content,
                                  [this](double part) { ShowProgress("Writing the file", part); });
}

bool QtDesktop::MakePrivateFile(const std::string& path, std::string_view content) {
    const OnlyForTheUser guard;
    const ReadableName name(path);
    return !QFileInfo::exists(name.ForToolkit()) &&
           DurableFile::Overwrite(name.ForToolkit(), content,
                                  [this](double part) { ShowProgress("Writing the file", part); });
}

std::string QtDesktop::StampOf(const std::string& path) {
    const ReadableName name(path);
    std::error_code error;
    const auto size = FileLook::SizeOf(name.ForToolkit(), error);
    if (error) { // what cannot be looked at is like nothing that was seen before
        return FileLook::IsMissing(error) ? std::string() : "unknown " + std::to_string(++m_unknownStamps);
    }
    return std::to_string(size) + FileLook::TimesOf(name.ForToolkit());
}

std::string QtDesktop::TruePath(const std::string& path) {
    return ReadableName::TruePath(path);
}

bool QtDesktop::AreOneFile(const std::string& a, const std::string& b) {
    const ReadableName nameOfA(a);
    const ReadableName nameOfB(b);
    return TruePath(a) == TruePath(b) || FileLook::AreOne(nameOfA.ForToolkit(), nameOfB.ForToolkit());
}

bool QtDesktop::ShowDocument(const std::string& path) {
    const QString file = Text::PathToQt(path);
    return QFileInfo::exists(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool QtDesktop::MayMakeFilesIn(const std::string& folder) {
    return FileLook::MayMakeFilesIn(FileLook::FolderLeft(Text::PathToQt(folder)));
}

std::string QtDesktop::DocumentsFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return Text::PathFromQt(QFileInfo(documents).isDir() ? documents : QDir::homePath());
}

std::string QtDesktop::ProgramFolder() {
    return Text::PathFromQt(QCoreApplication::applicationDirPath());
}

void QtDesktop::EnterProgramFolder() {
    QDir::setCurrent(QCoreApplication::applicationDirPath());
}

std::string QtDesktop::GetSetting(std::string_view section, std::string_view key) {
    return Text::PathFromQt(SettingsFile::Value(SettingName(section, key)));
}

void QtDesktop::SaveSetting(std::string_view section, std::string_view key, const std::string& value) {
    SettingsFile::SetValue(SettingName(section, key), Text::PathToQt(value));
}

bool QtDesktop::Print(const LineSource& lines) {
    return Printing::Print(lines);
}

std::string QtDesktop::Today() {
    return DateTimeText::Day(QDate::currentDate());
}

std::string QtDesktop::ShortTime() {
    return DateTimeText::ShortTime(QTime::currentTime());
}

void QtDesktop::Beep() {
    QApplication::beep();
}

void QtDesktop::ShowBusy(bool busy) {
    if (busy) {
        // A report window that is open stands before the main window.
        QWidget* dialogue = QApplication::activeModalWidget();
        m_work.Begin(dialogue != nullptr ? dialogue : m_window.data());
    } else {
        m_work.End();
    }
}

void QtDesktop::ShowProgress(std::string_view doing, double part) {
    m_work.Show(Text::ToQt(doing), part);
}

} // namespace Ui
