#pragma once

#include <QHeaderView>
#include <QPalette>
#include <QStyledItemDelegate>

// How the rows of a list and its headings are drawn.
namespace Ui {

// Draws the cells of a row. The ground and the focus frame are the list's, which knows the whole row.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Where texts begin, from the left end of their column.
    [[nodiscard]] static int TextInset(const QWidget& list);
    // Of a row with text alone, in pixels.
    [[nodiscard]] static int RowHeight(const QWidget& list);

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

// Column headings, above the texts of their columns. One can be underlined.
class RowHeader : public QHeaderView {
public:
    explicit RowHeader(QWidget* parent);

    // A column, or -1.
    void Underline(int column);

protected:
    [[nodiscard]] QSize sectionSizeFromContents(int logicalIndex) const override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
    void paintEvent(QPaintEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    int m_underlined = -1;
};

// The look of chosen rows. Rows in hand are tinted and have a bar before them; rows that only stay chosen are
// grey, and their bar is hollow.
class ChosenLook {
public:
    // The palette for a chosen row, whose highlight is the ground. It is made anew only for other colours.
    [[nodiscard]] const QPalette& Colours(const QPalette& ofList, bool inHand) const;

    static void PaintMark(QPainter* painter, const QRect& row, const QPalette& ofList, bool inHand);

private:
    mutable QPalette m_colours;
    mutable qint64 m_madeFrom = 0; // the key of a palette
    mutable bool m_inHand = true;
};

} // namespace Ui
