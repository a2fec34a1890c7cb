#pragma once

#include <optional>
#include <vector>
#include <windows.h>

// Who may do what with a file.
namespace Rights {

using Descriptor = std::vector<unsigned char>; // as the system keeps it

// Those of a file that is open, and its owner; nothing when they cannot be read.
[[nodiscard]] std::optional<Descriptor> Of(HANDLE file);
// For the user and nobody else; nothing when it is not known who that is.
[[nodiscard]] std::optional<Descriptor> OfTheUserAlone();
// Those that the program gives to new files at present; nothing where these get what their folder has for them.
[[nodiscard]] std::optional<Descriptor> OfNewFiles();

// Gives them exactly, those among them that once came from a folder as well. The owner is one from the beginning.
[[nodiscard]] bool Give(HANDLE file, Descriptor& rights);

// Whether a new file cannot have the owner, the rights and the labels of this one. True where that cannot be told.
[[nodiscard]] bool CannotBeGiven(HANDLE file);

} // namespace Rights
