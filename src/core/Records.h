#pragma once

// The records of the district table: one DistrictRecord for each line of the data file, and the
// small records that the duplicate searches pass around. They are plain values that own their texts.

#include <array>
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
    std::string Text;              // exactly as in the file, markers included
    bool bDuplicate = false;       // another variation of the district is the same spelling
    std::int32_t lDuplicateOf = 0; // index of that variation, while bDuplicate is set
    bool bUnusualCaps = false;     // the capitalisation check found a problem while reading

    [[nodiscard]] bool IsDeleted() const { return Text == DeletedText; }
};

struct DistrictRecord {
    bool bRetained = false; // not a district: kept only to be written back
    std::string Name;       // of a retained line: the line
    std::string HeaderText; // the line up to its first "|", as read; this is what is written back
    std::string County;
    std::int16_t Founded = 0;
    std::int16_t QtrF = 0;
    std::int16_t Abolished = 0;
    std::int16_t QtrA = 0;
    std::array<std::string, 7> Extra; // 1 to 6; element 0 is never filled
    std::string Volume;
    std::int32_t iQuestionCount = 0;  // variations refused by the question-mark rule while reading
    std::int32_t iDuplicateCount = 0; // pairs found by the last duplicate search
    std::int32_t lInvalidCount = 0;
    std::int32_t lWarningCount = 0;
    std::int32_t lVariationCount = 0;        // slots in use, deleted ones included
    std::vector<VariationRecord> Variations; // 1 to lVariationCount; element 0 is never used
};

// Sort record of a duplicate search.
struct VariationKey {
    std::string Text;
    std::string Key; // upper-cased base name
    std::string DistrictName;
    std::int32_t lIndex = 0;
    std::int32_t lDistrict = 0;
    bool bIsName = false; // stands for the district's own name
};

// The texts of two variations that are the same spelling.
struct DupePair {
    std::string First;
    std::string Second;
};

} // namespace CommonRoutines
