#pragma once

#include "core/Desktop.h"

// A state folder into which nothing can be put.
class NoStateFolder : public CommonRoutines::StateFolder {
public:
    std::vector<std::string> Names() override { return {}; }
    std::string NewName() override { return "name"; }
    std::optional<std::string> Read(const std::string& /*name*/) override { return std::nullopt; }
    bool Replace(const std::string& /*name*/, std::string_view /*content*/) override { return false; }
    bool Extend(const std::string& /*name*/, std::size_t /*kept*/, std::string_view /*added*/) override {
        return false;
    }
    bool Rename(const std::string& /*name*/, const std::string& /*newName*/) override { return false; }
    bool Remove(const std::string& /*name*/) override { return false; }
    CommonRoutines::LockResult Lock(const std::string& /*name*/) override {
        return CommonRoutines::LockResult::Impossible;
    }
    void Unlock(const std::string& /*name*/) override {}
    std::string PathOf(const std::string& name) override { return name; }
    std::string TimeOf(const std::string& name) override { return name; }
};

// A desktop without a person: one file in memory, and a choice for every repair taken in turn from a
// list of answers, as are the texts that are typed.
class QuietDesktop : public CommonRoutines::Desktop {
public:
    QuietDesktop(std::string content, std::string_view answers) : m_content(std::move(content)), m_answers(answers) {}

    CommonRoutines::BoxAnswer MsgBox(std::string_view /*text*/, CommonRoutines::BoxIcon /*icon*/,
                                     CommonRoutines::BoxButtons /*buttons*/) override {
        return CommonRoutines::BoxAnswer::Ok;
    }
    std::string MyMsgBox(const std::string& /*Prompt*/, std::int32_t /*Img*/, const std::string& /*Title*/,
                         std::span<const std::string> ButtonCaptions) override {
        return ButtonCaptions[NextAnswer() % ButtonCaptions.size()];
    }
    std::optional<std::string> InputBox(std::string_view /*prompt*/) override {
        static const std::vector<std::string> texts{"", "%", " !Elm%12 ", "a|b", "Caf\xE9", "x\ty"};
        // Every second text is a valid one: the question is asked until there is one.
        return ++m_inputs % 2 == 0 ? "Typed" : texts[NextAnswer() % texts.size()];
    }
    void ShowReport(const CommonRoutines::Report& /*report*/) override {}
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& /*request*/) override {
        return std::nullopt;
    }
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& /*request*/) override {
        return std::nullopt;
    }
    std::optional<std::string> ReadFile(const std::string& /*path*/) override { return m_content; }
    bool ReplaceFile(const std::string& /*path*/, std::string_view /*content*/) override { return true; }
    std::string TruePath(const std::string& path) override { return path; }
    CommonRoutines::StateFolder& State() override { return m_state; }
    std::string ProgramFolder() override { return "/program"; }
    void EnterProgramFolder() override {}
    std::string GetSetting(std::string_view /*section*/, std::string_view /*key*/) override { return {}; }
    void SaveSetting(std::string_view /*section*/, std::string_view /*key*/, const std::string& /*value*/) override {}
    bool Print(std::span<const std::string> /*lines*/) override { return true; }
    std::string Today() override { return "05 Mar 2026"; }
    std::string ShortTime() override { return "14:07"; }
    void Beep() override {}
    void ShowBusy(bool /*busy*/) override {}
    void ShowProgress(std::string_view /*doing*/, double /*part*/) override {}

private:
    std::size_t NextAnswer() {
        return m_answers.empty() ? 0 : static_cast<unsigned char>(m_answers[m_next++ % m_answers.size()]);
    }

    NoStateFolder m_state;
    std::string m_content;
    std::string m_answers;
    std::size_t m_next = 0;
    std::size_t m_inputs = 0;
};
