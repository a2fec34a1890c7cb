#pragma once

#include "core/Records.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// Sorts Keys(lLow..lHigh) by Key, in the order of the character codes. The order of equal keys is
// part of the result, since it decides which neighbours are reported as pairs: it is that of a
// quicksort that takes the middle element as its pivot and swaps from both ends.
void SortVariationKeys(std::vector<VariationKey>& Keys, std::int32_t lLow, std::int32_t lHigh);

// Marks the variations of a district that are the same as a neighbour in sorted order, counts the
// pairs in iDuplicateCount and appends them to DupePairs, which only an explicit false empties first.
// Returns true when there is at least one pair. Three equal variations make two pairs.
bool FindDuplicateVariations(std::int32_t lDistrict, std::optional<bool> bKeepPairs = std::nullopt);

// Empties DupePairs, leaving room for five pairs.
void EmptyDupePairs();

// Appends a pair to DupePairs, making room for five more when it is full.
void AddDupePair(std::string_view first, std::string_view second);

} // namespace CommonRoutines
