#include "commands/RestoreChanges.h"

#include "commands/OfferedChanges.h"
#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/Encoding.h"
#include "core/State.h"
#include "core/Utf8.h"
#include "edit/RestoredLine.h"
#include "edit/VariationList.h"
#include "edit/Variations.h"
#include "file/DistrictFileWriter.h"
#include "recovery/LeftOvers.h"
#include "recovery/OpenFile.h"
#include "recovery/SavesForOthers.h"
#include "recovery/UnsavedChanges.h"
#include "rules/Duplicates.h"

#include <algorithm>
#include <map>
#include <new>
#include <span>
#include <string>
#include <utility>
#include <vector>

using namespace CommonRoutines;

namespace Commands {

namespace {

// The lines that the changes are about, as they stand in the file: a repair of this reading must not be
// mixed with another one of the same line.
void UndoRepairs(std::int32_t line) {
    const std::vector<std::string> fields = Unsaved.FieldsAsRead(line);
    for (std::size_t k = 1; k < fields.size(); ++k) {
        const bool blank = Ansi::Trim(fields[k]).empty();
        StoreText(line, static_cast<std::int32_t>(k), blank ? DeletedText : std::string_view(fields[k]));
    }
}

// The changes of one line, those of each file together.
using LineChanges = std::map<std::size_t, std::vector<const SlotChange*>>;

void RestoreLine(std::int32_t line, const LineChanges& changes) {
    UndoRepairs(line);
    RestoredLine restored(line);
    for (const auto& [file, changesOfFile] : changes) {
        restored.BeginFile();
        for (const SlotChange* change : changesOfFile) {
            restored.Make(*change);
        }
    }
    restored.Store();
    FindDuplicateVariations(line);
    static_cast<void>(ListVariations(line)); // only the counts matter
}

// A file of which only ASCII was left is in UTF-8 once more where its changes are.
void TakeUpUtf8(std::span<const LeftOver> wanted) {
    const bool hasUtf8 = std::any_of(wanted.begin(), wanted.end(), [](const LeftOver& leftOver) {
        return leftOver.file->encoding != Encoding::Windows1252;
    });
    if (hasUtf8 && !TextsAreUtf8() && Utf8::IsAscii(DistrictFileContent())) {
        eFileEncoding = Encoding::Utf8;
        Unsaved.TakeUpEncoding();
    }
}

void RecodeChanges(RecoveryFile& file) {
    for (SlotChange& change : file.changes) {
        change.text = Recoded(std::move(change.text), file.encoding, eFileEncoding);
    }
}

// Makes the changes of the wanted files, those of the oldest first, so that of two changes of one
// variation the later one counts.
void MakeAll(std::span<LeftOver> wanted) {
    TakeUpUtf8(wanted);
    for (LeftOver& leftOver : wanted) {
        RecodeChanges(*leftOver.file);
    }
    std::map<std::int32_t, LineChanges> lines;
    for (std::size_t file = 0; file < wanted.size(); ++file) {
        for (const SlotChange& change : wanted[file].file->changes) {
            lines[change.line][file].push_back(&change);
        }
    }
    bChanged = true;
    for (const auto& [line, changes] : lines) {
        RestoreLine(line, changes);
    }
    for (const LeftOver& leftOver : wanted) {
        const bool hasMore = leftOver.file->isDamaged || leftOver.file->overtaken > 0;
        Unsaved.TakeOver(leftOver.name, hasMore ? UnsavedChanges::Then::IsSetAside : UnsavedChanges::Then::Goes);
    }
}

// Whichever of the left-over files are locked, so that they are offered again.
void GiveAllBack(StateFolder& folder) {
    for (const std::string& name : RecoveryFiles(folder)) {
        if (name != Unsaved.Name()) {
            GiveBack(folder, name);
        }
    }
}

} // namespace

void RestoreChanges(Desktop& desktop) {
    if (TheOpenFile.Mark(desktop)) {
        TellOfAnotherEditor(desktop);
    }
    try {
        OfferedChanges offered = OfferChanges(desktop);
        Unsaved.KeepSavesFor(std::move(offered.putOff));
        if (!offered.wanted.empty()) {
            MakeAll(offered.wanted);
        }
    } catch (const std::bad_alloc&) {
        GiveAllBack(desktop.State());
        throw;
    }
    SavesForOthers(desktop.State(), Unsaved.File().path).RemoveUnlessWanted(Unsaved.Name(), Unsaved.PutOff());
}

} // namespace Commands
