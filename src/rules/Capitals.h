#pragma once

#include "core/SeededHash.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace CommonRoutines {

// What parts the words of a name. A closing parenthesis does not: it stays at the end of its word, where it does no
// harm.
inline constexpr std::string_view WordSeparators = "\t -.,(/'";

class Desktop;

// The words that need no capital, in small letters, in UTF-8 and in the order of their file.
struct LowerCaseList {
    std::vector<std::string> words; // 1 to count; element 0 is never filled
    std::int32_t count = 0;
    std::unordered_set<std::string, SeededHash, std::equal_to<>> lookup;
};

// Reads these words from "qx_lower.txt" in the program's folder, which becomes the current folder. Its encoding
// is found out as that of a data file is. Without the file, or enough memory for it, the list is empty and one message
// says so.
void LoadLowerCaseWords(Desktop& desktop);

void ForgetLowerCaseWords();

// For tests.
[[nodiscard]] const LowerCaseList& LowerCaseWords();

// True when a word of the base name is neither written with one capital and small letters nor one of
// the words that need none. Any casing of a listed word passes.
[[nodiscard]] bool CapitalsAreUnusual(std::string_view variation);

// CapitalsAreUnusual, which also leaves the markers in sMarkerPrefix and sMarkerSuffix.
[[nodiscard]] bool HasUnusualCapitals(std::string_view variation);

} // namespace CommonRoutines
