#include "ui/lists/RowList.h"

#include "ui/Text.h"
#include "ui/lists/RowDrawing.h"
#include "ui/lists/StateColours.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace Ui {

RowList::RowList(QWidget* parent) : QTreeView(parent), m_header(new RowHeader(this)) {
    setHeader(m_header);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(false);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new RowDelegate(this));
    // Tab leads on to the next control, arrow keys lead through the rows.
    setTabKeyNavigation(false);
}

// For each column by itself the base class would paint all rows once more.
void RowList::SetColumnWidths(const std::vector<int>& widths) {
    {
        const QSignalBlocker silent(m_header);
        for (std::size_t column = 0; column < widths.size(); ++column) {
            m_header->resizeSection(static_cast<int>(column), widths[column]);
        }
    }
    updateGeometries();
    viewport()->update();
}

std::vector<int> RowList::SelectedRows() const {
    std::vector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void RowList::ShowSelection(const std::vector<int>& rows) {
    if (rows == SelectedRows()) {
        return;
    }
    const QScopedValueRollback quiet(m_quiet, true);
    if (rows.size() == 1) {
        setCurrentIndex(model()->index(rows.front(), 0));
        return;
    }
    QItemSelection selection;
    for (const int row : rows) {
        selection.select(model()->index(row, 0), model()->index(row, model()->columnCount() - 1));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

// The base class looks for a row among all others, going out from the one that it looked at last. In a
// list of a million, a jump to its end would be felt; here a row is where its number says.
QRect RowList::visualRect(const QModelIndex& index) const {
    const QModelIndex top = indexAt(QPoint(0, 0));
    if (!index.isValid() || !top.isValid() || isColumnHidden(index.column()) || verticalScrollMode() != ScrollPerItem) {
        return QTreeView::visualRect(index);
    }
    const int height = rowHeight(top);
    return {columnViewportPosition(index.column()), (index.row() - top.row()) * height, columnWidth(index.column()),
            height};
}

void RowList::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const int sideways = horizontalScrollBar()->value();
    QTreeView::scrollTo(index, hint);
    if (hint == PositionAtCenter) {
        horizontalScrollBar()->setValue(sideways);
    }
}

void RowList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // What the class between adds: it looks for both rows, to tell a screen reader.
    if (QAccessible::isActive()) {
        QTreeView::currentChanged(current, previous);
    } else {
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): to leave out its search is the point
        QAbstractItemView::currentChanged(current, previous);
    }
    UpdateRows(previous, previous);
    UpdateRows(current, current);
}

void RowList::UpdateRows(const QModelIndex& first, const QModelIndex& last) {
    const int top = visualRect(first).top();
    viewport()->update(0, top, viewport()->width(), visualRect(last).bottom() + 1 - top);
}

void RowList::CopySelection() const {
    QStringList lines;
    for (const int row : SelectedRows()) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column) {
            cells.append(model()->index(row, column).data().toString());
        }
        lines.append(cells.join(QLatin1Char('\t')));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void RowList::Announce() {
    m_announced = true;
    if (!m_quiet) {
        Q_EMIT Chosen();
    }
}

void RowList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    Announce();
}

void RowList::mousePressEvent(QMouseEvent* event) {
    m_announced = false;
    QTreeView::mousePressEvent(event);
    if (!m_announced && event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        Announce();
    }
}

void RowList::UpdateFocusMarks() {
    m_header->Underline(hasFocus() ? m_column : -1);
    update();
}

void RowList::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    UpdateFocusMarks();
}

void RowList::focusOutEvent(QFocusEvent* event) {
    QTreeView::focusOutEvent(event);
    UpdateFocusMarks();
}

// The frame shows the focus also where there is no row that could.
bool RowList::event(QEvent* event) {
    const bool handled = QTreeView::event(event);
    if (event->type() == QEvent::Paint && hasFocus()) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    return handled;
}

QString RowList::ToolTipOf(const QModelIndex& index) const {
    const QString said = index.data(Qt::ToolTipRole).toString();
    const QRect seen = visualRect(index).intersected(viewport()->rect());
    const bool isCutOff = sizeHintForIndex(index).width() > seen.width();
    const QString text = isCutOff ? index.data().toString() : QString();
    return text.isEmpty() || said.isEmpty() ? text + said : text + QLatin1Char('\n') + said;
}

bool RowList::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QTreeView::viewportEvent(event);
    }
    const auto* help = dynamic_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString said = index.isValid() ? ToolTipOf(index) : QString();
    const QString own = !index.isValid() || m_toolTipOverRows ? toolTip() : QString();
    const QRect row = index.isValid() ? visualRect(index) : QRect();
    QToolTip::showText(help->globalPos(), said.isEmpty() ? own : Text::ForToolTip(said), viewport(), row);
    return true;
}

void RowList::SetHint(const QString& hint) {
    if (hint != m_hint) {
        m_hint = hint;
        Describe();
        if (IsEmpty()) {
            viewport()->update();
        }
    }
}

void RowList::setModel(QAbstractItemModel* newModel) {
    QTreeView::setModel(newModel);
    connect(newModel, &QAbstractItemModel::modelReset, this, &RowList::Describe);
    Describe();
}

void RowList::SetDescription(const QString& description) {
    m_description = description;
    Describe();
}

// What is painted in an empty list is also what a screen reader says of it, and only then.
void RowList::Describe() {
    setAccessibleDescription(IsEmpty() ? m_hint : m_description);
}

void RowList::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (IsEmpty()) {
        constexpr int margin = 12;
        QPainter painter(viewport());
        painter.setPen(StateColours::Hint(palette()));
        painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_hint);
    }
}

void RowList::ShowAsInHand(bool inHand) {
    if (inHand != m_inHand) {
        m_inHand = inHand;
        const QItemSelection selection = selectionModel()->selection();
        for (const QItemSelectionRange& chosen : selection) {
            UpdateRows(chosen.topLeft(), chosen.bottomRight());
        }
    }
}

// The style would fill the focus frame with the colour of a choice, whether there is one or not.
void RowList::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const bool isChosen = selectionModel()->isSelected(index);
    if (isChosen) {
        const bool inHand = m_inHand && isEnabled();
        QStyleOptionViewItem row(option);
        row.palette = m_chosenLook.Colours(palette(), inHand);
        painter->fillRect(row.rect, row.palette.highlight());
        QTreeView::drawRow(painter, row, index);
        ChosenLook::PaintMark(painter, row.rect, palette(), inHand);
    } else {
        QTreeView::drawRow(painter, option, index);
    }
    if (hasFocus() && index.row() == currentIndex().row()) {
        painter->setPen(palette().color(QPalette::Highlight));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
}

void RowList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    Q_EMIT Resized();
}

} // namespace Ui
