#pragma once

#include <string_view>

namespace Commands {

struct Session;

// Says in the view what is so and what can be done next: the hints of empty lists, what would enable each
// disabled control, what the edit panel is used for. Follows from the view and the shared state alone, and so
// is never older than they are.
void ShowGuidance(Session& session);

// What leads to a chosen district, where none is.
std::string_view WayToDistrict(const Session& session);

} // namespace Commands
