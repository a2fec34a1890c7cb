#include "ui/widgets/EqualGapLayout.h"

#include <algorithm>

namespace Ui {

namespace {

constexpr int SmallestGap = 6;

}

EqualGapLayout::EqualGapLayout(QWidget* parent, int sideMargin, int largestGap)
    : QLayout(parent), m_sideMargin(sideMargin), m_largestGap(largestGap) {
    setContentsMargins(0, 0, 0, 0);
}

EqualGapLayout::~EqualGapLayout() {
    qDeleteAll(m_items);
}

void EqualGapLayout::AddRow(QLayout* row) {
    addChildLayout(row);
    addItem(row);
}

void EqualGapLayout::addItem(QLayoutItem* item) {
    m_items.append(item);
}

int EqualGapLayout::count() const {
    return static_cast<int>(m_items.size());
}

QLayoutItem* EqualGapLayout::itemAt(int index) const {
    return m_items.value(index);
}

QLayoutItem* EqualGapLayout::takeAt(int index) {
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

int EqualGapLayout::ItemHeights() const {
    int height = 0;
    for (const QLayoutItem* item : m_items) {
        height += item->sizeHint().height();
    }
    return height;
}

QSize EqualGapLayout::sizeHint() const {
    return minimumSize();
}

QSize EqualGapLayout::minimumSize() const {
    int width = 0;
    for (const QLayoutItem* item : m_items) {
        width = std::max(width, item->sizeHint().width());
    }
    return {width + 2 * m_sideMargin, ItemHeights() + SmallestGap * (count() + 1)};
}

void EqualGapLayout::setGeometry(const QRect& rectangle) {
    QLayout::setGeometry(rectangle);
    const int room = rectangle.height() - ItemHeights();
    const int gap = std::min(room / (count() + 1), m_largestGap);
    const int tooMuch = gap == m_largestGap ? room - gap * (count() + 1) : 0;
    int top = rectangle.top() + gap;
    for (QLayoutItem* item : m_items) {
        const int height = item->sizeHint().height() + (item == m_items.constLast() ? tooMuch : 0);
        item->setGeometry({rectangle.left() + m_sideMargin, top, rectangle.width() - 2 * m_sideMargin, height});
        top += height + gap;
    }
}

} // namespace Ui
