#pragma once

#include "core/Records.h"
#include "core/UpperCase.h"

#include <cstdint>
#include <string>
#include <vector>

namespace CommonRoutines {

class Progress;

// Sort record of a duplicate search: a variation, or a district's own name. It names its text instead of
// holding it, so that a million of them are sorted as small records; the table must not change meanwhile.
struct VariationKey {
    Ansi::UpperPrefix Key;      // beginning of the upper-cased base name, or of the upper-cased name
    std::int32_t lIndex = 0;    // slot of the variation, 0 for the name
    std::int32_t lDistrict = 0; // the district that owns it

    [[nodiscard]] bool bIsName() const { return lIndex == 0; }
    // The variation, or the upper-cased name.
    [[nodiscard]] std::string Text() const;
    [[nodiscard]] std::string_view DistrictName() const;
};

[[nodiscard]] VariationKey KeyOfVariation(std::int32_t lDistrict, std::int32_t lIndex);
[[nodiscard]] VariationKey KeyOfName(std::int32_t lDistrict);

// The order of the upper-cased base names, by character code.
[[nodiscard]] bool KeyPrecedes(const VariationKey& a, const VariationKey& b);

// SameVariation for the texts of two keys.
[[nodiscard]] bool SameSpelling(const VariationKey& a, const VariationKey& b);

// Sorts Keys(lLow..lHigh) by Key. The order of equal keys is part of the result, since it decides which
// neighbours are reported as pairs. `progress` is advanced by a step for each key.
void SortVariationKeys(std::vector<VariationKey>& Keys, std::int32_t lLow, std::int32_t lHigh, Progress& progress);
void SortVariationKeys(std::vector<VariationKey>& Keys, std::int32_t lLow, std::int32_t lHigh);

} // namespace CommonRoutines
