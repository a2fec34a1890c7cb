#pragma once

#include "commands/CommandTable.h"

#include <cstdint>
#include <optional>

namespace Commands {

struct WindowView;

// What the modes ask of the proposals.
struct ProposalListState {
    bool hasAny = false;
    bool hasSelection = false; // one is highlighted or ticked
};

// Whether the control is enabled in a mode; nothing where the mode leaves it as it is, and for a mode
// outside 1 to 10.
[[nodiscard]] std::optional<bool> EnabledInMode(Control control, std::int16_t mode, bool changed,
                                                ProposalListState proposals);

// Which labels a mode clears.
[[nodiscard]] bool ModeClearsStatus(std::int16_t mode);
[[nodiscard]] bool ModeClearsApplyTo(std::int16_t mode);

// Writes iEditMode; nothing else does.
void SetMode(std::int16_t mode);

// Shows what iEditMode means: enabled controls and cleared labels.
void ApplyWindowMode(Session& session);

// Without a chosen district nothing can be applied to it, whatever enabled the buttons before.
void WithholdFromNoDistrict(WindowView& view);

// SetMode, then ApplyWindowMode.
void EnterMode(Session& session, std::int16_t mode);

} // namespace Commands
