// Where the controls of the main window stand, at every size of the window and of its font.

#include "ui/windows/FormTest.h"

#include "ui/Rendered.h"
#include "ui/lists/StateColours.h"
#include "ui/widgets/WindowInside.h"
#include "ui/windows/WindowFit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
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

    [[nodiscard]] QWidget& Inside() const { return *form->findChild<WindowInside*>()->widget(); }
    // The smallest window that needs not be scrolled.
    [[nodiscard]] QSize Smallest() const { return Inside().minimumSizeHint(); }
    // Puts a new window on the screen of this size, before it is shown.
    void ShowOnScreen(const QSize& size) {
        form = std::make_unique<Form1>(desktop);
        form->LoadForm();
        for (QScreen* screen : QGuiApplication::screens()) {
            if (screen->size() == size) {
                form->setScreen(screen);
                form->move(screen->geometry().topLeft());
            }
        }
        form->show();
        QCoreApplication::processEvents();
        ASSERT_EQ(form->screen()->size(), size);
    }

    // Nothing overlaps, sticks out of what it stands on, or is smaller than its caption.
    void ExpectEverythingInItsPlace() {
        ExpectChildrenApart(Inside());
        for (const auto* button : form->findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || button->objectName().isEmpty()) {
                continue; // hidden, or the toolkit's own part of a control
            }
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
        auto children = parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        children.removeIf([](const QWidget* child) { return child->isHidden(); });
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
    for (const QSize& size : {Smallest(), SmallScreen, QSize(1920, 1040), QSize(3840, 2100)}) {
        SCOPED_TRACE(size.width());
        Resize(size);
        ASSERT_EQ(form->size(), size);
        ExpectEverythingInItsPlace();
    }
}

TEST_F(LayoutTest, TheFindBarTakesRoomOnlyWhileItIsOpen) {
    for (const QSize size : {Smallest(), QSize(1366, 768), QSize(1920, 1080)}) {
        Resize(size);
        const std::vector<QRect> before{Place("lvAlpha"), Place("lvVariations"), Place("LvChanges"),
                                        Place("lvComments")};
        Key("cbOpen", Qt::Key_F, Qt::ControlModifier);
        QCoreApplication::processEvents();
        ASSERT_TRUE(Find("tbFind").isVisible());
        ExpectEverythingInItsPlace();
        EXPECT_GE(Place("lvFound").height(), 100);
        Key("lvFound", Qt::Key_Escape);
        QCoreApplication::processEvents();
        const std::vector<QRect> after{Place("lvAlpha"), Place("lvVariations"), Place("LvChanges"),
                                       Place("lvComments")};
        EXPECT_EQ(after, before);
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
    Resize(Smallest());
    OpenContent(HeaderOf("Alpha") + "|!%Both\r\n");
    Key("lvAlpha", Qt::Key_Home);
    Key("lvVariations", Qt::Key_Home);
    const auto& button = Find<QWidget>("cbDate");
    ASSERT_EQ(CaptionOf("cbDate"), QStringLiteral("Remove Date%"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return button.width() >= button.sizeHint().width(); }));
    ExpectEverythingInItsPlace();
}

TEST_F(LargeFontLayoutTest, TheSmallestWindowFitsASmallScreen) {
    const QSize smallest = Smallest();
    EXPECT_LE(smallest.width(), SmallScreen.width());
    EXPECT_LE(smallest.height(), SmallScreen.height());
}

