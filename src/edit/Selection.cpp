#include "edit/Selection.h"

#include "core/State.h"
#include "edit/Variations.h"
#include "rules/Capitals.h"
#include "rules/Validation.h"

namespace CommonRoutines {

namespace {

std::string ReasonFor(const VariationRecord& variation) {
    sInvalidReason.clear();
    // The result is not needed: whatever is wrong stands in the reasons.
    static_cast<void>(ValidateVariation(variation.Text, lCurrentDistrict));
    if (sInvalidReason.empty() && sWarningReason.empty()) {
        if (HasUnusualCapitals(variation.Text)) {
            sInvalidReason = "Unusual Capitals";
        } else if (variation.bDuplicate) {
            sInvalidReason = "Duplicates " + VariationInCurrentDistrict(variation.lDuplicateOf).Text;
        }
    }
    return sInvalidReason.empty() ? sWarningReason : sInvalidReason;
}

} // namespace

SelectionView DescribeSelection(std::span<const VariationRow> selected) {
    bool spelling = false;
    bool other = false;
    bool date = false;
    for (const VariationRow& row : selected) {
        const std::string_view text = VariationInCurrentDistrict(row.lIndex).Text;
        const bool isSpelling = text.starts_with('!');
        spelling = spelling || isSpelling;
        other = other || !isSpelling;
        date = date || text.starts_with('%') || text.starts_with("!%");
    }
    SelectionView view;
    if (!selected.empty()) {
        view.reason = ReasonFor(VariationInCurrentDistrict(selected.back().lIndex));
        view.reasonState = selected.back().state;
    }
    if (spelling && other) {
        view.reason = "Warning - You've selected a mixture of Spelling and Non-Spelling Variations";
    }
    if (spelling) {
        view.shriekCaption = "Remove !";
    }
    if (date) {
        view.dateCaption = "Remove Date%";
    }
    view.editMode = selected.size() < 2 ? OneSelected : SeveralSelected;
    view.editIndex = selected.size() == 1 ? selected.front().lIndex : 0;
    return view;
}

} // namespace CommonRoutines
