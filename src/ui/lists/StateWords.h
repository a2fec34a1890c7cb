#pragma once

#include "edit/VariationStates.h"

#include <QString>

namespace Ui {

// What tooltips and screen readers say behind a text of this state: " - invalid"; nothing of a plain one.
[[nodiscard]] QString StateInWords(CommonRoutines::VariationState state);

} // namespace Ui
