#include "core/Records.h"

#include "core/Ansi.h"

namespace CommonRoutines {

std::string_view DistrictRecord::Extra(std::size_t part) const {
    constexpr std::size_t before = 6; // part 1 of the extra ones is part 7 of the header, counted from 0
    const std::vector<std::string_view> parts = Ansi::Split(HeaderText, '+');
    return !bRetained && part >= 1 && before + part < parts.size() ? parts[before + part] : std::string_view();
}

} // namespace CommonRoutines
