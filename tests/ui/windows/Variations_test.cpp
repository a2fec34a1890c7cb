// The variations list: its order and colours, and what selecting in it shows.

#include "ui/windows/FormTest.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

using namespace CommonRoutines;
using namespace Ui;

namespace {

const QColor Red(236, 0, 0);
const QColor Brown(204, 102, 0);
const QColor Blue(0, 0, 255);
const QColor Green(0, 128, 0);
const QColor LightGrey(192, 192, 192);

const QString Mixture = QStringLiteral("Warning - You've selected a mixture of Spelling and Non-Spelling Variations");

class VariationsTest : public FormTest {
protected:
    // Opens a file with one district of these variations, written as in the file, and chooses it.
    void ShowVariations(const std::string& variations) {
        OpenContent(HeaderOf("Alpha") + variations + "\r\n");
        ClickRow("lvAlpha", QStringLiteral("Alpha"));
    }
    void Select(const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ClickRow("lvVariations", text, modifiers);
    }
    void ExpectReason(const QString& text, const QColor& colour) {
        EXPECT_EQ(TextOf("lbWhyError"), text);
        EXPECT_EQ(InkOf("lbWhyError"), colour);
        EXPECT_EQ(PaperOf("lbWhyError"), LightGrey);
    }
    void ExpectCaptions(const char* shriek, const char* date) {
        EXPECT_EQ(CaptionOf("cbShriek"), QString::fromLatin1(shriek));
        EXPECT_EQ(CaptionOf("cbDate"), QString::fromLatin1(date));
        EXPECT_EQ(Find<QWidget>("cbShriek").accessibleName(), QString::fromLatin1(shriek));
        EXPECT_EQ(Find<QWidget>("cbDate").accessibleName(), QString::fromLatin1(date));
    }
    QString EditText() { return Find<QLineEdit>("tbEdit").text(); }
    // The option boxes that are ticked.
    QStringList Ticked() {
        QStringList names;
        for (const char* name : {"cbVariation", "cbSpelling", "cbValidinyears", "cbVNF"}) {
            if (Find<QCheckBox>(name).isChecked()) {
                names.append(QString::fromLatin1(name));
            }
        }
        return names;
    }
};

} // namespace

TEST_F(VariationsTest, AreSortedByUpperCaseTextAndCharacterCode) {
    ShowVariations("|beta|Zeta|Alfa|\xE9ta|alfb|%year|!Spell|Al_fa");
    EXPECT_EQ(Column("lvVariations"),
              (QStringList{QStringLiteral("!Spell"), QStringLiteral("%year"), QStringLiteral("Alfa"),
                           QStringLiteral("alfb"), QStringLiteral("Al_fa"), QStringLiteral("beta"),
                           QStringLiteral("Zeta"), QStringLiteral("\u00E9ta")}));
}

TEST_F(VariationsTest, EqualTextsStandInTheOrderOfTheFile) {
    ShowVariations("|beta|BETA|Beta");
    EXPECT_EQ(Column("lvVariations"),
              (QStringList{QStringLiteral("beta"), QStringLiteral("BETA"), QStringLiteral("Beta")}));
}

TEST_F(VariationsTest, HaveTheColourOfTheirState) {
    ShowVariations("|Inva lid |Warn_d|Dup|!Dup|unUsual|Plain");
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Inva lid ")), Red);
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Warn_d")), Brown);
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Dup")), Blue);
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("!Dup")), Blue);
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("unUsual")), Green);
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Plain")),
              Find<RowList>("lvVariations").palette().color(QPalette::Text));
}

TEST_F(VariationsTest, InvalidAndWarningComeBeforeDuplicate) {
    ShowVariations("|Two |two |War_n|war_n");
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("Two ")), Red);
    EXPECT_EQ(RowColour("lvVariations", QStringLiteral("War_n")), Brown);
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("2 Invalid (red).\n2 Duplicates(Blue).\n2 warnings (Brown)."));
}

TEST_F(VariationsTest, TheSummaryHasALineForEachKindOfProblemThatThereIs) {
    ShowVariations("|Dup|dup");
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Duplicates(Blue).\n"));
    EXPECT_EQ(InkOf("lbWhyError"), QColor(Qt::black));
    ShowVariations("|Inva lid |Plain");
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Invalid (red).\n"));
    ShowVariations("|War_n|unUsual");
    EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 warnings (Brown)."));
}

