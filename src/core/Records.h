#pragma once

// The records of the district table: one DistrictRecord for each line of the data file. They are plain values; the
// texts of a file that was read are parts of its content until they are changed.

#include "core/AnsiString.h"
#include "core/VariationSlots.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace CommonRoutines {

// Year that stands for "no year": not abolished, or founded in an unknown year.
inline constexpr std::int16_t NoYear = 9999;

struct DistrictRecord {
    VariationSlots Variations;        // 1 to lVariationCount
    std::int32_t lVariationCount = 0; // slots in use, deleted ones included
    Ansi::String Line;                // of a district up to its first "|", as read
    std::int16_t Founded = 0;
    std::int16_t QtrF = 0;
    std::int16_t Abolished = 0;
    std::int16_t QtrA = 0;
    std::int32_t iQuestionCount = 0;  // variations refused by the question-mark rule while reading
    std::int32_t iDuplicateCount = 0; // pairs found by the last duplicate search
    std::int32_t lInvalidCount = 0;
    std::int32_t lWarningCount = 0;
    bool bRetained = false;  // not a district: kept only to be written back
    bool bLosesLine = false; // retained, but written as an empty line

    // What is written back in front of the variations.
    [[nodiscard]] std::string_view HeaderText() const { return bLosesLine ? std::string_view() : Line.View(); }
    // The parts of the header, taken from it when they are asked for. The name of a retained line is the line.
    [[nodiscard]] std::string_view Name() const;
    [[nodiscard]] std::string_view Volume() const;
    [[nodiscard]] std::string_view County() const;
    // Those behind the quarter abolished, 1 to 6. Empty where there is none; so is part 0, always.
    [[nodiscard]] std::string_view Extra(std::size_t part) const;
};
static_assert(sizeof(DistrictRecord) == 56);

// The texts of two variations that are the same spelling.
struct DupePair {
    Ansi::String first;
    Ansi::String second;
};

} // namespace CommonRoutines
