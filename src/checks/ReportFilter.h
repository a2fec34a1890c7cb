#pragma once

#include "core/CaselessSearch.h"
#include "core/Report.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// The lines of a report that hold a text, whatever the case of its letters. There may be very many, and each is made
// for the look at it alone, so they are looked at a part at a time. A line break counts as the blank that is shown for
// it.
class ReportFilter {
public:
    // Every line holds an empty text. The items are shared with the report.
    ReportFilter(ReportItems items, std::string_view sought);

    // Looks at so many of the next lines, as far as there are any, and returns the places of those that hold the text.
    [[nodiscard]] std::vector<std::size_t> LookOn(std::size_t lines);
    [[nodiscard]] bool IsDone() const { return m_next == m_items.size(); }

private:
    [[nodiscard]] bool Holds(std::size_t place) const;

    ReportItems m_items;
    std::optional<Ansi::CaselessSearch> m_search; // nothing for an empty text
    std::size_t m_next = 0;
};

} // namespace CommonRoutines
