#pragma once

#include "core/State.h"
#include "rules/Validation.h"

#include <string>
#include <string_view>

// What the check of one variation says, as one text: "valid" or "refused: " with the reason, and
// the warning if there is one.
inline std::string Verdict(std::string_view variation) {
    using namespace CommonRoutines;
    sInvalidReason = "the reason of an earlier check";
    bWarning = false;
    sWarningReason.clear();
    std::string verdict = ValidateVariation(variation, 1) ? "valid" : "refused: " + sInvalidReason;
    if (bWarning) {
        verdict += ", warning: " + sWarningReason;
    }
    return verdict;
}
