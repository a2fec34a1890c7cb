#pragma once

#include "changes/ChangeRow.h"

#include <cstdint>
#include <span>
#include <string>

namespace CommonRoutines {

// Which commands for the change list make sense for the rows that are ticked.
struct ChangeSelection {
    std::int32_t lCheckedChanges = 0;
    std::string count; // for lbSelectCount; empty when no row is ticked
    bool applySelected = false;
    bool applyAll = false;
    bool edit = false;
};

// Counts the ticked rows that may be applied.
[[nodiscard]] std::int32_t CountCheckedChanges(std::span<const ChangeRow> rows);

[[nodiscard]] ChangeSelection DescribeChangeSelection(std::span<const ChangeRow> rows);

} // namespace CommonRoutines
