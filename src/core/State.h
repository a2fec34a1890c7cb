#pragma once

// The shared state of the program: everything that one routine leaves behind for another. It lives
// as long as the program runs; only the routines named beside a variable write it. Tables are
// vectors whose element 0 is never filled, so that an index is the number that the user sees.

#include "core/Encoding.h"
#include "core/Records.h"
#include "core/SeededHash.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

namespace CommonRoutines {

// The table and its file.
extern std::vector<DistrictRecord> Districts; // filled by ReadDistrictFile, changed by every edit
extern std::int32_t lTableNumber;             // raised when the table is filled anew; what is kept about it ends then
extern std::int32_t lLineCount;               // lines in use; written by ReadDistrictFile, dropped to 0 after Quit
extern std::string sDataFileName;             // full path, in the machine's own encoding; written by "Open File"
extern Encoding eFileEncoding;                // of that file, which is saved in the same; written by ReadDistrictFile
extern bool bChanged;                 // unsaved changes; set by every edit and repair, cleared by opening and saving
extern std::int32_t lCurrentDistrict; // the district shown, 0 for none; written by choosing a district

// What the last load counted; written by ReadDistrictFile.
extern std::int32_t lDistrictTotal; // district lines
extern std::int32_t lInvalidTotal;  // invalid variations
extern std::int32_t lCapsOkTotal;   // variations without a capitalisation problem

// Answer of the repair dialogue; written by RepairNullVariation, read by ReadDistrictFile.
enum RepairAction : std::int16_t {
    NoRepair = 0,
    CombinePrevious = 1,
    CombineNext = 2,
    Remove = 3,
    Type = 4,
    Quit = 5,
};
extern std::int16_t iRepairAction;

// Pairs of the duplicate searches since the list was last emptied; written by FindDuplicateVariations.
extern std::vector<DupePair> DupePairs;
extern std::int32_t lDupePairCount;

// What the last check of a variation found; written by ValidateVariation (the reason also by
// CheckQuestionMark and by the selection of variations) and read at once by its caller.
extern std::string sInvalidReason; // never cleared by a valid result
extern bool bWarning;
extern std::string sWarningReason;

// Markers of the variation last split; written by StripMarkers.
extern std::string sMarkerPrefix;
extern std::string sMarkerSuffix;

// Slot of the variation that FindVariationInDistrict found.
extern std::int32_t lFoundVariation;

// Words that need no capital, 1 to lLowerCaseWordCount; written by LoadLowerCaseWords.
extern std::vector<std::string> LowerCaseWords;
extern std::unordered_set<std::string, SeededHash, std::equal_to<>> LowerCaseWordSet; // to be looked up
extern std::int32_t lLowerCaseWordCount;

// What the main window is doing; written by its handlers, read by ApplyWindowMode and ValidateVariation.
enum EditMode : std::int16_t {
    NothingOpen = 1, // or a file is being read
    OneSelected = 2,
    FileOpen = 3,
    DistrictIdle = 4,
    ChangesApplied = 5,
    EditingVariation = 6,
    // 7 is never set
    AddingUnacceptable = 8,
    AddingAcceptable = 9,
    SeveralSelected = 10,
};
extern std::int16_t iEditMode;

// The edit panel; written by the main window.
extern bool bIgnoreEvents;      // the program itself is writing into the panel
extern std::int32_t lEditIndex; // variation being edited, 0 for none
enum PanelAction : std::int16_t { NoAction = 0, VariationSelected = 1, VariationDeleted = 2, AddStarted = 3 };
extern std::int16_t iLastAction;

// The record of a line, 1 to lLineCount.
[[nodiscard]] DistrictRecord& RecordOf(std::int32_t line);

// True when `lDistrict` names a district of the table (not a retained line, not beyond its end).
[[nodiscard]] bool IsDistrict(std::int32_t lDistrict);

// Puts all of the above back to what it is when the program starts.
void ResetState();

} // namespace CommonRoutines
