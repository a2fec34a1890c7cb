// Finding in the whole file by the window's own controls.

#include "ui/lists/HitModel.h"
#include "ui/lists/StateColours.h"
#include "ui/windows/FormTest.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QLineEdit>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class FindTest : public FormTest {
protected:
    FindTest() {
        OpenContent("#QX_NOTE the ash of Alpha\r\n" + HeaderOf("Alpha") + "|Ash|Elm|Mash??\r\n" + HeaderOf("Ashby") +
                    "|%Ash|Yew\r\n");
    }
    void Open() { Key("lvAlpha", Qt::Key_F, Qt::ControlModifier); }
    void Seek(const QString& text) {
        Open();
        Find<QLineEdit>("tbFind").selectAll();
        Type("tbFind", text);
    }
    QStringList FoundTexts() { return Column("lvFound", 3); }
};

} // namespace

TEST_F(FindTest, TheBarComesAndGoesAndGivesTheFocusBack) {
    Find("lvComments").setFocus();
    EXPECT_FALSE(Find("FindPanel").isVisible());
    Open();
    EXPECT_TRUE(Find("FindPanel").isVisible());
    EXPECT_TRUE(Find("tbFind").hasFocus());
    Key("tbFind", Qt::Key_Escape);
    EXPECT_FALSE(Find("FindPanel").isVisible());
    EXPECT_TRUE(Find("lvComments").hasFocus());
}

TEST_F(FindTest, TypingListsWhatMatchesWithItsDistrict) {
    Seek(QStringLiteral("ash"));
    EXPECT_EQ(Column("lvFound", 0),
              (QStringList{QStringLiteral("District"), QStringLiteral("Variation"), QStringLiteral("Variation"),
                           QStringLiteral("Variation"), QStringLiteral("Comment")}));
    EXPECT_EQ(Column("lvFound", 1),
              (QStringList{QStringLiteral("Ashby"), QStringLiteral("Alpha"), QStringLiteral("Alpha"),
                           QStringLiteral("Ashby"), QStringLiteral("Alpha")}));
    EXPECT_EQ(FoundTexts(), (QStringList{QStringLiteral("Shire"), QStringLiteral("Ash"), QStringLiteral("Mash??"),
                                         QStringLiteral("%Ash"), QStringLiteral("NOTE the ash of Alpha")}));
    EXPECT_EQ(TextOf("lbFound"), QStringLiteral("1 district, 3 variations, 1 comment"));
    EXPECT_EQ(Find("tbFind").accessibleDescription(), TextOf("lbFound"));
    const QModelIndex invalid = List("lvFound").model()->index(2, 3);
    EXPECT_EQ(invalid.data(Qt::ForegroundRole).value<QColor>(),
              StateColours::InList(VariationState::Invalid, form->palette()));
    EXPECT_EQ(invalid.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Mash?? - invalid"));
}

TEST_F(FindTest, WholeSpellingsAreAnOption) {
    Seek(QStringLiteral("!ash"));
    EXPECT_EQ(TextOf("lbFound"), QStringLiteral("Nothing found"));
    Find<QCheckBox>("cbWholeSpelling").click();
    EXPECT_EQ(FoundTexts(), QStringList{QStringLiteral("Ash")});
}

TEST_F(FindTest, EnterGoesToTheFirstHitAndAKeyToTheNext) {
    Seek(QStringLiteral("ash"));
    Key("tbFind", Qt::Key_Return);
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Ashby")});
    EXPECT_TRUE(Find("lvAlpha").hasFocus());
    Key("lvAlpha", Qt::Key_F3);
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Alpha")});
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("Ash")});
    EXPECT_TRUE(Find("lvVariations").hasFocus());
    EXPECT_EQ(EditText(), QStringLiteral("Ash"));
    EXPECT_EQ(List("lvFound").SelectedRows(), std::vector<int>{1});
    Key("lvVariations", Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Selected("lvAlpha"), QStringList{QStringLiteral("Ashby")});
}

TEST_F(FindTest, EnterAndADoubleClickInTheListGoToARow) {
    Seek(QStringLiteral("ash"));
    Key("tbFind", Qt::Key_Down);
    EXPECT_TRUE(Find("lvFound").hasFocus());
    Key("lvFound", Qt::Key_End);
    Key("lvFound", Qt::Key_Up);
    Key("lvFound", Qt::Key_Return);
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("%Ash")});
    RowList& found = List("lvFound");
    const QPoint row = found.visualRect(found.model()->index(1, 0)).center();
    QTest::mouseClick(found.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("%Ash")}) << "a click only chooses the row";
    QTest::mouseDClick(found.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("Ash")});
}

