#include "rules/Markers.h"

#include "core/Ansi.h"
#include "core/State.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

bool IsMarker(char c) {
    return c == '!' || c == '%';
}

// Most variations have no markers, like the one before.
void Leave(std::string& markers, std::string_view found) {
    if (!found.empty() || !markers.empty()) {
        markers = found;
    }
}

} // namespace

// Runs several times for every variation of a file. Texts are short, so plain loops beat searches.
MarkerParts SplitMarkers(std::string_view variation) {
    const std::string_view text = Ansi::Trim(variation);
    const auto afterRun = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsMarker) - text.begin());
    const std::string_view rest = Ansi::TrimLeft(text.substr(afterRun));

    // A marker that opens the rest (behind a blank) belongs to the base name.
    const auto marker = static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), IsMarker) - rest.begin());
    const std::size_t suffixAt = marker == 0 ? rest.size() : marker;
    return {text.substr(0, afterRun), rest.substr(0, suffixAt), rest.substr(suffixAt)};
}

MarkerParts LeaveMarkers(std::string_view variation) {
    const MarkerParts parts = SplitMarkers(variation);
    Leave(sMarkerPrefix, parts.prefix);
    Leave(sMarkerSuffix, parts.suffix);
    return parts;
}

std::string_view StripMarkers(std::string_view variation) {
    return LeaveMarkers(variation).base;
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