TEST_F(VariationsTest, WithoutProblemsTheLabelKeepsWhatItShowed) {
    OpenContent(HeaderOf("Alpha") + "|Dup|dup\r\n" + HeaderOf("Beta") + "|unUsual\r\n" + HeaderOf("Gamma") + "\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    for (const QString& name : {QStringLiteral("Beta"), QStringLiteral("Gamma")}) {
        ClickRow("lvAlpha", name);
        EXPECT_EQ(TextOf("lbWhyError"), QStringLiteral("1 Duplicates(Blue).\n")) << name.toStdString();
    }
}

TEST_F(VariationsTest, OneSelectedCanBeEdited) {
    ShowVariations("|Beta|Alfa");
    Select(QStringLiteral("Alfa"));
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_EQ(lEditIndex, 2);
    EXPECT_EQ(iLastAction, VariationSelected);
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
    EXPECT_EQ(Ticked(), QStringList{QStringLiteral("cbVariation")});
    EXPECT_FALSE(bIgnoreEvents);
    ExpectReason(QString(), Qt::black);
    ExpectCaptions("Add !", "Add Date%");
}

TEST_F(VariationsTest, TheOptionBoxesFollowTheMarkers) {
    ShowVariations("|!Spell|%Year|!%Both|Vol%12|%Year%12");
    const auto expectTicked = [this](const QString& text, const QStringList& boxes) {
        Select(text);
        EXPECT_EQ(EditText(), text);
        EXPECT_EQ(Ticked(), boxes) << text.toStdString();
    };
    expectTicked(QStringLiteral("!Spell"), {QStringLiteral("cbSpelling")});
    expectTicked(QStringLiteral("%Year"), {QStringLiteral("cbValidinyears")});
    expectTicked(QStringLiteral("!%Both"), {QStringLiteral("cbSpelling"), QStringLiteral("cbValidinyears")});
    expectTicked(QStringLiteral("Vol%12"), {QStringLiteral("cbVariation"), QStringLiteral("cbVNF")});
    expectTicked(QStringLiteral("%Year%12"), {QStringLiteral("cbValidinyears"), QStringLiteral("cbVNF")});
}

TEST_F(VariationsTest, TheMarkerButtonsOfferWhatTheSelectionLacks) {
    ShowVariations("|!Spell|%Year|!%Both|Plain");
    Select(QStringLiteral("!Spell"));
    ExpectCaptions("Remove !", "Add Date%");
    Select(QStringLiteral("%Year"));
    ExpectCaptions("Add !", "Remove Date%");
    Select(QStringLiteral("!%Both"));
    ExpectCaptions("Remove !", "Remove Date%");
    Select(QStringLiteral("Plain"));
    ExpectCaptions("Add !", "Add Date%");
}

TEST_F(VariationsTest, TheReasonIsShownInTheColourOfTheRow) {
    ShowVariations("|Inva lid |Warn_d|Dup|!Dup|unUsual");
    Select(QStringLiteral("Inva lid "));
    ExpectReason(QStringLiteral("Trailing space"), Red);
    Select(QStringLiteral("Warn_d"));
    ExpectReason(QStringLiteral("Should have !"), Brown);
    Select(QStringLiteral("Dup"));
    ExpectReason(QStringLiteral("Duplicates !Dup"), Blue);
    Select(QStringLiteral("!Dup"));
    ExpectReason(QStringLiteral("Duplicates Dup"), Blue);
    Select(QStringLiteral("unUsual"));
    ExpectReason(QStringLiteral("Unusual Capitals"), Green);
}

TEST_F(VariationsTest, ADuplicateWithUnusualCapitalsNamesTheCapitals) {
    ShowVariations("|duPe|Dupe");
    Select(QStringLiteral("duPe"));
    ExpectReason(QStringLiteral("Unusual Capitals"), Blue);
}

TEST_F(VariationsTest, SeveralSelectedCannotBeEdited) {
    ShowVariations("|Alfa|Beta|Gama");
    Select(QStringLiteral("Alfa"));
    Select(QStringLiteral("Gama"), Qt::ControlModifier);
    EXPECT_EQ(Selected("lvVariations"), (QStringList{QStringLiteral("Alfa"), QStringLiteral("Gama")}));
    EXPECT_EQ(iEditMode, SeveralSelected);
    EXPECT_EQ(lEditIndex, 0);
    EXPECT_EQ(EditText(), QString());
    EXPECT_EQ(Ticked(), QStringList());
    Select(QStringLiteral("Gama"), Qt::ControlModifier);
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
}

