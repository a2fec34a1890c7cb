#pragma once

// The records of the district table: one DistrictRecord for each line of the data file. They
// are plain values that own their texts.

#include "core/AnsiString.h"
#include "core/SharedText.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// Year that stands for "no year": not abolished, or founded in an unknown year.
inline constexpr std::int16_t NoYear = 9999;

// Text of a deleted slot. Deleting never moves the other variations of a district, so that every
// list may name a variation by its index.
inline constexpr std::string_view DeletedText = "\t";

struct VariationRecord {
    Ansi::String Text;             // exactly as in the file, markers included
    bool bDuplicate = false;       // another variation of the district is the same spelling
    bool bUnusualCaps = false;     // the capitalisation check found a problem while reading
    std::int32_t lDuplicateOf = 0; // index of that variation, while bDuplicate is set

    [[nodiscard]] bool IsDeleted() const { return Text == DeletedText; }
};

struct DistrictRecord {
    bool bRetained = false;  // not a district: kept only to be written back
    Ansi::String Name;       // of a retained line: the line
    Ansi::String HeaderText; // the line up to its first "|", as read; this is what is written back
    Ansi::String County;
    std::int16_t Founded = 0;
    std::int16_t QtrF = 0;
    std::int16_t Abolished = 0;
    std::int16_t QtrA = 0;
    Ansi::String Volume;
    std::int32_t iQuestionCount = 0;  // variations refused by the question-mark rule while reading
    std::int32_t iDuplicateCount = 0; // pairs found by the last duplicate search
    std::int32_t lInvalidCount = 0;
    std::int32_t lWarningCount = 0;
    std::int32_t lVariationCount = 0;        // slots in use, deleted ones included
    std::vector<VariationRecord> Variations; // 1 to lVariationCount; element 0 is never used

    // The parts of the header behind the quarter abolished, 1 to 6, taken from it when they are asked
    // for, which is hardly ever. Empty where there is none; so is part 0, always.
    [[nodiscard]] std::string_view Extra(std::size_t part) const;
};

// The texts of two variations that are the same spelling. Many may repeat the same second one.
struct DupePair {
    Ansi::String first;
    SharedText second;
};

} // namespace CommonRoutines
