#include "ui/RowList.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

// Room above and below the text of a row, together, in pixels.
constexpr int RowPadding = 5;

class RoomyDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, RowPadding);
    }
};

} // namespace

RowList::RowList(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(false);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new RoomyDelegate(this));
    // Tab leads on to the next control, arrow keys lead through the rows.
    setTabKeyNavigation(false);
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

void RowList::SelectRow(int row) {
    m_quiet = true;
    setCurrentIndex(model()->index(row, 0));
    m_quiet = false;
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

void RowList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // What the base class adds: it looks for both rows, to paint their frames and to tell a screen reader.
    if (QAccessible::isActive()) {
        QTreeView::currentChanged(current, previous);
        return;
    }
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): to leave out the search of the class between is the point
    QAbstractItemView::currentChanged(current, previous);
    for (const QModelIndex& index : {previous, current}) {
        const QRect row = visualRect(index);
        viewport()->update(0, row.top(), viewport()->width(), row.height());
    }
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
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
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

void RowList::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
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

void RowList::SetHint(const QString& hint) {
    if (hint != m_hint) {
        m_hint = hint;
        setAccessibleDescription(hint);
        viewport()->update();
    }
}

void RowList::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model() != nullptr && model()->rowCount() == 0) {
        constexpr int margin = 12;
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_hint);
    }
}

void RowList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    Q_EMIT Resized();
}
