#pragma once

#include "ui/machine/QtDesktop.h"

#include <functional>

// The real desktop with every dialogue answered at once, so that a measurement holds only the
// program's own time.
class AnsweringDesktop : public Ui::QtDesktop {
public:
    // The file that the next dialogue for opening chooses, with its full path.
    std::string fileToOpen;
    std::string fileToSave;
    // What becomes of a report; nothing when it is not set.
    std::function<void(const CommonRoutines::Report&)> onReport;

    CommonRoutines::BoxAnswer MsgBox(std::string_view /*text*/, CommonRoutines::BoxIcon /*icon*/,
                                     CommonRoutines::BoxButtons buttons) override {
        return buttons == CommonRoutines::BoxButtons::YesNo ? CommonRoutines::BoxAnswer::Yes
                                                            : CommonRoutines::BoxAnswer::Ok;
    }
    std::string MyMsgBox(const std::string& /*Prompt*/, std::int32_t /*Img*/, const std::string& /*Title*/,
                         std::span<const std::string> /*ButtonCaptions*/) override {
        return "Remove";
    }
    void ShowReport(const CommonRoutines::Report& report) override {
        if (onReport) {
            onReport(report);
        }
    }
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& /*request*/) override {
        return fileToOpen;
    }
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& /*request*/) override {
        return fileToSave;
    }
    // The word list is there; without it every small word would be a finding.
    std::string ProgramFolder() override { return QUEXAL_DATA_DIR; }
    void Beep() override {}
};
