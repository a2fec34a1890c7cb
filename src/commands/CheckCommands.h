#pragma once

namespace Commands {

struct Session;

// Looks for duplicates in the whole file and shows what it found.
void CompleteCheck(Session& session);

// Writes the selected variations to a text file.
void SaveVariations(Session& session);

} // namespace Commands
