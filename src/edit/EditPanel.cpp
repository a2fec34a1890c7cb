#include "edit/EditPanel.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "edit/Variations.h"
#include "rules/Duplicates.h"
#include "rules/Markers.h"
#include "rules/Matching.h"
#include "rules/Validation.h"

namespace CommonRoutines {

namespace {

constexpr auto None = std::string_view::npos;
constexpr bool KeepPairs = true;

char CharacterBefore(std::string_view text, std::size_t caret) {
    return caret > 0 ? text[caret - 1] : '\0';
}

bool MayTypeBlank(std::string_view text, std::size_t caret) {
    const char before = CharacterBefore(text, caret);
    return caret > 0 && before != '!' && before != '%';
}

bool MayTypePercent(std::string_view text, std::size_t caret) {
    if (CharacterBefore(text, caret) == ' ') {
        return false;
    }
    return caret >= text.size() || text[caret] != '!';
}

// A question mark has a place only in the volume behind the last "%".
bool MayTypeQuestionMark(std::string_view text, std::size_t caret) {
    const auto lastPercent = text.rfind('%');
    return !SplitMarkers(text).suffix.empty() && (lastPercent == None || caret > lastPercent);
}

TextChange FollowAddedText(std::string_view text) {
    if (text.empty()) {
        return {AddingUnacceptable, std::nullopt};
    }
    TextChange change{AddingAcceptable, ""};
    if (const auto repeated = RepeatedText(lCurrentDistrict, text)) {
        change = {AddingUnacceptable, "Duplicates " + std::string(*repeated)};
    }
    const std::string_view trimmed = Ansi::Trim(text);
    if (!CheckVariation(text).IsValid() || trimmed == "!" || trimmed.ends_with('%')) {
        change.editMode = AddingUnacceptable;
    }
    return change;
}

} // namespace

bool MayType(char key, std::string_view text, std::size_t caret) {
    switch (key) {
    case ' ':
        return MayTypeBlank(text, caret);
    case '!':
        return caret == 0 && text.find('!') == None;
    case '%':
        return MayTypePercent(text, caret);
    case '?':
        return MayTypeQuestionMark(text, caret);
    case '|':
        return false;
    default:
        return true;
    }
}

TextChange FollowText(std::string_view text) {
    if (!IsDistrict(lCurrentDistrict)) {
        return {iEditMode, std::nullopt};
    }
    const bool adding = iEditMode == AddingUnacceptable || iEditMode == AddingAcceptable;
    // Typing into the idle panel starts an add, and so does typing while there is nothing to edit.
    if (adding || iEditMode == DistrictIdle || lEditIndex == 0) {
        return FollowAddedText(text);
    }
    return {EditingVariation, std::nullopt};
}

Committed CommitText(std::string_view text, Desktop& desktop) {
    const std::string trimmed(Ansi::Trim(text));
    const bool isNew = iEditMode == AddingAcceptable;
    const bool isEdit = iEditMode == EditingVariation && lEditIndex > 0;
    bChanged = true;
    if (isNew) {
        RecordUndoItem(lCurrentDistrict, UndoAdd, trimmed, "", desktop);
        AddSlot(lCurrentDistrict, trimmed);
    } else if (isEdit) {
        RecordUndoItem(lCurrentDistrict, UndoChange, trimmed, VariationOf(lCurrentDistrict, lEditIndex).Text, desktop);
        StoreText(lCurrentDistrict, lEditIndex, trimmed);
    }
    FindDuplicateVariations(lCurrentDistrict, !KeepPairs);
    return {isNew || isEdit, CheckVariation(text).warning.value_or("")};
}

std::string DeleteQuestion(std::span<const VariationRow> rows) {
    if (rows.size() == 1) {
        const std::string_view text = VariationOf(lCurrentDistrict, rows.front().slot).Text;
        return "Are you sure you want to delete variation " + std::string(Ansi::Trim(text));
    }
    return "Are you sure you want to delete these " + std::to_string(rows.size()) + " variations?";
}

void DeleteVariations(std::span<const VariationRow> rows, Desktop& desktop) {
    bChanged = true;
    for (const VariationRow& row : rows) {
        RecordUndoItem(lCurrentDistrict, UndoDelete, VariationOf(lCurrentDistrict, row.slot).Text, "", desktop);
        StoreText(lCurrentDistrict, row.slot, DeletedText);
    }
    lEditIndex = 0;
    FindDuplicateVariations(lCurrentDistrict, !KeepPairs);
}

} // namespace CommonRoutines
