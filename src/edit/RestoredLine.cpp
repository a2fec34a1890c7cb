#include "edit/RestoredLine.h"

#include "core/State.h"
#include "edit/Variations.h"
#include "recovery/UnsavedChanges.h"

#include <utility>

namespace CommonRoutines {

RestoredLine::RestoredLine(std::int32_t line)
    : m_line(line), m_countAsRead(RecordOf(line).lVariationCount), m_slots(1) {
    for (std::int32_t slot = 1; slot <= m_countAsRead; ++slot) {
        m_slots[static_cast<std::size_t>(Insert(m_last))].text = VariationOf(line, slot).Text;
    }
}

std::int32_t RestoredLine::NumberOf(std::int32_t slotOfFile) const {
    const auto added = m_added.find(slotOfFile);
    return slotOfFile <= m_countAsRead ? slotOfFile : added == m_added.end() ? 0 : added->second;
}

std::int32_t RestoredLine::Insert(std::int32_t after) {
    const auto number = static_cast<std::int32_t>(m_slots.size());
    m_slots.push_back({{}, m_slots[static_cast<std::size_t>(after)].next});
    m_slots[static_cast<std::size_t>(after)].next = number;
    m_last = after == m_last ? number : m_last;
    return number;
}

void RestoredLine::Make(const SlotChange& change) {
    SlotChange made{m_line, NumberOf(change.slot), change.text, std::nullopt};
    if (made.slot == 0) {
        const std::int32_t after = change.after ? NumberOf(*change.after) : m_last;
        made.after = after == m_last ? std::nullopt : std::optional(after);
        made.slot = Insert(after);
        m_added[change.slot] = made.slot;
    }
    m_slots[static_cast<std::size_t>(made.slot)].text = change.text;
    m_made.push_back(std::move(made));
}

void RestoredLine::Store() const {
    std::vector<std::string_view> texts;
    std::vector<std::int32_t> numbers;
    for (std::int32_t number = m_slots.front().next; number > 0;) {
        const Slot& slot = m_slots[static_cast<std::size_t>(number)];
        texts.emplace_back(slot.text);
        numbers.push_back(number);
        number = slot.next;
    }
    RestoreSlots(m_line, texts);
    Unsaved.NoteRestored(m_line, m_made, SlotNumbers(numbers, m_countAsRead));
}

} // namespace CommonRoutines
