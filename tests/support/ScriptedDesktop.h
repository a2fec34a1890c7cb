#pragma once

#include "support/QuietDesktop.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <variant>
#include <vector>

// A desktop that plays a script: the prompts that a test expects, in order and word for word, each
// with its answer. A prompt that was not expected fails the test, and so does an answer left over.
// Files, settings and the printer live in memory.
class ScriptedDesktop : public QuietDesktop {
public:
    ~ScriptedDesktop() override;

    struct Killed {}; // what ends a program that dies

    // The script.
    void ExpectBox(const CommonRoutines::Wording& text, CommonRoutines::BoxIcon icon,
                   CommonRoutines::BoxButtons buttons = CommonRoutines::BoxButtons::Ok,
                   CommonRoutines::BoxAnswer answer = CommonRoutines::BoxAnswer::Ok);
    void ExpectChoice(std::string prompt, std::vector<std::string> captions, std::string answer);
    void ExpectInput(std::string prompt, std::optional<std::string> answer);
    void ExpectOpen(std::optional<std::string> path);
    void ExpectSave(std::optional<std::string> path);
    void ExpectReport(std::string caption, std::vector<std::string> items, bool canPrintAndSave);
    // Fails the test unless everything expected has happened.
    void CheckDone();
    // Reports are collected instead of being compared with the script: for those that are too long
    // or too far from the point to be written out.
    bool recordReports = false;
    std::vector<CommonRoutines::Report> reports;
    std::optional<std::size_t> lineToGoTo; // from the next report

    // Boxes are confirmed without a look: for rounds that meet with any of them.
    bool confirmsBoxes = false;
    std::optional<std::string> savesTo; // so are save dialogues, with this file

    // The machine.
    std::map<std::string, std::string> files;
    std::map<std::string, std::string> settings; // by "section/key"
    std::vector<std::string> printed;            // as UTF-8
    std::vector<std::string> shownDocuments;
    bool hasViewer = true;
    bool hasPrinter = true;
    bool canWrite = true;
    bool failsAfterWriting = false;           // says so though the file is in its place
    std::map<std::string, std::string> links; // further names of files
    std::set<std::string> inPlace;            // files that cannot be replaced by new ones
    int failingOverwrites = 0;                // how many of the next ones write a part only
    bool diesOverwriting = false;             // by an exception, having written a part
    bool mayMakeFiles = true;                 // in any folder
    std::map<std::string, int> touched;       // how often a file was written anew with what it had
    int beeps = 0;
    bool busy = false;
    std::vector<std::string> tasks;          // what was done, one after the other, since it was last busy
    double part = 0;                         // of the last of them that is over
    int programFolderEntries = 0;            // how often the program's folder became the current one
    CommonRoutines::FileRequest lastRequest; // of the last file dialogue

    CommonRoutines::BoxAnswer MsgBox(const CommonRoutines::Wording& text, CommonRoutines::BoxIcon icon,
                                     CommonRoutines::BoxButtons buttons) override;
    std::string MyMsgBox(const std::string& Prompt, std::int32_t Img, const std::string& Title,
                         std::span<const std::string> ButtonCaptions) override;
    std::optional<std::string> InputBox(std::string_view prompt) override;
    std::optional<CommonRoutines::ReportPlace> ShowReport(const CommonRoutines::Report& report) override;
    std::optional<std::string> ChooseFileToOpen(const CommonRoutines::FileRequest& request) override;
    std::optional<std::string> ChooseFileToSave(const CommonRoutines::FileRequest& request) override;
    std::optional<std::string> ReadFile(const std::string& path) override;
    bool HasContent(const std::string& path) override { return files.contains(path) && !files[path].empty(); }
    bool ReplaceFile(const std::string& path, std::string_view content) override;
    bool StaysInPlace(const std::string& path) override { return inPlace.contains(path); }
    bool OverwriteFile(const std::string& path, std::string_view content) override;
    std::string StampOf(const std::string& path) override;
    bool AreOneFile(const std::string& a, const std::string& b) override {
        const auto named = [this](const std::string& path) { return links.contains(path) ? links.at(path) : path; };
        return named(TruePath(a)) == named(TruePath(b));
    }
    bool MayMakeFilesIn(const std::string& /*folder*/) override { return mayMakeFiles; }
    bool ShowDocument(const std::string& path) override;
    void EnterProgramFolder() override { ++programFolderEntries; }
    std::string GetSetting(std::string_view section, std::string_view key) override;
    void SaveSetting(std::string_view section, std::string_view key, const std::string& value) override;
    bool Print(const CommonRoutines::LineSource& lines) override;
    void Beep() override { ++beeps; }
    void ShowBusy(bool isBusy) override;
    void ShowProgress(std::string_view doing, double newPart) override;

private:
    // One prompt as text, with whatever a user could tell apart, and the answer to give.
    struct Step {
        std::string prompt;
        std::optional<std::string> answer;
    };
    std::optional<std::string> Play(const std::string& prompt);

    std::deque<Step> m_script;
};
