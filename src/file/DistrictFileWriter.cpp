#include "file/DistrictFileWriter.h"

#include "core/Desktop.h"
#include "core/Paths.h"
#include "core/State.h"
#include "recovery/Fingerprint.h"
#include "recovery/OpenFile.h"
#include "recovery/SaveCopy.h"
#include "recovery/UnsavedChanges.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t MostTyped = 65536; // in most sessions

// A file as it is to be written.
struct Content {
    std::string bytes;
    Fingerprint fingerprint; // of them
};

// Texts put together. Those that stand in the content that was read as they are to be written, one behind the other,
// are copied at once, which is nearly all of a file.
class Joined {
public:
    // Growing step by step would touch twice the memory. What is not needed is never touched.
    explicit Joined(std::string_view beginning) {
        m_joined.reserve(Unsaved.File().bytes.size + MostTyped);
        Append(beginning);
    }

    // A text that stays until the end; `isPart` says that it is a part of the content.
    void Add(std::string_view separator, std::string_view text, bool isPart) {
        const char* end = m_run.data() + m_run.size();
        const bool goesOn = m_isPart && isPart && text.data() == end + separator.size() &&
                            std::string_view(end, separator.size()) == separator;
        if (goesOn) {
            m_run = {m_run.data(), m_run.size() + separator.size() + text.size()};
            return;
        }
        Append(m_run);
        Append(separator);
        m_run = text;
        m_isPart = isPart && !text.empty();
    }
    [[nodiscard]] Content Ended(std::string_view end) && {
        Append(m_run);
        Append(end);
        return {std::move(m_joined), m_fingerprint.OfAll()};
    }

private:
    // Bytes that have just been copied are near at hand for the fingerprint.
    void Append(std::string_view text) {
        constexpr std::size_t nearAtHand = 65536;
        while (!text.empty()) {
            const std::string_view piece = text.substr(0, nearAtHand);
            m_joined.append(piece);
            m_fingerprint.Add(piece);
            text.remove_prefix(piece.size());
        }
    }

    std::string m_joined;
    GrowingFingerprint m_fingerprint; // of m_joined
    std::string_view m_run;           // not yet in it
    bool m_isPart = false;            // of the content, so that more of it may follow
};

std::optional<std::string> ChooseTarget(Desktop& desktop) {
    FileRequest request;
    request.folder = Paths::FolderOf(TheOpenFile.Path());
    if (iRepairAction != Quit) { // behind it the table has nothing of the file
        request.fileName = Paths::NameOf(TheOpenFile.Path());
    }
    return desktop.ChooseFileToSave(request);
}

// A file without lines may hold the mark of its encoding, which is written again.
bool MayEmpty(Desktop& desktop, const std::string& path) {
    return lLineCount > 0 || !desktop.HasContent(path) || desktop.ReadFile(path) == Encoded({}, eFileEncoding) ||
           desktop.MsgBox("There are no lines to save.  This will empty the file:\r\n" + Wording::OfPath(path) +
                              "\r\nAre you sure you want to do this?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

// What another program has written since must not be lost unasked.
bool MayReplaceChanged(Desktop& desktop, const std::string& path) {
    desktop.ShowBusy(true);
    const bool wasChanged = TheOpenFile.WasChangedAt(desktop, path);
    desktop.ShowBusy(false);
    return !wasChanged || desktop.MsgBox("This file is not what was opened or last saved any more.  Another program "
                                         "may have changed it:\r\n" +
                                             Wording::OfPath(path) + "\r\nDo you want to replace it?",
                                         BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

std::string_view WhatChanges(Encoding next) {
    if (next == Encoding::Windows1252) {
        return "Nothing in the file shows any more that it is UTF-8.  The next time it is opened it will be taken for "
               "Windows-1252, which has fewer characters.";
    }
    if (TextsAreUtf8()) {
        return "The file begins with what will be taken for a byte order mark, and its first name goes without it.  "
               "It is opened anew as it will be read then.";
    }
    return "What is left in the file will be taken for UTF-8, no longer for Windows-1252, and some of its characters "
           "will be others.  It is opened anew as it will be read then.";
}

// The bytes decide how they are read, so that what is deleted may change how the rest is read.
bool MayBeReadAs(Encoding next, Desktop& desktop) {
    if (next == eFileEncoding || next == eEncodingOnDisk || lLineCount == 0) {
        return true;
    }
    const std::string question = std::string(WhatChanges(next)) + "\r\nOK saves it like that.";
    return desktop.MsgBox(question, BoxIcon::Exclamation, BoxButtons::OkCancel) == BoxAnswer::Ok;
}

// Whether changes that others have made may become changes to an earlier state.
bool MayLeaveBehind(Desktop& desktop) {
    return desktop.MsgBox(
               "There may be unsaved changes to this file that were not taken up.  What this save changes "
               "cannot be noted beside them, so that they would not fit the file any more.  They are in\r\n" +
                   Wording::OfPath(desktop.State().PathOf({})) + "\r\nDo you want to save all the same?",
               BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

void WriteTable(Desktop& desktop, const std::string& path, const Content& content, Encoding next) {
    if (!Unsaved.NoteSaving(desktop, path, content.fingerprint) && !MayLeaveBehind(desktop)) {
        desktop.ShowBusy(false);
        return;
    }
    const bool saved = WriteFile(desktop, path, content.bytes);
    const bool isOpenElsewhere = saved && TheOpenFile.MoveTo(desktop, path, content.fingerprint);
    if (!saved && OpenFile::IsAt(desktop, path) && desktop.ReadFile(path) == content.bytes) {
        // It is there, but perhaps not to stay. What is changed from now on belongs to it; what was
        // changed before stays left over in case the old file comes back.
        Unsaved.Begin(desktop, path, content.fingerprint, Numbering::AsSaved);
    }
    desktop.ShowBusy(false);
    if (saved) {
        eEncodingOnDisk = next;
        desktop.MsgBox("File Saved to " + Wording::OfPath(path), BoxIcon::Information);
    }
    if (isOpenElsewhere) {
        TellOfAnotherEditor(desktop);
    }
}

Content JoinedTable(std::string_view beginning) {
    Joined content(beginning);
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        const DistrictRecord& record = RecordOf(i);
        content.Add(i == 1 ? std::string_view() : LineEnd, record.HeaderText(), record.Line.IsPart());
        for (std::int32_t k = 1; k <= record.lVariationCount; ++k) {
            const VariationRecord& variation = record.Variations[static_cast<std::size_t>(k)];
            if (!variation.IsDeleted()) {
                content.Add("|", variation.Text, variation.Text.IsPart());
            }
        }
    }
    return std::move(content).Ended(lLineCount == 0 ? std::string_view() : LineEnd);
}

} // namespace

std::string DistrictFileContent() {
    return JoinedTable({}).bytes;
}

void SaveDistrictFile(Desktop& desktop) {
    const auto path = ChooseTarget(desktop);
    if (!path || !MayEmpty(desktop, *path)) {
        return;
    }
    desktop.ShowBusy(true);
    const Content content = JoinedTable(Encoded({}, eFileEncoding));
    desktop.ShowBusy(false);
    const Encoding next = EncodingOf(content.bytes);
    // What others do while a question stands must be seen, so that their file is looked at last.
    if (MayBeReadAs(next, desktop) && MayReplaceChanged(desktop, *path)) {
        desktop.ShowBusy(true);
        WriteTable(desktop, *path, content, next);
    }
}

} // namespace CommonRoutines
