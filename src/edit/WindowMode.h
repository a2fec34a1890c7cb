#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace CommonRoutines {

// The controls whose enabled state follows the window's mode.
enum class Control : std::size_t {
    cbAdd,
    cbCancel,
    cbDelete,
    cbSaveVariations,
    cbOk,
    cbOpen,
    cbSave,
    tbEdit,
    btnProcess,
    cbApplySelected,
    cbApplyAll,
    cbApplyAllSpell,
    cbApplySelSpell,
    cbClearSel,
    cbCompleteCheck,
    cbShriek,
    cbDate,
    lbComments,
    cbEditSel,
};
inline constexpr std::size_t ControlCount = 19;

// What the mode table asks of the change list.
struct ChangeListState {
    bool hasRows = false;
    bool hasSelection = false; // a row is highlighted or ticked
};

// Whether the control is enabled in a mode; nothing where the mode leaves it as it is, and for a mode
// outside 1 to 10.
[[nodiscard]] std::optional<bool> EnabledInMode(Control control, std::int16_t mode, bool changed,
                                                ChangeListState changes);

// Which labels a mode clears.
[[nodiscard]] bool ModeClearsStatus(std::int16_t mode);
[[nodiscard]] bool ModeClearsApplyTo(std::int16_t mode);

} // namespace CommonRoutines
