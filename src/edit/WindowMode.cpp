#include "edit/WindowMode.h"

#include "core/State.h"

namespace CommonRoutines {

namespace {

constexpr std::int16_t FirstMode = 1;
constexpr std::int16_t LastMode = 10;

enum class Rule {
    E, // enabled
    O, // off
    K, // kept as it is
    D, // enabled while there are unsaved changes
    C, // decided from the change list
};

constexpr auto ModeTable = [] {
    using enum Rule;
    return std::array<std::array<Rule, LastMode>, ControlCount>{{
        // 1  2  3  4  5  6  7  8  9  10
        {{O, O, O, E, E, O, O, O, O, O}}, // cbAdd
        {{O, E, O, O, O, E, E, E, E, O}}, // cbCancel
        {{O, E, O, O, E, O, O, O, O, E}}, // cbDelete
        {{O, E, O, O, E, O, O, O, O, E}}, // cbSaveVariations
        {{O, O, O, O, O, E, O, O, E, O}}, // cbOk
        {{E, O, E, E, E, O, O, O, O, O}}, // cbOpen
        {{O, O, D, D, D, O, O, O, O, O}}, // cbSave
        {{O, E, O, E, O, E, E, E, E, O}}, // tbEdit
        {{O, O, O, E, O, O, O, O, O, O}}, // btnProcess
        {{O, O, O, C, O, O, O, O, O, O}}, // cbApplySelected
        {{O, O, O, C, O, O, O, O, O, O}}, // cbApplyAll
        {{O, O, O, C, O, O, K, O, O, O}}, // cbApplyAllSpell
        {{O, O, O, C, O, O, K, O, O, O}}, // cbApplySelSpell
        {{O, O, O, C, E, O, O, O, O, O}}, // cbClearSel
        {{O, O, E, E, E, O, O, O, O, O}}, // cbCompleteCheck
        {{O, E, O, O, O, O, K, O, O, E}}, // cbShriek
        {{O, E, O, O, O, O, K, O, O, E}}, // cbDate
        {{O, O, E, E, E, O, O, O, O, E}}, // lbComments
        {{O, O, O, O, O, O, O, O, O, O}}, // cbEditSel: enabled by the ticks of the change list alone
    }};
}();

bool IsMode(std::int16_t mode) {
    return mode >= FirstMode && mode <= LastMode;
}

// Without a selected row only the commands for all rows make sense.
bool EnabledByChanges(Control control, ChangeListState changes) {
    const bool forAllRows = control == Control::cbApplyAll || control == Control::cbApplyAllSpell;
    return changes.hasRows && (changes.hasSelection || forAllRows);
}

} // namespace

std::optional<bool> EnabledInMode(Control control, std::int16_t mode, bool changed, ChangeListState changes) {
    if (!IsMode(mode)) {
        return std::nullopt;
    }
    switch (ModeTable[static_cast<std::size_t>(control)][static_cast<std::size_t>(mode - FirstMode)]) {
    case Rule::E:
        return true;
    case Rule::D:
        return changed;
    case Rule::C:
        return EnabledByChanges(control, changes);
    case Rule::K:
        return std::nullopt;
    case Rule::O:
        break;
    }
    return false;
}

bool ModeClearsStatus(std::int16_t mode) {
    return IsMode(mode) && mode != 7 && mode != AddingUnacceptable;
}

bool ModeClearsApplyTo(std::int16_t mode) {
    return mode == NothingOpen;
}

} // namespace CommonRoutines
