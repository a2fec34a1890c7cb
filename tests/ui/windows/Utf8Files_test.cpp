// A data file in UTF-8, as the user of the window meets it.

#include "ui/windows/EditingTest.h"

#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScopeGuard>
#include <QStyleHints>

using namespace CommonRoutines;
using namespace Ui;

namespace {

const std::string W = "\xC5\xB5"; // w with a circumflex
const std::string CapitalW = "\xC5\xB4";
const std::string Y = "\xC5\xB7"; // y with a circumflex
const std::string Smile = "\xF0\x9F\x98\x80";

const QString ShownW = QStringLiteral("\u0175");

std::string LineOf(const std::string& name, const std::string& county) {
    return name + "+1+" + county + "+1837+3+9999+0+x+y|Alfa\r\n";
}

std::string Repeated(const std::string& text, int count) {
    std::string result;
    for (; count > 0; --count) {
        result += text;
    }
    return result;
}

class Utf8FilesTest : public EditingTest {
protected:
    // Opens a file with one district, which is chosen.
    void OpenWelsh(const std::string& variations = "|D" + W + "r") {
        OpenContent(HeaderOf("Alpha") + variations + "\r\n");
        ASSERT_EQ(eFileEncoding, Encoding::Utf8);
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
    }
    std::vector<int> ColumnWidths() {
        const RowList& list = List("lvAlpha");
        std::vector<int> widths;
        for (int column = 0; column < list.model()->columnCount(); ++column) {
            widths.push_back(list.columnWidth(column));
        }
        return widths;
    }
    // Types a letter into the list of districts, as a keyboard does that has it.
    void TypeInList(const QString& letter) {
        QTest::sendKeyEvent(QTest::Click, &List("lvAlpha"), Qt::Key_unknown, letter, Qt::NoModifier);
    }
    // Waits until the next letter begins another name.
    static void StopTyping() { QTest::qWait(QGuiApplication::styleHints()->keyboardInputInterval() + 50); }
    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        Key("tbEdit", Qt::Key_V, Qt::ControlModifier);
    }
    // The rows of the one comment of the one district.
    QStringList CommentRowsOf(const std::string& comment) {
        OpenContent("#QX_T " + comment + "\r\n" + HeaderOf("Alpha") + "\r\n");
        EXPECT_EQ(eFileEncoding, Encoding::Utf8);
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
        return Column("lvComments", 1);
    }
};

} // namespace

TEST_F(Utf8FilesTest, NoTextOfTheDistrictsIsWiderThanItsColumn) {
    for (const std::string& name :
         {"D" + W + "r", "T" + Y + " " + CapitalW + "en", std::string("Caf\xC3\xA9"),
          std::string("\xD0\x9C\xD0\xBE\xD1\x81\xD0\xBA\xD0\xB2\xD0\xB0"),
          std::string("\xCE\x91\xCE\xB8\xCE\xAE\xCE\xBD\xCE\xB1"), std::string("w\xCC\x82w\xCC\x82w\xCC\x82"),
          "A" + Smile + Smile + "V", Repeated(W, 300), Repeated("\xD0\x96", 300), Repeated(Smile, 300)}) {
        OpenContent(LineOf("Alpha", "Kent") + LineOf(name, "Kent") + LineOf("Beta", name));
        ASSERT_EQ(eFileEncoding, Encoding::Utf8);
        const RowList& list = List("lvAlpha");
        const QFontMetricsF metrics(list.font());
        for (int column = 0; column < list.model()->columnCount(); ++column) {
            for (const QString& text : Column("lvAlpha", column)) {
                const double padding =
                    metrics.horizontalAdvance(column == 0 ? QStringLiteral("W") : QStringLiteral("WW"));
                EXPECT_LE(metrics.horizontalAdvance(text) + padding - 1, list.columnWidth(column))
                    << text.toStdString();
            }
        }
        for (int row = 0; row < 3; ++row) {
            EXPECT_LE(list.sizeHintForIndex(list.model()->index(row, 0)).width(), list.columnWidth(0));
        }
    }
}

