// Texts of the data are shown as they are, whatever they look like.

#include "ui/windows/ProposalsTest.h"

#include "ui/Text.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QTextDocument>
#include <QToolTip>

using namespace CommonRoutines;
using namespace Ui;

namespace {

// What the toolkit makes of a tooltip.
QString Rendered(const QString& toolTip) {
    if (!Qt::mightBeRichText(toolTip)) {
        return toolTip;
    }
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

class PlainTextTest : public ProposalsTest {};

const std::vector<std::string> LikeMarkup{"<img src=x>", "<b>A</b>", "A &amp; B", "&lt;", "<!-- A -->", "A<br>B"};

} // namespace

TEST_F(PlainTextTest, TextsThatLookLikeMarkupAreShownAsTheyAre) {
    for (const std::string& text : LikeMarkup) {
        SCOPED_TRACE(text);
        const QString shown = QString::fromStdString(text);
        OpenContent("#QX_" + text + " " + text + "\r\n" + HeaderOf(text) + "|" + text + "|!" + text + "\r\n");
        Key("lvAlpha", Qt::Key_Home);
        Process(text + "\r\n");
        EXPECT_EQ(TextOf("lbApplyTo"), shown);
        EXPECT_EQ(Column("lvAlpha"), QStringList{shown});
        EXPECT_TRUE(Column("lvVariations").contains(shown));
        EXPECT_EQ(Column("LvChanges"), QStringList{shown});
        ClickRow("lvVariations", shown);
        EXPECT_EQ(Find<QLineEdit>("tbEdit").text(), shown);
        ClickRow("lvAlpha", shown); // back to where a file can be opened
    }
}

TEST_F(PlainTextTest, TooltipsShowTheTextsAsTheyAre) {
    for (const std::string& text : LikeMarkup) {
        SCOPED_TRACE(text);
        OpenContent("#QX_NOTE " + text + "\r\n" + HeaderOf(text) + "|" + text + "\r\n");
        Key("lvAlpha", Qt::Key_Home);
        Process(text + "\r\n");
        const QString shown = QString::fromStdString(text);
        for (const auto& [name, column] :
             {std::pair{"lvAlpha", 0}, {"lvVariations", 0}, {"LvChanges", 0}, {"lvComments", 1}}) {
            auto& list = Find<RowList>(name);
            list.setColumnWidth(column, 1);
            const QString toolTip = list.ToolTipOf(list.model()->index(0, column));
            EXPECT_TRUE(toolTip.startsWith(shown)) << name << ": " << toolTip.toStdString();
            EXPECT_EQ(Rendered(Text::ForToolTip(toolTip)), toolTip) << name;
        }
    }
}

TEST_F(FormTest, TooltipsAndScreenReadersSayTheStateThatTheColourShows) {
    OpenContent(HeaderOf("Alpha") + "|Inva lid |War_n|Dup|dup|unUsual\r\n" + HeaderOf("Beta") + "|Betta\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    const auto toolTip = [this](const char* list, int row) {
        const auto& rows = Find<RowList>(list);
        return rows.ToolTipOf(rows.model()->index(row, 0));
    };
    const auto spoken = [this](const char* list, int row) {
        return Find<RowList>(list).model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(toolTip("lvAlpha", 0), QStringLiteral("invalid: 1, duplicate: 1, warning: 1"));
    EXPECT_EQ(spoken("lvAlpha", 0), QStringLiteral("Alpha, has problems"));
    EXPECT_EQ(toolTip("lvAlpha", 1), QString()); // it can be read
    EXPECT_EQ(spoken("lvAlpha", 1), QStringLiteral("Beta"));
    const QStringList words{QStringLiteral("Dup - duplicate"), QStringLiteral("dup - duplicate"),
                            QStringLiteral("Inva lid  - invalid"), QStringLiteral("unUsual - unusual capitals"),
                            QStringLiteral("War_n - warning")};
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(spoken("lvVariations", row), words[row]);
    }
    const QStringList reasons{QStringLiteral("duplicate: Duplicates dup"), QStringLiteral("duplicate: Duplicates Dup"),
                              QStringLiteral("invalid: Trailing space"), QStringLiteral("unusual capitals"),
                              QStringLiteral("warning: Should have !")};
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(toolTip("lvVariations", row).toStdString(), reasons[row].toStdString());
    }
}

TEST_F(FormTest, TheToolTipOfAProposalSaysWhy) {
    OpenContent(HeaderOf("Alpha") + "|Alfa\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    desktop.files["/changes/new.txt"] = "<TR><TD>Names</TD>\n<TR><TD class=x>Elm</TD>\n<TR><TD class=x>Smi?h</TD>\n"
                                        "<TR><TD class=x>Sm_th</TD>\n<TR><TD class=x>Sm_ t?h</TD>\n";
    desktop.ExpectOpen("/changes/new.txt");
    Click("btnProcess");
    const QStringList reasons{QStringLiteral("a heading, which is never applied"), QString(),
                              QStringLiteral("invalid: Question Mark"), QStringLiteral("warning: Should have !"),
                              QStringLiteral("invalid: Question Mark; Should have !")};
    const auto& list = Find<RowList>("LvChanges");
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(list.ToolTipOf(list.model()->index(row, 0)), reasons[row]) << row;
    }
}

