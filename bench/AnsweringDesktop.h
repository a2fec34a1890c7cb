#pragma once

#include "ui/QtDesktop.h"

// The real desktop with every dialogue answered at once, so that a measurement holds only the
// program's own time.
class AnsweringDesktop : public QtDesktop {
public:
    explicit AnsweringDesktop(std::string path) : m_path(std::move(path)) {}

    BoxAnswer MsgBox(std::string_view /*text*/, BoxIcon /*icon*/, BoxButtons buttons) override {
        return buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
    }
    std::string MyMsgBox(const std::string& /*Prompt*/, std::int32_t /*Img*/, const std::string& /*Title*/,
                         std::span<const std::string> /*ButtonCaptions*/) override {
        return "Remove";
    }
    void ShowReport(const Report& report) override { reportLines = report.Items.size(); }
    std::optional<std::string> ChooseFileToOpen(const FileRequest& /*request*/) override { return m_path; }
    std::optional<std::string> ChooseFileToSave(const FileRequest& /*request*/) override { return m_path + ".saved"; }

    std::size_t reportLines = 0;

private:
    std::string m_path;
};
