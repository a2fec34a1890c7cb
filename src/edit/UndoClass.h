#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace CommonRoutines {

class Desktop;

enum UndoType : std::int16_t { UndoNothing = 0, UndoAdd = 1, UndoChange = 2, UndoDelete = 3 };

// What is taken back at once: a variation that was added, changed or deleted.
struct UndoItem {
    std::string sNewName; // the text after the change, or the deleted text
    std::int16_t iUndoType = UndoNothing;
    std::string sOldName; // the text before a change; empty for the others
};

// An item taken off the journal, with its district.
struct UndoneItem {
    UndoItem item;
    std::int32_t lDistrict = -1;
};

// One step of the undo journal: consecutive items of one district, the last of which is taken back
// first. An empty step belongs to no district.
class UndoClass {
public:
    UndoClass() { Clear(); }

    [[nodiscard]] std::int32_t Count() const { return m_count; }

    // Describes the last item; empty for an empty step.
    [[nodiscard]] std::string WhatAmI() const;

    // The district of all items of the step, 0 for an empty one.
    [[nodiscard]] std::int32_t DistrictNo() const { return m_district; }

    // Takes the last item off the step. An empty step gives one of type UndoNothing.
    UndoneItem LastItem();

    // Records an item. One that belongs to another district than the step is not recorded: that is
    // an error of the program, which two critical boxes report.
    void NewItem(UndoItem item, std::int32_t lDistrict, Desktop& desktop);

    void Clear();

    // Has every text of the items made anew.
    void ChangeTexts(const std::function<std::string(std::string)>& change);

private:
    std::int32_t m_count = 0;
    std::int32_t m_district = 0;
    std::vector<UndoItem> m_items; // 1 to m_count; element 0 is never filled
};

} // namespace CommonRoutines
