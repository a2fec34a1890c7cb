// Find among the proposals: only some of them are listed, but all are what the commands work on.

#include "core/Ansi.h"
#include "ui/Text.h"
#include "ui/widgets/FindBar.h"
#include "ui/windows/ProposalsTest.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <random>

using namespace CommonRoutines;
using namespace Ui;

namespace {

const QString Elm = QStringLiteral("Elm");
const QString Oak = QStringLiteral("Oak");
const QString Helm = QStringLiteral("Helm");
const QString Invalid = QStringLiteral("As?h");

class ProposalFindTest : public ProposalsTest {
protected:
    ProposalFindTest() {
        OpenDistrict();
        Process("Elm\nOak\nHelm\nAs?h\n");
        Activate(*form);
    }

    FindBar& Bar() { return Find<FindBar>("ProposalFindBar"); }
    QLineEdit& Box() { return Bar().Box(); }
    QString Found() { return Bar().findChild<QLabel*>(QStringLiteral("lbProposalsFound"))->text(); }
    void Open(const QString& text = {}) {
        Key("LvChanges", Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(Box().hasFocus());
        QTest::keyClicks(&Box(), text);
    }
    QStringList Listed() { return Column("LvChanges"); }
    // Those of all proposals, listed or not.
    QStringList AllTicked() {
        Bar().Close();
        return Ticked();
    }
};

} // namespace

TEST_F(ProposalFindTest, CtrlFInTheListOrOnItsButtonsOpensTheBar) {
    EXPECT_FALSE(Bar().isVisible());
    Open();
    EXPECT_TRUE(Bar().isVisible());
    EXPECT_EQ(Listed(), (QStringList{Elm, Oak, Helm, Invalid}));
    EXPECT_EQ(Found(), QStringLiteral("4 of 4"));
    QTest::keyClick(&Box(), Qt::Key_Escape);
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_TRUE(Find("LvChanges").hasFocus());
    Find("cbApplyAll").setFocus();
    Key("cbApplyAll", Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_FALSE(Box().accessibleName().isEmpty());
}

TEST_F(ProposalFindTest, ElsewhereItIsNotOpened) {
    for (const char* control : {"lvAlpha", "lvVariations", "tbEdit", "lvComments", "cbOpen"}) {
        Find(control).setFocus();
        EXPECT_FALSE(form->FindInProposals()) << control;
        EXPECT_FALSE(Bar().isVisible());
    }
    Find("LvChanges").setFocus();
    EXPECT_TRUE(form->FindInProposals());
}

TEST_F(ProposalFindTest, OnlyProposalsThatHoldTheTextAreListed) {
    Open(QStringLiteral("ELM"));
    EXPECT_EQ(Listed(), (QStringList{Elm, Helm}));
    EXPECT_EQ(Found(), QStringLiteral("2 of 4"));
    EXPECT_EQ(TextOf("lbSelectCount"), QString());
    Box().setText(QStringLiteral("?"));
    EXPECT_EQ(Listed(), QStringList{Invalid});
    Box().setText(QStringLiteral(".*"));
    EXPECT_EQ(Listed(), QStringList());
    EXPECT_EQ(List("LvChanges").Hint(), QStringLiteral("No proposal contains this text."));
    Box().setText(QString(QChar(0x4E2D)));
    EXPECT_EQ(Listed(), QStringList());
    Box().clear();
    EXPECT_EQ(Listed().size(), 4);
}

TEST_F(ProposalFindTest, EscShowsAllAndLeavesTheTicks) {
    Open(QStringLiteral("helm"));
    ClickBox(Helm);
    Box().setFocus();
    QTest::keyClick(&Box(), Qt::Key_Escape);
    EXPECT_EQ(Listed(), (QStringList{Elm, Oak, Helm, Invalid}));
    EXPECT_EQ(Ticked(), QStringList{Helm});
    Open();
    EXPECT_EQ(Box().text(), QString());
    EXPECT_EQ(Listed().size(), 4);
}

TEST_F(ProposalFindTest, TicksAndCountsAreThoseOfAllProposals) {
    ClickBox(Oak);
    Open(QStringLiteral("helm"));
    ClickBox(Helm);
    EXPECT_EQ(Ticked(), QStringList{Helm});
    EXPECT_EQ(TextOf("lbSelectCount"), QStringLiteral("Selected=2"));
    EXPECT_EQ(Found(), QStringLiteral("1 of 4"));
    EXPECT_EQ(AllTicked(), (QStringList{Oak, Helm}));
}

TEST_F(ProposalFindTest, AClickOnATextTakesTheRightProposal) {
    Open(QStringLiteral("helm"));
    ClickText(Helm);
    EXPECT_EQ(EditText(), Helm);
    EXPECT_EQ(AllTicked(), QStringList{Helm});
}

TEST_F(ProposalFindTest, TheSpaceKeyTicksTheRightProposal) {
    Open(QStringLiteral("helm"));
    QTest::keyClick(&Box(), Qt::Key_Return);
    EXPECT_TRUE(Find("LvChanges").hasFocus());
    Key("LvChanges", Qt::Key_Space);
    EXPECT_EQ(AllTicked(), QStringList{Helm});
}

TEST_F(ProposalFindTest, TheChosenProposalStaysChosenBehindTheFilter) {
    Key("LvChanges", Qt::Key_Home);
    Key("LvChanges", Qt::Key_Down);
    Key("LvChanges", Qt::Key_Down);
    ASSERT_EQ(Selected("LvChanges"), QStringList{Helm});
    Open(QStringLiteral("elm"));
    EXPECT_EQ(Selected("LvChanges"), QStringList{Helm});
    Box().setText(QStringLiteral("oak"));
    EXPECT_EQ(Selected("LvChanges"), QStringList());
    Bar().Close();
    EXPECT_EQ(Selected("LvChanges"), QStringList{Helm});
}

TEST_F(ProposalFindTest, WhatIsChosenWhileFilteringStaysChosen) {
    Open(QStringLiteral("elm"));
    Key("LvChanges", Qt::Key_End);
    EXPECT_EQ(Selected("LvChanges"), QStringList{Helm});
    Bar().Close();
    EXPECT_EQ(Selected("LvChanges"), QStringList{Helm});
    EXPECT_EQ(List("LvChanges").currentIndex().row(), 2);
}

TEST_F(ProposalFindTest, ApplyAllAppliesAllProposals) {
    Open(QStringLiteral("helm"));
    desktop.ExpectBox("3 New variations added.\r\n1 invalid variations were ignored", BoxIcon::Information);
    Click("cbApplyAll");
    EXPECT_EQ(Column("lvVariations"), (QStringList{QStringLiteral("Alfa"), QStringLiteral("Betta"), Elm, Helm, Oak}));
    EXPECT_EQ(Listed(), QStringList{Helm});
    EXPECT_EQ(Found(), QStringLiteral("1 of 4"));
}

TEST_F(ProposalFindTest, ApplySelectedAppliesATickThatIsNotShown) {
    ClickBox(Oak);
    Open(QStringLiteral("helm"));
    desktop.ExpectBox("1 New variations added.\r\n1 invalid variations were ignored", BoxIcon::Information);
    Click("cbApplySelected");
    EXPECT_EQ(Column("lvVariations"), (QStringList{QStringLiteral("Alfa"), QStringLiteral("Betta"), Oak}));
}

TEST_F(ProposalFindTest, ClearTakesAwayTicksThatAreNotShown) {
    ClickBox(Oak);
    Open(QStringLiteral("helm"));
    Click("cbClearSel");
    EXPECT_EQ(AllTicked(), QStringList());
}

TEST_F(ProposalFindTest, OtherProposalsAreFilteredAsWell) {
    Open(QStringLiteral("elm"));
    Process("Yew\nWych elm\nElmet\nElm\n");
    EXPECT_EQ(Listed(), (QStringList{QStringLiteral("Wych elm"), QStringLiteral("Elmet"), Elm}));
    EXPECT_EQ(Found(), QStringLiteral("3 of 4"));
    ClickBox(QStringLiteral("Elmet"));
    EXPECT_EQ(AllTicked(), QStringList{QStringLiteral("Elmet")});
}

TEST_F(ProposalFindTest, ProposalsThatGoLeaveAnEmptyListWithItsUsualHint) {
    const QString usual = [this] {
        ClickRow("lbComments", QStringLiteral("NOTE"));
        return List("LvChanges").Hint();
    }();
    ClickRow("lvAlpha", QStringLiteral("Beta"));
    Process("Elm\nOak\n");
    Open(QStringLiteral("elm"));
    ClickRow("lbComments", 0);
    EXPECT_EQ(Listed(), QStringList());
    EXPECT_EQ(Found(), QStringLiteral("0 of 0"));
    EXPECT_EQ(List("LvChanges").Hint(), usual);
}

TEST_F(ProposalFindTest, AFileOfAnotherEncodingKeepsTheFilter) {
    Process("Caf\xE9\nOak\n");
    Open(QStringLiteral("F\u00C9"));
    EXPECT_EQ(Listed(), QStringList{QStringLiteral("Caf\u00E9")});
    OpenContent(HeaderOf("\xC3\xA9t\xC3\xA9") + "\r\n");
    ASSERT_EQ(eFileEncoding, Encoding::Utf8);
    EXPECT_EQ(Listed(), QStringList{QStringLiteral("Caf\u00E9")});
    EXPECT_EQ(Found(), QStringLiteral("1 of 2"));
}

TEST_F(ProposalFindTest, EverythingInTheBarIsSeenInANarrowColumn) {
    form->resize(1000, 620);
    Open(QStringLiteral("elm"));
    QCoreApplication::processEvents();
    const auto& found = *Bar().findChild<QLabel*>(QStringLiteral("lbProposalsFound"));
    EXPECT_GE(found.width(), found.fontMetrics().horizontalAdvance(QStringLiteral("333 of 1,200")));
    EXPECT_GE(Box().width(), 10 * Box().fontMetrics().averageCharWidth());
    const auto& close = *Bar().findChild<QPushButton*>();
    EXPECT_GE(close.width(), close.sizeHint().width());
    EXPECT_TRUE(Bar().rect().contains(close.geometry()));
    EXPECT_EQ(form->size(), QSize(1000, 620));
    EXPECT_EQ(List("LvChanges").horizontalScrollBar()->value(), 0);
}

TEST_F(ProposalFindTest, TabLeadsThroughTheBarToTheList) {
    Open();
    EXPECT_TRUE(Box().hasFocus());
    QTest::keyClick(&Box(), Qt::Key_Tab);
    EXPECT_TRUE(Bar().findChild<QPushButton*>()->hasFocus());
    QTest::keyClick(Bar().findChild<QPushButton*>(), Qt::Key_Tab);
    EXPECT_TRUE(Find("LvChanges").hasFocus());
}

TEST_F(ProposalFindTest, ListsWhatAPlainLoopFindsAndTicksWhatIsClicked) {
    std::mt19937 random(5);
    const auto text = [&](std::size_t least, std::size_t most) {
        std::string made;
        for (auto length = least + random() % (most - least + 1); length > 0; --length) {
            made += "abAB.\xE9\xC9"[random() % 7];
        }
        return made;
    };
    std::string content;
    std::vector<std::string> all;
    for (int line = 0; line < 60; ++line) {
        all.push_back(std::to_string(line) + text(1, 8));
        content += all.back() + "\n";
    }
    Process(content);
    Open();
    for (int round = 0; round < 60; ++round) {
        const std::string sought = text(1, 2);
        QStringList expected;
        for (const std::string& proposal : all) {
            if (Ansi::Upper(proposal).find(Ansi::Upper(sought)) != std::string::npos) {
                expected.append(Text::ForList(proposal));
            }
        }
        Box().setText(Text::ToQt(sought));
        ASSERT_EQ(Listed(), expected) << sought;
        if (!expected.isEmpty()) {
            const QString chosen = expected.at(static_cast<qsizetype>(random()) % expected.size());
            ClickText(chosen);
            EXPECT_EQ(EditText(), chosen);
            Click("cbCancel");
        }
    }
}
