#include "rules/Markers.h"

#include "core/Ansi.h"
#include "core/State.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace CommonRoutines {

namespace {

bool IsMarker(char c) {
    return c == '!' || c == '%';
}

// Whether a text holds a marker, eight characters at a time. The two markers differ in one bit, so with
// that bit set a marker is a "%", and exclusive-or with "%" makes its byte zero.
bool HoldsMarker(std::string_view text) {
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t highBits = 0x80 * ones;
    constexpr std::size_t step = sizeof(std::uint64_t);
    const auto eightHoldOne = [&](const char* at) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, step);
        word = (word | ('!' ^ '%') * ones) ^ '%' * ones;
        return ((word - ones) & ~word & highBits) != 0; // true only when a byte is zero
    };
    if (text.size() < step) {
        return std::any_of(text.begin(), text.end(), IsMarker);
    }
    for (std::size_t from = 0; from + step <= text.size(); from += step) {
        if (eightHoldOne(text.data() + from)) {
            return true;
        }
    }
    return eightHoldOne(text.data() + text.size() - step);
}

} // namespace

// Runs several times for every variation of a file.
MarkerParts SplitMarkers(std::string_view variation) {
    const std::string_view text = Ansi::Trim(variation);
    std::size_t afterRun = 0;
    while (afterRun < text.size() && IsMarker(text[afterRun])) {
        ++afterRun;
    }
    const std::string_view prefix = text.substr(0, afterRun);
    const std::string_view rest = Ansi::TrimLeft(text.substr(afterRun));
    if (!HoldsMarker(rest)) {
        return {prefix, rest, rest.substr(rest.size())};
    }
    // A marker that opens the rest (behind a blank) belongs to the base name.
    const auto marker = static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), IsMarker) - rest.begin());
    const std::size_t suffixAt = marker == 0 ? rest.size() : marker;
    return {prefix, rest.substr(0, suffixAt), rest.substr(suffixAt)};
}

std::string_view StripMarkers(std::string_view variation) {
    const MarkerParts parts = SplitMarkers(variation);
    sMarkerPrefix = parts.prefix;
    sMarkerSuffix = parts.suffix;
    return parts.base;
}

MarkerOptions MarkerOptionsOf(std::string_view text) {
    MarkerOptions options;
    if (text.starts_with('!')) {
        options.spelling = true;
        options.validInYears = text.starts_with("!%");
    } else if (text.starts_with('%')) {
        options.validInYears = true;
    } else {
        options.variation = !text.empty();
    }
    const auto lastPercent = text.rfind('%');
    const bool isDateMark = lastPercent == 0 || (lastPercent == 1 && text.starts_with('!'));
    options.volume = lastPercent != std::string_view::npos && !isDateMark;
    return options;
}

} // namespace CommonRoutines
