#include "rules/Markers.h"

#include "core/Ansi.h"
#include "core/State.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

bool IsMarker(char c) {
    return c == '!' || c == '%';
}

} // namespace

// Runs several times for every variation of a file.
MarkerParts SplitMarkers(std::string_view variation) {
    const std::string_view text = Ansi::Trim(variation);
    const auto afterRun = std::find_if_not(text.begin(), text.end(), IsMarker);
    const std::string_view prefix(text.begin(), afterRun);
    const std::string_view rest = Ansi::TrimLeft({afterRun, text.end()});
    // A marker that opens the rest (behind a blank) belongs to the base name.
    const std::size_t marker = std::min(rest.find('%'), rest.find('!'));
    const std::size_t suffixAt = marker == 0 ? rest.size() : std::min(marker, rest.size());
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
