#include "core/StateFolder.h"

#include <charconv>

namespace CommonRoutines {

// Marks of open files begin with something else, and one that nothing here has given is no reason to run out of
// numbers.
std::uint64_t StateFolder::NumberOf(std::string_view name) {
    constexpr std::uint64_t greatest = 1'000'000'000'000;
    std::uint64_t number = 0;
    const char* const end = std::from_chars(name.data(), name.data() + name.size(), number).ptr;
    const bool isNumber = end != name.data() + name.size() && *end == '-';
    return isNumber && number <= greatest ? number : 0;
}

} // namespace CommonRoutines
