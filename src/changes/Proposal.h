#pragma once

#include <cstdint>
#include <string>

namespace CommonRoutines {

// What a change file brings: a proposed variation, shown as a row of LvChanges.
struct Proposal {
    enum Tag : std::int16_t { Invalid = -1, Valid = 0, Heading = 1 };

    std::string text;
    std::int16_t tag = Valid;
    bool warns = false; // its own check raised a warning
    bool ticked = false;
};

// Why a proposal is invalid or suspicious; empty where there is nothing to say.
[[nodiscard]] std::string ReasonOf(const Proposal& proposal);

} // namespace CommonRoutines
