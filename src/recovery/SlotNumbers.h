#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace CommonRoutines {

struct DistrictRecord;

// The slots of a district as they will be numbered when its line in the file is read again. A line that
// has been saved lacks the deleted slots that the table still has.
class SlotNumbers {
public:
    // Of a district as it is being saved.
    explicit SlotNumbers(const DistrictRecord& saved);
    // Of slots that have these numbers, in their order. Those above `countAsRead` are new.
    SlotNumbers(const std::vector<std::int32_t>& numbers, std::int32_t countAsRead);
    // Of as many slots as a line has when it is read.
    [[nodiscard]] static SlotNumbers AsRead(std::int32_t count);

    // Where the text of a slot stands: the first of `count` neighbours, of which the others are free
    // from now on. A slot that has no place in the file gets a new number; unless it stands behind all that
    // have one, `after` is the number that it follows, 0 for none.
    struct Place {
        std::int32_t first = 0;
        std::int32_t count = 0;
        std::optional<std::int32_t> after;
    };
    Place TakePlace(std::int32_t slot);

    // The number of a slot; 0 when it has none.
    [[nodiscard]] std::int32_t NumberOf(std::int32_t slot) const;
    // How many numbers there were at first.
    [[nodiscard]] std::int32_t FirstCount() const { return m_firstCount; }

private:
    void Put(std::size_t slot, std::int32_t first, std::int32_t count);
    [[nodiscard]] std::int32_t NumberBefore(std::size_t slot) const;

    std::vector<Place> m_places;         // by slot
    std::vector<std::size_t> m_before;   // by slot: the last one up to it that had a place from the beginning
    std::set<std::size_t> m_placedLater; // slots
    std::size_t m_lastPlaced = 0;        // slot
    std::int32_t m_lastNumber = 0;       // highest number given
    std::int32_t m_firstCount = 0;
};

} // namespace CommonRoutines
