#include "recovery/SlotNumbers.h"

#include "core/Records.h"

#include <algorithm>
#include <utility>

namespace CommonRoutines {

SlotNumbers::SlotNumbers(const DistrictRecord& saved) {
    m_places.resize(static_cast<std::size_t>(saved.lVariationCount) + 1);
    if (saved.HeaderText.View().starts_with('|')) {
        return; // all of such a line is read as its header
    }
    for (std::size_t slot = 1; slot < m_places.size(); ++slot) {
        const VariationRecord& variation = saved.Variations[slot];
        if (!variation.IsDeleted()) {
            // A "|" that somebody pasted makes more than one field.
            const std::string_view text = variation.Text;
            const auto fields = static_cast<std::int32_t>(1 + std::count(text.begin(), text.end(), '|'));
            m_places[slot] = {m_last + 1, fields};
            m_last += fields;
        }
    }
}

SlotNumbers::Place SlotNumbers::TakePlace(std::int32_t slot) {
    const auto index = static_cast<std::size_t>(slot);
    if (index >= m_places.size()) {
        m_places.resize(index + 1);
    }
    Place& place = m_places[index];
    if (place.count == 0) {
        place = {++m_last, 1};
    }
    return std::exchange(place, {place.first, 1});
}

} // namespace CommonRoutines
