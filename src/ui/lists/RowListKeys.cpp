// What keys do in a list.

#include "ui/lists/RowDrawing.h"
#include "ui/lists/RowList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace Ui {

// Ctrl and an arrow key go to another column, with Shift they move the column there. Alt and an arrow key make
// it narrower or wider, Ctrl and "+" as wide as what is in it.
bool RowList::HandleColumnKey(const QKeyEvent& event) {
    const int columns = header()->count();
    if (columns == 0 || isHeaderHidden()) {
        return false;
    }
    // On many keyboards "+" needs the Shift key.
    if (event.key() == Qt::Key_Plus && event.modifiers().testFlag(Qt::ControlModifier)) {
        resizeColumnToContents(m_column);
        return true;
    }
    if (event.key() != Qt::Key_Left && event.key() != Qt::Key_Right) {
        return false;
    }
    const int step = event.key() == Qt::Key_Left ? -1 : 1;
    const int place = header()->visualIndex(m_column);
    const int newPlace = std::clamp(place + step, 0, columns - 1);
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier) {
        MarkColumn(header()->logicalIndex(newPlace));
    } else if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier)) {
        header()->moveSection(place, newPlace);
        MarkColumn(m_column);
    } else if (modifiers == Qt::AltModifier) {
        const int stride = 2 * fontMetrics().averageCharWidth();
        setColumnWidth(m_column, std::max(columnWidth(m_column) + step * stride, header()->minimumSectionSize()));
    } else {
        return false;
    }
    return true;
}

// The current row's cell in the column becomes the current one, which a screen reader tells.
void RowList::MarkColumn(int column) {
    m_column = column;
    UpdateFocusMarks();
    if (currentIndex().isValid()) {
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(column), QItemSelectionModel::NoUpdate);
    }
    const int left = header()->sectionViewportPosition(column);
    const int right = left + header()->sectionSize(column);
    QScrollBar& bar = *horizontalScrollBar();
    if (left < 0 || right > viewport()->width()) {
        bar.setValue(bar.value() + (left < 0 ? left : std::min(left, right - viewport()->width())));
    }
}

// Whether the next letter goes on with a name that is being typed.
bool RowList::IsLookingFor() const {
    return m_lastTyped.isValid() && !m_lastTyped.hasExpired(QApplication::keyboardInputInterval());
}

// Space ticks a row that can be ticked. Otherwise Space and Enter select the current row where none is
// selected, and take up what is. No blank begins a search, which would lead somewhere else.
bool RowList::HandleChoosingKey(QKeyEvent& event) {
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const QModelIndex current = currentIndex();
    const bool ticks = event.key() == Qt::Key_Space && current.flags().testFlag(Qt::ItemIsUserCheckable);
    const bool isSpace = ticks || (event.key() == Qt::Key_Space && !IsLookingFor());
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!current.isValid() || (!ticks && !isPlain) || (!isEnter && !isSpace)) {
        return false;
    }
    if (ticks) {
        edit(current, AnyKeyPressed, &event);
    } else if (selectionModel()->hasSelection()) {
        Q_EMIT TakenUp();
    } else {
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    event.setAccepted(isSpace); // Enter also presses the default button of a box that the list stands in
    return true;
}

// The toolkit's own search looks at one row after the other; here the model may know better.
void RowList::keyboardSearch(const QString& search) {
    if (search.isEmpty() || model()->rowCount() == 0) {
        return;
    }
    m_typed = IsLookingFor() ? m_typed + search : search;
    m_lastTyped.start();
    const bool isOneLetter = m_typed.count(m_typed.front()) == m_typed.size();
    int start = 0;
    if (selectionModel()->hasSelection()) {
        // One letter, for the first time or again, means another row; more letters may still mean this one.
        start = (currentIndex().row() + (isOneLetter ? 1 : 0)) % model()->rowCount();
    }
    const QModelIndexList found =
        model()->match(model()->index(start, 0), Qt::DisplayRole, isOneLetter ? m_typed.left(1) : m_typed, 1,
                       Qt::MatchStartsWith | Qt::MatchWrap);
    if (!found.isEmpty()) {
        setCurrentIndex(found.constFirst().siblingAtColumn(m_column));
    }
}

void RowList::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
        return;
    }
    if (HandleColumnKey(*event) || HandleChoosingKey(*event)) {
        return;
    }
    // A list that has just got its rows or the focus has a current row but no selected one: the first
    // key selects that row instead of stepping over it.
    const bool towardsFirst =
        event->key() == Qt::Key_Down || event->key() == Qt::Key_Up || event->key() == Qt::Key_Home;
    if (towardsFirst && event->modifiers() == Qt::NoModifier && model()->rowCount() > 0 &&
        !selectionModel()->hasSelection()) {
        const QModelIndex first =
            currentIndex().isValid() && event->key() != Qt::Key_Home ? currentIndex() : model()->index(0, 0);
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return;
    }
    QTreeView::keyPressEvent(event);
}

} // namespace Ui
