#pragma once

#include "checks/ReportPosition.h"
#include "core/Desktop.h"
#include "ui/machine/QtStateFolder.h"
#include "ui/windows/LongWork.h"

#include <QPointer>
#include <QWidget>

#include <chrono>
#include <map>
#include <string>

namespace Ui {

// The desktop as Qt shows it. Message boxes, dialogues, settings and the printer are named nowhere else.
class QtDesktop : public CommonRoutines::Desktop {
public:
    QtDesktop();

    // The window that dialogues belong to.
    void SetWindow(QWidget* window) { m_window = window; }

    CommonRoutines::BoxAnswer MsgBox(const CommonRoutines::Wording& text, CommonRoutines::BoxIcon icon,
                                     CommonRoutines::BoxButtons buttons) override;
    std::string MyMsgBox(const std::string& Prompt, std::int32_t Img, const std::string& Title,
                         std::span<const std::string> ButtonCaptions) override;
    std::optional<std::string> InputBox(std::string_view prompt) override;
    std::optional<CommonRoutines::ReportPlace> ShowReport(const CommonRoutines::Report& report) override;
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& request) override;
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& request) override;
    std::optional<std::string> ReadFile(const std::string& path) override;
    bool HasContent(const std::string& path) override;
    bool ReplaceFile(const std::string& path, std::string_view content) override;
    bool PutTogether(const CommonRoutines::PieceSource& pieces,
                     const std::function<bool(std::string_view)>& use) override;
    bool StaysInPlace(const std::string& path) override;
    bool OverwriteFile(const std::string& path, std::string_view content) override;
    bool MakePrivateFile(const std::string& path, std::string_view content) override;
    std::string StampOf(const std::string& path) override;
    std::string TruePath(const std::string& path) override;
    bool AreOneFile(const std::string& a, const std::string& b) override;
    CommonRoutines::StateFolder& State() override { return m_state; }
    bool ShowDocument(const std::string& path) override;
    bool MayMakeFilesIn(const std::string& folder) override;
    std::string DocumentsFolder() override;
    std::string ProgramFolder() override;
    void EnterProgramFolder() override;
    std::string GetSetting(std::string_view section, std::string_view key) override;
    void SaveSetting(std::string_view section, std::string_view key, const std::string& value) override;
    bool Print(const CommonRoutines::LineSource& lines) override;
    std::string Today() override;
    std::string ShortTime() override;
    std::chrono::nanoseconds Uptime() override { return std::chrono::steady_clock::now().time_since_epoch(); }
    void Beep() override;
    void ShowBusy(bool busy) override;
    void ShowProgress(std::string_view doing, double part) override;

private:
    CommonRoutines::BoxAnswer ShowBox(const QString& title, const CommonRoutines::Wording& text,
                                      CommonRoutines::BoxIcon icon, CommonRoutines::BoxButtons buttons);

    QPointer<QWidget> m_window;
    QtStateFolder m_state;
    LongWork m_work;
    int m_unknownStamps = 0;
    std::map<std::string, CommonRoutines::ReportPosition> m_reportsLeft; // by their captions
};

} // namespace Ui
