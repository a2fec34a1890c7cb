#pragma once

#include "core/Desktop.h"

// A desktop without a person: one file in memory, and a choice for every repair taken in turn from a
// list of answers.
class QuietDesktop : public Desktop {
public:
    QuietDesktop(std::string content, std::string_view answers) : m_content(std::move(content)), m_answers(answers) {}

    BoxAnswer MsgBox(std::string_view /*text*/, BoxIcon /*icon*/, BoxButtons /*buttons*/) override {
        return BoxAnswer::Ok;
    }
    std::string MyMsgBox(const std::string& /*Prompt*/, std::int32_t /*Img*/, const std::string& /*Title*/,
                         std::span<const std::string> ButtonCaptions) override {
        return ButtonCaptions[NextAnswer() % ButtonCaptions.size()];
    }
    std::optional<std::string> InputBox(std::string_view /*prompt*/) override { return "Typed"; }
    void ShowReport(const Report& /*report*/) override {}
    std::optional<std::string> ChooseFileToOpen(const FileRequest& /*request*/) override { return std::nullopt; }
    std::optional<std::string> ChooseFileToSave(const FileRequest& /*request*/) override { return std::nullopt; }
    std::optional<std::string> ReadFile(const std::string& /*path*/) override { return m_content; }
    bool ReplaceFile(const std::string& /*path*/, std::string_view /*content*/) override { return true; }
    std::string ProgramFolder() override { return "/program"; }
    void EnterProgramFolder() override {}
    std::string GetSetting(std::string_view /*section*/, std::string_view /*key*/) override { return {}; }
    void SaveSetting(std::string_view /*section*/, std::string_view /*key*/, const std::string& /*value*/) override {}
    bool Print(std::span<const std::string> /*lines*/) override { return true; }
    std::string Today() override { return "05 Mar 2026"; }
    std::string ShortTime() override { return "14:07"; }
    void Beep() override {}
    void ShowBusy(bool /*busy*/) override {}

private:
    std::size_t NextAnswer() {
        return m_answers.empty() ? 0 : static_cast<unsigned char>(m_answers[m_next++ % m_answers.size()]);
    }

    std::string m_content;
    std::string m_answers;
    std::size_t m_next = 0;
};
