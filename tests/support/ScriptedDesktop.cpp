#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

#include <utility>

using namespace CommonRoutines;

namespace {

std::string Listed(std::span<const std::string> texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += "\n  [" + text + "]";
    }
    return list;
}

std::string BoxPrompt(const Wording& text, BoxIcon icon, BoxButtons buttons) {
    return "box, icon " + std::to_string(static_cast<int>(icon)) + ", buttons " +
           std::to_string(static_cast<int>(buttons)) + ": " + text.Utf8();
}

std::string ChoicePrompt(std::string_view prompt, std::span<const std::string> captions) {
    return "choice: " + std::string(prompt) + Listed(captions);
}

std::string InputPrompt(std::string_view prompt) {
    return "input: " + std::string(prompt);
}

std::string ReportPrompt(const Report& report) {
    return "report " + report.caption + (report.canPrintAndSave ? ", printable:" : ":") + Listed(report.items.All());
}

} // namespace

ScriptedDesktop::~ScriptedDesktop() {
    CheckDone();
}

void ScriptedDesktop::CheckDone() {
    for (const Step& step : m_script) {
        ADD_FAILURE() << "expected, but did not come: " << step.prompt;
    }
    m_script.clear();
}

void ScriptedDesktop::ExpectBox(const Wording& text, BoxIcon icon, BoxButtons buttons, BoxAnswer answer) {
    m_script.push_back({BoxPrompt(text, icon, buttons), std::to_string(static_cast<int>(answer))});
}

void ScriptedDesktop::ExpectChoice(std::string prompt, std::vector<std::string> captions, std::string answer) {
    m_script.push_back({ChoicePrompt(prompt, captions), std::move(answer)});
}

void ScriptedDesktop::ExpectInput(std::string prompt, std::optional<std::string> answer) {
    m_script.push_back({InputPrompt(prompt), std::move(answer)});
}

void ScriptedDesktop::ExpectOpen(std::optional<std::string> path) {
    m_script.push_back({"open dialogue", std::move(path)});
}

void ScriptedDesktop::ExpectSave(std::optional<std::string> path) {
    m_script.push_back({"save dialogue", std::move(path)});
}

void ScriptedDesktop::ExpectReport(std::string caption, std::vector<std::string> items, bool canPrintAndSave) {
    m_script.push_back({ReportPrompt({std::move(caption), std::move(items), canPrintAndSave}), std::nullopt});
}

std::optional<std::string> ScriptedDesktop::Play(const std::string& prompt) {
    if (m_script.empty()) {
        ADD_FAILURE() << "not expected: " << prompt;
        return std::nullopt;
    }
    const Step step = m_script.front();
    m_script.pop_front();
    EXPECT_EQ(prompt, step.prompt);
    return step.answer;
}

BoxAnswer ScriptedDesktop::MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons) {
    if (confirmsBoxes) {
        return buttons == BoxButtons::Ok || buttons == BoxButtons::OkCancel ? BoxAnswer::Ok : BoxAnswer::Yes;
    }
    const auto answer = Play(BoxPrompt(text, icon, buttons));
    return answer ? static_cast<BoxAnswer>(std::stoi(*answer)) : BoxAnswer::Cancel;
}

std::string ScriptedDesktop::MyMsgBox(const std::string& Prompt, std::int32_t Img, const std::string& Title,
                                      std::span<const std::string> ButtonCaptions) {
    EXPECT_EQ(Img, IconQuestion);
    EXPECT_EQ(Title, "Null Variation");
    // Quit ends the loop of a dialogue that a test did not expect.
    return Play(ChoicePrompt(Prompt, ButtonCaptions)).value_or("Quit");
}

std::optional<std::string> ScriptedDesktop::InputBox(std::string_view prompt) {
    return Play(InputPrompt(prompt));
}

std::optional<ReportPlace> ScriptedDesktop::ShowReport(const Report& report) {
    if (recordReports) {
        reports.push_back({report.caption, report.items.All(), report.canPrintAndSave, report.placeOf}); // as it is now
    } else {
        Play(ReportPrompt(report));
    }
    const auto line = std::exchange(lineToGoTo, std::nullopt);
    return line ? std::optional(report.PlaceOf(*line)) : std::nullopt;
}

std::optional<std::string> ScriptedDesktop::ChooseFileToOpen(const FileRequest& request) {
    lastRequest = request;
    return Play("open dialogue");
}

std::optional<std::string> ScriptedDesktop::ChooseFileToSave(const FileRequest& request) {
    lastRequest = request;
    return savesTo ? savesTo : Play("save dialogue");
}

std::optional<std::string> ScriptedDesktop::ReadFile(const std::string& path) {
    const auto file = files.find(path);
    return file == files.end() ? std::nullopt : std::optional(file->second);
}

bool ScriptedDesktop::ReplaceFile(const std::string& path, std::string_view content) {
    if (canWrite) {
        files[path] = content;
    }
    return canWrite && !failsAfterWriting;
}

bool ScriptedDesktop::OverwriteFile(const std::string& path, std::string_view content) {
    const bool isTorn = failingOverwrites > 0 || diesOverwriting;
    if (isTorn) {
        files[path].replace(0, content.size() / 2, content.substr(0, content.size() / 2));
        failingOverwrites -= failingOverwrites > 0 ? 1 : 0;
    } else if (canWrite) {
        files[path] = content;
    }
    if (diesOverwriting) {
        throw Killed();
    }
    return !isTorn && canWrite;
}

std::string ScriptedDesktop::StampOf(const std::string& path) {
    const auto file = files.find(path);
    return file == files.end() ? std::string() : std::to_string(touched[path]) + ' ' + file->second;
}

bool ScriptedDesktop::ShowDocument(const std::string& path) {
    if (hasViewer) {
        shownDocuments.push_back(path);
    }
    return hasViewer;
}

std::string ScriptedDesktop::GetSetting(std::string_view section, std::string_view key) {
    const auto setting = settings.find(std::string(section) + '/' + std::string(key));
    return setting == settings.end() ? std::string() : setting->second;
}

void ScriptedDesktop::SaveSetting(std::string_view section, std::string_view key, const std::string& value) {
    settings[std::string(section) + '/' + std::string(key)] = value;
}

bool ScriptedDesktop::Print(const LineSource& lines) {
    if (hasPrinter) {
        printed.clear();
        for (auto line = lines(); line; line = lines()) {
            printed.push_back(line->Utf8());
        }
    }
    return hasPrinter;
}

void ScriptedDesktop::ShowBusy(bool isBusy) {
    if (isBusy) {
        tasks.clear();
    }
    busy = isBusy;
}

void ScriptedDesktop::ShowProgress(std::string_view doing, double newPart) {
    if (!busy) {
        ADD_FAILURE() << "progress without work: " << doing;
    }
    if (tasks.empty() || tasks.back() != doing) {
        tasks.emplace_back(doing);
        part = 0;
    }
    if (newPart < part || newPart > 1) {
        ADD_FAILURE() << doing << " went from " << part << " to " << newPart;
    }
    part = newPart;
}
