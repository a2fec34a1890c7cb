#include "rules/Markers.h"

#include "core/Ansi.h"
#include "core/State.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

constexpr std::string_view MarkerCharacters = "!%";

}

MarkerParts SplitMarkers(std::string_view variation) {
    const std::string_view text = Ansi::Trim(variation);
    const auto afterRun = std::min(text.find_first_not_of(MarkerCharacters), text.size());
    const std::string_view rest = Ansi::TrimLeft(text.substr(afterRun));

    // A marker that opens the rest (behind a blank) belongs to the base name.
    const auto marker = rest.find_first_of(MarkerCharacters);
    const auto suffixAt = marker == std::string_view::npos || marker == 0 ? rest.size() : marker;
    return {text.substr(0, afterRun), rest.substr(0, suffixAt), rest.substr(suffixAt)};
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
