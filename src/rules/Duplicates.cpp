#include "rules/Duplicates.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "core/UpperCase.h"
#include "rules/Markers.h"
#include "rules/VariationKeys.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace CommonRoutines {

namespace {

constexpr std::size_t DupePairStep = 5;

// Up to this many texts, comparing each with each is faster than sorting them.
constexpr std::size_t FewTexts = 48;

std::set<std::string, std::less<>> repeatedTexts; // by pairs

bool AnyTwoAreEqual(std::vector<std::uint64_t>& numbers) {
    if (numbers.size() > FewTexts) {
        std::sort(numbers.begin(), numbers.end());
        return std::adjacent_find(numbers.begin(), numbers.end()) != numbers.end();
    }
    for (auto number = numbers.begin(); number != numbers.end(); ++number) {
        if (std::find(number + 1, numbers.end(), *number) != numbers.end()) {
            return true;
        }
    }
    return false;
}

// Whether two variations have the same base name, case and blanks around it aside. Without that no two
// can be the same spelling, and most districts need not be sorted.
bool RepeatsABaseName(const DistrictRecord& district) {
    static std::vector<std::uint64_t> hashes; // kept for its memory
    hashes.clear();
    for (std::int32_t i = 1; i <= district.lVariationCount; ++i) {
        const MarkerParts parts = SplitMarkers(district.Variations[static_cast<std::size_t>(i)].Text);
        hashes.push_back(Ansi::HashUpper(Ansi::Trim(parts.base)));
    }
    return AnyTwoAreEqual(hashes);
}

std::vector<VariationKey> SortedKeys(std::int32_t lDistrict, std::int32_t count) {
    std::vector<VariationKey> keys(1); // element 0 is never used
    for (std::int32_t i = 1; i <= count; ++i) {
        keys.push_back(KeyOfVariation(lDistrict, i));
    }
    SortVariationKeys(keys, 1, count);
    return keys;
}

} // namespace

void EmptyDupePairs() {
    DupePairs.assign(DupePairStep + 1, {});
    lDupePairCount = 0;
    repeatedTexts.clear();
}

void AddDupePair(Ansi::String first, Ansi::String second) {
    const auto place = static_cast<std::size_t>(lDupePairCount) + 1;
    if (place >= DupePairs.size()) {
        DupePairs.resize(place + DupePairStep + 1);
    }
    DupePairs[place] = {std::move(first), std::move(second)};
    ++lDupePairCount; // last, in case that there is not enough memory
}

Ansi::String OnceForPairs(std::string_view text) {
    auto known = repeatedTexts.find(text);
    if (known == repeatedTexts.end()) {
        known = repeatedTexts.emplace(text).first;
    }
    return Ansi::String::PartOf(*known);
}

void KeepDupePairs(std::string_view content) {
    for (DupePair& pair : DupePairs) {
        for (Ansi::String* text : {&pair.first, &pair.second}) {
            if (text->IsPartOf(content)) {
                *text = Ansi::String(*text);
            }
        }
    }
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
    if (district.lVariationCount < 2 || !RepeatsABaseName(district)) {
        return false;
    }
    const std::vector<VariationKey> keys = SortedKeys(lDistrict, district.lVariationCount);
    const auto variationOf = [&](const VariationKey& key) -> VariationRecord& {
        return district.Variations[static_cast<std::size_t>(key.lIndex)];
    };
    const auto markDuplicate = [&](const VariationKey& of, const VariationKey& partner) {
        VariationRecord& variation = variationOf(of);
        variation.bDuplicate = true;
        variation.lDuplicateOf = partner.lIndex & VariationSlots::MostSlots; // which it never exceeds
    };
    for (std::size_t j = 1; j + 1 < keys.size(); ++j) {
        const VariationKey& key = keys[j];
        const VariationKey& next = keys[j + 1];
        if (SameSpelling(key, next)) {
            ++district.iDuplicateCount;
            markDuplicate(key, next);
            markDuplicate(next, key);
            AddDupePair(variationOf(key).Text.Shared(), variationOf(next).Text.Shared());
        }
    }
    return district.iDuplicateCount >= 1;
}

} // namespace CommonRoutines
