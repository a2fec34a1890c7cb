#pragma once

// What the main window shows, as a value: every command ends with one. The window shows it and decides
// nothing, so that a test that reads the value sees what the user sees.

#include "changes/Proposal.h"
#include "commands/CommandTable.h"
#include "commands/ListView.h"
#include "core/State.h"
#include "edit/VariationList.h"
#include "find/Finder.h"
#include "rules/Markers.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Commands {

// The comments of a district, 0 for none. How they are wrapped is for the window, which knows its font.
struct CommentsView {
    std::int32_t district = 0;
    std::int32_t filled = 0; // how often
};

// The first `count` of the comment types.
struct CommentTypesView {
    std::size_t count = 1;
    std::vector<int> selected;
    std::int32_t filled = 0; // how often
};

// The edit box and the option boxes beside it.
struct EditView {
    std::string text; // of one that is too long to be edited, so much that this is seen
    CommonRoutines::MarkerOptions options;
    std::string refusal;     // why the text cannot be stored, while it is being added; empty where it can
    std::string keyRefusal;  // why the key just pressed was refused
    bool isPending = false;  // the text is meant for the table, and "Ok" has not stored it yet
    std::int32_t filled = 0; // how often by the program: what was typed before cannot be taken back
};

// The label of problems.
struct ProblemView {
    std::string text;
    CommonRoutines::VariationState ink = CommonRoutines::VariationState::Plain;
    bool warns = false; // a text was kept in spite of a warning

    bool operator==(const ProblemView&) const = default;
};

// What empty lists say.
struct HintsView {
    std::string_view districts;
    std::string_view variations;
    std::string_view proposals;
    std::string_view comments;

    bool operator==(const HintsView&) const = default;
};

// What would enable a control that is disabled; empty for one that is enabled.
using ObstaclesView = std::array<std::string_view, ControlCount>; // by Control

// What is being looked for in the whole file.
struct FindView {
    bool isOpen = false;
    std::string text;
    CommonRoutines::FindBy by = CommonRoutines::FindBy::Part;
    std::shared_ptr<const CommonRoutines::Hits> hits = std::make_shared<CommonRoutines::Hits>();
    std::int32_t touched = 0;                   // how often there were other hits
    bool isSearching = false;                   // there may be more of them
    std::optional<CommonRoutines::Hit> current; // the one that was gone to last
    std::string status;                         // how many there are, or why nothing can be looked for
};

// Where a command leads the focus.
enum class Focus { Stays, Districts, Variations, Proposals, EditBox, WholeText, OpenButton, FindBox };

struct WindowView {
    std::int16_t mode = CommonRoutines::NothingOpen; // iEditMode as the command has left it
    std::array<bool, ControlCount> enabled{};        // by Control

    ListView<std::int32_t> districts; // lines of the table
    ListView<CommonRoutines::VariationRow> variations;
    std::int32_t variationsOf = 0; // the district that has them
    ListView<CommonRoutines::Proposal> proposals;
    CommentsView comments;
    CommentTypesView commentTypes;
    HintsView hints;
    ObstaclesView obstacles{};
    std::string doing;    // what the edit panel is used for at the moment
    std::string openFile; // its path, in the machine's own encoding; empty when there is none

    EditView edit;
    ProblemView whyError;
    FindView find;
    std::int32_t applyTo = 0; // the district that is named, 0 for none
    std::string status;
    std::string nextUndo;
    std::string selectCount;
    std::string_view shriekCaption = "Add !";
    std::string_view dateCaption = "Add Date%";

    Focus focus = Focus::Stays;
    std::int32_t arrivals = 0; // how often something found was gone to, which may be anywhere in the lists

    [[nodiscard]] bool IsEnabled(Control control) const { return enabled[static_cast<std::size_t>(control)]; }
    void Enable(Control control, bool isEnabled) { enabled[static_cast<std::size_t>(control)] = isEnabled; }

    // What stands in the way of a disabled control.
    [[nodiscard]] std::string_view ObstacleTo(Control control) const {
        const std::string_view usual = obstacles[static_cast<std::size_t>(control)];
        const bool isRefused = control == Control::cbOk && mode == CommonRoutines::AddingUnacceptable;
        return isRefused && !edit.refusal.empty() ? edit.refusal : usual;
    }

    // The status, and while there is none, why a key was refused.
    [[nodiscard]] const std::string& StatusLine() const { return status.empty() ? edit.keyRefusal : status; }

    // Whether the selected variations are those that commands work on. Others are only marked, to be found again.
    [[nodiscard]] bool AreVariationsInHand() const {
        return mode == CommonRoutines::OneSelected || mode == CommonRoutines::EditingVariation ||
               mode == CommonRoutines::SeveralSelected;
    }
};

} // namespace Commands
