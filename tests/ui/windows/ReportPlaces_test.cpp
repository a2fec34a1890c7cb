// Lines of a report that lead to the places which they name.

#include "ui/machine/DesktopTest.h"
#include "ui/windows/ReportWindowTest.h"

#include <QLineEdit>
#include <QPushButton>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class ReportPlacesTest : public ReportWindowTest {
protected:
    // The first two lines name a place.
    ReportPlacesTest() {
        report.placeOf = [](std::size_t line) {
            return line < 2 ? ReportPlace{static_cast<std::int32_t>(line) + 7, 3} : ReportPlace{};
        };
    }
    void ShowActive() {
        Show();
        Activate(*window);
    }
    void DoubleClick(int row) {
        ClickRow("List1", row);
        const QPoint place = List().visualRect(List().model()->index(row, 0)).center();
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    bool CloseIsDefault() { return Find<QPushButton>("cbClose").isDefault(); }
};

} // namespace

TEST_F(ReportPlacesTest, EnterOnAChosenLineGoesToItsPlace) {
    ShowActive();
    Key("List1", Qt::Key_Down);
    Key("List1", Qt::Key_Down);
    Key("List1", Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), (ReportPlace{8, 3}));
    EXPECT_EQ(window->ChosenLine(), 1U);
}

TEST_F(ReportPlacesTest, TheEnterOfTheNumberBlockDoesTheSame) {
    ShowActive();
    Key("List1", Qt::Key_Down);
    Key("List1", Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), (ReportPlace{7, 3}));
}

TEST_F(ReportPlacesTest, ADoubleClickGoesToThePlaceOfItsLine) {
    ShowActive();
    DoubleClick(1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), (ReportPlace{8, 3}));
}

TEST_F(ReportPlacesTest, ADoubleClickOnALineWithoutAPlaceDoesNothing) {
    ShowActive();
    DoubleClick(2);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), std::nullopt);
}

TEST_F(ReportPlacesTest, EnterClosesTheReportWhereNoLineIsChosen) {
    ShowActive();
    EXPECT_TRUE(CloseIsDefault());
    Key("List1", Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), std::nullopt);
    EXPECT_EQ(window->ChosenLine(), std::nullopt);
}

TEST_F(ReportPlacesTest, EnterClosesTheReportOnALineWithoutAPlace) {
    ShowActive();
    Key("List1", Qt::Key_End);
    EXPECT_TRUE(CloseIsDefault());
    Key("List1", Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), std::nullopt);
}

TEST_F(ReportPlacesTest, EnterOnAButtonClosesTheReportAlsoWhereALineIsChosen) {
    for (const char* button : {"cbPrint", "cbSave", "cbClose"}) {
        ShowActive();
        Key("List1", Qt::Key_Down);
        EXPECT_FALSE(CloseIsDefault());
        Find(button).setFocus();
        EXPECT_TRUE(CloseIsDefault());
        Key(button, Qt::Key_Return);
        EXPECT_FALSE(window->isVisible()) << button;
        EXPECT_EQ(window->WantedPlace(), std::nullopt);
        EXPECT_TRUE(desktop.printed.empty());
    }
}

TEST_F(ReportPlacesTest, TheGroundOfCloseShowsWhetherEnterPressesIt) {
    ShowActive();
    EXPECT_TRUE(CloseIsDefault());
    Key("List1", Qt::Key_Down);
    EXPECT_FALSE(CloseIsDefault());
    Key("List1", Qt::Key_End);
    EXPECT_TRUE(CloseIsDefault());
    Key("List1", Qt::Key_Home);
    EXPECT_FALSE(CloseIsDefault());
    Find("cbClose").setFocus();
    EXPECT_TRUE(CloseIsDefault());
    List().setFocus();
    EXPECT_FALSE(CloseIsDefault());
    Key("List1", Qt::Key_F, Qt::ControlModifier);
    Type("tbFind", QStringLiteral("x"));
    EXPECT_TRUE(CloseIsDefault());
}

TEST_F(ReportPlacesTest, AFoundLineLeadsToItsOwnPlace) {
    ShowActive();
    Key("List1", Qt::Key_F, Qt::ControlModifier);
    Type("tbFind", QStringLiteral("second"));
    Key("tbFind", Qt::Key_Return);
    Key("List1", Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), (ReportPlace{8, 3}));
    EXPECT_EQ(window->ChosenLine(), 1U);
}

TEST_F(ReportPlacesTest, TheListSaysSoOnlyWhereLinesNamePlaces) {
    Show();
    EXPECT_EQ(List().toolTip(), QStringLiteral("Enter or a double click on a line goes to its district"));
    EXPECT_EQ(List().accessibleDescription(), List().toolTip());
    report.placeOf = {};
    Show();
    EXPECT_EQ(List().toolTip(), QString());
    EXPECT_EQ(List().accessibleDescription(), QString());
}

TEST_F(ReportPlacesTest, WithoutPlacesEnterAlwaysClosesTheReport) {
    report.placeOf = {};
    ShowActive();
    Key("List1", Qt::Key_Down);
    EXPECT_TRUE(CloseIsDefault());
    Key("List1", Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->WantedPlace(), std::nullopt);
}

namespace {

// Where reports open that follow one another.
class ReportsLeftTest : public DesktopTest {
protected:
    // Shows a report of lines that are numbers, and leaves it by these keys.
    std::optional<ReportPlace> Show(const std::string& caption, std::size_t first, const std::vector<Qt::Key>& keys) {
        const auto line = [=](std::size_t place) { return std::to_string(first + place); };
        const auto placeOf = [](std::size_t place) { return ReportPlace{static_cast<std::int32_t>(place) + 1, 0}; };
        guide.Next([this, keys](QWidget& dialogue) {
            auto& list = *dialogue.findChild<RowList*>();
            opened = list.SelectedRows();
            isSeen = !opened.empty() && list.viewport()->rect().contains(list.visualRect(list.currentIndex()).center());
            for (const Qt::Key key : keys) {
                QTest::keyClick(&list, key);
            }
        });
        return desktop.ShowReport({caption, {1000, line}, true, placeOf});
    }

    std::vector<int> opened;
    bool isSeen = false;
};

} // namespace

TEST_F(ReportsLeftTest, AFirstReportOpensWithNothingChosen) {
    EXPECT_EQ(Show("Check", 0, {Qt::Key_Escape}), std::nullopt);
    EXPECT_EQ(opened, std::vector<int>{});
    EXPECT_EQ(Show("Check", 0, {Qt::Key_Escape}), std::nullopt);
    EXPECT_EQ(opened, std::vector<int>{});
}

TEST_F(ReportsLeftTest, TheNextReportOfAKindOpensWhereTheLastOneWasLeft) {
    EXPECT_EQ(Show("Check", 0, {Qt::Key_End, Qt::Key_Up, Qt::Key_Return}), (ReportPlace{999, 0}));
    Show("Other", 0, {Qt::Key_Escape});
    EXPECT_EQ(opened, std::vector<int>{});
    Show("Check", 0, {Qt::Key_Escape});
    EXPECT_EQ(opened, std::vector<int>{998});
    EXPECT_TRUE(isSeen);
}

TEST_F(ReportsLeftTest, TheSameLineIsFoundAtItsNewPlace) {
    Show("Check", 0, {Qt::Key_End, Qt::Key_Escape});
    Show("Check", 300, {Qt::Key_Escape});
    EXPECT_EQ(opened, std::vector<int>{699});
    Show("Check", 5000, {Qt::Key_Escape});
    EXPECT_EQ(opened, std::vector<int>{699});
}
