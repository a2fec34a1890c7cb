#pragma once

// The records of the district table: one DistrictRecord for each line of the data file. They
// are plain values that own their texts.

#include "core/AnsiString.h"

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

// The parts of a header that have no field of their own, 1 to 6; element 0 is never filled. They are
// kept as one text, as they stand in the file, since they are hardly ever looked at.
class ExtraParts {
public:
    // `joined` are the parts with a "+" between them.
    void Assign(std::string_view joined) { m_joined = joined; }
    // Empty where the header has no such part.
    [[nodiscard]] std::string_view operator[](std::size_t part) const;
    [[nodiscard]] static constexpr std::size_t size() { return 7; }

private:
    Ansi::String m_joined;
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
    ExtraParts Extra;
    Ansi::String Volume;
    std::int32_t iQuestionCount = 0;  // variations refused by the question-mark rule while reading
    std::int32_t iDuplicateCount = 0; // pairs found by the last duplicate search
    std::int32_t lInvalidCount = 0;
    std::int32_t lWarningCount = 0;
    std::int32_t lVariationCount = 0;        // slots in use, deleted ones included
    std::vector<VariationRecord> Variations; // 1 to lVariationCount; element 0 is never used
};

// The texts of two variations that are the same spelling.
struct DupePair {
    Ansi::String First;
    Ansi::String Second;
};

} // namespace CommonRoutines
