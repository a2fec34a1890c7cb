#pragma once

#include <cstdint>
#include <vector>

namespace CommonRoutines {

struct DistrictRecord;

// The slots of a district as they will be numbered when its line in the file is read again. A line that
// has been saved lacks the deleted slots that the table still has.
class SlotNumbers {
public:
    // Of a district as it is being saved.
    explicit SlotNumbers(const DistrictRecord& saved);

    // Where the text of a slot stands: the first of `count` neighbours, of which the others are free
    // from now on. A slot that has no place in the file gets one behind all others.
    struct Place {
        std::int32_t first = 0;
        std::int32_t count = 0;
    };
    Place TakePlace(std::int32_t slot);

private:
    std::vector<Place> m_places; // by slot
    std::int32_t m_last = 0;     // highest number given
};

} // namespace CommonRoutines
