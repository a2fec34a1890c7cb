#include "recovery/SaveCopy.h"

#include "core/Desktop.h"
#include "recovery/LeftOvers.h"
#include "recovery/RecoveryFile.h"

#include <functional>
#include <optional>
#include <set>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::string_view FirstLine = "Quexal Editor, a file being written, version 1\n";
constexpr std::string_view Ending = ".copy";
constexpr std::string_view LockEnding = ".copy.lock";

struct SaveCopy {
    std::string name; // in the state folder
    std::string path; // of the file; empty when the copy is damaged
    std::string bytes;
    std::size_t start = 0; // of the content, among them

    [[nodiscard]] std::string_view Content() const { return std::string_view(bytes).substr(start); }
};

std::string BytesOf(const FileIdentity& file, std::string_view content) {
    const std::string line = IdentityLine(file);
    std::string bytes;
    bytes.reserve(FirstLine.size() + line.size() + content.size());
    return bytes.append(FirstLine).append(line).append(content);
}

SaveCopy Parsed(const std::string& name, std::string bytes) {
    SaveCopy copy{name, {}, std::move(bytes), 0};
    const std::size_t end = copy.bytes.find('\n', FirstLine.size());
    if (!copy.bytes.starts_with(FirstLine) || end == std::string::npos) {
        return copy;
    }
    const std::string_view line = std::string_view(copy.bytes).substr(0, end).substr(FirstLine.size());
    auto file = ParseIdentityLine(line);
    copy.start = end + 1;
    if (file && FingerprintOf(copy.Content()) == file->bytes) {
        copy.path = std::move(file->path);
    }
    return copy;
}

// Puts a copy on the disk, and keeps it locked.
bool Put(StateFolder& folder, const std::string& name, const std::string& bytes) {
    if (folder.Lock(RecoveryNames::LockOf(name)) != LockResult::Taken) {
        return false;
    }
    const bool isPut = folder.Replace(name, bytes);
    if (!isPut) {
        Drop(folder, name); // it may be there, though perhaps not to stay
    }
    return isPut;
}

// The names of the copies, those of which only a lock is left among them.
std::set<std::string> Names(StateFolder& folder) {
    std::set<std::string> names;
    for (const std::string& name : folder.Names()) {
        if (name.ends_with(Ending)) {
            names.insert(name);
        } else if (name.ends_with(LockEnding)) {
            names.insert(name.substr(0, name.size() - LockEnding.size()).append(Ending));
        }
    }
    return names;
}

// Gives every copy that no living editor holds, locked, to somebody who drops it, keeps it aside or unlocks it.
void ForEachLeftOver(StateFolder& folder, const std::function<void(const SaveCopy&)>& take) {
    for (const std::string& name : Names(folder)) {
        if (folder.Lock(RecoveryNames::LockOf(name)) != LockResult::Taken) {
            continue;
        }
        if (auto bytes = folder.Read(name)) {
            take(Parsed(name, std::move(*bytes)));
        } else {
            GiveBack(folder, name);
        }
    }
}

bool IsOf(Desktop& desktop, const SaveCopy& copy, const std::string& path) {
    return !copy.path.empty() && desktop.TruePath(copy.path) == desktop.TruePath(path);
}

void KeepAside(Desktop& desktop, const SaveCopy& copy, const std::string& why) {
    const Wording place = Wording::OfPath(SetAside(desktop.State(), copy.name));
    desktop.MsgBox(why + "\r\n" + place, BoxIcon::Exclamation);
}

void TellThatItIsKept(Desktop& desktop, const std::string& path, const std::string& name) {
    desktop.MsgBox("This file could not be written as a whole:\r\n" + Wording::OfPath(path) +
                       "\r\nWhat it should hold is kept, and is offered when the editor is started or the file is "
                       "opened.  It is in\r\n" +
                       Wording::OfPath(desktop.State().PathOf(name)),
                   BoxIcon::Exclamation);
}

