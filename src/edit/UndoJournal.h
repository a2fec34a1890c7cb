#pragma once

#include "core/Encoding.h"
#include "edit/UndoClass.h"
#include "edit/VariationList.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace CommonRoutines {

// The ring of the last twenty steps, 1 to 20, and the step that is recorded into. Filled by the
// editing commands; all steps are cleared by "Open File".
inline constexpr std::int16_t UndoStepCount = 20;
extern std::array<UndoClass, UndoStepCount + 1> UndoRing;
extern std::int16_t iUndoStep;

[[nodiscard]] UndoClass& CurrentUndoStep();

// Clears all twenty steps; the current one stays the current one.
void ClearUndoRing();

// To be called when the same file is read anew in another encoding. A text that is UTF-8 then is what the table has
// of it; the characters of any other are kept.
void RecodeUndoRing(Encoding from, Encoding to);

// To be called before an item is recorded. Items of the district of the current step join it; for another
// district the next step of the ring is cleared and becomes the current one.
void StartUndoStep(std::int32_t lDistrict);

// StartUndoStep, then NewItem.
void RecordUndoItem(std::int32_t lDistrict, std::int16_t iUndoType, std::string_view newName, std::string_view oldName,
                    Desktop& desktop);

// Takes an item back in lCurrentDistrict, of which `rows` are listed. Returns whether the table
// changed: a text that can no longer be found is dropped without a word. An undone add frees every
// slot with its text; an undone change needs its text among the rows; an undone delete takes the
// first free slot, or a new one. Sets bChanged when the table changed.
bool TakeBack(const UndoItem& item, std::span<const VariationRow> rows);

// Moves back to the step before when the current one has been emptied, and returns what the next undo
// would take back; empty when there is nothing.
std::string DescribeNextUndo();

} // namespace CommonRoutines
