// Where the controls of the main window stand, at every size of the window and of its font.

#include "ui/windows/FormTest.h"

#include "ui/windows/WindowFit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

using namespace CommonRoutines;
using namespace Ui;

namespace {

// What is left for the inside of a window on the smallest screen.
constexpr QSize SmallScreen(1366, 730);

class LayoutTest : public FormTest {
protected:
    void Resize(const QSize& size) {
        form->resize(size);
        QCoreApplication::processEvents();
    }
    // The place of a control in the window.
    QRect Place(const char* name) {
        const auto& control = Find<QWidget>(name);
        return {control.mapTo(form.get(), QPoint()), control.size()};
    }

    // Nothing overlaps, sticks out of what it stands on, or is smaller than its caption.
    void ExpectEverythingInItsPlace() {
        ExpectChildrenApart(*form);
        for (const auto* button : form->findChildren<QAbstractButton*>()) {
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->objectName().toStdString();
            EXPECT_GE(button->height(), button->sizeHint().height()) << button->objectName().toStdString();
        }
        for (const char* heading : {"Label1", "Label2", "Label3"}) {
            EXPECT_GE(Place(heading).width(), Find<QWidget>(heading).sizeHint().width()) << heading;
        }
    }

private:
    static std::string NameOf(const QWidget& widget) {
        return widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName().toStdString();
    }
    void ExpectChildrenApart(const QWidget& parent) {
        const auto children = parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (qsizetype i = 0; i < children.size(); ++i) {
            const QWidget& child = *children[i];
            EXPECT_TRUE(parent.rect().contains(child.geometry())) << NameOf(child) << " sticks out";
            for (qsizetype k = 0; k < i; ++k) {
                EXPECT_FALSE(child.geometry().intersects(children[k]->geometry()))
                    << NameOf(child) << " overlaps " << NameOf(*children[k]);
            }
            if (qobject_cast<const QAbstractScrollArea*>(&child) == nullptr) {
                ExpectChildrenApart(child);
            }
        }
    }
};

// The same window in a font half as large again, as people set it who see badly.
class LargeFontLayoutTest : public LayoutTest {
protected:
    LargeFontLayoutTest() {
        QFont font = m_usual;
        font.setPointSizeF(1.5 * m_usual.pointSizeF());
        QApplication::setFont(font);
        ShowForm();
    }
    ~LargeFontLayoutTest() override { QApplication::setFont(m_usual); }

private:
    const QFont m_usual = QApplication::font();
};

} // namespace

TEST_F(LayoutTest, EverythingIsInItsPlaceOnSmallAndLargeScreens) {
    for (const QSize& size : {form->minimumSizeHint(), SmallScreen, QSize(1920, 1040), QSize(3840, 2100)}) {
        SCOPED_TRACE(size.width());
        Resize(size);
        ASSERT_EQ(form->size(), size);
        ExpectEverythingInItsPlace();
    }
}

TEST_F(LayoutTest, LongTextsLeaveEverythingInItsPlace) {
    Resize(SmallScreen);
    const std::string longName = std::string(300, 'W') + " " + std::string(300, 'x');
    OpenContent("#QX_" + longName + "\r\n" + HeaderOf(longName) + "|" + longName + "_|%x\r\n");
    Key("lvAlpha", Qt::Key_Home);
    Key("lvVariations", Qt::Key_End);
    for (const char* label : {"lbStatus", "lbUndo", "lbWhyError"}) {
        Find<QLabel>(label).setText(QString::fromStdString(longName));
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(form->size(), SmallScreen);
    ExpectEverythingInItsPlace();
}

TEST_F(LayoutTest, MarkerButtonsHaveRoomForTheirLongerCaptions) {
    Resize(form->minimumSizeHint());
    OpenContent(HeaderOf("Alpha") + "|!%Both\r\n");
    Key("lvAlpha", Qt::Key_Home);
    Key("lvVariations", Qt::Key_Home);
    const auto& button = Find<QWidget>("cbDate");
    ASSERT_EQ(CaptionOf("cbDate"), QStringLiteral("Remove Date%"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return button.width() >= button.sizeHint().width(); }));
    ExpectEverythingInItsPlace();
}

TEST_F(LargeFontLayoutTest, TheSmallestWindowFitsASmallScreen) {
    const QSize smallest = form->minimumSizeHint();
    EXPECT_LE(smallest.width(), SmallScreen.width());
    EXPECT_LE(smallest.height(), SmallScreen.height());
}

TEST_F(LargeFontLayoutTest, EverythingIsInItsPlace) {
    for (const QSize& size : {form->minimumSizeHint(), SmallScreen, QSize(1920, 1040)}) {
        SCOPED_TRACE(size.width());
        Resize(size);
        ASSERT_EQ(form->size(), size);
        ExpectEverythingInItsPlace();
    }
}

