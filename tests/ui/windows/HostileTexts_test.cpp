// Texts that were made to hurt are cut off where they are shown, never where they are kept. A hang shows as
// the time limit of the tests.

#include "ui/machine/DesktopTest.h"
#include "ui/windows/ProposalsTest.h"

#include "ui/Text.h"
#include "ui/lists/ReportModel.h"
#include "ui/widgets/EditBox.h"
#include "ui/windows/VarCheck.h"

#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>

using namespace CommonRoutines;
using namespace Ui;

namespace {

constexpr std::size_t HundredMegabytes = 100'000'000;
constexpr std::size_t TenMegabytes = 10'000'000;
constexpr qsizetype MostShown = 2'100;
constexpr QChar Ellipsis(0x2026);

class HostileTexts : public ProposalsTest {
protected:
    ~HostileTexts() override {
        form.reset();
        ResetState(); // gives the memory back
    }

    // Selects the longest variation: the list is sorted.
    void SelectLast() {
        Key("lvVariations", Qt::Key_Home);
        Key("lvVariations", Qt::Key_End);
    }

    // All that a view, a tooltip and a screen reader show of a list.
    void ExpectCutOff(const char* list) {
        const QAbstractItemModel& model = *Find<RowList>(list).model();
        ASSERT_GT(model.rowCount(), 0) << list;
        for (int column = 0; column < model.columnCount(); ++column) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole}) {
                const QString text = model.index(model.rowCount() - 1, column).data(role).toString();
                EXPECT_LT(text.size(), MostShown) << list << ", column " << column << ", role " << role;
            }
        }
        EXPECT_TRUE(model.index(model.rowCount() - 1, 0).data().toString().endsWith(Ellipsis)) << list;
    }
};

} // namespace

TEST_F(HostileTexts, AVariationOfTenMegabytesIsShownByItsBeginning) {
    OpenDistrict("|" + std::string(TenMegabytes, 'X') + "|Alfa");
    ExpectCutOff("lvVariations");
    form->grab();
    SelectLast();
    form->grab();
    const auto& box = Find<EditBox>("tbEdit");
    EXPECT_LT(box.text().size(), MostShown);
    EXPECT_TRUE(box.text().endsWith(Ellipsis));
    EXPECT_LT(TextOf("lbWhyError").size(), MostShown);
}

TEST_F(HostileTexts, ATextThatIsTooLongToBeTypedInStaysAsItIs) {
    const std::string longText(TenMegabytes, 'x');
    OpenDistrict("|X" + longText + "|Alfa");
    SelectLast();
    Key("tbEdit", Qt::Key_A);
    Key("tbEdit", Qt::Key_Backspace);
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_FALSE(Enabled("cbOk"));
    EXPECT_TRUE(VariationAt(1, 1).Text == "X" + longText);
    EXPECT_FALSE(bChanged);
    // Its markers can be changed all the same.
    Click("cbShriek");
    EXPECT_TRUE(VariationAt(1, 1).Text == "!X" + longText);
    EXPECT_LT(TextOf("lbUndo").size(), MostShown);
    Click("cbUndo");
    EXPECT_TRUE(VariationAt(1, 1).Text == "X" + longText);
}

TEST_F(HostileTexts, TheNextTextCanBeEditedAgain) {
    OpenDistrict("|" + std::string(1'000'000, 'x') + "|Alfa");
    ClickRow("lvVariations", QStringLiteral("Alfa"));
    EXPECT_FALSE(Find<EditBox>("tbEdit").IsCutOff());
    Key("tbEdit", Qt::Key_End);
    Type(QStringLiteral("s"));
    EXPECT_EQ(EditText(), QStringLiteral("Alfas"));
    EXPECT_TRUE(Enabled("cbOk"));
    Key("lvVariations", Qt::Key_End);
    EXPECT_TRUE(Find<EditBox>("tbEdit").IsCutOff());
    Click("cbCancel");
    EXPECT_FALSE(Find<EditBox>("tbEdit").IsCutOff());
    EXPECT_EQ(EditText(), QString());
}

TEST_F(HostileTexts, ALongProposalIsAddedWholeButNotByWayOfTheEditBox) {
    OpenDistrict("|Alfa");
    const std::string proposal(TenMegabytes, 'X');
    Process(proposal + "\r\n");
    ExpectCutOff("LvChanges");
    ClickText(Column("LvChanges").constFirst());
    form->grab();
    EXPECT_TRUE(EditText().endsWith(Ellipsis));
    EXPECT_EQ(TextOf("lbStatus"), QStringLiteral("This text is too long to be edited here."));
    EXPECT_FALSE(Enabled("cbOk"));
    Click("cbCancel");
    desktop.ExpectBox("1 New variations added.", BoxIcon::Information);
    Click("cbApplySelected");
    EXPECT_EQ(DistrictAt(1).lVariationCount, 2);
    EXPECT_TRUE(VariationAt(1, 2).Text == proposal);
}

