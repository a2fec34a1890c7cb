#include "ui/widgets/Splitter.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <numeric>

using namespace Ui;

namespace {

const std::vector<PartWish> Wishes{
    {.least = 50, .enough = 100, .turn = 1, .weight = 1},
    {.least = 60, .enough = 200, .turn = 0, .weight = 2},
    {.least = 30, .enough = 0, .turn = 2, .weight = 1},
};

class SplitterTest : public testing::Test {
protected:
    SplitterTest() : m_splitter(Qt::Horizontal, Gap, nullptr) {
        for (const PartWish& wish : Wishes) {
            m_splitter.AddPart(new QWidget(&m_splitter), wish);
            Part(m_splitter.count() - 1).setMinimumWidth(wish.least);
        }
        Widen(400);
        m_splitter.show();
        m_splitter.activateWindow();
        QApplication::processEvents();
    }
    void Widen(int width) {
        m_splitter.resize(width, 100);
        QApplication::processEvents();
    }
    QWidget& Part(int part) { return *m_splitter.widget(part); }

    static constexpr int Gap = 12;
    Splitter m_splitter;
};

} // namespace

TEST(ShareOutTest, NoLengthIsLostOrMade) {
    for (int length = 140; length < 1000; ++length) {
        const std::vector<int> lengths = ShareOut(length, Wishes);
        EXPECT_EQ(std::accumulate(lengths.begin(), lengths.end(), 0), length);
    }
}

TEST(ShareOutTest, ThoseWhoseTurnItIsGetEnoughFirst) {
    EXPECT_EQ(ShareOut(140, Wishes), (std::vector<int>{50, 60, 30}));
    EXPECT_EQ(ShareOut(200, Wishes), (std::vector<int>{50, 120, 30}));
    EXPECT_EQ(ShareOut(280, Wishes), (std::vector<int>{50, 200, 30}));
    EXPECT_EQ(ShareOut(300, Wishes), (std::vector<int>{70, 200, 30}));
    EXPECT_EQ(ShareOut(330, Wishes), (std::vector<int>{100, 200, 30}));
}

TEST(ShareOutTest, WhatIsLeftIsSharedByWeight) {
    EXPECT_EQ(ShareOut(370, Wishes), (std::vector<int>{110, 220, 40}));
}

TEST(ShareOutTest, NobodyGetsLessThanTheLeast) {
    EXPECT_EQ(ShareOut(10, Wishes), (std::vector<int>{50, 60, 30}));
}

TEST_F(SplitterTest, PartsHaveTheirSharesAtEveryWidth) {
    for (const int width : {200, 400, 900, 300}) {
        Widen(width);
        const std::vector<int> lengths = ShareOut(width - 2 * Gap, Wishes);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(Part(i).width(), lengths[static_cast<std::size_t>(i)]) << width;
        }
        EXPECT_EQ(Part(1).x() - Part(0).geometry().right() - 1, Gap);
    }
}

TEST_F(SplitterTest, ArrowKeysMoveAHandleThatHasTheFocus) {
    QWidget* handle = m_splitter.Handles().constFirst();
    handle->setFocus();
    const int before = Part(0).width();
    QTest::keyClick(handle, Qt::Key_Left);
    EXPECT_LT(Part(0).width(), before);
    QTest::keyClick(handle, Qt::Key_Right);
    EXPECT_EQ(Part(0).width(), before);
    QTest::keyClick(handle, Qt::Key_Up);
    EXPECT_EQ(Part(0).width(), before);
}

TEST_F(SplitterTest, NoPartCanBeMovedAway) {
    QWidget* handle = m_splitter.Handles().constFirst();
    for (int i = 0; i < 50; ++i) {
        QTest::keyClick(handle, Qt::Key_Left);
    }
    EXPECT_EQ(Part(0).width(), 50);
    EXPECT_TRUE(Part(0).isVisible());
}

TEST_F(SplitterTest, WhatWasMovedIsNotSharedOutAnew) {
    QTest::keyClick(m_splitter.Handles().constFirst(), Qt::Key_Left);
    const int moved = Part(0).width();
    Widen(401);
    EXPECT_NEAR(Part(0).width(), moved, 2);
    EXPECT_NE(moved, ShareOut(401 - 2 * Gap, Wishes)[0]);
}
