// The list's own answers against those of the view that it is built on.

#include "ui/lists/RowList.h"

#include "ui/Rendered.h"

#include <QApplication>
#include <QPaintEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTest>

#include <gtest/gtest.h>

using namespace Ui;

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

TEST_F(RowListTest, ARowComesToTheMiddleWithoutBeingMovedSideways) {
    m_list.setColumnWidth(0, 900);
    QApplication::processEvents();
    m_list.scrollTo(m_model.index(250, 0), QAbstractItemView::PositionAtCenter);
    EXPECT_EQ(m_list.horizontalScrollBar()->value(), 0);
    const int middle = m_list.visualRect(m_model.index(250, 0)).center().y();
    EXPECT_NEAR(middle, m_list.viewport()->height() / 2, m_list.visualRect(m_model.index(250, 0)).height());
}

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

TEST_F(RowListTest, OfChosenRowsThatAreNotInHandAnyMoreOnlyTheseArePainted) {
    m_list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list.ShowSelection({1, 4, 5});
    QApplication::processEvents();
    PaintedRegion painted;
    m_list.viewport()->installEventFilter(&painted);
    m_list.ShowAsInHand(false);
    QApplication::processEvents();
    for (int row = 0; row < 7; ++row) {
        const bool isChosen = row == 1 || row == 4 || row == 5;
        const QRect seen = m_list.visualRect(m_model.index(row, 2)).intersected(m_list.viewport()->rect());
        EXPECT_EQ(painted.region.intersects(seen), isChosen) << row;
    }
}

TEST_F(RowListTest, AHintIsPaintedOnlyWhereItIsSeen) {
    PaintedRegion painted;
    m_list.viewport()->installEventFilter(&painted);
    m_list.SetHint(QStringLiteral("Nothing here"));
    QApplication::processEvents();
    EXPECT_TRUE(painted.region.isEmpty());
    m_model.clear();
    QApplication::processEvents();
    painted.region = {};
    m_list.SetHint(QStringLiteral("Nothing there"));
    QApplication::processEvents();
    EXPECT_FALSE(painted.region.isEmpty());
}

// The list with the focus and all of its columns.
class ColumnKeys : public RowListTest {
protected:
    ColumnKeys() {
        m_list.setColumnHidden(1, false);
        m_list.header()->setStretchLastSection(false);
        m_list.activateWindow();
        m_list.setFocus();
        for (int column = 0; column < 3; ++column) {
            m_list.setColumnWidth(column, 100);
        }
    }

    void Press(int key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(&m_list, static_cast<Qt::Key>(key), modifiers);
    }
};

TEST_F(ColumnKeys, AltAndAnArrowMakeTheFirstColumnWiderAndNarrower) {
    Press(Qt::Key_Right, Qt::AltModifier);
    const int wider = m_list.columnWidth(0);
    EXPECT_GT(wider, 100);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(m_list.columnWidth(0), 100);
    for (int i = 0; i < 50; ++i) {
        Press(Qt::Key_Left, Qt::AltModifier);
    }
    EXPECT_EQ(m_list.columnWidth(0), m_list.header()->minimumSectionSize());
    EXPECT_EQ(m_list.columnWidth(1), 100);
}

TEST_F(ColumnKeys, CtrlAndAnArrowGoToAnotherColumn) {
    Press(Qt::Key_Left, Qt::ControlModifier);
    Press(Qt::Key_Right, Qt::ControlModifier);
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(m_list.columnWidth(0), 100);
    EXPECT_GT(m_list.columnWidth(1), 100);
    for (int i = 0; i < 5; ++i) {
        Press(Qt::Key_Right, Qt::ControlModifier);
    }
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_GT(m_list.columnWidth(2), 100);
}

TEST_F(ColumnKeys, AColumnThatIsGoneToIsScrolledIntoView) {
    m_list.resize(150, 200);
    Press(Qt::Key_Right, Qt::ControlModifier);
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(m_list.header()->sectionViewportPosition(2) + 100, m_list.viewport()->width());
    Press(Qt::Key_Left, Qt::ControlModifier);
    Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(m_list.header()->sectionViewportPosition(0), 0);
}

TEST_F(ColumnKeys, TheCurrentCellIsInTheColumnAndTheSelectionStays) {
    m_list.ShowSelection({3});
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(m_list.currentIndex(), m_model.index(3, 1));
    EXPECT_EQ(m_list.SelectedRows(), std::vector<int>{3});
    Press(Qt::Key_Down, Qt::NoModifier);
    EXPECT_EQ(m_list.currentIndex(), m_model.index(4, 1));
    EXPECT_EQ(m_list.SelectedRows(), std::vector<int>{4});
}

TEST_F(ColumnKeys, CtrlAndPlusFitTheColumnToItsContent) {
    m_model.item(2, 0)->setText(QString(60, QLatin1Char('w')));
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
        m_list.setColumnWidth(0, 100);
        Press(Qt::Key_Plus, modifiers);
        EXPECT_GE(m_list.columnWidth(0), m_list.fontMetrics().horizontalAdvance(m_model.item(2, 0)->text()));
    }
}

TEST_F(ColumnKeys, CtrlShiftAndAnArrowMoveTheColumn) {
    Press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_list.header()->visualIndex(0), 1);
    Press(Qt::Key_Right, Qt::AltModifier); // still the same column
    EXPECT_GT(m_list.columnWidth(0), 100);
    for (int i = 0; i < 3; ++i) {
        Press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(m_list.header()->visualIndex(0), 0);
}

TEST_F(ColumnKeys, AListWithoutHeadingsHasNoColumnKeys) {
    m_list.setHeaderHidden(true);
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(m_list.columnWidth(0), 100);
}

TEST_F(ColumnKeys, TypingFindsTheFirstColumnWhicheverIsAtHand) {
    m_list.ShowSelection({3});
    Press(Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClicks(&m_list, QStringLiteral("27"));
    EXPECT_EQ(m_list.SelectedRows(), std::vector<int>{27});
}

TEST_F(ColumnKeys, LeftAndRightScrollSideways) {
    m_list.resize(150, 200);
    m_list.ShowSelection({3});
    Press(Qt::Key_Right, Qt::NoModifier);
    EXPECT_GT(m_list.horizontalScrollBar()->value(), 0);
    Press(Qt::Key_Left, Qt::NoModifier);
    EXPECT_EQ(m_list.horizontalScrollBar()->value(), 0);
    EXPECT_EQ(m_list.SelectedRows(), std::vector<int>{3});
}

TEST_F(ColumnKeys, CtrlMovesWithoutChoosingAndCtrlSpaceChooses) {
    m_list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list.ShowSelection({3});
    Press(Qt::Key_Down, Qt::ControlModifier);
    Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(m_list.SelectedRows(), std::vector<int>{3});
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(m_list.SelectedRows(), (std::vector<int>{3, 5}));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(m_list.SelectedRows(), std::vector<int>{3});
}

TEST_F(ColumnKeys, TheFocusIsSeenAtTheFrameAndAtTheHeading) {
    const QColor highlight = m_list.palette().color(QPalette::Highlight);
    m_model.removeRows(0, Rows); // a row with the focus would be seen, too
    const auto frameAndHeading = [&] { return Rendered::Count(Rendered::Of(m_list), highlight); };
    const int border = 2 * (m_list.width() + m_list.height()) - 4;
    EXPECT_GE(frameAndHeading(), border + 2 * 90);
    m_list.clearFocus();
    EXPECT_EQ(frameAndHeading(), 0);
}

} // namespace
