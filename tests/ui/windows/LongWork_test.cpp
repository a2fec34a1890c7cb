// What the window shows of work that takes long.

#include "ui/windows/LongWork.h"

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Ui;

using namespace std::chrono_literals;

namespace {

constexpr LongWork::Delays AtOnce{0ms, 0ms, 0ms};
constexpr LongWork::Delays Never{1h, 1h, 0ms};
constexpr LongWork::Delays PaintedOnly{0ms, 1h, 0ms};

// A window that counts how often it is painted.
class Canvas : public QWidget {
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paintings; }
};

class LongWorkTest : public testing::Test {
protected:
    LongWorkTest() {
        window.resize(600, 400);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    QWidget* Panel() { return window.findChild<QWidget*>(QStringLiteral("ProgressPanel")); }
    int Shown() { return Panel()->findChild<QProgressBar*>()->value(); }

    Canvas window;
};

} // namespace

TEST_F(LongWorkTest, TheBusyCursorIsThereFromTheBeginningToTheEnd) {
    LongWork work;
    work.Begin(&window);
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    work.End();
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(LongWorkTest, OnlyWorkThatTakesLongShowsHowFarItIs) {
    LongWork work(Never);
    work.Begin(&window);
    work.Show(QStringLiteral("Counting"), 0.5);
    EXPECT_EQ(Panel(), nullptr);
}

TEST_F(LongWorkTest, ThePanelSaysWhatIsDoneAndHowFarItIs) {
    LongWork work(AtOnce);
    work.Begin(&window);
    work.Show(QStringLiteral("Counting <b>sheep</b>"), 0.42);
    ASSERT_NE(Panel(), nullptr);
    EXPECT_TRUE(Panel()->isVisible());
    EXPECT_EQ(Shown(), 42);
    const auto* label = Panel()->findChild<QLabel*>();
    EXPECT_EQ(label->text(), QStringLiteral("Counting <b>sheep</b>"));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(Panel()->findChild<QProgressBar*>()->accessibleName(), QStringLiteral("Counting <b>sheep</b>"));
    work.Show(QStringLiteral("Sorting"), 1);
    EXPECT_EQ(Shown(), 100);
    work.End();
    EXPECT_EQ(Panel(), nullptr);
}

TEST_F(LongWorkTest, ThePanelStandsInTheMiddleAndTakesNoFocus) {
    auto* edit = new QLineEdit(&window);
    edit->show();
    edit->setFocus();
    LongWork work(AtOnce);
    work.Begin(&window);
    work.Show(QStringLiteral("Counting"), 0);
    const QPoint distance = Panel()->geometry().center() - window.rect().center();
    EXPECT_LE(distance.manhattanLength(), 2);
    EXPECT_TRUE(window.rect().contains(Panel()->geometry()));
    EXPECT_EQ(QApplication::focusWidget(), edit);
}

TEST_F(LongWorkTest, TheWindowIsPaintedMeanwhile) {
    LongWork work(PaintedOnly);
    work.Begin(&window);
    QCoreApplication::processEvents();
    const int before = window.paintings;
    window.update();
    work.Show(QStringLiteral("Counting"), 0.5);
    EXPECT_EQ(window.paintings, before + 1);
    EXPECT_EQ(Panel(), nullptr);
}

TEST_F(LongWorkTest, AWaitForTheUserIsNotLong) {
    LongWork work({0ms, 300ms, 0ms});
    work.Begin(&window);
    QTest::qSleep(301); // a question
    work.GoOn();
    work.Show(QStringLiteral("Counting"), 0.5);
    EXPECT_EQ(Panel(), nullptr);
    QTest::qSleep(301);
    work.Show(QStringLiteral("Counting"), 0.6);
    EXPECT_NE(Panel(), nullptr);
}

TEST_F(LongWorkTest, CommandsThatComeMeanwhileAreLeftOut) {
    LongWork work(PaintedOnly);
    work.Begin(&window);
    int runs = 0;
    bool came = false;
    QTimer::singleShot(0, &window, [&] {
        came = true;
        EXPECT_TRUE(LongWork::IsPainting());
        LongWork::UnlessPainting([&] { ++runs; });
    });
    QTest::qSleep(2);
    work.Show(QStringLiteral("Counting"), 0.5);
    EXPECT_TRUE(came);
    EXPECT_EQ(runs, 0);
    EXPECT_FALSE(LongWork::IsPainting());
    LongWork::UnlessPainting([&] { ++runs; });
    EXPECT_EQ(runs, 1);
}

TEST_F(LongWorkTest, ProgressWithoutWorkShowsNothing) {
    LongWork work(AtOnce);
    work.Show(QStringLiteral("Counting"), 0.5);
    work.Begin(&window);
    work.End();
    work.Show(QStringLiteral("Counting"), 0.5);
    EXPECT_EQ(Panel(), nullptr);
}

TEST_F(LongWorkTest, AWindowMayGoBeforeTheWorkEnds) {
    auto gone = std::make_unique<QWidget>();
    LongWork work(AtOnce);
    work.Begin(gone.get());
    work.Show(QStringLiteral("Counting"), 0.5);
    gone.reset();
    work.Show(QStringLiteral("Counting"), 0.6);
    work.End();
}
