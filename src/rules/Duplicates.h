#pragma once

#include "core/AnsiString.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace CommonRoutines {

// Marks the variations of a district that are the same as a neighbour in sorted order. Counts the pairs in
// iDuplicateCount and appends them to DupePairs, which only an explicit false empties first. Returns true when
// there is at least one pair. Three equal variations make two pairs.
bool FindDuplicateVariations(std::int32_t lDistrict, std::optional<bool> bKeepPairs = std::nullopt);

// Empties DupePairs, leaving room for five pairs.
void EmptyDupePairs();

// Appends a pair to DupePairs, making room for five more when it is full.
void AddDupePair(Ansi::String first, Ansi::String second);

// A text for pairs, of which there is one, however long and however many they are. It stays until they are emptied.
[[nodiscard]] Ansi::String OnceForPairs(std::string_view text);

// Gives the pairs texts of their own in the place of parts of this content, which is about to go.
void KeepDupePairs(std::string_view content);

} // namespace CommonRoutines
