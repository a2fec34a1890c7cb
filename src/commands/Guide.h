#pragma once

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

namespace Commands {

struct Session;

// Shows the user guide in the desktop's viewer. Where that is not possible, a message names the file.
void ShowGuide(CommonRoutines::Desktop& desktop);
void ShowGuide(Session& session);

} // namespace Commands
