#pragma once

#include "core/SharedText.h"

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
void AddDupePair(std::string_view first, SharedText second);

} // namespace CommonRoutines
