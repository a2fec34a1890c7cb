#include "rules/Duplicates.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "rules/Markers.h"
#include "rules/Matching.h"

#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::size_t DupePairStep = 5;

using Keys = std::vector<VariationKey>;

VariationKey& At(Keys& keys, std::int32_t index) {
    return keys[static_cast<std::size_t>(index)];
}

struct Partition {
    std::int32_t lowerEnd;   // the lower part is from the low end to here
    std::int32_t upperBegin; // the upper part is from here to the high end
};

Partition PartitionByMiddle(Keys& keys, std::int32_t low, std::int32_t high) {
    const std::string pivot = At(keys, (low + high) / 2).Key;
    std::int32_t i = low;
    std::int32_t j = high;
    while (i <= j) {
        while (At(keys, i).Key < pivot && i != high) {
            ++i;
        }
        while (pivot < At(keys, j).Key && j != low) {
            --j;
        }
        if (i > j) {
            break;
        }
        std::swap(At(keys, i), At(keys, j));
        ++i;
        --j;
    }
    return {j, i};
}

Keys KeysOfDistrict(const DistrictRecord& district, std::int32_t lDistrict) {
    Keys keys(static_cast<std::size_t>(district.lVariationCount) + 1);
    for (std::int32_t i = 1; i <= district.lVariationCount; ++i) {
        VariationKey& key = At(keys, i);
        key.lIndex = i;
        key.Text = district.Variations[static_cast<std::size_t>(i)].Text;
        key.Key = Ansi::Upper(StripMarkers(key.Text));
        key.lDistrict = lDistrict;
    }
    return keys;
}

} // namespace

void SortVariationKeys(std::vector<VariationKey>& Keys, std::int32_t lLow, std::int32_t lHigh) {
    // The two parts do not touch each other, so the smaller one may go first: the stack then never
    // grows deeper than the logarithm of the length, however unlucky the pivots are.
    while (lLow < lHigh) {
        const Partition parts = PartitionByMiddle(Keys, lLow, lHigh);
        if (parts.lowerEnd - lLow < lHigh - parts.upperBegin) {
            SortVariationKeys(Keys, lLow, parts.lowerEnd);
            lLow = parts.upperBegin;
        } else {
            SortVariationKeys(Keys, parts.upperBegin, lHigh);
            lHigh = parts.lowerEnd;
        }
    }
}

void EmptyDupePairs() {
    DupePairs.assign(DupePairStep + 1, {});
    lDupePairCount = 0;
}

void AddDupePair(std::string_view first, std::string_view second) {
    ++lDupePairCount;
    if (lDupePairCount >= std::ssize(DupePairs)) {
        DupePairs.resize(static_cast<std::size_t>(lDupePairCount) + DupePairStep + 1);
    }
    DupePairs[static_cast<std::size_t>(lDupePairCount)] = {std::string(first), std::string(second)};
}

bool FindDuplicateVariations(std::int32_t lDistrict, std::optional<bool> bKeepPairs) {
    if (bKeepPairs == false) {
        EmptyDupePairs();
    }
    DistrictRecord& district = RecordOf(lDistrict);
    for (VariationRecord& variation : district.Variations) {
        variation.bDuplicate = false;
    }
    district.iDuplicateCount = 0;
    if (district.lVariationCount < 2) {
        return false;
    }
    Keys keys = KeysOfDistrict(district, lDistrict);
    SortVariationKeys(keys, 1, district.lVariationCount);

    const auto markDuplicate = [&](const VariationKey& of, const VariationKey& partner) {
        VariationRecord& variation = district.Variations[static_cast<std::size_t>(of.lIndex)];
        variation.bDuplicate = true;
        variation.lDuplicateOf = partner.lIndex;
    };
    for (std::int32_t j = 1; j < district.lVariationCount; ++j) {
        const VariationKey& key = At(keys, j);
        const VariationKey& next = At(keys, j + 1);
        if (SameVariation(key.Text, next.Text, key.lDistrict, next.lDistrict)) {
            ++district.iDuplicateCount;
            markDuplicate(key, next);
            markDuplicate(next, key);
            AddDupePair(key.Text, next.Text);
        }
    }
    return district.iDuplicateCount >= 1;
}

} // namespace CommonRoutines