TEST_F(FormTest, TheCommentTypesSayWhatTheyAreForAndWhatWouldEnableThem) {
    OpenContent("#QX_NOTE text\r\n" + HeaderOf("Alpha") + "|Alfa\r\n");
    const QString purpose = QStringLiteral("Lists only the districts that have a comment of the chosen type");
    auto& list = Find<RowList>("lbComments");
    EXPECT_EQ(list.accessibleDescription(), purpose);
    const QPoint place = list.visualRect(list.model()->index(0, 0)).center();
    QHelpEvent help(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
    QApplication::sendEvent(list.viewport(), &help);
    EXPECT_EQ(Rendered(QToolTip::text()), purpose);
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    EXPECT_EQ(list.accessibleDescription(), purpose + QStringLiteral(" - first Cancel (Esc)"));
    QToolTip::hideText();
}

TEST_F(FormTest, TheOptionsSayThatTheyFollowTheText) {
    for (const char* box : {"cbVariation", "cbSpelling", "cbValidinyears", "cbVNF"}) {
        const QString toolTip = Find(box).toolTip();
        EXPECT_TRUE(toolTip.startsWith(QStringLiteral("Ticked for a text"))) << box;
        EXPECT_TRUE(toolTip.endsWith(QStringLiteral("To change it, change the text."))) << box;
    }
}

TEST_F(FormTest, ALabelHasAToolTipOnlyWhereItsTextIsCutOff) {
    OpenContent(HeaderOf("Alpha") + "\r\n" + HeaderOf(std::string(300, 'x')) + "\r\n");
    auto& label = Find<QLabel>("lbApplyTo");
    const auto hover = [&] {
        QHelpEvent help(QEvent::ToolTip, QPoint(2, 2), label.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&label, &help);
    };
    ClickRow("lvAlpha", QString(300, QLatin1Char('x')));
    hover();
    EXPECT_EQ(Rendered(QToolTip::text()), QString(300, QLatin1Char('x')));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    hover();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(FormTest, AToolTipComesUpOverARowThatHasSomethingToSayAndOverNoOther) {
    OpenContent(HeaderOf("Alpha") + "|Inva lid |Sound\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    auto& list = Find<RowList>("lvVariations");
    const auto hover = [&](int row) {
        const QPoint place = list.visualRect(list.model()->index(row, 0)).topLeft() + QPoint(8, 8);
        QHelpEvent help(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
        QApplication::sendEvent(list.viewport(), &help);
    };
    hover(0);
    ASSERT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(Rendered(QToolTip::text()), QStringLiteral("invalid: Trailing space"));
    hover(1);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST(TextTest, ATooltipKeepsEveryBlank) {
    for (const char* text : {"A  B", " A", "A ", "<  b >"}) {
        EXPECT_EQ(Rendered(Text::ForToolTip(QString::fromLatin1(text))), QString::fromLatin1(text));
    }
}

TEST(TextTest, InAListControlCharactersAreVisibleAndALineBreakIsABlank) {
    EXPECT_EQ(Text::ForList("a\tb\r\nc\nd\x7F"), QStringLiteral("a\u21E5b c\uFFFDd\uFFFD"));
}

TEST(TextTest, InABoxALineBreakIsALineBreak) {
    EXPECT_EQ(Text::ForBox("a\r\nb\tc"), QStringLiteral("a\nb\tc"));
}

TEST(TextTest, ATextOfUnreasonableLengthIsCutOff) {
    const std::string longText(100000, 'x');
    for (const QString& shown : {Text::ForBox(longText), Text::ForList(longText)}) {
        EXPECT_LT(shown.size(), 5000);
        EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
    }
    EXPECT_EQ(Text::ForList(std::string(2000, 'x')), QString(2000, QLatin1Char('x')));
}

// What follows a long line in a prompt tells the user what to do.
TEST(TextTest, ALineOfUnreasonableLengthDoesNotTakeTheOthersWithIt) {
    const QString shown = Text::ForBox("First\r\n" + std::string(100000, 'x') + "\r\nQuit = Stop\r\n");
    EXPECT_TRUE(shown.startsWith(QStringLiteral("First\nxxx")));
    EXPECT_TRUE(shown.endsWith(QStringLiteral("\u2026\nQuit = Stop\n")));
    EXPECT_EQ(Text::ForBox("a\r\nb"), QStringLiteral("a\nb"));
    EXPECT_EQ(Text::ForBox(""), QString());
}

TEST(TextTest, EveryByteComesBackFromTheToolkit) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(Text::FromQt(Text::ToQt(all)), all);
}

TEST(TextTest, ACharacterThatTheDataFilesLackIsOneQuestionMark) {
    EXPECT_EQ(Text::FromQt(QStringLiteral("a\u0105b")), "a?b");
    EXPECT_EQ(Text::FromQt(QString::fromUcs4(U"a\U0001F600b")), "a?b");
}
