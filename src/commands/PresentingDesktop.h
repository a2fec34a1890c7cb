#pragma once

#include "core/Desktop.h"

#include <functional>
#include <optional>
#include <utility>

namespace Commands {

// The desktop as the commands see it: before anything is asked or said, and before long work begins, what
// stands behind it is made true and safe. So no command can forget to.
class PresentingDesktop : public CommonRoutines::Desktop {
public:
    // `machine` must live as long as this.
    PresentingDesktop(CommonRoutines::Desktop& machine, std::function<void()> present)
        : m_machine(machine), m_present(std::move(present)) {}

    CommonRoutines::BoxAnswer MsgBox(const CommonRoutines::Wording& text, CommonRoutines::BoxIcon icon,
                                     CommonRoutines::BoxButtons buttons) override {
        return Presented().MsgBox(text, icon, buttons);
    }
    std::string MyMsgBox(const std::string& Prompt, std::int32_t Img, const std::string& Title,
                         std::span<const std::string> ButtonCaptions) override {
        return Presented().MyMsgBox(Prompt, Img, Title, ButtonCaptions);
    }
    std::optional<std::string> InputBox(std::string_view prompt) override { return Presented().InputBox(prompt); }
    std::optional<CommonRoutines::ReportPlace> ShowReport(const CommonRoutines::Report& report) override {
        return m_wanted = Presented().ShowReport(report);
    }
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& request) override {
        return Presented().ChooseFileToOpen(request);
    }
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& request) override {
        return Presented().ChooseFileToSave(request);
    }
    void ShowBusy(bool busy) override { (busy ? Presented() : m_machine).ShowBusy(busy); }

    std::optional<std::string> ReadFile(const std::string& path) override { return m_machine.ReadFile(path); }
    bool HasContent(const std::string& path) override { return m_machine.HasContent(path); }
    bool ReplaceFile(const std::string& path, std::string_view content) override {
        return m_machine.ReplaceFile(path, content);
    }
    bool PutTogether(const CommonRoutines::PieceSource& pieces,
                     const std::function<bool(std::string_view)>& use) override {
        return m_machine.PutTogether(pieces, use);
    }
    bool StaysInPlace(const std::string& path) override { return m_machine.StaysInPlace(path); }
    bool OverwriteFile(const std::string& path, std::string_view content) override {
        return m_machine.OverwriteFile(path, content);
    }
    bool MakePrivateFile(const std::string& path, std::string_view content) override {
        return m_machine.MakePrivateFile(path, content);
    }
    std::string StampOf(const std::string& path) override { return m_machine.StampOf(path); }
    std::string TruePath(const std::string& path) override { return m_machine.TruePath(path); }
    bool AreOneFile(const std::string& a, const std::string& b) override { return m_machine.AreOneFile(a, b); }
    CommonRoutines::StateFolder& State() override { return m_machine.State(); }
    bool ShowDocument(const std::string& path) override { return m_machine.ShowDocument(path); }
    bool MayMakeFilesIn(const std::string& folder) override { return m_machine.MayMakeFilesIn(folder); }
    std::string DocumentsFolder() override { return m_machine.DocumentsFolder(); }
    std::string ProgramFolder() override { return m_machine.ProgramFolder(); }
    void EnterProgramFolder() override { m_machine.EnterProgramFolder(); }
    std::string GetSetting(std::string_view section, std::string_view key) override {
        return m_machine.GetSetting(section, key);
    }
    void SaveSetting(std::string_view section, std::string_view key, const std::string& value) override {
        m_machine.SaveSetting(section, key, value);
    }
    bool Print(const CommonRoutines::LineSource& lines) override { return m_machine.Print(lines); }
    std::string Today() override { return m_machine.Today(); }
    std::string ShortTime() override { return m_machine.ShortTime(); }
    std::chrono::nanoseconds Uptime() override { return m_machine.Uptime(); }
    void Beep() override { m_machine.Beep(); }
    void ShowProgress(std::string_view doing, double part) override { m_machine.ShowProgress(doing, part); }

    // Where the user wanted to go from the last report; told once.
    [[nodiscard]] std::optional<CommonRoutines::ReportPlace> TakeWantedPlace() {
        return std::exchange(m_wanted, std::nullopt);
    }

private:
    CommonRoutines::Desktop& Presented() {
        m_present();
        return m_machine;
    }

    CommonRoutines::Desktop& m_machine;
    std::function<void()> m_present;
    std::optional<CommonRoutines::ReportPlace> m_wanted;
};

} // namespace Commands
