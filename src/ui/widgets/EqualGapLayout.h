#pragma once

#include <QLayout>
#include <QList>

namespace Ui {

// Stacks its items from top to bottom with the same gap above, between and below them: the height
// that they leave, divided by one more than their number. Each item has its own height and the whole
// width between the side margins. Gaps do not grow without end: what is too much for them the last item gets.
class EqualGapLayout : public QLayout {
public:
    EqualGapLayout(QWidget* parent, int sideMargin, int largestGap);
    ~EqualGapLayout() override;

    // Adds a row of controls beside each other as one item.
    void AddRow(QLayout* row);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect& rectangle) override;

private:
    [[nodiscard]] int ItemHeights() const;

    QList<QLayoutItem*> m_items;
    int m_sideMargin;
    int m_largestGap;
};

} // namespace Ui
