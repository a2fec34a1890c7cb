#include "recovery/SlotNumbers.h"

#include "core/Records.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace CommonRoutines {

SlotNumbers::SlotNumbers(const DistrictRecord& saved) {
    const auto count = static_cast<std::size_t>(saved.lVariationCount);
    const bool isHeader = saved.HeaderText().starts_with('|'); // all of such a line is read as its header
    for (std::size_t slot = 0; slot <= count; ++slot) {
        const bool isSaved = slot > 0 && !isHeader && !saved.Variations[slot].IsDeleted();
        if (isSaved) {
            // A "|" that somebody pasted makes more than one field.
            const std::string_view text = saved.Variations[slot].Text;
            const auto fields = static_cast<std::int32_t>(1 + std::count(text.begin(), text.end(), '|'));
            Put(slot, m_lastNumber + 1, fields);
        }
        m_before.push_back(m_lastPlaced);
    }
    m_firstCount = m_lastNumber;
}

SlotNumbers::SlotNumbers(const std::vector<std::int32_t>& numbers, std::int32_t countAsRead)
    : m_firstCount(countAsRead) {
    m_before.push_back(0);
    for (const std::int32_t number : numbers) {
        const std::size_t slot = m_before.size();
        Put(slot, number, 1);
        m_before.push_back(slot);
    }
}

SlotNumbers SlotNumbers::AsRead(std::int32_t count) {
    std::vector<std::int32_t> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    return {numbers, count};
}

std::int32_t SlotNumbers::NumberOf(std::int32_t slot) const {
    const auto index = static_cast<std::size_t>(slot);
    return index < m_places.size() ? m_places[index].first : 0;
}

void SlotNumbers::Put(std::size_t slot, std::int32_t first, std::int32_t count) {
    if (slot >= m_places.size()) {
        m_places.resize(slot + 1);
    }
    m_places[slot] = {first, count, std::nullopt};
    m_lastPlaced = std::max(m_lastPlaced, slot);
    m_lastNumber = std::max(m_lastNumber, first + count - 1);
}

std::int32_t SlotNumbers::NumberBefore(std::size_t slot) const {
    const auto later = m_placedLater.lower_bound(slot);
    const std::size_t placedLater = later == m_placedLater.begin() ? 0 : *std::prev(later);
    const std::size_t before = std::max(m_before[std::min(slot, m_before.size() - 1)], placedLater);
    return before == 0 ? 0 : m_places[before].first + m_places[before].count - 1;
}

SlotNumbers::Place SlotNumbers::TakePlace(std::int32_t slot) {
    const auto index = static_cast<std::size_t>(slot);
    if (index >= m_places.size() || m_places[index].count == 0) {
        const bool isLast = index > m_lastPlaced;
        const auto after = isLast ? std::nullopt : std::optional(NumberBefore(index));
        Put(index, m_lastNumber + 1, 1);
        m_placedLater.insert(index);
        return {m_places[index].first, 1, after};
    }
    Place& place = m_places[index];
    return std::exchange(place, {place.first, 1, std::nullopt});
}

} // namespace CommonRoutines