TEST_F(HostileTexts, NamesAndCommentsWithoutEndAreShownByTheirBeginnings) {
    const std::string half(TenMegabytes / 2, 'x');
    OpenContent("#QX_" + half + " " + half + "\r\n" + HeaderOf(half) + "|Alfa\r\n");
    form->grab();
    Key("lvAlpha", Qt::Key_Home);
    form->grab();
    ExpectCutOff("lvAlpha");
    ExpectCutOff("lvComments");
    ExpectCutOff("lbComments");
    EXPECT_LT(TextOf("lbApplyTo").size(), MostShown);
    EXPECT_LT(Find<QLabel>("lbApplyTo").toolTip().size(), MostShown);
    EXPECT_LT(Find<QLabel>("lbApplyTo").accessibleName().size(), MostShown);
}

TEST_F(HostileTexts, ControlCharactersAreVisibleInEveryList) {
    OpenContent("#QX_a\tb c\x01"
                "d\r\n" +
                HeaderOf("e\x7F"
                         "f") +
                "|g\th\r\n");
    Key("lvAlpha", Qt::Key_Home);
    Process("i\x02j\r\n");
    const std::vector<std::tuple<const char*, int, QString>> cells{
        {"lbComments", 0, QStringLiteral("a\u21E5b")},   {"lvComments", 0, QStringLiteral("a\u21E5b")},
        {"lvComments", 1, QStringLiteral("c\uFFFDd")},   {"lvAlpha", 0, QStringLiteral("e\uFFFDf")},
        {"lvVariations", 0, QStringLiteral("g\u21E5h")}, {"LvChanges", 0, QStringLiteral("i\uFFFDj")}};
    for (const auto& [list, column, shown] : cells) {
        auto& rows = Find<RowList>(list);
        const QModelIndex index = rows.model()->index(rows.model()->rowCount() - 1, column);
        EXPECT_EQ(index.data().toString(), shown) << list;
        rows.setColumnWidth(column, 1);
        if (!rows.isHeaderHidden() || !rows.header()->stretchLastSection()) {
            EXPECT_TRUE(rows.ToolTipOf(index).startsWith(shown)) << list;
        }
        if (const QString spoken = index.data(Qt::AccessibleTextRole).toString(); !spoken.isEmpty()) {
            EXPECT_TRUE(spoken.startsWith(shown)) << list;
        }
    }
    EXPECT_EQ(TextOf("lbApplyTo"), QStringLiteral("e\uFFFDf"));
}

TEST(HostileReport, ALineOfAHundredMegabytesIsShownByItsBeginning) {
    const Report report{"Duplicate Check", {std::string(HundredMegabytes, 'x'), "a\tb\x01"}, true};
    ScriptedDesktop desktop;
    VarCheck window(report, desktop, nullptr);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.grab();
    const QAbstractItemModel& model = *window.findChild<RowList*>()->model();
    EXPECT_LT(model.index(0, 0).data().toString().size(), MostShown);
    EXPECT_TRUE(model.index(0, 0).data().toString().endsWith(Ellipsis));
    EXPECT_EQ(model.index(1, 0).data().toString(), QStringLiteral("a\u21E5b\uFFFD"));
}

using HostileBoxes = DesktopTest;

TEST_F(HostileBoxes, ATextOfAHundredMegabytesLeavesEveryBoxOnTheScreen) {
    const std::string text(HundredMegabytes, 'x');
    const auto look = [this](const char* press) {
        guide.Next([press](QWidget& dialogue) {
            dialogue.grab();
            for (const auto* label : dialogue.findChildren<QLabel*>()) {
                EXPECT_LT(label->text().size(), MostShown);
            }
            EXPECT_LE(dialogue.height(), dialogue.screen()->availableGeometry().height());
            DialogueGuide::Press(dialogue, press);
        });
    };
    look("OK");
    desktop.MsgBox(text, BoxIcon::Exclamation, BoxButtons::Ok);
    look("Cancel");
    desktop.InputBox(text);
    look("Quit");
    const std::vector<std::string> buttons{"Remove", "Quit"};
    EXPECT_EQ(desktop.MyMsgBox(text, IconQuestion, "Null Variation", buttons), "Quit");
}
