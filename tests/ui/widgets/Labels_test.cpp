// The label for texts of the data, and the layout of equal gaps.

#include "ui/widgets/EqualGapLayout.h"
#include "ui/widgets/PlainLabel.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPixmap>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Ui;

namespace {

const QString LongText = QStringLiteral("some words ").repeated(100);
constexpr int AnyGap = 1000;
const QString LongWord = QString(300, QLatin1Char('W'));

QImage Picture(const QString& text, const QSize& size) {
    PlainLabel label;
    label.setText(text);
    label.resize(size);
    return label.grab().toImage();
}

} // namespace

TEST(PlainLabelTest, ItsSizeDoesNotFollowItsText) {
    PlainLabel label;
    const QSize empty = label.sizeHint();
    for (const QString& text : {LongText, LongWord, QStringLiteral("a\nb\nc\nd")}) {
        label.setText(text);
        EXPECT_EQ(label.sizeHint(), empty);
        EXPECT_EQ(label.minimumSizeHint(), empty);
    }
}

TEST(PlainLabelTest, ItHasRoomForItsLines) {
    PlainLabel label;
    const int one = label.sizeHint().height();
    EXPECT_GE(one, label.fontMetrics().lineSpacing());
    label.SetLineCount(3);
    EXPECT_EQ(label.sizeHint().height(), one + 2 * label.fontMetrics().lineSpacing());
}

TEST(PlainLabelTest, WordsAndLongWordsAreWrapped) {
    constexpr int width = 200;
    PlainLabel label;
    label.setText(QStringLiteral("short"));
    EXPECT_EQ(label.WrappedHeight(width), label.fontMetrics().lineSpacing());
    label.setText(QStringLiteral("a\nb\n\nc"));
    EXPECT_EQ(label.WrappedHeight(width), 4 * label.fontMetrics().lineSpacing());
    for (const QString& text : {LongText, LongWord}) {
        label.setText(text);
        const int least = label.fontMetrics().horizontalAdvance(text.trimmed()) / width;
        EXPECT_GE(label.WrappedHeight(width), least * label.fontMetrics().lineSpacing());
    }
}

TEST(PlainLabelTest, WhatDoesNotFitEndsInAnEllipsis) {
    PlainLabel label;
    const QSize size(200, label.fontMetrics().lineSpacing());
    const QString elided = label.fontMetrics().elidedText(LongText, Qt::ElideRight, size.width());
    ASSERT_TRUE(elided.endsWith(QChar(0x2026)));
    EXPECT_EQ(Picture(LongText, size), Picture(elided, size));
    EXPECT_NE(Picture(LongText, size), Picture(QString(), size));
}

TEST(PlainLabelTest, MarkupIsDrawnAsItStands) {
    const QSize size(200, 20);
    EXPECT_NE(Picture(QStringLiteral("<b>A</b>"), size), Picture(QStringLiteral("A"), size));
    EXPECT_NE(Picture(QStringLiteral("<img src=x>"), size), Picture(QString(), size));
}

TEST(PlainLabelTest, ItIsDrawnInTheColoursGiven) {
    PlainLabel label;
    label.setText(QString(20, QLatin1Char('W')));
    label.SetTextColour(QColor(236, 0, 0));
    label.SetBackground(QColor(192, 192, 192));
    label.resize(60, 20);
    const QImage image = label.grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1), QColor(192, 192, 192));
    bool red = false;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor pixel = image.pixelColor(x, y);
            red = red || (pixel.red() > 200 && pixel.green() < 60);
        }
    }
    EXPECT_TRUE(red);
}

TEST(EqualGapLayoutTest, TheGapIsWhatTheItemsLeaveDividedByOneMore) {
    QWidget frame;
    auto* layout = new EqualGapLayout(&frame, 10, AnyGap);
    QList<QWidget*> items;
    for (const int height : {20, 30, 17}) {
        items.append(new QWidget(&frame));
        items.constLast()->setFixedSize(50, height);
        items.constLast()->setMaximumWidth(1000);
        layout->addWidget(items.constLast());
    }
    for (int height = layout->minimumSize().height(); height < 400; height += 3) {
        layout->setGeometry({0, 0, 120, height});
        const int gap = (height - 67) / 4;
        EXPECT_EQ(items[0]->geometry(), QRect(10, gap, 100, 20));
        EXPECT_EQ(items[1]->geometry(), QRect(10, 2 * gap + 20, 100, 30));
        EXPECT_EQ(items[2]->geometry(), QRect(10, 3 * gap + 50, 100, 17));
    }
}

TEST(EqualGapLayoutTest, WhatIsTooMuchForTheGapsTheLastItemGets) {
    constexpr int largest = 12;
    QWidget frame;
    auto* layout = new EqualGapLayout(&frame, 0, largest);
    auto* upper = new QWidget(&frame);
    auto* lower = new QWidget(&frame);
    upper->setFixedHeight(20);
    lower->setMinimumHeight(30);
    layout->addWidget(upper);
    layout->addWidget(lower);
    for (int height = layout->minimumSize().height(); height < 400; ++height) {
        layout->setGeometry({0, 0, 120, height});
        const int gap = (height - upper->height() - lower->height()) / 3;
        EXPECT_LE(gap, largest);
        EXPECT_EQ(upper->y(), gap);
        EXPECT_EQ(lower->y(), 2 * gap + 20);
        EXPECT_EQ(lower->height(), std::max(30, height - 3 * largest - 20)) << height;
    }
}

TEST(EqualGapLayoutTest, AtItsSmallestNothingOverlaps) {
    QWidget frame;
    auto* layout = new EqualGapLayout(&frame, 10, AnyGap);
    auto* item = new QWidget(&frame);
    item->setFixedSize(50, 20);
    layout->addWidget(item);
    EXPECT_EQ(layout->minimumSize().width(), 70);
    EXPECT_GE(layout->minimumSize().height(), 20);
    EXPECT_EQ(layout->sizeHint(), layout->minimumSize());
}

TEST(EqualGapLayoutTest, ARowCountsAsOneItem) {
    QWidget frame;
    auto* layout = new EqualGapLayout(&frame, 0, AnyGap);
    auto* row = new QHBoxLayout();
    auto* left = new QWidget(&frame);
    auto* right = new QWidget(&frame);
    for (QWidget* item : {left, right}) {
        item->setFixedHeight(20);
        row->addWidget(item);
    }
    layout->AddRow(row);
    EXPECT_EQ(layout->count(), 1);
    layout->setGeometry({0, 0, 200, 60});
    EXPECT_EQ(left->y(), 20);
    EXPECT_EQ(right->y(), 20);
    EXPECT_LT(left->x(), right->x());
}
