#include "edit/UndoClass.h"

namespace CommonRoutines {

namespace {

constexpr std::size_t InitialItems = 100;

}

std::array<UndoClass, UndoStepCount + 1> UndoRing;
std::int16_t iUndoStep = 1;

void UndoClass::Clear() {
    m_items.assign(InitialItems + 1, {});
    m_count = 0;
    m_district = 0;
}

void ClearUndoRing() {
    for (UndoClass& step : UndoRing) {
        step.Clear();
    }
}

} // namespace CommonRoutines
