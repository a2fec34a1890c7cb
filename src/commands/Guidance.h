#pragma once

namespace Commands {

struct Session;

// Says in the view what is so and what can be done next: the hints of empty lists, what would enable each
// disabled control, what the edit panel is used for. Follows from the view and the shared state alone, and so
// is never older than they are.
void ShowGuidance(Session& session);

} // namespace Commands
