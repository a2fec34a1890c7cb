#pragma once

#include <cstdint>
#include <string_view>

namespace CommonRoutines {

// The one gate for every variation that enters the table: true when it is well formed.
//
// Leaves the reason of a refusal in sInvalidReason (a valid result leaves the last reason there),
// and a suspicion about a well-formed text in bWarning and sWarningReason. A text that is refused
// before the warning stage leaves the warning of the check before it.
//
// A variation that is only markers is a null district. While a file is read (iEditMode 1) it sets
// `bNullDistrict` and leaves the reason alone; otherwise it is refused like any other. The position
// of the variation's district or line is part of the call, but no rule looks at it.
[[nodiscard]] bool ValidateVariation(std::string_view variation, std::int32_t position, bool* bNullDistrict = nullptr);

// False when the base name holds a "?" and is longer than that; the reason is then "Question Mark".
// A base name that is just "?" stands for an unknown spelling and is accepted on purpose.
[[nodiscard]] bool CheckQuestionMark(std::string_view variation);

} // namespace CommonRoutines
