#pragma once

#include "core/Desktop.h"

#include <optional>
#include <string>

class QWidget;

// The toolkit's dialogues for files. Both return a path in the machine's own encoding, nothing when none was chosen.
namespace FileDialogues {

[[nodiscard]] std::optional<std::string> ChooseToOpen(QWidget* parent, const CommonRoutines::FileRequest& request);

// What cannot be written is refused with a message, and the dialogue comes again.
[[nodiscard]] std::optional<std::string> ChooseToSave(QWidget* parent, const CommonRoutines::FileRequest& request,
                                                      CommonRoutines::Desktop& desktop);

} // namespace FileDialogues
