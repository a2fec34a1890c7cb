#pragma once

#include "edit/VariationStates.h"

#include <QString>

#include <string_view>

namespace Ui {

// What tooltips and screen readers say behind a text of this state: " - invalid"; nothing of a plain one.
[[nodiscard]] QString StateInWords(CommonRoutines::VariationState state);

// What a tooltip says of a row of this state, given why: "invalid: Null District"; nothing of a
// plain one.
[[nodiscard]] QString ReasonInWords(CommonRoutines::VariationState state, std::string_view reason);

} // namespace Ui
