#pragma once

// The commands of the main window, each in one row: buttons, tooltips, shortcuts and the enabled state
// in every mode follow from it. A control without a row does not compile.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace Commands {

struct Session;

// The controls whose enabled state follows the window's mode, in the order in which Tab meets them.
enum class Control : std::size_t {
    cbOpen,
    cbSave,
    btnProcess,
    cbCompleteCheck,
    cbUndo,
    cbAdd,
    cbDelete,
    cbShriek,
    cbDate,
    cbSaveVariations,
    tbEdit,
    cbOk,
    cbCancel,
    cbApplySelected,
    cbApplySelSpell,
    cbApplyAll,
    cbApplyAllSpell,
    cbEditSel,
    cbClearSel,
    lbComments,
    guide, // this one and the next ones have keys alone
    find,
    findNext,
    findPrevious,
    Count,
};
inline constexpr auto ControlCount = static_cast<std::size_t>(Control::Count);

// The group in which a button stands.
enum class Frame { None, File, Undo, Variations, Edit, Proposals };

// Where in its group.
struct Place {
    Frame frame = Frame::None;
    int row = 0;
    int column = 0;
    int columns = 1;
};

// Where its key works: in the whole window, or only while the focus is there. The edit box hears its keys itself.
enum class KeyScope { Window, Variations, EditBox };

struct Command {
    Control control = Control::Count;
    std::string_view name = {}; // of the control
    Place place;
    std::string_view caption = {};
    std::string_view otherCaption = {}; // for which there has to be room as well
    std::string_view spokenName = {};   // for a screen reader, where the caption does not tell enough
    std::string_view hint = {};
    std::string_view key = {}; // as the toolkit and the page of keys name it
    KeyScope scope = KeyScope::Window;
    // A character for each of the modes 1 to 10: "E" enabled, "-" disabled, "D" enabled while there are unsaved
    // changes, "C" decided from the proposals, a blank: left as it is.
    std::string_view modes = {};
    void (*run)(Session&) = nullptr; // nothing where the control has events of its own
};

// All rows, in the order of the controls.
[[nodiscard]] std::span<const Command> AllCommands();

[[nodiscard]] const Command& CommandOf(Control control);

} // namespace Commands
