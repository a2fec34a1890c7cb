#include "find/Hits.h"

#include "core/State.h"

#include <algorithm>

namespace CommonRoutines {

std::size_t Hits::Count() const {
    std::size_t count = 0;
    for (const std::vector<Place>& places : m_places) {
        count += places.size();
    }
    return count;
}

Hit Hits::At(std::size_t row) const {
    std::size_t kind = 0;
    while (row >= m_places[kind].size()) {
        row -= m_places[kind].size();
        ++kind;
    }
    const Place& place = m_places[kind][row];
    return {static_cast<HitKind>(kind), place.line, place.slot};
}

std::optional<std::size_t> Hits::RowOf(const Hit& hit) const {
    const std::size_t row = RowFrom(hit);
    return row < Count() && At(row) == hit ? std::optional(row) : std::nullopt;
}

std::size_t Hits::RowFrom(const Hit& hit) const {
    const auto kind = static_cast<std::size_t>(hit.kind);
    std::size_t row = 0;
    for (std::size_t before = 0; before < kind; ++before) {
        row += m_places[before].size();
    }
    const std::vector<Place>& places = m_places[kind];
    const auto found = std::lower_bound(places.begin(), places.end(), Place{hit.line, hit.slot});
    return row + static_cast<std::size_t>(found - places.begin());
}

std::int32_t DistrictOf(const Hit& hit) {
    std::int32_t line = hit.line;
    while (line < lLineCount && RecordOf(line).bRetained) {
        ++line;
    }
    return line;
}

} // namespace CommonRoutines
