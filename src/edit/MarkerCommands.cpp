#include "edit/MarkerCommands.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "edit/Variations.h"

namespace CommonRoutines {

namespace {

bool SaysAdd(std::string_view caption) {
    return Ansi::EqualIgnoringCase(caption.substr(0, 3), "ADD");
}

// The text with `added` between its first `kept` characters and what follows the next `dropped`.
std::string Spliced(std::string_view text, std::size_t kept, std::string_view added, std::size_t dropped) {
    return std::string(text.substr(0, kept)) + std::string(added) + std::string(text.substr(kept + dropped));
}

} // namespace

MarkerCommand ShriekCommand(std::string_view caption) {
    return SaysAdd(caption) ? MarkerCommand::AddShriek : MarkerCommand::RemoveShriek;
}

MarkerCommand DateCommand(std::string_view caption) {
    return SaysAdd(caption) ? MarkerCommand::AddDate : MarkerCommand::RemoveDate;
}

std::string WithMarker(MarkerCommand command, std::string_view text) {
    const bool hasShriek = text.starts_with('!');
    const std::size_t datePlace = hasShriek ? 1 : 0;
    const bool hasDate = text.substr(datePlace).starts_with('%');
    switch (command) {
    case MarkerCommand::AddShriek:
        return hasShriek ? std::string(text) : Spliced(text, 0, "!", 0);
    case MarkerCommand::RemoveShriek:
        return hasShriek ? Spliced(text, 0, "", 1) : std::string(text);
    case MarkerCommand::AddDate:
        return hasDate ? std::string(text) : Spliced(text, datePlace, "%", 0);
    case MarkerCommand::RemoveDate:
        return hasDate ? Spliced(text, datePlace, "", 1) : std::string(text);
    }
    return std::string(text);
}

void ChangeMarkers(MarkerCommand command, std::span<const VariationRow> rows, Desktop& desktop) {
    for (const VariationRow& row : rows) {
        const std::string_view text = VariationOf(lCurrentDistrict, row.slot).Text;
        const std::string changed = WithMarker(command, text);
        // The journal has the text without blanks at its ends although the table keeps them.
        RecordUndoItem(lCurrentDistrict, UndoChange, Ansi::Trim(changed), text, desktop);
        StoreText(lCurrentDistrict, row.slot, changed);
        bChanged = true;
    }
}

} // namespace CommonRoutines
