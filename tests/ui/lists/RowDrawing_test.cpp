// What rows and headings look like.

#include "ui/lists/RowDrawing.h"

#include "ui/Rendered.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"

#include <QApplication>
#include <QStandardItemModel>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

using namespace Ui;
using CommonRoutines::VariationState;

namespace {

const QString Bars(12, QLatin1Char('H')); // upright strokes, that begin at once

class RowDrawingTest : public testing::TestWithParam<QPalette (*)()> {
protected:
    RowDrawingTest() {
        m_model.setHorizontalHeaderLabels({Bars, Bars});
        for (const auto& facts : CommonRoutines::VariationStateTable) {
            QList<QStandardItem*> row{new QStandardItem(Bars), new QStandardItem(Bars)};
            for (QStandardItem* item : row) {
                item->setForeground(StateColours::InList(facts.state, GetParam()()));
            }
            m_model.appendRow(row);
        }
        m_list.setPalette(GetParam()());
        m_list.setModel(&m_model);
        m_list.setSelectionMode(QAbstractItemView::MultiSelection);
        m_list.setColumnWidth(0, 200);
        m_list.resize(420, 260);
        m_list.show();
        QApplication::processEvents();
    }

    // A row in its whole width, without the pixels of a frame.
    QImage Row(int row) {
        QRect place = m_list.visualRect(m_model.index(row, 0));
        place.setLeft(0);
        place.setRight(m_list.viewport()->width() - 1);
        return Rendered::Of(*m_list.viewport(), place);
    }
    // The ground behind the texts.
    QColor Ground(int row) {
        const QImage image = Row(row);
        return image.pixelColor(image.width() - 10, 2);
    }

    QStandardItemModel m_model;
    RowList m_list;
};

INSTANTIATE_TEST_SUITE_P(LightAndDark, RowDrawingTest, testing::Values(&Rendered::Light, &Rendered::Dark));

} // namespace

TEST_P(RowDrawingTest, ACurrentRowThatIsNotChosenHasAFrameAndNothingElse) {
    const QImage before = Row(1);
    m_list.activateWindow();
    m_list.setFocus();
    m_list.selectionModel()->setCurrentIndex(m_model.index(1, 0), QItemSelectionModel::NoUpdate);
    ASSERT_TRUE(m_list.SelectedRows().empty());
    const QImage framed = Row(1);
    const QRect inner = framed.rect().adjusted(1, 1, -1, -1);
    EXPECT_EQ(framed.copy(inner), before.copy(inner));
    const int around = 2 * (framed.width() + framed.height()) - 4;
    EXPECT_EQ(Rendered::Count(framed, m_list.palette().color(QPalette::Highlight)), around);
}

TEST_P(RowDrawingTest, AChosenRowIsLegibleInTheColourOfItsState) {
    m_list.selectAll();
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QColor ground = Ground(row);
        EXPECT_EQ(ground, StateColours::ChosenGround(m_list.palette(), true));
        const QRect text(20, 2, 300, 12);
        const QColor ink = Rendered::Ink(Row(row).copy(text), ground);
        const QColor state = m_model.item(row)->foreground().color();
        EXPECT_GE(Colours::Contrast(ink, ground), 4.5) << row;
        const int turn = std::abs(ink.hue() - state.hue());
        EXPECT_TRUE(state.saturation() == 0 || std::min(turn, 360 - turn) <= 5) << row;
    }
}

TEST_P(RowDrawingTest, RowsThatOnlyStayChosenLookLikeNeitherThoseInHandNorTheOthers) {
    const QImage plain = Row(3);
    const QColor base = Ground(3);
    m_list.selectAll();
    const QImage inHand = Row(3);
    const QColor groundInHand = Ground(3);
    m_list.ShowAsInHand(false);
    const QImage atRest = Row(3);
    const QColor groundAtRest = Ground(3);
    EXPECT_EQ(groundAtRest.saturation(), 0);
    EXPECT_GT(groundInHand.saturation(), 20);
    EXPECT_GT(Colours::Contrast(groundInHand, base), 1.15);
    EXPECT_GT(Colours::Contrast(groundAtRest, base), 1.15);
    // A full and a hollow bar tell them apart without colours.
    const auto bar = [&](const QImage& image) {
        std::string pixels;
        for (int x = 0; x < 6; ++x) {
            pixels += Colours::Contrast(image.pixelColor(x, image.height() / 2), base) >= 3 ? 'X' : '.';
        }
        return pixels;
    };
    EXPECT_EQ(bar(plain), "......");
    EXPECT_EQ(bar(inHand), "XXXX..");
    EXPECT_EQ(bar(atRest), "X..X..");
    m_list.ShowAsInHand(true);
    EXPECT_EQ(Row(3), inHand);
}

TEST_P(RowDrawingTest, TheRowsOfADisabledListAreNotInHand) {
    m_list.selectAll();
    m_list.setEnabled(false);
    EXPECT_EQ(Ground(3), StateColours::ChosenGround(m_list.palette(), false));
}

TEST_P(RowDrawingTest, HeadingsStandAboveTheTextsOfTheirColumns) {
    QWidget& header = *m_list.header()->viewport();
    const QImage headings = Rendered::Of(header);
    const QImage row = Row(m_model.rowCount() - 1);
    const auto edge = [&](const QImage& image, int column) {
        const int left = m_list.header()->sectionViewportPosition(column) + 1; // behind the line between headings
        const QImage part = image.copy(left, 3, 60, 12);
        return Rendered::LeftEdge(part, part.pixelColor(0, 0));
    };
    for (const int column : {0, 1}) {
        EXPECT_GT(edge(row, column), 0);
        EXPECT_EQ(edge(headings, column), edge(row, column)) << column;
    }
}
