#pragma once

#include <cstdint>
#include <set>
#include <string_view>
#include <utility>

namespace CommonRoutines {

struct Spelling;

// Where the spellings of one district stand, so that a sought one is found without looking at every
// variation. It is kept up to date by whatever changes a variation.
class SpellingIndex {
public:
    explicit SpellingIndex(std::int32_t lDistrict);

    void Add(std::string_view variation, std::int32_t slot);
    void Remove(std::string_view variation, std::int32_t slot);

    // The first slot whose variation is the same spelling as the sought one; 0 when there is none.
    [[nodiscard]] std::int32_t Find(const Spelling& sought) const;

private:
    // A hash of what has to be equal, and a slot.
    using Entry = std::pair<std::uint64_t, std::int32_t>;

    [[nodiscard]] std::int32_t FirstSlot(std::uint64_t hash, const Spelling& sought) const;

    std::int32_t m_district;
    std::set<Entry> m_entries;
};

// The index of a district, made when it is first asked for. It lasts until another district's is asked for.
[[nodiscard]] const SpellingIndex& SpellingsOf(std::int32_t lDistrict);

// To be called when a variation of a district gets another text (or, as a new one, its first).
void SpellingChanged(std::int32_t lDistrict, std::int32_t slot, std::string_view before, std::string_view after);

} // namespace CommonRoutines