TEST_F(Utf8FilesTest, NamesInAsciiMakeTheColumnsAsWideAsInAnyOtherFile) {
    const std::string lines = LineOf("Alpha", "Kent") + LineOf("AVAToffi Tyne.", "Nottinghamshire");
    OpenContent(lines);
    ASSERT_EQ(eFileEncoding, Encoding::Windows1252);
    const std::vector<int> widths = ColumnWidths();
    OpenContent("#QX_NOTE " + W + "\r\n" + lines);
    ASSERT_EQ(eFileEncoding, Encoding::Utf8);
    EXPECT_EQ(ColumnWidths(), widths);
}

TEST_F(Utf8FilesTest, ALetterGoesToTheFirstNameThatBeginsWithItWhateverItsCase) {
    OpenContent(HeaderOf("Alpha") + "\r\n" + HeaderOf(W + Y + "e") + "\r\n" + HeaderOf("Zeal") + "\r\n" +
                HeaderOf(CapitalW + "an") + "\r\n" + HeaderOf("\xC3\x89tal") + "\r\n" + HeaderOf(Y + "s") + "\r\n" +
                HeaderOf("Wye") + "\r\n");
    const QString first = QStringLiteral("\u0174an");
    ASSERT_EQ(Column("lvAlpha"), (QStringList{QStringLiteral("Alpha"), QStringLiteral("Wye"), QStringLiteral("Zeal"),
                                              QStringLiteral("\u00C9tal"), first, QStringLiteral("\u0175\u0177e"),
                                              QStringLiteral("\u0177s")}));
    for (const QString& letter : {ShownW, QStringLiteral("\u0174")}) {
        Key("lvAlpha", Qt::Key_Home);
        TypeInList(letter);
        EXPECT_EQ(Selected("lvAlpha"), QStringList{first}) << letter.toStdString();
        StopTyping();
    }
    TypeInList(QStringLiteral("\u00E9"));
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("\u00C9tal")});
    StopTyping();
    QStyleHints& hints = *QGuiApplication::styleHints();
    const auto asBefore =
        qScopeGuard([&, before = hints.keyboardInputInterval()] { hints.setKeyboardInputInterval(before); });
    TypeInList(QStringLiteral("\u0174"));
    hints.setKeyboardInputInterval(60'000); // however busy the machine is
    TypeInList(QStringLiteral("\u0177"));
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("\u0175\u0177e")});
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("\u0175\u0177e"));
}

TEST_F(Utf8FilesTest, ALongCommentIsWrappedBetweenItsCharactersAndIsAllThere) {
    for (const std::string& word :
         {W, "D" + W + "r T" + Y, Smile, std::string("w\xCC\x82"), std::string("\xD0\x96\xD1\x8E"), "a" + Smile + W}) {
        std::string comment = word;
        for (int i = 1; i < 120; ++i) {
            comment += " " + Repeated(word, 1 + i % 7);
        }
        const QStringList rows = CommentRowsOf(comment);
        EXPECT_GT(rows.size(), 3);
        EXPECT_EQ(rows.join(QLatin1Char(' ')), QString::fromStdString(comment));
        const int room = List("lvComments").columnWidth(1);
        for (const QString& row : rows) {
            EXPECT_FALSE(row.contains(QChar(QChar::ReplacementCharacter))) << row.toStdString();
            EXPECT_LT(QFontMetricsF(form->font()).horizontalAdvance(row), room) << row.toStdString();
        }
    }
}

TEST_F(Utf8FilesTest, ACommentBreaksBehindThreeCharactersAndNotBehindTwo) {
    const std::string wide = Repeated(W, 400);
    EXPECT_EQ(CommentRowsOf(W + W + " " + wide).size(), 1);
    EXPECT_EQ(CommentRowsOf(W + W + W + " " + wide).size(), 2);
}

TEST_F(Utf8FilesTest, TextsWithoutEndAreShownUpToACharacter) {
    for (const std::string& character : {W, Smile, std::string("\xE1\xBA\x84")}) {
        const QString shown = QString::fromStdString(Repeated(character, 2000));
        const QString cut = shown + QChar(0x2026);
        OpenContent("#QX_T " + Repeated(character, 2000) + "\r\n#QX_T " + Repeated(character, 2001) + "\r\n" +
                    HeaderOf(Repeated(character, 2000)) + "|" + Repeated(character, 2000) + "|" +
                    Repeated(character, 2001) + "\r\n" + HeaderOf(Repeated(character, 2001) + "z") + "\r\n");
        Key("lvAlpha", Qt::Key_Home);
        EXPECT_TRUE(Column("lvAlpha") == (QStringList{shown, cut}));
        EXPECT_TRUE(Column("lvVariations") == (QStringList{shown, cut}));
        EXPECT_TRUE(Column("lvComments", 1) == (QStringList{shown, cut}));
        EXPECT_TRUE(TextOf("lbApplyTo") == shown);
    }
}

