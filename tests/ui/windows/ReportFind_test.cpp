// Find in the report window.

#include "core/Ansi.h"
#include "ui/Text.h"
#include "ui/widgets/FindBar.h"
#include "ui/windows/ReportWindowTest.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <random>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class ReportFindTest : public ReportWindowTest {
protected:
    void Open() {
        Show();
        Activate(*window);
        Key("List1", Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(Find("tbFind").isVisible());
    }
    QLineEdit& Box() { return Find<QLineEdit>("tbFind"); }
    // All at once, as by pasting.
    void Put(const QString& text) {
        Box().setText(text);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !Count().contains(QStringLiteral("so far")); }, 60'000));
    }
    QString Count() { return TextOf("lbFound"); }
    QStringList Lines() { return Column("List1"); }
};

const QStringList All{QStringLiteral("First finding"), QStringLiteral("Second finding"), QStringLiteral("Third")};

} // namespace

TEST_F(ReportFindTest, TheBarIsHiddenUntilCtrlF) {
    Show();
    EXPECT_FALSE(Find("tbFind").isVisible());
    Activate(*window);
    Key("List1", Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_EQ(Lines(), All);
    EXPECT_EQ(Count(), QStringLiteral("3 of 3"));
    EXPECT_FALSE(Box().accessibleName().isEmpty());
}

TEST_F(ReportFindTest, TheLinesThatHoldTheTextAreShownWhileItIsTyped) {
    Open();
    Type("tbFind", QStringLiteral("FIND"));
    EXPECT_EQ(Lines(), (QStringList{All[0], All[1]}));
    EXPECT_EQ(Count(), QStringLiteral("2 of 3"));
    Type("tbFind", QStringLiteral("x"));
    EXPECT_EQ(Lines(), QStringList());
    EXPECT_EQ(Count(), QStringLiteral("0 of 3"));
    EXPECT_EQ(List().Hint(), QStringLiteral("No line contains this text."));
    Box().clear();
    EXPECT_EQ(Lines(), All);
    EXPECT_EQ(Count(), QStringLiteral("3 of 3"));
}

TEST_F(ReportFindTest, TextsAreTakenAsTheyAre) {
    report.items = {"", " ", "a.c", "abc", "<b>a</b>", "&lt;", "[a-z]*", "\\d|^$", std::string(100'000, 'x')};
    Open();
    const auto found = [&](const char* text) {
        Put(QString::fromLatin1(text));
        return Lines();
    };
    EXPECT_EQ(found("a.c"), QStringList{QStringLiteral("a.c")});
    EXPECT_EQ(found("<b>"), QStringList{QStringLiteral("<b>a</b>")});
    EXPECT_EQ(found("&"), QStringList{QStringLiteral("&lt;")});
    EXPECT_EQ(found("[a-z]*"), QStringList{QStringLiteral("[a-z]*")});
    EXPECT_EQ(found("\\d|^$"), QStringList{QStringLiteral("\\d|^$")});
    EXPECT_EQ(found(" "), QStringList{QStringLiteral(" ")});
    EXPECT_EQ(found(".*"), QStringList());
    Put(QString(30'000, QLatin1Char('X')));
    EXPECT_EQ(Lines().size(), 1);
}

TEST_F(ReportFindTest, ACharacterThatTheFileCannotHaveIsInNoLine) {
    report.items = {"Wh?t", "What"};
    Open();
    Put(QStringLiteral("?"));
    EXPECT_EQ(Lines().size(), 1);
    Put(QString(QChar(0x4E2D)));
    EXPECT_EQ(Lines(), QStringList());
    EXPECT_EQ(Count(), QStringLiteral("0 of 2"));
}

TEST_F(ReportFindTest, CtrlFAgainGoesToTheBox) {
    Open();
    Type("tbFind", QStringLiteral("find"));
    Key("tbFind", Qt::Key_Down);
    EXPECT_TRUE(List().hasFocus());
    Key("List1", Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_EQ(Box().selectedText(), QStringLiteral("find"));
    EXPECT_EQ(Lines().size(), 2);
}

TEST_F(ReportFindTest, EscInTheBarClosesTheBarAndShowsAllLinesAtTheSameOne) {
    Open();
    Type("tbFind", QStringLiteral("second"));
    Key("tbFind", Qt::Key_Return);
    EXPECT_EQ(Selected("List1"), QStringList{All[1]});
    Find("tbFind").setFocus();
    Key("tbFind", Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(Find("tbFind").isVisible());
    EXPECT_EQ(Lines(), All);
    EXPECT_EQ(Selected("List1"), QStringList{All[1]});
    EXPECT_TRUE(List().hasFocus());
    Key("List1", Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Box().text(), QString());
    EXPECT_EQ(Lines(), All);
}

TEST_F(ReportFindTest, TheLineThatWasChosenIsChosenAgainAlthoughItWasHiddenMeanwhile) {
    Show();
    Activate(*window);
    Key("List1", Qt::Key_End);
    Key("List1", Qt::Key_F, Qt::ControlModifier);
    Type("tbFind", QStringLiteral("first"));
    EXPECT_EQ(Selected("List1"), QStringList());
    Key("tbFind", Qt::Key_Escape);
    EXPECT_EQ(Selected("List1"), QStringList{All[2]});
}

TEST_F(ReportFindTest, EscInTheListClosesTheReport) {
    Open();
    Type("tbFind", QStringLiteral("first"));
    Key("tbFind", Qt::Key_Return);
    Key("List1", Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ReportFindTest, TheButtonClosesTheBarAlone) {
    Open();
    Type("tbFind", QStringLiteral("first"));
    Click("cbCloseFind");
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(Find("tbFind").isVisible());
    EXPECT_EQ(Lines(), All);
}

TEST_F(ReportFindTest, EnterInTheBoxChoosesTheFirstLine) {
    Open();
    Type("tbFind", QStringLiteral("find"));
    Key("tbFind", Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(Selected("List1"), QStringList{All[0]});
}

TEST_F(ReportFindTest, EnterInTheBoxStaysThereWhereNothingIsFound) {
    Open();
    Type("tbFind", QStringLiteral("nothing"));
    Key("tbFind", Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(Box().hasFocus());
}

TEST_F(ReportFindTest, CtrlCCopiesTheChosenOnesOfTheFoundLines) {
    report.items = {"First finding", "Between", "Second\r\nfinding", "Third"};
    Open();
    Type("tbFind", QStringLiteral("find"));
    Key("tbFind", Qt::Key_Return);
    Key("List1", Qt::Key_A, Qt::ControlModifier);
    Key("List1", Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("First finding\nSecond finding"));
    Key("List1", Qt::Key_End);
    Key("List1", Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Second finding"));
}

TEST_F(ReportFindTest, PrintAndSaveListGiveTheWholeList) {
    Open();
    Type("tbFind", QStringLiteral("third"));
    Click("cbPrint");
    EXPECT_EQ(desktop.printed, output);
    desktop.ExpectSave("/data/list.txt");
    Click("cbSave");
    EXPECT_TRUE(desktop.files["/data/list.txt"].ends_with("First finding\r\nSecond\r\nfinding\r\nThird\r\n"));
    EXPECT_EQ(Lines().size(), 1);
}

// The lines are made one by one and take a while, as very many do.
class SlowReportTest : public ReportFindTest {
protected:
    static constexpr std::size_t LineCount = 3000;

    void OpenSlow() {
        report.items = {LineCount, [this](std::size_t place) {
                            if (isSlow) {
                                QElapsedTimer clock;
                                for (clock.start(); clock.nsecsElapsed() < 100'000;) {
                                }
                            }
                            ++made;
                            return std::to_string(place) + (place % 1000 == 500 ? " rare" : " usual");
                        }};
        Open();
        isSlow = true;
    }

    bool isSlow = false;
    std::size_t made = 0;
};

TEST_F(SlowReportTest, AKeyIsDoneWithBeforeAllLinesHaveBeenLookedAt) {
    OpenSlow();
    made = 0;
    Type("tbFind", QStringLiteral("u"));
    EXPECT_LT(made, LineCount / 2);
    EXPECT_GT(List().model()->rowCount(), 0);
    EXPECT_TRUE(Count().endsWith(QStringLiteral(" of 3,000 so far"))) << Count().toStdString();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Count() == QStringLiteral("2,997 of 3,000"); }));
}

TEST_F(SlowReportTest, ANewerKeyEndsTheOlderSearch) {
    OpenSlow();
    Type("tbFind", QStringLiteral("u"));
    for (int slice = 0; slice < 3; ++slice) { // whose lines wait until there are enough to be shown
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(Count().contains(QStringLiteral("so far")));
    made = 0;
    Type("tbFind", QStringLiteral("x"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Count() == QStringLiteral("0 of 3,000"); }));
    EXPECT_GE(made, LineCount);
    EXPECT_LT(made, LineCount + 10);
    EXPECT_EQ(Lines(), QStringList());
}

TEST_F(SlowReportTest, EnterWaitsForTheFirstLine) {
    OpenSlow();
    Put(QString());
    Box().setText(QStringLiteral("RARE"));
    Key("tbFind", Qt::Key_Return);
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([this] { return List().hasFocus(); }));
    EXPECT_EQ(Selected("List1"), QStringList{QStringLiteral("500 rare")});
    EXPECT_TRUE(QTest::qWaitFor([this] { return Count() == QStringLiteral("3 of 3,000"); }));
    EXPECT_EQ(Selected("List1"), QStringList{QStringLiteral("500 rare")});
}

TEST_F(SlowReportTest, TheWindowMayCloseInTheMiddleOfASearch) {
    OpenSlow();
    Type("tbFind", QStringLiteral("u"));
    window.reset();
    made = 0;
    QTest::qWait(50);
    EXPECT_EQ(made, 0U);
}

TEST_F(ReportFindTest, ShowsTheLinesThatAPlainLoopFinds) {
    std::mt19937 random(3);
    const auto text = [&](std::size_t most) {
        static const std::string characters = "abAB. \xE9\xC9";
        std::string made;
        for (auto length = random() % (most + 1); length > 0; --length) {
            made += characters[random() % characters.size()];
        }
        return made;
    };
    std::vector<std::string> texts(500);
    std::generate(texts.begin(), texts.end(), [&] { return text(12); });
    report.items = texts;
    Open();
    for (int round = 0; round < 200; ++round) {
        const std::string sought = text(3);
        QStringList expected;
        for (const std::string& line : texts) {
            if (Ansi::Upper(line).find(Ansi::Upper(sought)) != std::string::npos) {
                expected.append(Text::ForList(line));
            }
        }
        Put(Text::ToQt(sought));
        ASSERT_EQ(Lines(), expected) << sought;
    }
}