bool IsToBeFinished(Desktop& desktop, const SaveCopy& copy, bool isThere) {
    const std::string_view state = isThere ? "which may be damaged" : "which is not there now";
    const std::string_view question =
        isThere ? "Do you want it to be written now, in place of what it holds?" : "Do you want it to be made there?";
    return desktop.MsgBox("The editor was stopped on " + desktop.State().TimeOf(copy.name) +
                              " while it wrote this file, " + std::string(state) + ":\r\n" +
                              Wording::OfPath(copy.path) + "\r\n" + question,
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo) == BoxAnswer::Yes;
}

bool DoesBusily(Desktop& desktop, const std::function<bool()>& work) {
    desktop.ShowBusy(true);
    const bool done = work();
    desktop.ShowBusy(false);
    return done;
}

// Whom a file was for that has gone is not known.
bool WriteAgain(Desktop& desktop, const SaveCopy& copy, bool isThere) {
    return isThere ? desktop.OverwriteFile(copy.path, copy.Content())
                   : desktop.MakePrivateFile(copy.path, copy.Content());
}

void Mend(Desktop& desktop, const SaveCopy& copy) {
    StateFolder& folder = desktop.State();
    const bool isWhole = DoesBusily(desktop, [&] { return desktop.ReadFile(copy.path) == copy.Content(); });
    const bool isThere = !desktop.StampOf(copy.path).empty();
    if (!isWhole && !IsToBeFinished(desktop, copy, isThere)) {
        KeepAside(desktop, copy, "What the file should have held is kept in");
    } else if (!isWhole && !DoesBusily(desktop, [&] { return WriteAgain(desktop, copy, isThere); })) {
        GiveBack(folder, copy.name);
        TellThatItIsKept(desktop, copy.path, copy.name);
    } else if (isThere) {
        Drop(folder, copy.name);
    } else {
        KeepAside(desktop, copy, "The file has been made.  Should its own place come back, what it holds is also in");
    }
}

// A copy that was left over must never be offered for a file that has been written since.
void DropLeftOversOf(Desktop& desktop, const std::string& path) {
    StateFolder& folder = desktop.State();
    ForEachLeftOver(folder, [&](const SaveCopy& copy) {
        if (IsOf(desktop, copy, path)) {
            Drop(folder, copy.name);
        } else {
            GiveBack(folder, copy.name);
        }
    });
}

bool OverwriteBehindCopy(Desktop& desktop, const std::string& path, std::string_view content) {
    StateFolder& folder = desktop.State();
    const std::string name = folder.NewName().append(Ending);
    const bool isNew = desktop.StampOf(path).empty();
    const std::optional<std::string> old = desktop.ReadFile(path);
    if (!Put(folder, name, BytesOf({desktop.TruePath(path), FingerprintOf(content)}, content))) {
        return false;
    }
    const auto isPutBack = [&] {
        return isNew ? desktop.StampOf(path).empty() : old && desktop.OverwriteFile(path, *old);
    };
    const bool isWritten = desktop.OverwriteFile(path, content);
    if (isWritten || isPutBack()) {
        Drop(folder, name);
        return isWritten;
    }
    GiveBack(folder, name);
    TellThatItIsKept(desktop, path, name);
    return false;
}

} // namespace

bool WriteFile(Desktop& desktop, const std::string& path, std::string_view content) {
    const bool isWritten =
        desktop.StaysInPlace(path) ? OverwriteBehindCopy(desktop, path, content) : desktop.ReplaceFile(path, content);
    if (isWritten) {
        DropLeftOversOf(desktop, path);
    }
    return isWritten;
}

void MendFiles(Desktop& desktop) {
    ForEachLeftOver(desktop.State(), [&](const SaveCopy& copy) {
        if (copy.path.empty()) {
            KeepAside(desktop, copy, "The copy of a file that was being written is damaged.  It is kept in");
        } else {
            Mend(desktop, copy);
        }
    });
}

void MendFile(Desktop& desktop, const std::string& path) {
    ForEachLeftOver(desktop.State(), [&](const SaveCopy& copy) {
        if (IsOf(desktop, copy, path)) {
            Mend(desktop, copy);
        } else {
            GiveBack(desktop.State(), copy.name);
        }
    });
}

} // namespace CommonRoutines
