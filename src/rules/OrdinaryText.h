#pragma once

#include <string_view>

namespace CommonRoutines {

// Whether no rule has anything to say of a variation: it is neither blank nor refused nor warned about, and its
// capitals are usual. Found in one pass over the text, which spares most variations of a file all others. False also
// where only a closer look can tell.
[[nodiscard]] bool IsOrdinary(std::string_view variation);

} // namespace CommonRoutines
