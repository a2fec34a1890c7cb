#include "edit/UndoJournal.h"

#include "core/State.h"
#include "core/Utf8.h"
#include "edit/Variations.h"

#include <algorithm>
#include <utility>

namespace CommonRoutines {

std::array<UndoClass, UndoStepCount + 1> UndoRing;
std::int16_t iUndoStep = 1;

namespace {

// Takes back an add: all equal texts go, since the item does not say which one was added.
bool FreeSlotsWith(std::int32_t lDistrict, std::string_view text) {
    bool changed = false;
    for (std::int32_t slot = 1; slot <= RecordOf(lDistrict).lVariationCount; ++slot) {
        if (VariationOf(lDistrict, slot).Text == text) {
            StoreText(lDistrict, slot, DeletedText);
            changed = true;
        }
    }
    return changed;
}

// Takes back a change.
bool ChangeBack(std::int32_t lDistrict, const UndoItem& item, std::span<const VariationRow> rows) {
    const bool listed = std::any_of(rows.begin(), rows.end(), [&](const VariationRow& row) {
        return VariationOf(lDistrict, row.slot).Text == item.sNewName;
    });
    const std::int32_t slot = listed ? FirstSlotWith(lDistrict, item.sNewName) : 0;
    if (slot == 0) {
        return false;
    }
    StoreText(lDistrict, slot, item.sOldName);
    return item.sOldName != item.sNewName;
}

// Takes back a deletion.
bool BringBack(std::int32_t lDistrict, std::string_view text) {
    if (const std::int32_t freeSlot = FirstSlotWith(lDistrict, DeletedText); freeSlot > 0) {
        StoreText(lDistrict, freeSlot, text);
    } else {
        AddSlot(lDistrict, text);
    }
    return true;
}

bool ChangeTable(std::int32_t lDistrict, const UndoItem& item, std::span<const VariationRow> rows) {
    switch (item.iUndoType) {
    case UndoAdd:
        return FreeSlotsWith(lDistrict, item.sNewName);
    case UndoChange:
        return ChangeBack(lDistrict, item, rows);
    case UndoDelete:
        return BringBack(lDistrict, item.sNewName);
    default:
        return false;
    }
}

} // namespace

UndoClass& CurrentUndoStep() {
    return UndoRing[static_cast<std::size_t>(iUndoStep)];
}

void ClearUndoRing() {
    for (UndoClass& step : UndoRing) {
        step.Clear();
    }
}

void RecodeUndoRing(Encoding from, Encoding to) {
    for (UndoClass& step : UndoRing) {
        step.ChangeTexts([=](std::string text) {
            const bool isKept = to != Encoding::Windows1252 && Utf8::IsValid(text);
            return isKept ? text : Recoded(std::move(text), from, to);
        });
    }
}

void StartUndoStep(std::int32_t lDistrict) {
    if (CurrentUndoStep().DistrictNo() == lDistrict) {
        return;
    }
    iUndoStep = iUndoStep == UndoStepCount ? std::int16_t{1} : static_cast<std::int16_t>(iUndoStep + 1);
    CurrentUndoStep().Clear();
}

void RecordUndoItem(std::int32_t lDistrict, std::int16_t iUndoType, std::string_view newName, std::string_view oldName,
                    Desktop& desktop) {
    StartUndoStep(lDistrict);
    CurrentUndoStep().NewItem({std::string(newName), iUndoType, std::string(oldName)}, lDistrict, desktop);
}

bool TakeBack(const UndoItem& item, std::span<const VariationRow> rows) {
    const bool changed = ChangeTable(lCurrentDistrict, item, rows);
    bChanged = bChanged || changed;
    return changed;
}

std::string DescribeNextUndo() {
    if (CurrentUndoStep().Count() == 0) {
        iUndoStep = iUndoStep == 1 ? UndoStepCount : static_cast<std::int16_t>(iUndoStep - 1);
    }
    return CurrentUndoStep().WhatAmI();
}

} // namespace CommonRoutines