TEST_F(LargeFontLayoutTest, EverythingIsInItsPlace) {
    for (const QSize& size : {Smallest(), SmallScreen, QSize(1920, 1040)}) {
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
    for (int height = Smallest().height(); height < 1100; height += 37) {
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

TEST_F(LayoutTest, TheStatusHasTheRoomBelowTheEditRow) {
    Resize({1366, 1000});
    const QRect frame = Place("Frame1");
    const int gap = Place("cbVariation").top() - frame.top();
    EXPECT_LT(gap, 30);
    EXPECT_EQ(frame.bottom() - Place("lbStatus").bottom(), gap);
    EXPECT_GT(Place("lbStatus").height(), 300);
}

TEST_F(LayoutTest, TheCommentsStayAtTheBottomAndHaveAShareInATallerWindow) {
    const auto grown = [&](int from, int to, const char* name) {
        Resize({1366, from});
        const int before = Place(name).height();
        Resize({1366, to});
        return Place(name).height() - before;
    };
    Resize(SmallScreen);
    const int bottomGap = form->height() - Place("lvComments").bottom();
    Resize({1366, 1300});
    for (const char* name : {"lvComments", "lbComments", "lbWhyError"}) {
        EXPECT_EQ(form->height() - Place(name).bottom(), bottomGap) << name;
    }
    EXPECT_GT(Place("lvComments").top(), Place("lvAlpha").bottom());
    // A small window takes what it lacks from the lists alone.
    EXPECT_EQ(grown(540, 640, "lvAlpha"), 100);
    EXPECT_EQ(grown(540, 640, "lvComments"), 0);
    EXPECT_EQ(grown(900, 1300, "lvAlpha"), 300);
    EXPECT_EQ(grown(900, 1300, "lvComments"), 100);
}

TEST_F(LayoutTest, AWideWindowHasRoomForTheDistrictsThenForTheTextThenForTheProposals) {
    const auto grown = [&](int from, int to, const char* name) {
        Resize({from, 700});
        const int before = Place(name).width();
        Resize({to, 700});
        return Place(name).width() - before;
    };
    EXPECT_EQ(grown(900, 1000, "lvAlpha"), 100);
    EXPECT_EQ(grown(1320, 1340, "tbEdit"), 20);
    EXPECT_EQ(grown(1400, 1420, "LvChanges"), 20);
    EXPECT_GE(grown(1366, 1920, "tbEdit"), 150);
    for (const char* name : {"lvAlpha", "lvVariations", "tbEdit", "LvChanges"}) {
        EXPECT_GT(grown(1700, 1920, name), 20) << name;
    }
}

TEST_F(LayoutTest, AllColumnsOfTheDistrictsAreSeenInTheFirstSize) {
    for (const char* name : {"/gazetteer-gb.txt", "/practice.txt"}) {
        QFile file(QStringLiteral(QUEXAL_DATA_DIR) + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        // The lines that raise questions are left out.
        std::string content;
        for (const QByteArray& line : file.readAll().split('\n')) {
            const auto fields = line.split('|').constFirst().split('+');
            if (fields.size() > 6 && fields[6] != "5" && !line.contains("|%")) {
                content += line.toStdString() + '\n';
            }
        }
        OpenContent(content);
        QCoreApplication::processEvents();
        auto& list = Find<RowList>("lvAlpha");
        ASSERT_GT(list.model()->rowCount(), 5) << name;
        EXPECT_LE(list.header()->length(), list.viewport()->width()) << name;
        EXPECT_FALSE(list.horizontalScrollBar()->isVisible()) << name;
    }
}

TEST_F(LayoutTest, WithoutAFileTheHeadingsOfTheDistrictsAreAllSeen) {
    const auto& list = Find<RowList>("lvAlpha");
    EXPECT_LE(list.header()->length(), list.viewport()->width());
    EXPECT_GE(list.columnWidth(5), list.fontMetrics().horizontalAdvance(QStringLiteral("AbolishedW")));
}

TEST_F(LayoutTest, ListsAndTheEditRowBeginAndAreApartAlike) {
    for (const char* name : {"lvVariations", "Frame1", "LvChanges"}) {
        EXPECT_EQ(Place(name).top(), Place("lvAlpha").top()) << name;
    }
    const int gap = Place("lvVariations").left() - Place("lvAlpha").right();
    EXPECT_EQ(Place("Frame1").left() - Place("lvVariations").right(), gap);
    EXPECT_EQ(Place("LvChanges").left() - Place("Frame1").right(), gap);
    EXPECT_EQ(Place("lvComments").left() - Place("lbComments").right(), gap);
    EXPECT_EQ(Place("lbWhyError").left() - Place("lvComments").right(), gap);
}

TEST_F(LayoutTest, HeadingsBeginWhereTheTextsOfTheirListsBegin) {
    OpenContent(HeaderOf("HHHH") + "|HHHH\r\n");
    Key("lvAlpha", Qt::Key_Home);
    auto& heading = dynamic_cast<QLabel&>(Find<QLabel>("Label1"));
    heading.setText(QStringLiteral("HHHH"));
    const auto edge = [](QWidget& widget, const QRect& part) {
        const QImage image = Rendered::Of(widget, part);
        return part.left() + Rendered::LeftEdge(image, image.pixelColor(image.width() - 1, 0));
    };
    const int ofHeading = heading.x() + edge(heading, heading.rect());
    auto& list = Find<RowList>("lvAlpha");
    const QRect row = list.visualRect(list.model()->index(0, 0));
    EXPECT_EQ(edge(*list.viewport(), row.adjusted(4, 2, -2, -2)) + list.frameWidth(), ofHeading);
}

TEST_F(LayoutTest, WhatIsEditedIsSaidAboveTheEditRow) {
    const QRect doing = Place("lbDoing");
    EXPECT_EQ(doing.left(), Place("Frame1").left());
    EXPECT_EQ(doing.top(), Place("Label1").top());
    EXPECT_EQ(doing.height(), Place("Label1").height());
    EXPECT_EQ(Find<QLabel>("lbDoing").textFormat(), Qt::PlainText);
    EXPECT_EQ(TextOf("lbDoing"), QString());
    OpenContent(HeaderOf("Alpha") + "|Alfa\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    Click("cbAdd");
    EXPECT_EQ(TextOf("lbDoing"), QStringLiteral("Adding to Alpha"));
    Click("cbCancel");
    EXPECT_EQ(TextOf("lbDoing"), QString());
}

TEST_F(LayoutTest, VariationsThatStayChosenAfterACommandLookLikeIt) {
    OpenContent(HeaderOf("Alpha") + "|Alfa\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    auto& list = Find<RowList>("lvVariations");
    const auto ground = [&] {
        const QRect row = list.visualRect(list.model()->index(0, 0));
        return Rendered::Of(*list.viewport()).pixelColor(list.viewport()->width() - 8, row.center().y());
    };
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    EXPECT_EQ(ground(), StateColours::ChosenGround(list.palette(), true));
    Click("cbShriek");
    ASSERT_FALSE(list.SelectedRows().empty());
    EXPECT_EQ(ground(), StateColours::ChosenGround(list.palette(), false));
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
    expectWidth(2, "WWCounty");
    expectWidth(5, "WWAbolished");
}

TEST_F(LayoutTest, AWindowThatFitsTheScreenKeepsItsSize) {
    EXPECT_EQ(form->size(), QSize(1360, 660));
    ShowOnScreen({1366, 768});
    EXPECT_EQ(form->size(), QSize(1360, 660));
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

TEST_F(LayoutTest, NothingRunsOffASmallScreen) {
    for (const QSize& size : {QSize(1366, 768), QSize(1280, 720), QSize(1024, 768), QSize(683, 384)}) {
        SCOPED_TRACE(size.width());
        ShowOnScreen(size);
        EXPECT_TRUE(form->screen()->availableGeometry().contains(form->frameGeometry()));
        ExpectEverythingInItsPlace();
        // What is not seen is reached by a scroll bar.
        const auto& inside = *form->findChild<WindowInside*>();
        EXPECT_EQ(inside.horizontalScrollBar()->isVisible(), Inside().width() > inside.viewport()->width());
        EXPECT_EQ(inside.verticalScrollBar()->isVisible(), Inside().height() > inside.viewport()->height());
        EXPECT_EQ(Inside().width() > inside.viewport()->width(), size.width() < 1000);
    }
}