TEST_F(VariationsTest, OfSeveralTheLastInTheListGivesTheReason) {
    ShowVariations("|Alfa_|Zeta |Beta");
    Select(QStringLiteral("Zeta "));
    Select(QStringLiteral("Alfa_"), Qt::ControlModifier);
    ExpectReason(QStringLiteral("Trailing space"), Red);
}

TEST_F(VariationsTest, AMixtureOfSpellingMistakesAndOthersIsWarnedOf) {
    ShowVariations("|!Alfa|Beta|%Year");
    Select(QStringLiteral("!Alfa"));
    Select(QStringLiteral("Beta"), Qt::ControlModifier);
    ExpectReason(Mixture, Qt::black);
    ExpectCaptions("Remove !", "Add Date%");
    Select(QStringLiteral("%Year"));
    Select(QStringLiteral("!Alfa"), Qt::ControlModifier);
    EXPECT_EQ(TextOf("lbWhyError"), Mixture);
    ExpectCaptions("Remove !", "Remove Date%");
    Select(QStringLiteral("Beta"));
    Select(QStringLiteral("%Year"), Qt::ControlModifier);
    EXPECT_EQ(TextOf("lbWhyError"), QString());
}

TEST_F(VariationsTest, SelectingNoneAnyMoreEmptiesTheEditRow) {
    ShowVariations("|Alfa|War_n");
    Select(QStringLiteral("War_n"));
    ClickBelowRows("lvVariations");
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_EQ(lEditIndex, 0);
    EXPECT_EQ(EditText(), QString());
    ExpectReason(QString(), Qt::black);
}

TEST_F(VariationsTest, KeysSelectAsClicksDo) {
    ShowVariations("|Alfa|Beta|Gama|Delte");
    Key("lvVariations", Qt::Key_Down);
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
    Key("lvVariations", Qt::Key_Down);
    EXPECT_EQ(EditText(), QStringLiteral("Beta"));
    Key("lvVariations", Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected("lvVariations"), (QStringList{QStringLiteral("Beta"), QStringLiteral("Delte")}));
    EXPECT_EQ(iEditMode, SeveralSelected);
    EXPECT_EQ(EditText(), QString());
    Key("lvVariations", Qt::Key_End);
    EXPECT_EQ(EditText(), QStringLiteral("Gama"));
    Key("lvVariations", Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(Selected("lvVariations").size(), 4);
    Key("lvVariations", Qt::Key_End);
    Key("lvVariations", Qt::Key_PageUp);
    EXPECT_EQ(EditText(), QStringLiteral("Alfa"));
    Key("lvVariations", Qt::Key_PageDown);
    EXPECT_EQ(EditText(), QStringLiteral("Gama"));
    Key("lvVariations", Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected("lvVariations").size(), 4);
    EXPECT_EQ(iEditMode, SeveralSelected);
    Type("lvVariations", QStringLiteral("de"));
    EXPECT_EQ(EditText(), QStringLiteral("Delte"));
    EXPECT_EQ(iEditMode, OneSelected);
}

TEST_F(VariationsTest, ShiftClickSelectsTheRowsBetween) {
    ShowVariations("|Alfa|Beta|Gama");
    Select(QStringLiteral("Alfa"));
    Select(QStringLiteral("Gama"), Qt::ShiftModifier);
    EXPECT_EQ(Selected("lvVariations").size(), 3);
    EXPECT_EQ(iEditMode, SeveralSelected);
}

TEST_F(VariationsTest, CtrlCCopiesTheSelectedTexts) {
    ShowVariations("|Alfa|Beta|Gama");
    Select(QStringLiteral("Alfa"));
    Select(QStringLiteral("Gama"), Qt::ControlModifier);
    Key("lvVariations", Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Alfa\nGama"));
}

TEST_F(VariationsTest, ATextOfForeignCharactersComesUnchangedIntoTheEditBox) {
    ShowVariations("|Caf\xE9 \x80 \x8A");
    Select(QStringLiteral("Caf\u00E9 \u20AC \u0160"));
    EXPECT_EQ(EditText(), QStringLiteral("Caf\u00E9 \u20AC \u0160"));
}
