#include "edit/UndoClass.h"

#include "core/Desktop.h"
#include "core/State.h"

#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::size_t InitialItems = 100;
constexpr std::size_t ItemStep = 50;

std::string NameOfDistrict(std::int32_t district) {
    return std::string(IsDistrict(district) ? RecordOf(district).Name() : std::string_view());
}

} // namespace

std::string UndoClass::WhatAmI() const {
    if (m_count == 0) {
        return {};
    }
    const UndoItem& last = m_items[static_cast<std::size_t>(m_count)];
    switch (last.iUndoType) {
    case UndoAdd:
        return "Add " + last.sNewName + " to " + NameOfDistrict(m_district);
    case UndoChange:
        return "Change " + last.sOldName + " to " + last.sNewName;
    case UndoDelete:
        return "Delete " + last.sNewName + " from " + NameOfDistrict(m_district);
    default:
        return {};
    }
}

UndoneItem UndoClass::LastItem() {
    if (m_count == 0) {
        return {};
    }
    UndoneItem last{std::exchange(m_items[static_cast<std::size_t>(m_count)], {}), m_district};
    --m_count;
    if (m_count == 0) {
        m_district = 0;
    }
    return last;
}

void UndoClass::NewItem(UndoItem item, std::int32_t lDistrict, Desktop& desktop) {
    if (m_district < 1) {
        m_district = lDistrict;
    }
    if (lDistrict != m_district) {
        desktop.MsgBox("Undo Crash - District Error, Was " + std::to_string(m_district) + " Now " +
                           std::to_string(lDistrict),
                       BoxIcon::Critical);
        desktop.MsgBox("You should Save your work and exit", BoxIcon::Critical);
        return;
    }
    const auto place = static_cast<std::size_t>(m_count) + 1;
    if (place >= m_items.size()) {
        m_items.resize(place + ItemStep + 1);
    }
    m_items[place] = std::move(item);
    ++m_count; // last, in case that there is not enough memory
}

void UndoClass::Clear() {
    m_items.assign(InitialItems + 1, {});
    m_count = 0;
    m_district = 0;
}

void UndoClass::ChangeTexts(const std::function<std::string(std::string)>& change) {
    for (UndoItem& item : m_items) {
        item.sNewName = change(std::move(item.sNewName));
        item.sOldName = change(std::move(item.sOldName));
    }
}

} // namespace CommonRoutines
