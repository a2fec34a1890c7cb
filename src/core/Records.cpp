#include "core/Records.h"

#include "core/Ansi.h"

#include <vector>

namespace CommonRoutines {

std::string_view ExtraParts::operator[](std::size_t part) const {
    const std::vector<std::string_view> parts = Ansi::Split(m_joined, '+');
    return part >= 1 && part <= parts.size() ? parts[part - 1] : std::string_view();
}

} // namespace CommonRoutines
