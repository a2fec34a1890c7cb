#include "ui/widgets/WindowInside.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Ui;

namespace {

class WindowInsideTest : public testing::Test {
protected:
    WindowInsideTest() : m_content(new QWidget), m_near(new QLineEdit(m_content)), m_far(new QLineEdit(m_content)) {
        m_content->setMinimumSize(600, 400);
        m_far->move(400, 360);
        m_inside = new WindowInside(&m_window, m_content);
        m_window.resize(300, 200);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        QTest::mouseRelease(&m_window, Qt::LeftButton); // a double click before may have left it pressed
    }
    bool FarIsInView() { return m_window.rect().contains(QRect(m_far->mapTo(&m_window, QPoint()), m_far->size())); }

    QWidget m_window;
    QWidget* m_content;
    QLineEdit* m_near; // has the focus first
    QLineEdit* m_far;
    WindowInside* m_inside;
};

} // namespace

TEST_F(WindowInsideTest, AWindowThatIsTooSmallIsScrolled) {
    EXPECT_TRUE(m_inside->horizontalScrollBar()->isVisible());
    EXPECT_TRUE(m_inside->verticalScrollBar()->isVisible());
    EXPECT_EQ(m_content->size(), QSize(600, 400));
}

TEST_F(WindowInsideTest, AWindowThatIsLargeEnoughIsFilled) {
    m_window.resize(700, 500);
    QApplication::processEvents();
    EXPECT_EQ(m_content->size(), QSize(700, 500));
    EXPECT_FALSE(m_inside->horizontalScrollBar()->isVisible());
    EXPECT_FALSE(m_inside->verticalScrollBar()->isVisible());
}

TEST_F(WindowInsideTest, WhatGetsTheFocusComesIntoView) {
    EXPECT_FALSE(FarIsInView());
    m_far->setFocus();
    EXPECT_TRUE(FarIsInView());
}

TEST_F(WindowInsideTest, NothingMovesWhileAMouseButtonIsPressed) {
    QTest::mousePress(&m_window, Qt::LeftButton);
    m_far->setFocus();
    EXPECT_FALSE(FarIsInView());
    QTest::mouseRelease(&m_window, Qt::LeftButton);
}