TEST_F(Utf8FilesTest, ATypedLetterIsStoredAsItsBytesAndComesBackEqual) {
    OpenWelsh();
    Type(QStringLiteral("T"));
    TypeForeign(QStringLiteral("\u0177"));
    TypeForeign(ShownW);
    TypeForeign(QStringLiteral("\U0001F600"));
    EXPECT_EQ(EditText(), QStringLiteral("T\u0177\u0175\U0001F600"));
    EXPECT_EQ(desktop.beeps, 0);
    Click("cbOk");
    EXPECT_EQ(Slots(), "|D" + W + "r|T" + Y + W + Smile);
    Select(QStringLiteral("T\u0177\u0175\U0001F600"));
    EXPECT_EQ(EditText(), QStringLiteral("T\u0177\u0175\U0001F600"));
    Click("cbCancel");
    Save();
    EXPECT_EQ(desktop.files[DataFilePath], HeaderOf("Alpha") + "|D" + W + "r|T" + Y + W + Smile + "\r\n");
}

TEST_F(Utf8FilesTest, InAWindows1252FileThatIsOpenedNextTheSameLetterBecomesAQuestionMark) {
    OpenWelsh();
    OpenContent(HeaderOf("Alpha") + "|Caf\xE9\r\n");
    ASSERT_EQ(eFileEncoding, Encoding::Windows1252);
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    Type(QStringLiteral("D"));
    TypeForeign(ShownW);
    EXPECT_EQ(EditText(), QStringLiteral("D?"));
    EXPECT_FALSE(Enabled("cbOk"));
    TypeForeign(QStringLiteral("\u00E9"));
    EXPECT_EQ(EditText(), QStringLiteral("D?\u00E9"));
}

TEST_F(Utf8FilesTest, ThePlaceOfAKeyIsThatBetweenTheCharacters) {
    OpenWelsh();
    Paste(QStringLiteral("\U0001F600\u0175!\u0175 \u0177"));
    const auto refuses = [this](int caret, const char* key) {
        Box().setCursorPosition(caret);
        const int before = desktop.beeps;
        const QString text = EditText();
        Type(QString::fromLatin1(key));
        EXPECT_EQ(EditText() == text, desktop.beeps > before);
        if (EditText() != text) {
            Key("tbEdit", Qt::Key_Backspace);
        }
        return desktop.beeps > before;
    };
    EXPECT_TRUE(refuses(3, "%")); // before "!"
    EXPECT_FALSE(refuses(4, "%"));
    EXPECT_TRUE(refuses(4, " ")); // behind "!"
    EXPECT_FALSE(refuses(5, " "));
    EXPECT_TRUE(refuses(6, "%")); // behind the blank
    EXPECT_FALSE(refuses(7, "%"));
}

TEST_F(Utf8FilesTest, ATextThatIsTooLongIsRefusedWholeWithABeep) {
    OpenWelsh();
    Paste(QString(100'000, QChar(0x175)));
    EXPECT_EQ(EditText().size(), 100'000);
    EXPECT_EQ(desktop.beeps, 0);
    Key("tbEdit", Qt::Key_End);
    TypeForeign(ShownW);
    EXPECT_EQ(EditText().size(), 100'000);
    EXPECT_EQ(desktop.beeps, 1);
    Click("cbOk");
    EXPECT_TRUE(Slots() == "|D" + W + "r|" + Repeated(W, 100'000));
}

TEST_F(Utf8FilesTest, WhatIsTooLongIsNotCutInsideACharacter) {
    OpenWelsh();
    const QString letters(199'998, QLatin1Char('a'));
    Type(QStringLiteral("z"));
    Key("tbEdit", Qt::Key_Home);
    Paste(letters + QStringLiteral("\U0001F600"));
    EXPECT_TRUE(EditText() == letters + QLatin1Char('z'));
    EXPECT_EQ(Box().cursorPosition(), letters.size());
    EXPECT_GE(desktop.beeps, 1);
}
