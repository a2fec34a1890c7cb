#pragma once

#include "find/Hits.h"

#include <string>

namespace CommonRoutines {

// How many hits there are, each kind by itself: "2 districts, 1,234 variations"; that there are none; nothing before a
// text is sought. A search that goes on says so.
[[nodiscard]] std::string FoundInWords(const Hits& hits, bool isSearching, bool isSought);

// A number with a comma between the thousands.
[[nodiscard]] std::string WithCommas(std::size_t number);

} // namespace CommonRoutines
