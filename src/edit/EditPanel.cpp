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

std::string_view WhyBlankIsRefused(std::string_view text, std::size_t caret) {
    if (caret == 0) {
        return "A variation cannot begin with a blank.";
    }
    const char before = CharacterBefore(text, caret);
    return before == '!' || before == '%' ? "No blank can follow a marker." : "";
}

std::string_view WhyShriekIsRefused(std::string_view text, std::size_t caret) {
    if (text.find('!') != None) {
        return "There is a \"!\" already.";
    }
    return caret > 0 ? "\"!\" can only stand first." : "";
}

std::string_view WhyPercentIsRefused(std::string_view text, std::size_t caret) {
    if (CharacterBefore(text, caret) == ' ') {
        return "\"%\" cannot follow a blank.";
    }
    return caret < text.size() && text[caret] == '!' ? "\"%\" cannot stand before \"!\"." : "";
}

std::string_view WhyQuestionMarkIsRefused(std::string_view text, std::size_t caret) {
    const auto lastPercent = text.rfind('%');
    const bool isInVolume = !SplitMarkers(text).suffix.empty() && (lastPercent == None || caret > lastPercent);
    return isInVolume ? "" : "\"?\" can only stand in the volume behind the last \"%\".";
}

// The markers are looked at first: of a text that is still to be typed, they say more than the rules.
std::string WhyTextIsRefused(std::string_view trimmed, const Verdict& verdict, const std::string& repeated) {
    if (trimmed == "!" || trimmed == "%" || trimmed == "!%") {
        return "a marker alone is no variation";
    }
    if (trimmed.ends_with('%')) {
        return "a variation cannot end in \"%\"";
    }
    return verdict.IsValid() ? repeated : verdict.reason;
}

TextChange FollowAddedText(std::string_view text) {
    if (text.empty()) {
        return {AddingUnacceptable, std::nullopt, "type a variation first"};
    }
    TextChange change{AddingAcceptable, ""};
    if (const auto repeated = RepeatedText(lCurrentDistrict, text)) {
        change = {AddingUnacceptable, "Duplicates " + std::string(*repeated)};
    }
    const std::string_view trimmed = Ansi::Trim(text);
    const Verdict verdict = CheckVariation(text);
    if (!verdict.IsValid() || trimmed == "!" || trimmed.ends_with('%')) {
        change.editMode = AddingUnacceptable;
    }
    if (change.editMode == AddingUnacceptable) {
        change.refusal = WhyTextIsRefused(trimmed, verdict, *change.status);
    }
    return change;
}

} // namespace

std::string_view WhyKeyIsRefused(char key, std::string_view text, std::size_t caret) {
    switch (key) {
    case ' ':
        return WhyBlankIsRefused(text, caret);
    case '!':
        return WhyShriekIsRefused(text, caret);
    case '%':
        return WhyPercentIsRefused(text, caret);
    case '?':
        return WhyQuestionMarkIsRefused(text, caret);
    case '|':
        return "\"|\" separates variations and cannot be part of one.";
    default:
        return "";
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