TEST_F(FindTest, ARowThatIsWalkedToStaysChosenUntilAnotherIsGoneTo) {
    Seek(QStringLiteral("ash"));
    Key("tbFind", Qt::Key_Return);
    Find("lvFound").setFocus();
    Key("lvFound", Qt::Key_Down);
    Key("lvFound", Qt::Key_Down);
    Open(); // which shows the window anew
    EXPECT_EQ(List("lvFound").SelectedRows(), std::vector<int>{2});
    Key("tbFind", Qt::Key_F3);
    EXPECT_EQ(List("lvFound").SelectedRows(), std::vector<int>{1}) << "behind the one that was gone to";
}

TEST_F(FindTest, WhatIsFoundIsScrolledIntoTheMiddle) {
    std::string content;
    for (int i = 100; i < 400; ++i) {
        content += HeaderOf("District " + std::to_string(i)) + "|Name " + std::to_string(i) + "\r\n";
    }
    OpenContent(content);
    Seek(QStringLiteral("district 250"));
    Key("tbFind", Qt::Key_Return);
    QCoreApplication::processEvents();
    const RowList& list = List("lvAlpha");
    const QRect row = list.visualRect(list.currentIndex());
    EXPECT_LT(std::abs(row.center().y() - list.viewport()->height() / 2), 2 * row.height());
}

TEST_F(FindTest, WhileAnEditIsUnderWayTheBoxSaysWhyNot) {
    Seek(QStringLiteral("elm"));
    ClickRow("lvAlpha", QStringLiteral("Alpha"));
    Click("cbAdd");
    EXPECT_FALSE(Find("tbFind").isEnabled());
    EXPECT_EQ(TextOf("lbFound"), QStringLiteral("To find, finish adding first: Ok (Enter) or Cancel (Esc)"));
    Key("tbEdit", Qt::Key_F3);
    EXPECT_EQ(iEditMode, AddingUnacceptable);
    Click("cbCancel");
    EXPECT_TRUE(Find("tbFind").isEnabled());
    EXPECT_EQ(TextOf("lbFound"), QStringLiteral("1 variation"));
}

TEST_F(FindTest, HostileTextsAreOnlyTexts) {
    for (const QString& text : {QString(), QStringLiteral(" "), QString(100'000, QLatin1Char('a')),
                                QStringLiteral("<b>Ash</b><img src=x>"), QStringLiteral("(.*)[a-z]+\\")}) {
        Open();
        auto& box = Find<QLineEdit>("tbFind");
        box.setText(text);
        QCoreApplication::processEvents();
        EXPECT_EQ(List("lvFound").model()->rowCount() > 0, text == QStringLiteral(" ")) << text.left(30).toStdString();
        Key("tbFind", Qt::Key_Return);
    }
    Find<QLineEdit>("tbFind").setText(QStringLiteral("\u6F22")); // unlike "?", nothing has it
    EXPECT_EQ(TextOf("lbFound"), QStringLiteral("Nothing found"));
    OpenContent(HeaderOf("<b>Ash</b>") + "|<i>Ash</i>\r\n");
    Seek(QStringLiteral("<i>"));
    EXPECT_EQ(FoundTexts(), QStringList{QStringLiteral("<i>Ash</i>")});
}

TEST_F(FindTest, ALongListOfHitsIsMadeAsItIsScrolled) {
    std::string content = HeaderOf("Alpha");
    for (int i = 0; i < 30'000; ++i) {
        content += "|Name " + std::to_string(i);
    }
    OpenContent(content + "\r\n");
    Seek(QStringLiteral("name"));
    const QAbstractItemModel& model = *List("lvFound").model();
    while (TextOf("lbFound") != QStringLiteral("30,000 variations")) {
        QCoreApplication::processEvents();
    }
    EXPECT_LT(model.rowCount(), 30'000);
    Key("tbFind", Qt::Key_Return);
    Key("lvVariations", Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Selected("lvVariations"), QStringList{QStringLiteral("Name 29999")});
    EXPECT_EQ(model.rowCount(), 30'000);
    EXPECT_EQ(List("lvFound").SelectedRows(), std::vector<int>{29'999});
}

TEST_F(FindTest, TheModelOfHitsKeepsTheRulesOfModels) {
    HitModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    auto hits = std::make_shared<Hits>();
    for (std::int32_t slot = 1; slot <= 3; ++slot) {
        hits->Add({HitKind::Variation, 2, slot});
    }
    hits->Add({HitKind::Variation, 77, 1}); // not there any more
    model.Show(hits);
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.index(1, 3).data().toString(), QStringLiteral("Elm"));
    EXPECT_EQ(model.index(3, 3).data(), QVariant());
    EXPECT_FALSE(model.Reach(4));
    model.Show(std::make_shared<Hits>());
    EXPECT_EQ(model.rowCount(), 0);
}
