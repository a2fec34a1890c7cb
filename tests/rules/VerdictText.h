#pragma once

#include "rules/Validation.h"

#include <string>
#include <string_view>

// A verdict as one text: "valid" or "refused: " with the reason, and the warning if there is one.
inline std::string VerdictText(std::string_view variation) {
    const CommonRoutines::Verdict verdict = CommonRoutines::CheckVariation(variation);
    const std::string text = verdict.IsValid() ? "valid" : "refused: " + verdict.reason;
    return verdict.Warns() ? text + ", warning: " + *verdict.warning : text;
}
