#include "changes/ChangeSelection.h"

#include <algorithm>

namespace CommonRoutines {

std::int32_t CountCheckedChanges(std::span<const ChangeRow> rows) {
    return static_cast<std::int32_t>(std::count_if(
        rows.begin(), rows.end(), [](const ChangeRow& row) { return row.bChecked && row.iTag == ChangeRow::Valid; }));
}

ChangeSelection DescribeChangeSelection(std::span<const ChangeRow> rows) {
    ChangeSelection selection;
    selection.lCheckedChanges = CountCheckedChanges(rows);
    const bool any = selection.lCheckedChanges > 0;
    if (any) {
        selection.count = "Selected=" + std::to_string(selection.lCheckedChanges);
    }
    selection.applySelected = any;
    selection.applyAll = !any && !rows.empty();
    selection.edit = selection.lCheckedChanges == 1;
    return selection;
}

} // namespace CommonRoutines
