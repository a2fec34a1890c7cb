#include "commands/Selection.h"

#include "core/State.h"
#include "edit/Variations.h"
#include "rules/Capitals.h"

using namespace CommonRoutines;

namespace Commands {

namespace {

// The colour names a duplicate before the capitals, the reason the capitals before a duplicate: users know it so.
VariationState StateToExplain(VariationState state, const VariationRecord& variation) {
    return state == VariationState::Duplicate && CapitalsAreUnusual(variation.Text) ? VariationState::UnusualCaps
                                                                                    : state;
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
        const VariationRecord& last = VariationOf(lCurrentDistrict, selected.back().slot);
        view.reasonState = selected.back().state;
        view.reason = ReasonOf(StateToExplain(view.reasonState, last), lCurrentDistrict, last);
        sInvalidReason = view.reasonState == VariationState::Warning ? std::string() : view.reason;
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
