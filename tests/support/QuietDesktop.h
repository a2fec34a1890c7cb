#pragma once

#include "core/Desktop.h"
#include "support/MemoryStateFolder.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

// A desktop without a person: boxes are confirmed, everything else is left alone, and there are no files.
// Other desktops derive from it and say what they are about.
class QuietDesktop : public CommonRoutines::Desktop {
public:
    MemoryStateFolder state;
    std::chrono::nanoseconds uptime{0};

    CommonRoutines::BoxAnswer MsgBox(const CommonRoutines::Wording& /*text*/, CommonRoutines::BoxIcon /*icon*/,
                                     CommonRoutines::BoxButtons buttons) override {
        const bool hasOk = buttons == CommonRoutines::BoxButtons::Ok || buttons == CommonRoutines::BoxButtons::OkCancel;
        return hasOk ? CommonRoutines::BoxAnswer::Ok : CommonRoutines::BoxAnswer::Yes;
    }
    std::string MyMsgBox(const std::string& /*Prompt*/, std::int32_t /*Img*/, const std::string& /*Title*/,
                         std::span<const std::string> ButtonCaptions) override {
        return ButtonCaptions.front();
    }
    std::optional<std::string> InputBox(std::string_view /*prompt*/) override { return std::nullopt; }
    std::optional<CommonRoutines::ReportPlace> ShowReport(const CommonRoutines::Report& /*report*/) override {
        return std::nullopt;
    }
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& /*request*/) override {
        return std::nullopt;
    }
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& /*request*/) override {
        return std::nullopt;
    }
    std::optional<std::string> ReadFile(const std::string& /*path*/) override { return std::nullopt; }
    bool HasContent(const std::string& /*path*/) override { return false; }
    bool ReplaceFile(const std::string& /*path*/, std::string_view /*content*/) override { return true; }
    bool PutTogether(const CommonRoutines::PieceSource& pieces,
                     const std::function<bool(std::string_view)>& use) override {
        std::string content;
        for (auto piece = pieces(); piece; piece = pieces()) {
            content += *piece;
        }
        return use(content);
    }
    bool StaysInPlace(const std::string& /*path*/) override { return false; }
    bool OverwriteFile(const std::string& /*path*/, std::string_view /*content*/) override { return true; }
    bool MakePrivateFile(const std::string& path, std::string_view content) override {
        return OverwriteFile(path, content);
    }
    std::string StampOf(const std::string& /*path*/) override { return {}; }
    std::string TruePath(const std::string& path) override { return path; }
    bool AreOneFile(const std::string& a, const std::string& b) override { return TruePath(a) == TruePath(b); }
    CommonRoutines::StateFolder& State() override { return state; }
    bool ShowDocument(const std::string& /*path*/) override { return true; }
    bool MayMakeFilesIn(const std::string& /*folder*/) override { return true; }
    std::string DocumentsFolder() override { return "/documents"; }
    std::string ProgramFolder() override { return "/program"; }
    void EnterProgramFolder() override {}
    std::string GetSetting(std::string_view /*section*/, std::string_view /*key*/) override { return {}; }
    void SaveSetting(std::string_view /*section*/, std::string_view /*key*/, const std::string& /*value*/) override {}
    bool Print(const CommonRoutines::LineSource& /*lines*/) override { return false; }
    std::string Today() override { return "05 Mar 2026"; }
    std::string ShortTime() override { return "14:07"; }
    // Time goes by as it is asked for, on any machine alike.
    std::chrono::nanoseconds Uptime() override { return uptime += std::chrono::milliseconds(1); }
    void Beep() override {}
    void ShowBusy(bool /*busy*/) override {}
    void ShowProgress(std::string_view /*doing*/, double /*part*/) override {}
};
