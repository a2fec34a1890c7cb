// Choosing a district, and the comments of the district chosen.

#include "ui/windows/FormTest.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

using namespace CommonRoutines;
using namespace Ui;

namespace {

const QColor Red(236, 0, 0);

class DistrictsTest : public FormTest {
protected:
    // Districts without problems, one of them without variations, and one with a duplicate.
    void OpenFour() {
        OpenContent("#QX_SEAT of the county\r\n" + HeaderOf("Alpha") + "|Alfa\r\n" + HeaderOf("Beta") + "\r\n" +
                    HeaderOf("Gamma") + "|Gama|gama\r\n" + HeaderOf("Delta") + "|Delte\r\n");
    }
    QColor Plain() { return Find<RowList>("lvAlpha").palette().color(QPalette::Text); }
};

} // namespace

TEST_F(DistrictsTest, ClickingAnEmptyListDoesNothing) {
    for (const char* list : {"lvAlpha", "lvVariations", "lbComments"}) {
        QTest::mouseClick(Find<RowList>(list).viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    }
    EXPECT_EQ(lCurrentDistrict, 0);
    EXPECT_EQ(iEditMode, NothingOpen);
    EXPECT_FALSE(Enabled("cbAdd"));
}

TEST_F(DistrictsTest, ClickingBelowTheDistrictsDoesNothing) {
    OpenFour();
    ClickBelowRows("lvAlpha");
    EXPECT_EQ(lCurrentDistrict, 0);
    EXPECT_EQ(iEditMode, FileOpen);
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickBelowRows("lvAlpha");
    EXPECT_EQ(lCurrentDistrict, 2);
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Alfa")});
}

TEST_F(DistrictsTest, ADistrictShowsItsNameVariationsAndComments) {
    OpenFour();
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(lCurrentDistrict, 2);
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("Alpha"));
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Alfa")});
    EXPECT_EQ(Column("lvComments", 0), QStringList{QStringLiteral("SEAT")});
    EXPECT_EQ(Column("lvComments", 1), QStringList{QStringLiteral("of the county")});
    ClickRow("lvAlpha", QStringLiteral("Delta"));
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Delte")});
    EXPECT_EQ(Column("lvComments"), QStringList());
}

TEST_F(DistrictsTest, AFurtherClickOnTheDistrictChoosesItAgain) {
    OpenFour();
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    ASSERT_EQ(iEditMode, OneSelected);
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(Selected("lvVariations"), QStringList());
    EXPECT_EQ(lEditIndex, 0);
}

TEST_F(DistrictsTest, ADistrictWithoutVariationsCanBeAddedTo) {
    OpenFour();
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    EXPECT_EQ(Column("lvVariations"), QStringList());
    EXPECT_TRUE(Enabled("cbAdd"));
    EXPECT_EQ(iEditMode, DistrictIdle);
}

