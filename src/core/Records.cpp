#include "core/Records.h"

#include "core/Ansi.h"

namespace CommonRoutines {

namespace {

std::string_view HeaderPart(const DistrictRecord& record, std::size_t part) {
    std::string_view rest = record.Line;
    for (; part > 0; --part) {
        const auto end = rest.find('+');
        if (end == std::string_view::npos) {
            return {};
        }
        rest.remove_prefix(end + 1);
    }
    return rest.substr(0, rest.find('+'));
}

} // namespace

std::string_view DistrictRecord::Name() const {
    return bRetained ? Line.View() : Ansi::Trim(HeaderPart(*this, 0));
}

std::string_view DistrictRecord::Volume() const {
    return bRetained ? std::string_view() : Ansi::Trim(HeaderPart(*this, 1));
}

std::string_view DistrictRecord::County() const {
    return bRetained ? std::string_view() : HeaderPart(*this, 2);
}

std::string_view DistrictRecord::Extra(std::size_t part) const {
    constexpr std::size_t before = 6; // part 1 of the extra ones is part 7 of the header, counted from 0
    return bRetained || part == 0 ? std::string_view() : HeaderPart(*this, before + part);
}

} // namespace CommonRoutines
