#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace CommonRoutines {

// What the rules say of one variation.
struct Verdict {
    enum class State {
        Valid,
        Invalid,
        Null, // there are only markers, or nothing behind the last one: a null district
    };

    State state = State::Valid;
    std::string reason; // of a refusal; "Null District" for Null
    // A suspicion, which a refused text may raise, too; empty when there is none. Nothing when the text
    // was refused before anything suspicious was looked for.
    std::optional<std::string> warning;

    [[nodiscard]] bool IsValid() const { return state == State::Valid; }
    [[nodiscard]] bool Warns() const { return warning && !warning->empty(); }
};

// The one gate for every variation that enters the table. Neither reads nor writes shared state.
[[nodiscard]] Verdict CheckVariation(std::string_view variation);

// CheckVariation for what reads the result in the shared state; true when the variation is well formed.
//
// Leaves the reason of a refusal in sInvalidReason (a valid result leaves the last reason there),
// and a suspicion about a well-formed text in bWarning and sWarningReason. A text that is refused
// before the warning stage leaves the warning of the check before it, and the markers; any other
// leaves its own in sMarkerPrefix and sMarkerSuffix.
//
// While a file is read (iEditMode 1), a null district sets `bNullDistrict` and leaves the reason
// alone; otherwise it is refused like any other. The position of the variation's district or line is
// part of the call, but no rule looks at it.
[[nodiscard]] bool ValidateVariation(std::string_view variation, std::int32_t position, bool* bNullDistrict = nullptr);

// False when the base name holds a "?" and is longer than that; the reason is then "Question Mark".
// A base name that is just "?" stands for an unknown spelling and is accepted on purpose. Leaves the
// markers in sMarkerPrefix and sMarkerSuffix.
[[nodiscard]] bool CheckQuestionMark(std::string_view variation);

} // namespace CommonRoutines
