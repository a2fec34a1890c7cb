#pragma once

// The shared state of the program: everything that one routine leaves behind for another. It lives as long as the
// program runs. Beside each variable stands who writes it and who reads it, tests and measurements aside. Tables are
// vectors whose element 0 is never filled, so that an index is the number that the user sees.

#include "core/Encoding.h"
#include "core/Records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace CommonRoutines {

// The records of the lines. The array grows in ReadDistrictFile alone; a record also changes by edit/Variations,
// FindDuplicateVariations and ListVariations. Everything reads them, through RecordOf.
extern std::vector<DistrictRecord> Districts;

// What the records of a file that was read are parts of: its content, in the encoding of the texts, and the slots of
// its districts. Both are filled by ReadDistrictFile and stay as long as the records.
extern std::string sTableContent;
extern SlotPool TableSlots;

// Raised by ReadDistrictFile with every new table. By it rules/SpellingIndex knows that its index is of another one.
extern std::int32_t lTableNumber;

// Raised by edit/Variations with every change of a text. By both, commands/FindCommands knows its hits to be out of
// date.
extern std::int32_t lTextChanges;

// Lines in use. Counted by ReadDistrictFile; dropped to 0 by the opening of a file (commands/FileCommands) that was
// ended by Quit. Read by whatever goes through the table.
extern std::int32_t lLineCount;

// Full path of the data file that was opened, in the machine's own encoding; recovery/OpenFile has the one last saved.
// Written by the opening of a file, emptied by ReadDistrictFile when it cannot be read. Read by both and VarCheck.
extern std::string sDataFileName;

// Encoding of that file, and of all texts of the core. Written by ReadDistrictFile, which tells its caller to recode
// what outlives the table. Read by whatever looks at characters, converts or writes them.
extern Encoding eFileEncoding;
[[nodiscard]] inline bool TextsAreUtf8() {
    return eFileEncoding != Encoding::Windows1252;
}

// What the next reading takes the bytes on the disk for. Written by ReadDistrictFile and SaveDistrictFile. Read by the
// latter and commands/FileCommands.
extern Encoding eEncodingOnDisk;

// Whether there are unsaved changes. Set by edit/EditPanel, edit/MarkerCommands, TakeBack, ApplyChanges,
// RepairNullVariation, RestoreChanges and the question whether to lose them; cleared by ReadDistrictFile and
// commands/FileCommands. Read by the latter, TakeBack and ApplyWindowMode.
extern bool bChanged;

// The district shown, 0 for none. Written by ChooseDistrict, cleared by the opening of a file. Read by commands/,
// edit/, ApplyChanges and FindVariationInDistrict.
extern std::int32_t lCurrentDistrict;

// What the last load counted. Written by ReadDistrictFile.
extern std::int32_t lDistrictTotal; // district lines; read by DistrictsByName
extern std::int32_t lInvalidTotal;  // invalid variations; kept as a result of the load, nothing reads it
extern std::int32_t lCapsOkTotal;   // variations without a capitalisation problem; kept like it, nothing reads it

// Answer of the repair dialogue. Written by RepairNullVariation, reset by ReadDistrictFile; read also in commands/,
// file/.
enum RepairAction : std::int16_t { NoRepair = 0, CombinePrevious = 1, CombineNext = 2, Remove = 3, Type = 4, Quit = 5 };
extern std::int16_t iRepairAction;

// Pairs of the duplicate searches since the list was last emptied. Written by rules/Duplicates, read by changes/.
extern std::vector<DupePair> DupePairs;
extern std::int32_t lDupePairCount;

// Why a variation is invalid; a valid one leaves the last reason there. Written by ValidateVariation and
// CheckQuestionMark. DescribeSelection writes it too; kept for their callers, nothing reads it.
extern std::string sInvalidReason;

// What the last check warns of. Written by ValidateVariation.
extern bool bWarning;              // read at once by ReadDistrictFile
extern std::string sWarningReason; // kept for callers of ValidateVariation, nothing reads it

// Markers of the variation last split. Written by StripMarkers and ValidateVariation; kept for their callers, which
// take the values instead, so that nothing reads them.
extern std::string sMarkerPrefix;
extern std::string sMarkerSuffix;

// Slot of the variation found. Written by FindVariationInDistrict; kept for its callers, nothing reads it.
extern std::int32_t lFoundVariation;

// What the main window is doing. Written by Commands::SetMode alone. Read by commands/, edit/EditPanel and
// ValidateVariation.
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

// Set while the program itself fills the edit panel. Written by ui/windows/Form1View, read by Form1.
extern bool bIgnoreEvents;

// Variation being edited, 0 for none. Written by SelectVariations; cleared by DeleteVariations and by whatever ends the
// choice (commands/). Read by edit/EditPanel, commands/Guidance and commands/VariationCommands.
extern std::int32_t lEditIndex;

// What the user did last. Written by SelectVariations, Delete and StartAdding; kept to tell this, nothing reads it.
enum PanelAction : std::int16_t { NoAction = 0, VariationSelected = 1, VariationDeleted = 2, AddStarted = 3 };
extern std::int16_t iLastAction;

// The record of a line, 1 to lLineCount.
[[nodiscard]] DistrictRecord& RecordOf(std::int32_t line);

// True when `lDistrict` names a district of the table (not a retained line, not beyond its end).
[[nodiscard]] bool IsDistrict(std::int32_t lDistrict);

// Puts all of the above back to what it is when the program starts.
void ResetState();

} // namespace CommonRoutines
