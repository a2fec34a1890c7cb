#include "commands/Selection.h"

#include "core/State.h"
#include "edit/Variations.h"
#include "rules/Capitals.h"
#include "rules/Validation.h"

using namespace CommonRoutines;

namespace Commands {

namespace {

std::string ReasonFor(const VariationRecord& variation) {
    const Verdict verdict = CheckVariation(variation.Text);
    sInvalidReason = verdict.reason;
    if (verdict.IsValid() && verdict.Warns()) {
        return *verdict.warning;
    }
    // The colour names a duplicate first, the reason the capitals: users know it so.
    if (verdict.IsValid() && CapitalsAreUnusual(variation.Text)) {
        sInvalidReason = "Unusual Capitals";
    } else if (verdict.IsValid() && variation.bDuplicate) {
        sInvalidReason = "Duplicates " + VariationOf(lCurrentDistrict, variation.lDuplicateOf).Text;
    }
    return sInvalidReason;
}

} // namespace

SelectionView DescribeSelection(std::span<const VariationRow> selected) {
    bool spelling = false;
    bool other = false;
    bool date = false;
    for (const VariationRow& row : selected) {
        const std::string_view text = VariationOf(lCurrentDistrict, row.slot).Text;
        const bool isSpelling = text.starts_with('!');
        spelling = spelling || isSpelling;
        other = other || !isSpelling;
        date = date || text.starts_with('%') || text.starts_with("!%");
    }
    SelectionView view;
    if (!selected.empty()) {
        view.reason = ReasonFor(VariationOf(lCurrentDistrict, selected.back().slot));
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
    view.editIndex = selected.size() == 1 ? selected.front().slot : 0;
    return view;
}

} // namespace Commands
