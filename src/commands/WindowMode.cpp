#include "commands/WindowMode.h"

#include "commands/Session.h"
#include "core/State.h"

#include <algorithm>

using namespace CommonRoutines;

namespace Commands {

namespace {

constexpr std::int16_t FirstMode = 1;
constexpr std::int16_t LastMode = 10;
constexpr std::int16_t ModeNeverSet = 7; // has its column all the same

bool IsMode(std::int16_t mode) {
    return mode >= FirstMode && mode <= LastMode;
}

// Without a selected proposal only the commands for all make sense.
bool EnabledByProposals(Control control, ProposalListState proposals) {
    const bool forAll = control == Control::cbApplyAll || control == Control::cbApplyAllSpell;
    return proposals.hasAny && (proposals.hasSelection || forAll);
}

ProposalListState StateOfProposals(const WindowView& view) {
    const auto& proposals = *view.proposals.rows;
    const bool anyTicked =
        std::any_of(proposals.begin(), proposals.end(), [](const Proposal& proposal) { return proposal.ticked; });
    return {!proposals.empty(), anyTicked || !view.proposals.selected.empty()};
}

} // namespace

std::optional<bool> EnabledInMode(Control control, std::int16_t mode, bool changed, ProposalListState proposals) {
    if (!IsMode(mode)) {
        return std::nullopt;
    }
    switch (CommandOf(control).modes[static_cast<std::size_t>(mode - FirstMode)]) {
    case 'E':
        return true;
    case 'D':
        return changed;
    case 'C':
        return EnabledByProposals(control, proposals);
    case ' ':
        return std::nullopt;
    default:
        return false;
    }
}

bool ModeClearsStatus(std::int16_t mode) {
    return IsMode(mode) && mode != ModeNeverSet && mode != AddingUnacceptable;
}

bool ModeClearsApplyTo(std::int16_t mode) {
    return mode == NothingOpen;
}

void SetMode(std::int16_t mode) {
    iEditMode = mode;
}

void ApplyWindowMode(Session& session) {
    WindowView& view = session.view;
    const ProposalListState proposals = StateOfProposals(view);
    for (const Command& command : AllCommands()) {
        if (const auto enabled = EnabledInMode(command.control, iEditMode, bChanged, proposals)) {
            view.Enable(command.control, *enabled);
        }
    }
    if (ModeClearsStatus(iEditMode)) {
        view.status.clear();
    }
    if (ModeClearsApplyTo(iEditMode)) {
        view.applyTo = 0;
    }
}

void WithholdFromNoDistrict(WindowView& view) {
    if (IsDistrict(lCurrentDistrict)) {
        return;
    }
    for (const Control control : {Control::cbApplySelected, Control::cbApplySelSpell, Control::cbApplyAll,
                                  Control::cbApplyAllSpell, Control::cbEditSel}) {
        view.Enable(control, false);
    }
}

void EnterMode(Session& session, std::int16_t mode) {
    SetMode(mode);
    ApplyWindowMode(session);
}

} // namespace Commands
