#include "commands/Guidance.h"

#include "commands/Session.h"
#include "core/State.h"
#include "edit/Variations.h"

using namespace CommonRoutines;

namespace Commands {

namespace {

constexpr std::string_view ChooseDistrictFirst = "choose a district first";
constexpr std::string_view ChangeFirst = "change something first";
constexpr std::string_view CancelFirst = "first Cancel (Esc)";
constexpr std::string_view ChooseVariationsFirst = "choose variations first";

std::string_view DistrictsHint(const Session& session) {
    if (session.isReading) {
        return "The file is being read";
    }
    if (sDataFileName.empty()) {
        return "Open a file, or drop one here, to see its districts";
    }
    if (session.districtsByName.empty()) {
        return iRepairAction == Quit ? "Reading was stopped: open a file to see its districts"
                                     : "This file has no districts: open another one";
    }
    return iEditMode == NothingOpen ? "The file is still open: choose \" All\" below to see its districts"
                                    : "No district has a comment of this type: choose another one below";
}

std::string_view VariationsHint(const WindowView& view) {
    if (view.variationsOf > 0) {
        return view.IsEnabled(Control::cbAdd) ? "This district has no variations: press Add to enter one"
                                              : "This district has no variations";
    }
    return view.districts.IsEmpty() ? "The variations of a district are shown here"
                                    : "Choose a district to see its variations";
}

std::string_view CommentsHint(const WindowView& view) {
    if (view.comments.district > 0) {
        return "This district has no comments";
    }
    return view.districts.IsEmpty() ? "The comments of a district are shown here"
                                    : "Choose a district to see its comments";
}

std::string_view ProposalsHint(const WindowView& view) {
    if (view.variationsOf > 0) {
        return "Process File shows proposals here";
    }
    return view.districts.IsEmpty() ? "The proposals of a change file are shown here"
                                    : "Choose a district, then Process File shows proposals here";
}

bool IsOfProposals(Control control) {
    return CommandOf(control).place.frame == Frame::Proposals;
}

// Of a button for proposals, while a district is chosen and nothing else is being done.
std::string_view ObstacleInProposals(Control control, const WindowView& view) {
    if (view.proposals.IsEmpty()) {
        return "first Process File";
    }
    switch (control) {
    case Control::cbApplyAll:
    case Control::cbApplyAllSpell:
        return "first Clear, since some proposals are ticked";
    case Control::cbEditSel:
        return "tick a single proposal first";
    default:
        return "tick proposals first";
    }
}

std::string_view ObstacleWhenIdle(Control control, const WindowView& view) {
    switch (control) {
    case Control::cbSave:
        return ChangeFirst;
    case Control::cbOk:
    case Control::cbCancel:
        return "first add a variation or choose one";
    case Control::cbDelete:
    case Control::cbShriek:
    case Control::cbDate:
    case Control::cbSaveVariations:
        return ChooseVariationsFirst;
    default:
        // Applying has left the district; choosing it again leads on.
        return IsOfProposals(control) && iEditMode == DistrictIdle ? ObstacleInProposals(control, view)
                                                                   : ChooseDistrictFirst;
    }
}

std::string_view ObstacleWhenNothingIsOpen(const Session& session) {
    return session.districtsByName.empty() ? "open a file first" : "first choose \" All\" among the comment types";
}

// What would enable a control that is disabled in the present mode.
std::string_view ObstacleTo(Control control, const Session& session) {
    switch (iEditMode) {
    case NothingOpen:
        return ObstacleWhenNothingIsOpen(session);
    case FileOpen:
        return control == Control::cbSave ? ChangeFirst : ChooseDistrictFirst;
    case OneSelected:
        return control == Control::cbOk ? "change the text first" : CancelFirst;
    case EditingVariation:
    case AddingAcceptable:
        return "first Ok (Enter) or Cancel (Esc)";
    case AddingUnacceptable:
        return control == Control::cbOk ? "type a variation first" : CancelFirst;
    case SeveralSelected:
        return control == Control::tbEdit || control == Control::cbOk ? "choose a single variation"
                                                                      : "first Esc in the list of variations";
    default:
        return ObstacleWhenIdle(control, session.view);
    }
}

// Of a text of any length no more than a label can show.
std::string Beginning(std::string_view text) {
    constexpr std::size_t most = 200;
    return std::string(text.substr(0, most));
}

std::string Doing() {
    switch (iEditMode) {
    case AddingUnacceptable:
    case AddingAcceptable:
        return IsDistrict(lCurrentDistrict) ? "Adding to " + Beginning(RecordOf(lCurrentDistrict).Name) : "";
    case OneSelected:
    case EditingVariation:
        return lEditIndex > 0 ? "Editing " + Beginning(VariationOf(lCurrentDistrict, lEditIndex).Text) : "";
    default:
        return {};
    }
}

} // namespace

void ShowGuidance(Session& session) {
    WindowView& view = session.view;
    view.hints = {DistrictsHint(session), VariationsHint(view), ProposalsHint(view), CommentsHint(view)};
    for (const Command& command : AllCommands()) {
        view.obstacles[static_cast<std::size_t>(command.control)] =
            view.IsEnabled(command.control) ? std::string_view() : ObstacleTo(command.control, session);
    }
    view.doing = Doing();
    if (iEditMode == SeveralSelected) {
        view.doing = std::to_string(view.variations.selected.size()) + " variations chosen";
    }
}

} // namespace Commands
