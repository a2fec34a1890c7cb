#pragma once

#include "edit/VariationList.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace Commands {

// What the window shows for the rows selected in lvVariations.
struct SelectionView {
    std::string reason;                                                                 // for lbWhyError
    CommonRoutines::VariationState reasonState = CommonRoutines::VariationState::Plain; // whose colour the reason has
    std::string_view shriekCaption = "Add !";
    std::string_view dateCaption = "Add Date%";
    std::int16_t editMode = 0;
    std::int32_t editIndex = 0; // the variation to edit: the one selected, 0 for none or several
};

// Describes a selection of rows of lCurrentDistrict, given in list order. The reason is that of the
// last row, or a warning where spelling mistakes and other variations are mixed. With rows,
// leaves in sInvalidReason why the last one is invalid, or a finding that makes no variation invalid; empty
// where there is neither.
[[nodiscard]] SelectionView DescribeSelection(std::span<const CommonRoutines::VariationRow> selected);

} // namespace Commands
