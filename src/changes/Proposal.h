#pragma once

#include "core/Encoding.h"

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
    std::string utf8 = {}; // what the text was made of, where the open file lacks a character of it
};

// The characters of a proposal for a file of another encoding, checked anew. A heading stays one.
[[nodiscard]] Proposal RecodedProposal(const Proposal& proposal, Encoding from, Encoding to);

// Why a proposal is invalid or suspicious; empty where there is nothing to say.
[[nodiscard]] std::string ReasonOf(const Proposal& proposal);

} // namespace CommonRoutines
