// What the edit box lets in: typed keys, pasted and dropped texts, and what its own undo does.

#include "ui/windows/EditingTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>

using namespace CommonRoutines;

namespace {

// Counts how often a widget is painted.
class Paints : public QObject {
public:
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class EditBoxTest : public EditingTest {
protected:
    EditBoxTest() { OpenDistrict(); }

    // Types a key that must be refused, or must pass, and compares the text that is there then.
    void ExpectRefused(const char* key, const char* text) {
        const int before = desktop.beeps;
        Type(QString::fromLatin1(key));
        EXPECT_EQ(EditText(), QString::fromLatin1(text));
        EXPECT_EQ(desktop.beeps, before + 1) << key << " in " << text;
    }
    void ExpectTyped(const char* keys, const char* text) {
        const int before = desktop.beeps;
        Type(QString::fromLatin1(keys));
        EXPECT_EQ(EditText(), QString::fromLatin1(text));
        EXPECT_EQ(desktop.beeps, before) << keys << " in " << text;
    }
    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        Key("tbEdit", Qt::Key_V, Qt::ControlModifier);
    }
    void Drop(const QString& text) {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter(QPoint(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&Box(), &enter);
        QDropEvent drop(QPointF(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&Box(), &drop);
    }
    void Undo() { Key("tbEdit", Qt::Key_Z, Qt::ControlModifier); }
};

} // namespace

TEST_F(EditBoxTest, AKeyPaintsTheBoxAndNothingAroundIt) {
    Type(QStringLiteral("Ne"));
    QCoreApplication::processEvents();
    const Paints box(Box());
    const Paints around(*Box().parentWidget());
    Type(QStringLiteral("w"));
    QCoreApplication::processEvents();
    EXPECT_GT(box.count, 0);
    EXPECT_EQ(around.count, 0);
}

TEST_F(EditBoxTest, ItsCornersHaveTheColourOfTheWindow) {
    const QImage picture = Box().window()->grab().toImage();
    const QPoint corner = Box().mapTo(Box().window(), QPoint(0, 0));
    EXPECT_EQ(picture.pixelColor(corner), picture.pixelColor(corner - QPoint(1, 1)));
}

TEST_F(EditBoxTest, ABlankIsRefusedAtTheStartAndBehindAMarker) {
    ExpectRefused(" ", "");
    ExpectTyped("!", "!");
    ExpectRefused(" ", "!");
    ExpectTyped("%", "!%");
    ExpectRefused(" ", "!%");
    ExpectTyped("New Town", "!%New Town");
    Key("tbEdit", Qt::Key_Home);
    ExpectRefused(" ", "!%New Town");
}

TEST_F(EditBoxTest, AnExclamationMarkStandsOnlyOnceAndAtTheStart) {
    ExpectTyped("Gamma", "Gamma");
    ExpectRefused("!", "Gamma");
    Key("tbEdit", Qt::Key_Home);
    ExpectTyped("!", "!Gamma");
    ExpectRefused("!", "!Gamma");
    Key("tbEdit", Qt::Key_Home);
    ExpectRefused("!", "!Gamma");
}

TEST_F(EditBoxTest, APercentSignIsRefusedBehindABlankAndBeforeAnExclamationMark) {
    ExpectTyped("!Gamma ", "!Gamma ");
    ExpectRefused("%", "!Gamma ");
    Key("tbEdit", Qt::Key_Home);
    ExpectRefused("%", "!Gamma ");
    Key("tbEdit", Qt::Key_Right);
    ExpectTyped("%", "!%Gamma ");
    Key("tbEdit", Qt::Key_End);
    Key("tbEdit", Qt::Key_Backspace);
    ExpectTyped("%", "!%Gamma%");
}

TEST_F(EditBoxTest, AQuestionMarkHasAPlaceOnlyInTheVolume) {
    ExpectRefused("?", "");
    ExpectTyped("Gamma", "Gamma");
    ExpectRefused("?", "Gamma");
    ExpectTyped("%1?", "Gamma%1?");
    Key("tbEdit", Qt::Key_Home);
    ExpectRefused("?", "Gamma%1?");
}

TEST_F(EditBoxTest, AVerticalBarIsRefusedEverywhere) {
    ExpectRefused("|", "");
    ExpectTyped("Gamma%", "Gamma%");
    ExpectRefused("|", "Gamma%");
}

TEST_F(EditBoxTest, EveryOtherCharacterPasses) {
    ExpectTyped("O'Neil-St.Mary_*[]{}~#&(1)", "O'Neil-St.Mary_*[]{}~#&(1)");
    TypeForeign(QStringLiteral("\u00E9"));
    TypeForeign(QStringLiteral("\u0160"));
    EXPECT_EQ(EditText(), QStringLiteral("O'Neil-St.Mary_*[]{}~#&(1)\u00E9\u0160"));
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(EditBoxTest, KeysThatTypeNothingPass) {
    ExpectTyped("Gamma", "Gamma");
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Backspace, Qt::Key_Home, Qt::Key_Delete, Qt::Key_End}) {
        Key("tbEdit", key);
    }
    EXPECT_EQ(EditText(), QStringLiteral("ama"));
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(EditBoxTest, TypingOverASelectionCountsFromItsBeginning) {
    ExpectTyped("Gamma", "Gamma");
    Box().setSelection(0, 3);
    ExpectRefused(" ", "Gamma");
    Box().setSelection(0, 3);
    ExpectTyped("!", "!ma");
}

TEST_F(EditBoxTest, ThePlaceOfAKeyIsJudgedInTheTextOfASelectedVariationToo) {
    Select(QStringLiteral("Alfa"));
    ExpectRefused("!", "Alfa");
    EXPECT_EQ(iEditMode, OneSelected);
    ExpectTyped(" x", "Alfa x");
    EXPECT_EQ(iEditMode, EditingVariation);
}

TEST_F(EditBoxTest, APastedTextIsNotFilteredButClassified) {
    Paste(QStringLiteral(" Ga!m|ma? "));
    EXPECT_EQ(EditText(), QStringLiteral(" Ga!m|ma? "));
    EXPECT_EQ(desktop.beeps, 0);
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    Box().selectAll();
    Paste(QStringLiteral("!alfa"));
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("Duplicates Alfa"));
    EXPECT_TRUE(BoxTicked("cbSpelling"));
    Box().selectAll();
    Paste(QStringLiteral("Gamma"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Alfa|Betta|Gamma");
}

TEST_F(EditBoxTest, APastedBarIsStoredInAnEditAndShownAsInvalid) {
    Select(QStringLiteral("Alfa"));
    Paste(QStringLiteral("|"));
    Click("cbOk");
    EXPECT_EQ(Slots(), "|Alfa||Betta");
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Alfa|")), QColor(236, 0, 0));
}

TEST_F(EditBoxTest, ADroppedTextIsNotFilteredButClassified) {
    Drop(QStringLiteral("Gam\nma|"));
    EXPECT_EQ(EditText(), QStringLiteral("Gam ma|"));
    EXPECT_EQ(desktop.beeps, 0);
    EXPECT_EQ(iEditMode, AddingUnacceptable);
}

TEST_F(EditBoxTest, LineBreaksInAPastedTextBecomeBlanks) {
    Paste(QStringLiteral("One\r\nTwo\nThree\rFour"));
    EXPECT_EQ(EditText(), QStringLiteral("One Two Three Four"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
}

// It sets the text as a whole, without any key.
TEST_F(EditBoxTest, SoDoThoseInATextThatAssistiveTechnologySets) {
    auto* const accessible = QAccessible::queryAccessibleInterface(&Find<QLineEdit>("tbEdit"));
    ASSERT_NE(accessible, nullptr);
    accessible->setText(QAccessible::Value, QStringLiteral("One\r\nTwo\nThree\rFour"));
    EXPECT_EQ(EditText(), QStringLiteral("One Two Three Four"));
}

TEST_F(EditBoxTest, ACharacterThatTheFileCannotHoldBecomesAQuestionMark) {
    Paste(QStringLiteral("\u0141\u00F3d\u017A \u20AC \U0001F600"));
    EXPECT_EQ(EditText(), QStringLiteral("?\u00F3d? \u20AC ?"));
    EXPECT_FALSE(Enabled("cbOk"));
    Box().selectAll();
    TypeForeign(QStringLiteral("\u0142"));
    EXPECT_EQ(EditText(), QStringLiteral("?"));
}

TEST_F(EditBoxTest, TheCaretStaysBehindWhatWasPasted) {
    Type(QStringLiteral("AZ"));
    Key("tbEdit", Qt::Key_Left);
    Paste(QStringLiteral("b\r\n\U0001F600c"));
    Type(QStringLiteral("d"));
    EXPECT_EQ(EditText(), QStringLiteral("Ab ?cdZ"));
}

TEST_F(EditBoxTest, AVeryLongTextIsNotCutOff) {
    const QString longText(100000, QLatin1Char('a'));
    Paste(longText);
    EXPECT_EQ(EditText().size(), longText.size());
    Click("cbOk");
    EXPECT_EQ(Slots().size(), std::string("|Alfa|Betta|").size() + 100000);
}

TEST_F(EditBoxTest, ATextThatIsTooLongToBeTypedInIsCutOffWithABeepWhenItIsPasted) {
    Paste(QString(1'000'000, QLatin1Char('a')));
    EXPECT_EQ(EditText().size(), 200'000);
    EXPECT_EQ(desktop.beeps, 1);
}

TEST_F(EditBoxTest, UndoingTheTypingIsNotFilteredButClassified) {
    Paste(QStringLiteral(" Ga|mma"));
    Box().selectAll();
    Type(QStringLiteral("Gamma"));
    ASSERT_EQ(iEditMode, AddingAcceptable);
    Undo();
    EXPECT_EQ(EditText(), QStringLiteral(" Ga|mma"));
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(EditBoxTest, UndoTakesBackTheTypingFirstAndThenTheLastChange) {
    Add(QStringLiteral("Gamma"));
    Type(QStringLiteral("Delte"));
    Undo();
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(Slots(), "|Alfa|Betta|Gamma");
    Undo();
    EXPECT_EQ(Slots(), "|Alfa|Betta|\t");
}

TEST_F(EditBoxTest, ReplacedCharactersAreTakenBackBeforeTheLastChange) {
    Add(QStringLiteral("Gamma"));
    Type(QStringLiteral("abc"));
    TypeForeign(QStringLiteral("\u0142"));
    ASSERT_EQ(EditText(), QStringLiteral("abc?"));
    Undo();
    EXPECT_EQ(EditText(), QStringLiteral("abc"));
    EXPECT_EQ(iEditMode, AddingAcceptable);
    Undo();
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(Slots(), "|Alfa|Betta|Gamma");
    Undo();
    EXPECT_EQ(Slots(), "|Alfa|Betta|\t");
}

TEST_F(EditBoxTest, ATextThatTheProgramPutThereIsNoTypingToTakeBack) {
    Add(QStringLiteral("Gamma"));
    Select(QStringLiteral("Alfa"));
    Undo();
    EXPECT_EQ(Slots(), "|Alfa|Betta|\t");
}

TEST_F(EditBoxTest, TypingGivenUpByChoosingADistrictDoesNotComeBack) {
    Add(QStringLiteral("Gamma"));
    Type(QStringLiteral("Delte"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    Undo();
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(Slots(), "|Alfa|Betta|\t");
}

TEST_F(EditBoxTest, TypingGivenUpByADeleteQuestionDoesNotComeBack) {
    Add(QStringLiteral("Gamma"));
    Select(QStringLiteral("Alfa"));
    ExpectDeleteQuestion("variation Alfa", BoxAnswer::No);
    Click("cbDelete");
    Undo();
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(Slots(), "|Alfa|Betta|\t");
}
