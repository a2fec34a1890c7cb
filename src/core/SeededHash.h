#pragma once

#include <cstddef>
#include <string_view>

namespace CommonRoutines {

// A hash of texts for which no file can be prepared: it is another one every time that the program runs.
struct SeededHash {
    using is_transparent = void;

    [[nodiscard]] std::size_t operator()(std::string_view text) const;
};

} // namespace CommonRoutines
