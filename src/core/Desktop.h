#pragma once

// The port through which the program speaks to the person and the machine. Everything that the
// routines ask of a desktop goes through this class, so that they run, and are tested, without one.
// Texts are Windows-1252 with CR LF line breaks and are shown as plain text; file names are in the
// machine's own encoding. Where a text may hold a file name it is a Wording, and the name is shown as it is.

#include "core/Report.h"
#include "core/StateFolder.h"
#include "core/Wording.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace CommonRoutines {

enum class BoxIcon { None, Critical, Question, Exclamation, Information };
// The first button is the default one, which Enter presses; where a Yes could destroy something, it is No.
enum class BoxButtons { Ok, OkCancel, YesNo, YesNoDefaultNo, YesNoCancel };
enum class BoxAnswer { Ok, Cancel, Yes, No };

// Numbers of the standard icons, as the box with chosen buttons takes them.
enum StandardIcon : std::int32_t {
    IconNone = 0,
    IconStop = 32513,
    IconQuestion = 32514,
    IconExclamation = 32515,
    IconInformation = 32516,
};

// What a file dialogue starts from. Empty texts leave the choice to the desktop.
struct FileRequest {
    std::string title;
    std::string folder;
    std::string fileName;
    std::string defaultExtension; // without the point; added to a name that has none
    bool asksBeforeReplacing = true;
};

// The next piece of a content; nothing behind the last one.
using PieceSource = std::function<std::optional<std::string>()>;

class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    // Modal questions and messages. The standard box carries the program's title.
    virtual BoxAnswer MsgBox(const Wording& text, BoxIcon icon, BoxButtons buttons = BoxButtons::Ok) = 0;
    // The caption of the button pressed; empty when the box was left without a choice.
    virtual std::string MyMsgBox(const std::string& Prompt, std::int32_t Img, const std::string& Title,
                                 std::span<const std::string> ButtonCaptions) = 0;
    // The text typed; nothing when the box was cancelled.
    virtual std::optional<std::string> InputBox(std::string_view prompt) = 0;
    // Shows a report window until it is closed. The place of a line that the user wants to go to, if any.
    virtual std::optional<ReportPlace> ShowReport(const Report& report) = 0;

    // The full path chosen; nothing when the dialogue was cancelled. For saving, read-only files are
    // refused, and names of files that could not be made.
    virtual std::optional<std::string> ChooseFileToOpen(const FileRequest& request) = 0;
    virtual std::optional<std::string> ChooseFileToSave(const FileRequest& request) = 0;

    // The whole content of a file; nothing when it cannot be read.
    virtual std::optional<std::string> ReadFile(const std::string& path) = 0;
    // Whether a file is there and something stands in it.
    virtual bool HasContent(const std::string& path) = 0;
    // Replaces a file at once and as a whole. False when that failed: the old file is then as it was.
    virtual bool ReplaceFile(const std::string& path, std::string_view content) = 0;
    // Hands over the pieces as one content, which may be larger than any memory, and returns what `use` does. False,
    // without handing it over, where there is no room for it.
    virtual bool PutTogether(const PieceSource& pieces, const std::function<bool(std::string_view)>& use) = 0;
    // True where a new file cannot take the place of the one with this name, or may not: it would let others read
    // it, or lose its owner, its rights or its other names. Such a file has to be overwritten where it is.
    virtual bool StaysInPlace(const std::string& path) = 0;
    // Writes over a file where it is, or makes it. False when that failed: a part may have been written then.
    virtual bool OverwriteFile(const std::string& path, std::string_view content) = 0;
    // Makes a file that is for the user alone. False when that failed, or when there is one.
    virtual bool MakePrivateFile(const std::string& path, std::string_view content) = 0;
    // Tells one state of a file from another, as far as its size and its times do; empty where no file is.
    virtual std::string StampOf(const std::string& path) = 0;
    // The path without links in it; the path itself when nothing is there.
    virtual std::string TruePath(const std::string& path) = 0;
    // Whether two names are those of one file, by a link of any kind.
    virtual bool AreOneFile(const std::string& a, const std::string& b) = 0;
    // What the program keeps for the next time, should it stop unexpectedly.
    virtual StateFolder& State() = 0;

    // Shows a document in the desktop's own viewer. False when it is not there, or when nothing can show it.
    virtual bool ShowDocument(const std::string& path) = 0;

    // Whether files can be made in a folder, and the folder where the user's own ones are.
    virtual bool MayMakeFilesIn(const std::string& folder) = 0;
    virtual std::string DocumentsFolder() = 0;
    // The folder of the program itself, and making it the current folder.
    virtual std::string ProgramFolder() = 0;
    virtual void EnterProgramFolder() = 0;

    // Per-user settings of this program, by section and key; empty when never saved.
    virtual std::string GetSetting(std::string_view section, std::string_view key) = 0;
    virtual void SaveSetting(std::string_view section, std::string_view key, const std::string& value) = 0;

    // Prints on the default printer. False when there is no printer or it did not take the job.
    virtual bool Print(const LineSource& lines) = 0;

    virtual std::string Today() = 0;               // as "05 Mar 2026"
    virtual std::string ShortTime() = 0;           // hours and minutes, as the user's country writes them
    virtual std::chrono::nanoseconds Uptime() = 0; // since some moment; it never goes back
    virtual void Beep() = 0;
    // Work that may take long begins or ends.
    virtual void ShowBusy(bool busy) = 0;
    // What is being done, of which a part (0 to 1) is over. Between ShowBusy(true) and ShowBusy(false) only; the
    // desktop may paint its windows meanwhile, so that what they show must be fit to be painted.
    virtual void ShowProgress(std::string_view doing, double part) = 0;
};

} // namespace CommonRoutines
