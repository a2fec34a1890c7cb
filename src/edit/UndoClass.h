#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace CommonRoutines {

enum UndoType : std::int16_t { UndoNothing = 0, UndoAdd = 1, UndoChange = 2, UndoDelete = 3 };

// One change of a variation.
struct UndoItem {
    std::string sNewName; // the text after the change, or the deleted text
    std::int16_t iUndoType = UndoNothing;
    std::string sOldName; // the text before a change
};

// One step of the undo journal: consecutive changes to one district.
class UndoClass {
public:
    UndoClass() { Clear(); }

    [[nodiscard]] std::int32_t Count() const { return m_count; }
    void Clear();

private:
    std::int32_t m_count = 0;
    std::int32_t m_district = 0;
    std::vector<UndoItem> m_items; // 1 to m_count
};

// The ring of the last twenty steps, 1 to 20, and the step that is recorded into. Filled by the
// editing commands; all steps are cleared by "Open File".
inline constexpr std::int16_t UndoStepCount = 20;
extern std::array<UndoClass, UndoStepCount + 1> UndoRing;
extern std::int16_t iUndoStep;

// Clears all twenty steps; the current one stays the current one.
void ClearUndoRing();

} // namespace CommonRoutines
