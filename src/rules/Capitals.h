#pragma once

#include <string_view>

namespace CommonRoutines {

class Desktop;

// Reads the words that need no capital from "qx_lower.txt" in the program's folder, which becomes the
// current folder, into LowerCaseWords. Without the file, or enough memory for it, the list is empty and one
// message says so.
void LoadLowerCaseWords(Desktop& desktop);

// True when a word of the base name is neither written with one capital and small letters nor one of
// LowerCaseWords. Any casing of a listed word passes.
[[nodiscard]] bool CapitalsAreUnusual(std::string_view variation);

// CapitalsAreUnusual, which also leaves the markers in sMarkerPrefix and sMarkerSuffix.
[[nodiscard]] bool HasUnusualCapitals(std::string_view variation);

} // namespace CommonRoutines
