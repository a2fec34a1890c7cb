#pragma once

#include "ui/machine/QtDesktop.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Ui {

// The real desktop with every dialogue answered at once. Files stay those of the machine.
class AnsweringDesktop : public QtDesktop {
public:
    // What the dialogues choose, with their full paths.
    std::string fileToOpen;
    std::string fileToSave;
    // The word list is there; without it every small word would be a finding.
    std::string programFolder = QUEXAL_DATA_DIR;
    // What becomes of a box, by its text as UTF-8, and of a report; nothing when it is not set.
    std::function<void(std::string_view)> onBox;
    std::function<void(const CommonRoutines::Report&)> onReport;

    CommonRoutines::BoxAnswer MsgBox(const CommonRoutines::Wording& text, CommonRoutines::BoxIcon /*icon*/,
                                     CommonRoutines::BoxButtons buttons) override {
        Tell(text.Utf8());
        const bool hasOk = buttons == CommonRoutines::BoxButtons::Ok || buttons == CommonRoutines::BoxButtons::OkCancel;
        return hasOk ? CommonRoutines::BoxAnswer::Ok : CommonRoutines::BoxAnswer::Yes;
    }
    std::string MyMsgBox(const std::string& Prompt, std::int32_t /*Img*/, const std::string& /*Title*/,
                         std::span<const std::string> /*ButtonCaptions*/) override {
        Tell(Prompt);
        return "Remove";
    }
    std::optional<std::string> InputBox(std::string_view prompt) override {
        Tell(prompt);
        return std::nullopt;
    }
    std::optional<CommonRoutines::ReportPlace> ShowReport(const CommonRoutines::Report& report) override {
        if (onReport) {
            onReport(report);
        }
        return std::nullopt;
    }
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& /*request*/) override {
        return fileToOpen;
    }
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& /*request*/) override {
        return fileToSave;
    }
    std::string ProgramFolder() override { return programFolder; }
    void Beep() override {}

private:
    void Tell(std::string_view text) const {
        if (onBox) {
            onBox(text);
        }
    }
};

} // namespace Ui
