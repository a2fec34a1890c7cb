#pragma once

// The markers of a variation are a leading run of "!" (spelling mistake) and "%" (only valid in year), and a
// trailing part. That begins at the next marker, usually "%" with a volume.

#include <string_view>

namespace CommonRoutines {

// A variation cut at its markers; the three are parts of the text that was split.
struct MarkerParts {
    std::string_view prefix;
    std::string_view base; // trimmed on the left only
    std::string_view suffix;
};

[[nodiscard]] MarkerParts SplitMarkers(std::string_view variation);

// SplitMarkers for what reads the markers in the shared state: returns the base name, a part of
// `variation`, and leaves the markers in sMarkerPrefix and sMarkerSuffix.
std::string_view StripMarkers(std::string_view variation);

// Which option boxes belong to a text being edited.
struct MarkerOptions {
    bool spelling = false;
    bool variation = false;
    bool validInYears = false;
    bool volume = false;

    bool operator==(const MarkerOptions&) const = default;
};

[[nodiscard]] MarkerOptions MarkerOptionsOf(std::string_view text);

} // namespace CommonRoutines