TEST_F(DistrictsTest, DeletedVariationsAreNotListed) {
    OpenContent(HeaderOf("Alpha") + "||Alfa| \r\n" + HeaderOf("Beta") + "|\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(Column("lvVariations"), QStringList{QStringLiteral("Alfa")});
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    EXPECT_EQ(Column("lvVariations"), QStringList());
}

TEST_F(DistrictsTest, ChoosingADistrictResetsTheEditRow) {
    OpenFour();
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    ASSERT_TRUE(Find<QCheckBox>("cbVariation").isChecked());
    ClickRow("lvAlpha", QStringLiteral("Delta"));
    EXPECT_EQ(Find<QLineEdit>("tbEdit").text(), QString());
    for (const char* box : {"cbVariation", "cbSpelling", "cbValidinyears", "cbVNF"}) {
        EXPECT_FALSE(Find<QCheckBox>(box).isChecked()) << box;
    }
    EXPECT_FALSE(bIgnoreEvents);
}

TEST_F(DistrictsTest, KeysChooseDistrictsAsClicksDo) {
    OpenFour();
    const auto expectChosen = [this](const char* name) {
        EXPECT_EQ(TextOf("lbApplyTo"), QString::fromLatin1(name));
        EXPECT_EQ(Districts[static_cast<std::size_t>(lCurrentDistrict)].Name(), name);
    };
    Key("lvAlpha", Qt::Key_Down); // the first key chooses the first row
    expectChosen("Alpha");
    Key("lvAlpha", Qt::Key_Down);
    expectChosen("Beta");
    Key("lvAlpha", Qt::Key_End);
    expectChosen("Gamma");
    Key("lvAlpha", Qt::Key_Up);
    expectChosen("Delta");
    Key("lvAlpha", Qt::Key_Home);
    expectChosen("Alpha");
    Key("lvAlpha", Qt::Key_PageDown);
    expectChosen("Gamma");
    Key("lvAlpha", Qt::Key_PageUp);
    expectChosen("Alpha");
    Type("lvAlpha", QStringLiteral("del"));
    expectChosen("Delta");
}

TEST_F(DistrictsTest, DistrictsWithProblemsAreRed) {
    OpenContent(HeaderOf("Question") + "|Qu?estion\r\n" + HeaderOf("Duplicate") + "|Dup|dup\r\n" + HeaderOf("Invalid") +
                "|Two  %Percent\r\n" + HeaderOf("Warned") + "|Warn_d\r\n" + HeaderOf("Capitals") + "|capItals\r\n" +
                HeaderOf("Good") + "|Goode\r\n");
    for (const char* name : {"Question", "Duplicate", "Invalid", "Warned"}) {
        EXPECT_EQ(RowColour("lvAlpha", QString::fromLatin1(name)), Red) << name;
    }
    for (const char* name : {"Capitals", "Good"}) {
        EXPECT_EQ(RowColour("lvAlpha", QString::fromLatin1(name)), Plain()) << name;
    }
}

TEST_F(DistrictsTest, OnlyTheRowOfTheDistrictChosenChangesItsColour) {
    OpenFour();
    ASSERT_EQ(RowColour("lvAlpha", QStringLiteral("Gamma")), Red);
    for (const std::size_t district : {std::size_t{2}, std::size_t{4}}) {
        Districts[district].Variations[1].Text = "In | valid";
    }
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(RowColour("lvAlpha", QStringLiteral("Alpha")), Red);
    EXPECT_EQ(RowColour("lvAlpha", QStringLiteral("Delta")), Plain());
    Districts[2].Variations[1].Text = "Alfa";
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(RowColour("lvAlpha", QStringLiteral("Alpha")), Plain());
}

TEST_F(DistrictsTest, ChoosingADistrictForgetsTheQuestionMarksOfTheReading) {
    OpenContent(HeaderOf("Alpha") + "|Al?fa\r\n");
    ASSERT_EQ(Districts[1].iQuestionCount, 1);
    Districts[1].Variations[1].Text = "Alfa";
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(Districts[1].iQuestionCount, 0);
    EXPECT_EQ(RowColour("lvAlpha", QStringLiteral("Alpha")), Plain());
}

TEST_F(DistrictsTest, ACommentWithAMarkerInTheMiddleOrWithOnlyATypeIsShown) {
    OpenContent("# see #QX_NOTE later\r\n#QX_EMPTY\r\n# nothing here\r\n" + HeaderOf("Alpha") + "\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(Column("lvComments", 0), (QStringList{QStringLiteral("NOTE"), QStringLiteral("EMPTY")}));
    EXPECT_EQ(Column("lvComments", 1), (QStringList{QStringLiteral("later"), QString()}));
}

TEST_F(DistrictsTest, ALongCommentGoesOnInFurtherRowsThatFitTheColumn) {
    std::string comment;
    for (int word = 0; word < 60; ++word) {
        comment += (word == 0 ? "word" : " word") + std::to_string(word);
    }
    OpenContent("#QX_LONG " + comment + "\r\n" + HeaderOf("Alpha") + "\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    const QStringList types = Column("lvComments", 0);
    const QStringList parts = Column("lvComments", 1);
    ASSERT_GT(types.size(), 2);
    EXPECT_EQ(types.constFirst(), QStringLiteral("LONG"));
    EXPECT_EQ(types.mid(1).count(QStringLiteral(" ")), types.size() - 1);
    EXPECT_EQ(parts.join(QLatin1Char(' ')), QString::fromStdString(comment));
    const int room = Find<RowList>("lvComments").columnWidth(1);
    for (const QString& part : parts) {
        EXPECT_LT(form->fontMetrics().horizontalAdvance(part), room) << part.toStdString();
    }
}

TEST_F(DistrictsTest, AWordThatIsTooWideForTheColumnStaysOnOneRow) {
    OpenContent("#QX_LONG " + std::string(500, 'w') + "\r\n" + HeaderOf("Alpha") + "\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    EXPECT_EQ(Column("lvComments", 1), QStringList{QString(500, QLatin1Char('w'))});
}

TEST_F(DistrictsTest, AWiderWindowWrapsTheCommentsAnew) {
    std::string comment;
    for (int word = 0; word < 60; ++word) {
        comment += " word";
    }
    OpenContent("#QX_LONG" + comment + "\r\n" + HeaderOf("Alpha") + "\r\n");
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    const qsizetype before = Column("lvComments").size();
    form->resize(1900, 900);
    QCoreApplication::processEvents();
    EXPECT_LT(Column("lvComments").size(), before);
}

TEST_F(DistrictsTest, ABlankIsPartOfTheNameThatIsTyped) {
    OpenContent(HeaderOf("St Albans") + "|A\r\n" + HeaderOf("Stafford") + "|B\r\n" + HeaderOf("St Neots") + "|C\r\n");
    Type("lvAlpha", QStringLiteral("st n"));
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("St Neots")});
}

TEST_F(DistrictsTest, TheSameLetterAgainGoesToTheNextName) {
    OpenContent(HeaderOf("Sale") + "|A\r\n" + HeaderOf("Stoke") + "|B\r\n" + HeaderOf("Ware") + "|C\r\n");
    RowList& list = Find<RowList>("lvAlpha");
    for (const char* name : {"Sale", "Stoke", "Sale"}) {
        QTest::keyClicks(&list, QStringLiteral("s"));
        EXPECT_EQ(Selected("lvAlpha"), QStringList{QString::fromLatin1(name)});
    }
}
