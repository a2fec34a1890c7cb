#include "commands/RestoreChanges.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/State.h"
#include "edit/VariationList.h"
#include "edit/Variations.h"
#include "recovery/LeftOvers.h"
#include "recovery/OpenFile.h"
#include "recovery/UnsavedChanges.h"
#include "rules/Duplicates.h"

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

using namespace CommonRoutines;

namespace Commands {

namespace {

// Every change names a slot that is there, or the next new one, when its turn comes.
bool FitsTable(std::span<const SlotChange> changes) {
    std::unordered_map<std::int32_t, std::int32_t> counts;
    for (const SlotChange& change : changes) {
        if (!IsDistrict(change.line)) {
            return false;
        }
        auto& count = counts.try_emplace(change.line, RecordOf(change.line).lVariationCount).first->second;
        if (change.slot > count + 1) {
            return false;
        }
        count = std::max(count, change.slot);
    }
    return true;
}

// The lines that the changes are about, as they stand in the file: a repair of this reading must not be
// mixed with another one of the same line.
void UndoRepairs(const std::set<std::int32_t>& lines) {
    for (const std::int32_t line : lines) {
        const std::vector<std::string> fields = Unsaved.FieldsAsRead(line);
        for (std::size_t k = 1; k < fields.size(); ++k) {
            const bool blank = Ansi::Trim(fields[k]).empty();
            StoreText(line, static_cast<std::int32_t>(k), blank ? DeletedText : std::string_view(fields[k]));
        }
    }
}

// Of several files with changes, each numbers its new variations from the end of the line as it was read.
void MakeChanges(std::span<const SlotChange> changes, const std::map<std::int32_t, std::int32_t>& countsAsRead) {
    std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t> added;
    for (const SlotChange& change : changes) {
        if (change.slot <= countsAsRead.at(change.line)) {
            StoreText(change.line, change.slot, change.text);
        } else if (const auto slot = added.find({change.line, change.slot}); slot != added.end()) {
            StoreText(change.line, slot->second, change.text);
        } else {
            added[{change.line, change.slot}] = AddSlot(change.line, change.text);
        }
    }
}

// Makes the changes of the wanted files, those of the oldest first, so that of two changes of one
// variation the later one counts.
void MakeAll(std::span<const LeftOver* const> wanted) {
    std::set<std::int32_t> lines;
    std::map<std::int32_t, std::int32_t> countsAsRead;
    for (const LeftOver* leftOver : wanted) {
        for (const SlotChange& change : leftOver->file->changes) {
            lines.insert(change.line);
            countsAsRead[change.line] = RecordOf(change.line).lVariationCount;
        }
    }
    bChanged = true;
    UndoRepairs(lines);
    for (const LeftOver* leftOver : wanted) {
        MakeChanges(leftOver->file->changes, countsAsRead); // which notes them as this editor's own
        Unsaved.TakeOver(leftOver->name);
    }
    for (const std::int32_t line : lines) {
        FindDuplicateVariations(line);
        static_cast<void>(ListVariations(line)); // only the counts matter
    }
}

std::string ChangesOf(Desktop& desktop, const LeftOver& leftOver) {
    return "unsaved changes of " + desktop.State().TimeOf(leftOver.name);
}

void TellSetAside(Desktop& desktop, const LeftOver& leftOver, const std::string& what) {
    const Wording place = Wording::OfPath(SetAside(desktop.State(), leftOver));
    desktop.MsgBox(what + "  None of them has been made.  They are kept in\r\n" + place, BoxIcon::Exclamation);
}

bool IsWanted(Desktop& desktop, const LeftOver& leftOver) {
    const std::string& path = leftOver.file->file.path;
    const bool isSamePath = path == Unsaved.File().path;
    const Wording whose = isSamePath ? "to this file." : "to a file that was the same:\r\n" + Wording::OfPath(path);
    return desktop.MsgBox("There are " + ChangesOf(desktop, leftOver) + " " + whose + "\r\nDo you want them back?",
                          BoxIcon::Question, BoxButtons::YesNo) == BoxAnswer::Yes;
}

// Whether the open file is what the editor of the changes saved before it was stopped, so that they are all in it.
bool AreSaved(const RecoveryFile& leftOver) {
    return leftOver.savedAs && leftOver.savedAs->HasBytesOf(Unsaved.File());
}

// Whether a left-over file holds nothing that another does not. Its editor was stopped while it took the
// changes of the one over into the other.
bool IsPartOf(const RecoveryFile& part, const RecoveryFile& whole) {
    const auto& changes = whole.changes;
    return part.file == whole.file &&
           std::search(changes.begin(), changes.end(), part.changes.begin(), part.changes.end()) != changes.end();
}

// The left-over files that have to do with the open file, the latest first. Those of other files are given
// back at once, so that another editor may ask about them.
std::vector<LeftOver> LeftOversOfFile(StateFolder& folder) {
    const FileIdentity& file = Unsaved.File();
    std::vector<LeftOver> leftOvers = TakeLeftOvers(folder);
    std::erase_if(leftOvers, [&](const LeftOver& leftOver) {
        const bool isOfAnother =
            leftOver.file && leftOver.file->file.path != file.path && !leftOver.file->file.HasBytesOf(file);
        if (isOfAnother) {
            GiveBack(folder, leftOver);
        }
        return isOfAnother;
    });
    return leftOvers;
}

// Asks about the left-over files, and returns those that are wanted, the oldest first.
std::vector<const LeftOver*> AskFor(Desktop& desktop, std::span<const LeftOver> leftOvers) {
    std::vector<const LeftOver*> asked;
    std::vector<const LeftOver*> wanted;
    for (const LeftOver& leftOver : leftOvers) {
        const auto holdsIt = [&](const LeftOver* other) { return IsPartOf(*leftOver.file, *other->file); };
        const std::string changes = ChangesOf(desktop, leftOver);
        if (!leftOver.file) {
            TellSetAside(desktop, leftOver, "The recovery file with " + changes + " is damaged.");
        } else if (leftOver.file->changes.empty() || std::any_of(asked.begin(), asked.end(), holdsIt)) {
            Drop(desktop.State(), leftOver);
        } else if (AreSaved(*leftOver.file)) {
            SetAside(desktop.State(), leftOver); // the saved file's name may not be on the disk yet
        } else if (!leftOver.file->file.HasBytesOf(Unsaved.File())) {
            TellSetAside(desktop, leftOver, "There are " + changes + " to an earlier state of this file.");
        } else if (!FitsTable(leftOver.file->changes)) {
            TellSetAside(desktop, leftOver, "The " + changes + " do not fit this file.");
        } else {
            asked.push_back(&leftOver);
            if (IsWanted(desktop, leftOver)) {
                wanted.insert(wanted.begin(), &leftOver);
            } else {
                SetAside(desktop.State(), leftOver);
            }
        }
    }
    return wanted;
}

} // namespace

void RestoreChanges(Desktop& desktop) {
    if (TheOpenFile.Mark(desktop)) {
        TellOfAnotherEditor(desktop);
    }
    const std::vector<LeftOver> leftOvers = LeftOversOfFile(desktop.State());
    if (const std::vector<const LeftOver*> wanted = AskFor(desktop, leftOvers); !wanted.empty()) {
        MakeAll(wanted);
    }
}

} // namespace Commands
