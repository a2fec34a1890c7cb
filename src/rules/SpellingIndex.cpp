#include "rules/SpellingIndex.h"

#include "core/Ansi.h"
#include "core/SeededHash.h"
#include "core/State.h"
#include "rules/Spelling.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace CommonRoutines {

namespace {

// Every variation stands in the index twice, since suffixes only have to be equal when both are there. A sought
// spelling without a suffix is looked up by the first hash. One with a suffix is looked up by the second, with
// its own suffix and with none.
struct Hashes {
    std::uint64_t anySuffix;
    std::uint64_t thisSuffix;
};

// Seeded, since of a million texts that were made to have the same hash, each would be looked for among
// all others. Spellings that only share a hash are told apart when they are compared.
Hashes HashesOf(const Spelling& spelling, std::string_view suffix) {
    std::string key = Ansi::Upper(spelling.base);
    key += spelling.hasDate ? '%' : '\0';
    const std::uint64_t anySuffix = SeededHash()(key);
    key += '|'; // or no suffix would be the same as any
    return {anySuffix, SeededHash()(key.append(suffix))};
}

// The index made last, and what it was made for.
struct Kept {
    std::int32_t table;
    std::int32_t district;
    SpellingIndex index;
};
std::optional<Kept> Last;

bool IsUpToDate(std::int32_t lDistrict) {
    return Last && Last->table == lTableNumber && Last->district == lDistrict;
}

} // namespace

SpellingIndex::SpellingIndex(std::int32_t lDistrict) : m_district(lDistrict) {
    std::vector<Entry> entries;
    const DistrictRecord& district = RecordOf(lDistrict);
    for (std::int32_t i = 1; i <= district.lVariationCount; ++i) {
        const Spelling spelling(district.Variations[static_cast<std::size_t>(i)].Text);
        const Hashes hashes = HashesOf(spelling, spelling.suffix);
        entries.emplace_back(hashes.anySuffix, i);
        entries.emplace_back(hashes.thisSuffix, i);
    }
    std::sort(entries.begin(), entries.end());
    m_entries.insert(entries.begin(), entries.end());
}

void SpellingIndex::Add(std::string_view variation, std::int32_t slot) {
    const Spelling spelling(variation);
    const Hashes hashes = HashesOf(spelling, spelling.suffix);
    m_entries.insert({{hashes.anySuffix, slot}, {hashes.thisSuffix, slot}});
}

void SpellingIndex::Remove(std::string_view variation, std::int32_t slot) {
    const Spelling spelling(variation);
    const Hashes hashes = HashesOf(spelling, spelling.suffix);
    m_entries.erase({hashes.anySuffix, slot});
    m_entries.erase({hashes.thisSuffix, slot});
}

std::int32_t SpellingIndex::Find(const Spelling& sought) const {
    // What no variation of the district can match, not even an equal one, would be looked for in vain
    // among all equal ones.
    if (!SameSpelling(sought, sought, m_district, m_district)) {
        return 0;
    }
    const Hashes hashes = HashesOf(sought, sought.suffix);
    if (sought.suffix.empty()) {
        return FirstSlot(hashes.anySuffix, sought);
    }
    const std::int32_t withSuffix = FirstSlot(hashes.thisSuffix, sought);
    const std::int32_t without = FirstSlot(HashesOf(sought, {}).thisSuffix, sought);
    return withSuffix == 0 || without == 0 ? std::max(withSuffix, without) : std::min(withSuffix, without);
}

std::int32_t SpellingIndex::FirstSlot(std::uint64_t hash, const Spelling& sought) const {
    const DistrictRecord& district = RecordOf(m_district);
    for (auto entry = m_entries.lower_bound({hash, 0}); entry != m_entries.end() && entry->first == hash; ++entry) {
        const Spelling stored(district.Variations[static_cast<std::size_t>(entry->second)].Text);
        if (SameSpelling(stored, sought, m_district, m_district)) {
            return entry->second;
        }
    }
    return 0;
}

const SpellingIndex& SpellingsOf(std::int32_t lDistrict) {
    if (!IsUpToDate(lDistrict)) {
        Last.emplace(Kept{lTableNumber, lDistrict, SpellingIndex(lDistrict)});
    }
    return Last->index;
}

void SpellingChanged(std::int32_t lDistrict, std::int32_t slot, std::string_view before, std::string_view after) {
    if (IsUpToDate(lDistrict)) {
        Last->index.Remove(before, slot);
        Last->index.Add(after, slot);
    }
}

} // namespace CommonRoutines
