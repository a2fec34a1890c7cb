// The list's own answers against those of the view that it is built on.

#include "ui/RowList.h"

#include <QApplication>
#include <QPaintEvent>
#include <QScrollBar>
#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace {

class RowListTest : public testing::Test {
protected:
    RowListTest() {
        for (int row = 0; row < Rows; ++row) {
            m_model.appendRow({new QStandardItem(QString::number(row)), new QStandardItem(QStringLiteral("second")),
                               new QStandardItem(QStringLiteral("third"))});
        }
        m_list.setModel(&m_model);
        m_list.setColumnHidden(1, true);
        m_list.resize(300, 200);
        m_list.show();
        QApplication::processEvents();
    }

    static constexpr int Rows = 500;
    QStandardItemModel m_model;
    RowList m_list;
};

TEST_F(RowListTest, ARowIsWhereTheBaseClassFindsIt) {
    for (const int scroll : {0, 1, 250, Rows}) {
        m_list.verticalScrollBar()->setValue(scroll);
        m_list.horizontalScrollBar()->setValue(scroll % 7);
        for (const int row : {0, 1, 2, 17, 249, 250, 251, Rows - 1}) {
            for (int column = 0; column < 3; ++column) {
                const QModelIndex index = m_model.index(row, column);
                ASSERT_EQ(m_list.visualRect(index), m_list.QTreeView::visualRect(index)) << scroll << ' ' << row;
            }
        }
    }
    EXPECT_EQ(m_list.visualRect({}), QRect());
}

TEST_F(RowListTest, AnEmptyListHasNoRects) {
    QStandardItemModel empty;
    m_list.setModel(&empty);
    EXPECT_EQ(m_list.visualRect(empty.index(0, 0)), QRect());
}

// Collects what is painted.
class PaintedRegion : public QObject {
public:
    QRegion region;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += dynamic_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

TEST_F(RowListTest, BothRowsArePaintedAnewWhenTheCurrentOneChanges) {
    m_list.setCurrentIndex(m_model.index(1, 0));
    QApplication::processEvents();
    PaintedRegion painted;
    m_list.viewport()->installEventFilter(&painted);
    m_list.selectionModel()->setCurrentIndex(m_model.index(4, 0), QItemSelectionModel::NoUpdate);
    QApplication::processEvents();
    for (const int row : {1, 4}) {
        QRect whole = m_list.visualRect(m_model.index(row, 0));
        whole.setLeft(0);
        whole.setRight(m_list.viewport()->width() - 1);
        EXPECT_TRUE(painted.region.intersected(whole) == QRegion(whole)) << row;
    }
    EXPECT_FALSE(painted.region.contains(m_list.visualRect(m_model.index(7, 0)).center()));
}

} // namespace
