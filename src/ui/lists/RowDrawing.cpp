#include "ui/lists/RowDrawing.h"

#include "ui/Colours.h"
#include "ui/lists/StateColours.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace Ui {

namespace {

// Room above and below the text of a row, together, and before it, in pixels.
constexpr int RowPadding = 5;
constexpr int LeftPadding = 4;

constexpr int BarWidth = 4;

} // namespace

int RowDelegate::TextInset(const QWidget& list) {
    return LeftPadding + list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
}

int RowDelegate::RowHeight(const QWidget& list) {
    return list.fontMetrics().height() + RowPadding;
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(LeftPadding, RowPadding);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->rect.setLeft(option->rect.left() + LeftPadding);
    option->state &= ~QStyle::State_HasFocus;
    QPalette& colours = option->palette;
    if (option->state.testFlag(QStyle::State_Selected)) {
        if (option->state.testFlag(QStyle::State_Enabled)) {
            const QColor ink = colours.color(QPalette::Text);
            colours.setColor(QPalette::Text, Colours::Legible(ink, colours.color(QPalette::Highlight)));
        }
        // The list has painted the ground of the whole row. Some styles have grounds of their own for parts of one.
        option->state &= ~QStyle::State_Selected;
    }
    if (option->features.testFlag(QStyleOptionViewItem::HasCheckIndicator)) {
        colours.setColor(QPalette::Window, StateColours::ShadedToOutline);
    }
}

RowHeader::RowHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsMovable(true);
    setStretchLastSection(true);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void RowHeader::Underline(int column) {
    if (column != m_underlined) {
        m_underlined = column;
        viewport()->update();
    }
}

QSize RowHeader::sectionSizeFromContents(int logicalIndex) const {
    return QHeaderView::sectionSizeFromContents(logicalIndex) + QSize(RowDelegate::TextInset(*this), 0);
}

// The style has a margin of its own for headings.
void RowHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    option->text.clear();
}

// The style ends the line below the headings with the last of them.
void RowHeader::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    constexpr int shade = 140; // per cent, as the style's own
    const int end = length() - offset();
    QPainter painter(viewport());
    painter.fillRect(end, height() - 1, std::max(0, width() - end), 1, palette().color(QPalette::Window).darker(shade));
}

void RowHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    painter->save(); // the style leaves a clip behind
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    const int inset = RowDelegate::TextInset(*this);
    const QRect room = rect.adjusted(inset, 0, -inset / 2, 0);
    const QString caption = model()->headerData(logicalIndex, Qt::Horizontal).toString();
    painter->setPen(palette().color(QPalette::ButtonText));
    painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      fontMetrics().elidedText(caption, Qt::ElideRight, room.width()));
    if (logicalIndex == m_underlined) {
        constexpr int thickness = 2;
        painter->fillRect(rect.adjusted(0, rect.height() - thickness, 0, 0), palette().highlight());
    }
}

const QPalette& ChosenLook::Colours(const QPalette& ofList, bool inHand) const {
    if (m_madeFrom != ofList.cacheKey() || m_inHand != inHand) {
        m_colours = ofList;
        m_colours.setColor(QPalette::Highlight, StateColours::ChosenGround(ofList, inHand));
        m_madeFrom = ofList.cacheKey();
        m_inHand = inHand;
    }
    return m_colours;
}

void ChosenLook::PaintMark(QPainter* painter, const QRect& row, const QPalette& ofList, bool inHand) {
    const QRect bar(row.topLeft(), QSize(BarWidth, row.height()));
    if (inHand) {
        painter->fillRect(bar, ofList.highlight());
    } else {
        painter->setPen(StateColours::Hint(ofList));
        painter->drawRect(bar.adjusted(0, 0, -1, -1));
    }
}

} // namespace Ui
