#include "commands/CommandTable.h"

#include "commands/CheckCommands.h"
#include "commands/EditCommands.h"
#include "commands/FileCommands.h"
#include "commands/FindCommands.h"
#include "commands/Guide.h"
#include "commands/ProposalCommands.h"
#include "commands/VariationCommands.h"

#include <array>

namespace Commands {

namespace {

// clang-format off
constexpr std::array<Command, ControlCount> Table{{
    {.control = Control::cbOpen, .name = "cbOpen", .place = {Frame::File, 0, 0}, .caption = "Open File",
     .hint = "Open a data file", .key = "Ctrl+O",
     .modes = "E-EEE-----", .run = Open},
    {.control = Control::cbSave, .name = "cbSave", .place = {Frame::File, 0, 1}, .caption = "Save",
     .hint = "Write the data file", .key = "Ctrl+S",
     .modes = "--DDD-----", .run = Save},
    {.control = Control::btnProcess, .name = "btnProcess", .place = {Frame::File, 0, 2}, .caption = "Process File",
     .hint = "Read a file of proposed variations for this district",
     .modes = "---E------", .run = ProcessFile},
    {.control = Control::cbCompleteCheck, .name = "cbCompleteCheck", .place = {Frame::File, 0, 3},
     .caption = "Complete Variation Check", .hint = "Look for duplicates in the whole file",
     .modes = "--EEE-----", .run = CompleteCheck},
    {.control = Control::cbUndo, .name = "cbUndo", .place = {Frame::Undo, 0, 0}, .caption = "Undo",
     .hint = "Take back the last change", .key = "Ctrl+Z",
     .modes = "EEEEEEEEEE", .run = Undo},

    {.control = Control::cbAdd, .name = "cbAdd", .place = {Frame::Variations, 0, 0}, .caption = "Add",
     .hint = "Add a variation to this district", .key = "Insert",
     .modes = "---EE-----", .run = StartAdding},
    {.control = Control::cbDelete, .name = "cbDelete", .place = {Frame::Variations, 0, 1}, .caption = "Delete",
     .hint = "Delete the selected variations", .key = "Delete", .scope = KeyScope::Variations,
     .modes = "-E--E----E", .run = Delete},
    {.control = Control::cbShriek, .name = "cbShriek", .place = {Frame::Variations, 1, 0}, .caption = "Add !",
     .otherCaption = "Remove !", .hint = "Mark or unmark the selected variations as spelling mistakes",
     .modes = "-E---- --E", .run = ChangeShriek},
    {.control = Control::cbDate, .name = "cbDate", .place = {Frame::Variations, 1, 1}, .caption = "Add Date%",
     .otherCaption = "Remove Date%", .hint = "Mark or unmark the selected variations as valid only in some years",
     .modes = "-E---- --E", .run = ChangeDate},
    {.control = Control::cbSaveVariations, .name = "cbSaveVariations", .place = {Frame::Variations, 2, 0, 2},
     .caption = "Save Selected Variations", .hint = "Write the selected variations to a text file",
     .modes = "-E--E----E", .run = SaveVariations},

    {.control = Control::tbEdit, .name = "tbEdit", .place = {}, .caption = "",
     .spokenName = "Variation text", .hint = "The variation with its markers", .key = "F2",
     .modes = "-E-E-EEEE-", .run = GoToEditBox},
    {.control = Control::cbOk, .name = "cbOk", .place = {Frame::Edit, 0, 0}, .caption = "Ok",
     .hint = "Store the text", .key = "Enter", .scope = KeyScope::EditBox,
     .modes = "-----E--E-", .run = Accept},
    {.control = Control::cbCancel, .name = "cbCancel", .place = {Frame::Edit, 0, 1}, .caption = "Cancel",
     .hint = "Give up the text", .key = "Esc", .scope = KeyScope::EditBox,
     .modes = "-E---EEEE-", .run = Cancel},

    {.control = Control::cbApplySelected, .name = "cbApplySelected", .place = {Frame::Proposals, 0, 0},
     .caption = "Apply Selected", .hint = "Add the ticked proposals to this district",
     .modes = "---C------", .run = ApplySelected},
    {.control = Control::cbApplySelSpell, .name = "cbApplySelSpell", .place = {Frame::Proposals, 0, 1},
     .caption = "as Spelling", .spokenName = "Apply Selected as Spelling",
     .hint = "Add the ticked proposals as spelling mistakes",
     .modes = "---C-- ---", .run = ApplySelectedAsSpelling},
    {.control = Control::cbApplyAll, .name = "cbApplyAll", .place = {Frame::Proposals, 1, 0},
     .caption = "Apply All", .hint = "Add all proposals to this district",
     .modes = "---C------", .run = ApplyAll},
    {.control = Control::cbApplyAllSpell, .name = "cbApplyAllSpell", .place = {Frame::Proposals, 1, 1},
     .caption = "as Spelling", .spokenName = "Apply All as Spelling",
     .hint = "Add all proposals as spelling mistakes",
     .modes = "---C-- ---", .run = ApplyAllAsSpelling},
    {.control = Control::cbEditSel, .name = "cbEditSel", .place = {Frame::Proposals, 2, 0}, .caption = "Edit",
     .hint = "Take the ticked proposal into the edit box",
     .modes = "----------", .run = EditTicked}, // enabled by the ticks of the proposals alone
    {.control = Control::cbClearSel, .name = "cbClearSel", .place = {Frame::Proposals, 2, 1}, .caption = "Clear",
     .hint = "Untick all proposals",
     .modes = "---CE-----", .run = UntickAll},

    {.control = Control::lbComments, .name = "lbComments", .place = {}, .caption = "",
     .spokenName = "Comment types", .hint = "Lists only the districts that have a comment of the chosen type",
     .modes = "--EEE----E"},
    {.control = Control::guide, .name = "guide", .place = {}, .caption = "",
     .spokenName = "User guide", .hint = "Show the user guide", .key = "F1",
     .modes = "EEEEEEEEEE", .run = ShowGuide},
    {.control = Control::find, .name = "find", .place = {}, .caption = "",
     .spokenName = "Find", .hint = "Find a text in the whole file", .key = "Ctrl+F",
     .modes = "EEEEEEEEEE", .run = OpenFind}, // the bar says why nothing can be looked for
    {.control = Control::findNext, .name = "findNext", .place = {}, .caption = "",
     .spokenName = "Find next", .hint = "Go to the next place found", .key = "F3",
     .modes = "-EEEE----E", .run = FindNext},
    {.control = Control::findPrevious, .name = "findPrevious", .place = {}, .caption = "",
     .spokenName = "Find previous", .hint = "Go to the previous place found", .key = "Shift+F3",
     .modes = "-EEEE----E", .run = FindPrevious},
}};
// clang-format on

constexpr bool EveryControlHasItsRow() {
    constexpr std::size_t modeCount = 10;
    for (std::size_t i = 0; i < Table.size(); ++i) {
        if (Table[i].control != static_cast<Control>(i) || Table[i].name.empty() ||
            Table[i].modes.size() != modeCount) {
            return false;
        }
    }
    return true;
}
static_assert(EveryControlHasItsRow());

} // namespace

std::span<const Command> AllCommands() {
    return Table;
}

const Command& CommandOf(Control control) {
    return Table[static_cast<std::size_t>(control)];
}

} // namespace Commands