TEST_F(LargeFontLayoutTest, TheListsStillShowSeveralRows) {
    constexpr int rows = 5;
    Resize(SmallScreen);
    for (const char* list : {"lvAlpha", "lvVariations", "LvChanges"}) {
        EXPECT_GT(Find<RowList>(list).viewport()->height(), rows * form->fontMetrics().lineSpacing()) << list;
    }
}

TEST_F(LayoutTest, TheEditRowIsStackedWithEqualGapsAtEveryHeight) {
    const std::vector<const char*> stack{"cbVariation", "cbSpelling", "cbValidinyears", "cbVNF",
                                         "tbEdit",      "cbOk",       "lbStatus"};
    for (int height = form->minimumSizeHint().height(); height < 1100; height += 37) {
        SCOPED_TRACE(height);
        Resize({1366, height});
        const QRect frame = Place("Frame1");
        int heights = 0;
        for (const char* name : stack) {
            heights += Place(name).height();
        }
        const int gap = (frame.height() - heights) / 8;
        int top = frame.top() + gap;
        for (const char* name : stack) {
            EXPECT_EQ(Place(name).top(), top) << name;
            top += Place(name).height() + gap;
        }
        EXPECT_EQ(Place("cbCancel").top(), Place("cbOk").top());
    }
}

TEST_F(LayoutTest, TheListsTakeTheRoomAndTheCommentsStayAtTheBottom) {
    Resize(SmallScreen);
    const int bottomGap = form->height() - Place("lvComments").bottom();
    const int commentHeight = Place("lvComments").height();
    const int listHeight = Place("lvAlpha").height();
    constexpr int more = 300;
    Resize({SmallScreen.width(), SmallScreen.height() + more});
    for (const char* name : {"lvComments", "lbComments", "lbWhyError"}) {
        EXPECT_EQ(form->height() - Place(name).bottom(), bottomGap) << name;
    }
    EXPECT_EQ(Place("lvComments").height(), commentHeight);
    EXPECT_EQ(Place("lvAlpha").height(), listHeight + more);
    EXPECT_GT(Place("lvComments").top(), Place("lvAlpha").bottom());
}

TEST_F(LayoutTest, TheFirstColumnsOfVariationsAndChangesAreTwiceAsWideAsTheirLists) {
    for (const QSize& size : {form->size(), QSize(1900, 1000)}) {
        Resize(size);
        for (const char* name : {"lvVariations", "LvChanges"}) {
            const auto& list = Find<RowList>(name);
            EXPECT_EQ(list.columnWidth(0), 2 * list.width()) << name;
        }
    }
}

TEST_F(LayoutTest, TheCommentColumnLeavesTwentySevenPixelsFree) {
    EXPECT_EQ(WindowFit::TwipsToPixels(400, 96), 27);
    ASSERT_EQ(form->logicalDpiX(), 96);
    const auto& list = Find<RowList>("lvComments");
    for (const QSize& size : {form->size(), QSize(1900, 1000)}) {
        Resize(size);
        EXPECT_EQ(list.columnWidth(1), list.width() - list.columnWidth(0) - 27);
    }
    OpenContent("#QX_SEAT x\r\n" + HeaderOf("Alpha") + "\r\n");
    EXPECT_EQ(list.columnWidth(1), list.width() - list.columnWidth(0) - 27);
}

TEST_F(LayoutTest, ADistrictColumnIsAsWideAsItsWidestTextOrItsHeading) {
    const std::string wide(60, 'W');
    OpenContent("A+" + wide + "+Kent+1837+3+9999+0+x+y\r\n" + wide + "+1++1837+3+9999+0+x+y\r\n");
    const auto& list = Find<RowList>("lvAlpha");
    const QFontMetricsF metrics(list.font());
    const auto expectWidth = [&](int column, const std::string& text) {
        EXPECT_EQ(list.columnWidth(column), qRound(metrics.horizontalAdvance(QString::fromStdString(text)))) << column;
    };
    expectWidth(0, wide + "W");
    expectWidth(1, wide + "WW");
    expectWidth(2, "CountyWW");
    expectWidth(5, "AbolishedWW");
}

TEST_F(LayoutTest, AWindowThatFitsTheScreenKeepsItsSize) {
    EXPECT_EQ(form->size(), QSize(1240, 680));
}

TEST_F(LayoutTest, AWindowTallerThanTheScreenIsFittedOnce) {
    form = std::make_unique<Form1>(desktop);
    form->LoadForm();
    const QRect available = form->screen()->availableGeometry();
    const int tooTall = form->screen()->geometry().height() + 200;
    form->resize(available.width(), tooTall);
    form->show();
    const int caption = form->style()->pixelMetric(QStyle::PM_TitleBarHeight);
    EXPECT_EQ(form->height(), available.height() - caption);
    EXPECT_EQ(form->y(), available.top());
    QCoreApplication::processEvents();
    ExpectEverythingInItsPlace();

    form->hide();
    form->resize(available.width(), tooTall);
    form->show();
    EXPECT_EQ(form->height(), tooTall);
}
