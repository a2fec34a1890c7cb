#include "edit/RestoreChanges.h"

#include "core/Desktop.h"
#include "core/State.h"
#include "edit/VariationList.h"
#include "edit/Variations.h"
#include "recovery/LeftOvers.h"
#include "recovery/OpenMark.h"
#include "recovery/UnsavedChanges.h"
#include "rules/Duplicates.h"

#include <algorithm>
#include <set>
#include <span>
#include <unordered_map>

namespace CommonRoutines {

namespace {

// Every change names a slot that is there, or the next new one, when its turn comes.
bool FitsTable(std::span<const SlotChange> changes) {
    std::unordered_map<std::int32_t, std::int32_t> counts;
    for (const SlotChange& change : changes) {
        if (!IsDistrict(change.lLine)) {
            return false;
        }
        auto& count = counts.try_emplace(change.lLine, RecordOf(change.lLine).lVariationCount).first->second;
        if (change.lSlot > count + 1) {
            return false;
        }
        count = std::max(count, change.lSlot);
    }
    return true;
}

void MakeChanges(std::span<const SlotChange> changes) {
    std::set<std::int32_t> lines;
    for (const SlotChange& change : changes) {
        lCurrentDistrict = change.lLine;
        if (change.lSlot > CurrentDistrict().lVariationCount) {
            AddSlot(change.sText);
        } else {
            StoreText(change.lSlot, change.sText);
        }
        lines.insert(change.lLine);
    }
    lCurrentDistrict = 0;
    for (const std::int32_t line : lines) {
        FindDuplicateVariations(line);
        static_cast<void>(ListVariations(line)); // only the counts matter
    }
    bChanged = true;
}

void TellSetAside(Desktop& desktop, const LeftOver& leftOver, const std::string& what) {
    const std::string place = SetAside(desktop.State(), leftOver);
    desktop.MsgBox(what + "  None of them has been made.  They are kept in\r\n" + place, BoxIcon::Exclamation);
}

// True when the user wants the changes and has them back.
bool Restore(Desktop& desktop, const LeftOver& leftOver) {
    const std::string changes = "unsaved changes of " + desktop.State().TimeOf(leftOver.sName);
    if (!FitsTable(leftOver.file->changes)) {
        TellSetAside(desktop, leftOver, "The " + changes + " do not fit this file.");
        return false;
    }
    if (desktop.MsgBox("There are " + changes + " to this file.\r\nDo you want them back?", BoxIcon::Question,
                       BoxButtons::YesNo) != BoxAnswer::Yes) {
        SetAside(desktop.State(), leftOver);
        return false;
    }
    MakeChanges(leftOver.file->changes); // which notes them as this editor's own
    Unsaved.TakeOver(leftOver.sName);
    Unsaved.Write(desktop);
    return true;
}

// Whether a left-over file holds nothing that another does not. Its editor was stopped while it took the
// changes of the one over into the other.
bool IsPartOf(const RecoveryFile& part, const RecoveryFile& whole) {
    return part.file == whole.file && part.changes.size() <= whole.changes.size() &&
           std::equal(part.changes.begin(), part.changes.end(), whole.changes.begin());
}

} // namespace

void RestoreChanges(Desktop& desktop) {
    if (DataFileMark.Set(desktop, sDataFileName)) {
        desktop.MsgBox("Another editor has this file open.  What is saved last replaces what was saved before.",
                       BoxIcon::Exclamation);
    }
    StateFolder& folder = desktop.State();
    const FileIdentity& file = Unsaved.File();
    bool hasRestored = false;
    const std::vector<LeftOver> leftOvers = TakeLeftOvers(folder);
    const RecoveryFile* offered = nullptr;
    for (const LeftOver& leftOver : leftOvers) {
        const std::string changes = "unsaved changes of " + folder.TimeOf(leftOver.sName);
        if (!leftOver.file) {
            TellSetAside(desktop, leftOver, "The recovery file with " + changes + " is damaged.");
        } else if (leftOver.file->changes.empty() || (offered != nullptr && IsPartOf(*leftOver.file, *offered))) {
            Drop(folder, leftOver);
        } else if (leftOver.file->file.HasBytesOf(file) && !hasRestored) {
            hasRestored = Restore(desktop, leftOver);
            offered = &*leftOver.file;
        } else if (leftOver.file->file.sPath == file.sPath && !leftOver.file->file.HasBytesOf(file)) {
            TellSetAside(desktop, leftOver, "There are " + changes + " to an earlier state of this file.");
        } else {
            // Of another file; or, with others restored, to be asked about the next time.
            GiveBack(folder, leftOver);
        }
    }
}

} // namespace CommonRoutines
