#include "commands/Guidance.h"

#include "changes/ProposalSelection.h"
#include "commands/Session.h"
#include "core/State.h"
#include "edit/EditPanel.h"
#include "edit/Variations.h"

using namespace CommonRoutines;

namespace Commands {

namespace {

constexpr std::string_view ChooseDistrictFirst = "choose a district first";
constexpr std::string_view ChangeFirst = "change something first";
constexpr std::string_view CancelFirst = "first Cancel (Esc)";

bool HasFile(const Session& session) {
    return !session.districtsByName.empty();
}

// Whether a district is chosen and its variations are listed: a filter hides it, but leaves it chosen.
bool ShowsDistrict(const WindowView& view) {
    return view.variationsOf > 0;
}

bool ShowsAllTypes(const WindowView& view) {
    return !view.commentTypes.selected.empty() && view.commentTypes.selected.front() == 0;
}

std::string_view DistrictsHint(const Session& session) {
    const WindowView& view = session.view;
    if (session.isOpening) {
        return "A file is being opened";
    }
    if (sDataFileName.empty()) {
        return "Open a file, or drop one here, to see its districts";
    }
    if (!HasFile(session)) {
        return iRepairAction == Quit ? "Reading was stopped: open a file to see its districts"
                                     : "This file has no districts: open another one";
    }
    if (!ShowsAllTypes(view)) {
        return "No district has a comment of this type: choose another one below";
    }
    return view.IsEnabled(Control::lbComments)
               ? "The file is still open: choose \" All\" below to see its districts"
               : "The file is still open: first Cancel, then choose \" All\" below to see its districts";
}

std::string_view VariationsHint(const WindowView& view) {
    if (ShowsDistrict(view)) {
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
    if (ShowsDistrict(view) && view.IsEnabled(Control::btnProcess)) {
        return "Process File shows proposals here";
    }
    return ShowsDistrict(view) || view.districts.IsEmpty()
               ? "The proposals of a change file are shown here"
               : "Choose a district, then Process File shows proposals here";
}

// The next step towards a district.
std::string_view ObstacleInProposals(Control control, const WindowView& view) {
    if (view.proposals.IsEmpty()) {
        return "first Process File";
    }
    switch (control) {
    case Control::cbApplyAll:
    case Control::cbApplyAllSpell:
        return "first Clear, since some proposals are ticked";
    case Control::cbEditSel:
        return CountCheckedChanges(*view.proposals.rows) == 1 ? "untick the proposal and tick it again"
                                                              : "tick a single proposal first";
    default:
        return "tick proposals first";
    }
}

std::string_view ObstacleInVariations(const WindowView& view) {
    if (view.variations.IsEmpty()) {
        return "add a variation first";
    }
    return view.variations.selected.empty() ? "choose variations first"
                                            : "first Space in the list, which takes the marked rows up";
}

std::string_view ObstacleToOk(const WindowView& view) {
    if (view.edit.text.size() > LongestEditableText) {
        return "the text is too long to be edited here";
    }
    return view.edit.text.empty() ? "first add a variation or choose one" : "go on typing first";
}

// Nothing is chosen or typed.
std::string_view ObstacleWhenIdle(Control control, const Session& session) {
    const WindowView& view = session.view;
    if (!ShowsDistrict(view)) {
        return WayToDistrict(session);
    }
    const Frame frame = CommandOf(control).place.frame;
    if (frame == Frame::Variations) {
        return ObstacleInVariations(view);
    }
    if (iEditMode == ChangesApplied) {
        return "choose the district again";
    }
    return frame == Frame::Proposals ? ObstacleInProposals(control, view) : ObstacleToOk(view);
}

std::string_view ObstacleWhenSeveral(Control control, const Session& session) {
    if (session.view.variations.selected.empty()) {
        return WayToDistrict(session); // a filter has taken the rows away
    }
    const bool isOfOne = control == Control::tbEdit || control == Control::cbOk || control == Control::cbCancel;
    return isOfOne ? "choose a single variation" : "first Esc in the list of variations";
}

// What would enable a control that is disabled.
std::string_view ObstacleTo(Control control, const Session& session) {
    const bool isOk = control == Control::cbOk;
    if (control == Control::cbSave && !bChanged && HasFile(session)) {
        return ChangeFirst;
    }
    switch (iEditMode) {
    case OneSelected:
        return isOk ? "change the text first" : CancelFirst;
    case EditingVariation:
        return "first Ok (Enter) or Cancel (Esc)";
    case AddingUnacceptable:
        if (isOk) {
            return IsDistrict(lCurrentDistrict) ? "type a variation first" : WayToDistrict(session);
        }
        [[fallthrough]];
    case AddingAcceptable:
        // The same while the text becomes acceptable, so that a key does not describe every button anew.
        return "finish adding first: Ok (Enter) or Cancel (Esc)";
    case SeveralSelected:
        return ObstacleWhenSeveral(control, session);
    default:
        return ObstacleWhenIdle(control, session);
    }
}

// Of a text of any length a little more than a label shows, so that it is seen to go on.
std::string Beginning(std::string_view text) {
    constexpr std::size_t most = 2001;
    return std::string(text.substr(0, most));
}

std::string NameOfDistrict() {
    return Beginning(RecordOf(lCurrentDistrict).Name());
}

std::string Doing(const WindowView& view) {
    switch (iEditMode) {
    case AddingUnacceptable:
    case AddingAcceptable:
        return IsDistrict(lCurrentDistrict) ? "Adding to " + NameOfDistrict() : "";
    case OneSelected:
    case EditingVariation:
        return lEditIndex > 0 ? "Editing " + Beginning(VariationOf(lCurrentDistrict, lEditIndex).Text) : "";
    case SeveralSelected: {
        const auto count = view.variations.selected.size();
        return count > 1 ? std::to_string(count) + " variations chosen" : "";
    }
    default:
        // Without a word, one would not know to which district a text would go.
        return IsDistrict(lCurrentDistrict) && !ShowsDistrict(view) ? "Add goes to " + NameOfDistrict() : "";
    }
}

} // namespace

std::string_view WayToDistrict(const Session& session) {
    if (!HasFile(session)) {
        return sDataFileName.empty() ? "open a file first" : "first open a file that has districts";
    }
    if (!session.view.districts.IsEmpty()) {
        return ChooseDistrictFirst;
    }
    return ShowsAllTypes(session.view) ? "first choose \" All\" among the comment types"
                                       : "first choose another comment type";
}

void ShowGuidance(Session& session) {
    WindowView& view = session.view;
    view.hints = {DistrictsHint(session), VariationsHint(view), ProposalsHint(view), CommentsHint(view)};
    for (const Command& command : AllCommands()) {
        view.obstacles[static_cast<std::size_t>(command.control)] =
            view.IsEnabled(command.control) ? std::string_view() : ObstacleTo(command.control, session);
    }
    view.doing = Doing(view);
}

} // namespace Commands
