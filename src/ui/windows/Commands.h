#pragma once

#include <functional>

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

// The commands of all windows are run through here.
namespace Commands {

// Runs a command. One that there is not enough memory for ends with a message, since the toolkit must not
// meet with an exception. One that comes while a window is only painted in the middle of another command,
// as a screen reader's may, is left out.
void Run(CommonRoutines::Desktop& desktop, const std::function<void()>& command);

// The same for what only shows the table as it is, which is also done while a window is painted.
void Show(CommonRoutines::Desktop& desktop, const std::function<void()>& update);

} // namespace Commands
