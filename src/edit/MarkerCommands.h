#pragma once

#include "edit/VariationList.h"

#include <span>
#include <string>
#include <string_view>

// Adding and removing the markers in front of variations.
namespace CommonRoutines {

class Desktop;

enum class MarkerCommand { AddShriek, RemoveShriek, AddDate, RemoveDate };

// The commands of the two buttons; the caption says which of the two it is.
[[nodiscard]] MarkerCommand ShriekCommand(std::string_view caption);
[[nodiscard]] MarkerCommand DateCommand(std::string_view caption);

// The text after a command. The date mark stands first, or behind a leading "!". A text that has the
// marker already, or has none to remove, stays as it is.
[[nodiscard]] std::string WithMarker(MarkerCommand command, std::string_view text);

// Carries a command out on rows of lCurrentDistrict and records a change for each, also where the
// text stays as it is. Sets bChanged when there is a row.
void ChangeMarkers(MarkerCommand command, std::span<const VariationRow> rows, Desktop& desktop);

} // namespace CommonRoutines
