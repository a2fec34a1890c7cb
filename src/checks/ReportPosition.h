#pragma once

#include "core/Report.h"

#include <cstddef>
#include <optional>
#include <string>

namespace CommonRoutines {

// Where a report was left, for the next one of its kind.
struct ReportPosition {
    std::size_t line = 0;
    std::string text; // of that line
};

// The line of a report where an earlier one was left: the same line if it is still near its place, otherwise what
// stands in its place now. It is looked for among some thousands of lines only, since each is made for that. Nothing in
// a report without lines.
[[nodiscard]] std::optional<std::size_t> LineLeft(const ReportPosition& position, const ReportItems& items);

} // namespace CommonRoutines
