// The standard message box and the input box.

#include "ui/machine/DesktopTest.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

using namespace CommonRoutines;
using namespace Ui;

namespace {

class StandardBoxesTest : public DesktopTest {
protected:
    // Shows a box and keeps what it looked like; it is left by pressing a button.
    void Look(const Wording& text, BoxIcon icon, BoxButtons buttons, const std::string& press = "OK") {
        guide.Next([this, press](QWidget& dialogue) {
            const auto& box = dynamic_cast<QMessageBox&>(dialogue);
            title = box.windowTitle();
            shown = box.text();
            format = box.textFormat();
            boxIcon = box.icon();
            boxButtons = box.standardButtons();
            DialogueGuide::Press(dialogue, press);
        });
        desktop.MsgBox(text, icon, buttons);
    }

    QString title;
    QString shown;
    Qt::TextFormat format = Qt::AutoText;
    QMessageBox::Icon boxIcon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons boxButtons;
};

} // namespace

TEST_F(StandardBoxesTest, CarryTheProgramsTitleAndTheText) {
    Look("One line\r\nand another", BoxIcon::Information, BoxButtons::Ok);
    EXPECT_EQ(title, QStringLiteral("Quexal Editor"));
    EXPECT_EQ(shown, QStringLiteral("One line\nand another"));
}

TEST_F(StandardBoxesTest, ShowMarkupAsItStands) {
    Look("District <img src=x> &amp; <b>A</b>", BoxIcon::Exclamation, BoxButtons::Ok);
    EXPECT_EQ(format, Qt::PlainText);
    EXPECT_EQ(shown, QStringLiteral("District <img src=x> &amp; <b>A</b>"));
}

TEST_F(StandardBoxesTest, ShowAFileNameAsItIsWhateverItsCharactersAre) {
    const auto show = [this](const std::string& path) {
        Look("Saved to " + Wording::OfPath(path) + "\r\nCaf\xE9", BoxIcon::Information, BoxButtons::Ok);
        return shown;
    };
    EXPECT_EQ(show("/data/\xC4\x8D"
                   "aj\xE2\x82\xAC.txt"),
              QDir::toNativeSeparators(QStringLiteral("Saved to /data/\u010Daj\u20AC.txt\nCaf\u00E9")));
    EXPECT_EQ(show("/data/<b>a</b>.txt"),
              QDir::toNativeSeparators(QStringLiteral("Saved to /data/<b>a</b>.txt\nCaf\u00E9")));
    EXPECT_EQ(format, Qt::PlainText);
}

// What is no character is seen to be none; a line end in a name makes no new line.
TEST_F(StandardBoxesTest, ShowWhatIsNoCharacterInAFileNameByASymbol) {
    Look(Wording::OfPath("/data/caf\xE9 \xC3.txt"), BoxIcon::Information, BoxButtons::Ok);
    EXPECT_EQ(shown, QDir::toNativeSeparators(QStringLiteral("/data/caf\uFFFD \uFFFD.txt")));
    Look(Wording::OfPath("/data/a\r\nb.txt"), BoxIcon::Information, BoxButtons::Ok);
    EXPECT_EQ(shown, QDir::toNativeSeparators(QStringLiteral("/data/a\uFFFD\uFFFDb.txt")));
}

TEST_F(StandardBoxesTest, ShowAWordThatIsWiderThanTheScreenToItsEnd) {
    std::string name;
    for (int number = 100; number < 185; ++number) {
        name += std::to_string(number);
    }
    guide.Next([&](QWidget& dialogue) {
        QApplication::processEvents();
        const auto* label = dialogue.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        const QStringList rows = label->text().split(QLatin1Char('\n'));
        EXPECT_GT(rows.size(), 3);
        EXPECT_EQ(rows.join(QString()),
                  QStringLiteral("Saved to") + QString::fromStdString(name) + QStringLiteral("It is whole."));
        for (const QString& row : rows) {
            EXPECT_LE(label->fontMetrics().horizontalAdvance(row), label->width()) << row.toStdString();
        }
        EXPECT_LE(dialogue.width(), dialogue.screen()->availableGeometry().width());
        DialogueGuide::Press(dialogue, "OK");
    });
    desktop.MsgBox("Saved to\r\n" + Wording::OfPath(name) + "\r\nIt is whole.", BoxIcon::Information, BoxButtons::Ok);
}

TEST_F(StandardBoxesTest, LeaveWordsAsTheyAreThatFit) {
    const std::string text = std::string(60, 'x') + " /a/" + std::string(60, 'y') + "/b and more\r\nthan that";
    Look(text, BoxIcon::Information, BoxButtons::Ok);
    EXPECT_EQ(shown.toStdString(), std::string(60, 'x') + " /a/" + std::string(60, 'y') + "/b and more\nthan that");
}

TEST_F(StandardBoxesTest, LeadTabFromTheirButtonToTheTextWhichCanBeCopied) {
    guide.Next([](QWidget& dialogue) {
        auto* label = dialogue.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        QApplication::processEvents();
        EXPECT_NE(dialogue.focusWidget(), label); // Enter and Space are for the button
        for (int i = 0; i < 3 && dialogue.focusWidget() != label; ++i) {
            QTest::keyClick(dialogue.focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(dialogue.focusWidget(), label);
        QTest::keyClick(label, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(label, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("A message"));
        DialogueGuide::Press(dialogue, "Yes");
    });
    desktop.MsgBox("A message", BoxIcon::Question, BoxButtons::YesNo);
}

TEST_F(StandardBoxesTest, HaveTheirIcon) {
    const std::vector<std::pair<BoxIcon, QMessageBox::Icon>> icons{{BoxIcon::None, QMessageBox::NoIcon},
                                                                   {BoxIcon::Critical, QMessageBox::Critical},
                                                                   {BoxIcon::Question, QMessageBox::Question},
                                                                   {BoxIcon::Exclamation, QMessageBox::Warning},
                                                                   {BoxIcon::Information, QMessageBox::Information}};
    for (const auto& [icon, expected] : icons) {
        Look("Text", icon, BoxButtons::Ok);
        EXPECT_EQ(boxIcon, expected);
    }
}

TEST_F(StandardBoxesTest, HaveTheirButtons) {
    Look("Text", BoxIcon::None, BoxButtons::Ok);
    EXPECT_EQ(boxButtons, QMessageBox::Ok);
    Look("Text", BoxIcon::None, BoxButtons::OkCancel);
    EXPECT_EQ(boxButtons, QMessageBox::Ok | QMessageBox::Cancel);
    Look("Text", BoxIcon::None, BoxButtons::YesNo, "Yes");
    EXPECT_EQ(boxButtons, QMessageBox::Yes | QMessageBox::No);
    Look("Text", BoxIcon::None, BoxButtons::YesNoDefaultNo, "No");
    EXPECT_EQ(boxButtons, QMessageBox::Yes | QMessageBox::No);
    Look("Text", BoxIcon::None, BoxButtons::YesNoCancel, "Cancel");
    EXPECT_EQ(boxButtons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

TEST_F(StandardBoxesTest, AnswerWithTheButtonPressed) {
    const auto answer = [this](BoxButtons buttons, const std::string& caption) {
        PressNext(caption);
        return desktop.MsgBox("Text", BoxIcon::Question, buttons);
    };
    EXPECT_EQ(answer(BoxButtons::Ok, "OK"), BoxAnswer::Ok);
    EXPECT_EQ(answer(BoxButtons::OkCancel, "OK"), BoxAnswer::Ok);
    EXPECT_EQ(answer(BoxButtons::OkCancel, "Cancel"), BoxAnswer::Cancel);
    EXPECT_EQ(answer(BoxButtons::YesNo, "Yes"), BoxAnswer::Yes);
    EXPECT_EQ(answer(BoxButtons::YesNo, "No"), BoxAnswer::No);
    EXPECT_EQ(answer(BoxButtons::YesNoCancel, "No"), BoxAnswer::No);
    EXPECT_EQ(answer(BoxButtons::YesNoCancel, "Cancel"), BoxAnswer::Cancel);
}

TEST_F(StandardBoxesTest, EscNeverMeansYesAndEnterTakesTheFirstButton) {
    const auto answer = [this](BoxButtons buttons, Qt::Key key) {
        KeyNext(key);
        return desktop.MsgBox("Text", BoxIcon::Question, buttons);
    };
    EXPECT_EQ(answer(BoxButtons::Ok, Qt::Key_Escape), BoxAnswer::Ok);
    EXPECT_EQ(answer(BoxButtons::OkCancel, Qt::Key_Escape), BoxAnswer::Cancel);
    EXPECT_EQ(answer(BoxButtons::YesNo, Qt::Key_Escape), BoxAnswer::No);
    EXPECT_EQ(answer(BoxButtons::YesNoCancel, Qt::Key_Escape), BoxAnswer::Cancel);
    EXPECT_EQ(answer(BoxButtons::OkCancel, Qt::Key_Return), BoxAnswer::Ok);
    EXPECT_EQ(answer(BoxButtons::YesNo, Qt::Key_Return), BoxAnswer::Yes);
}

TEST_F(StandardBoxesTest, WhereNoIsTheDefaultOnlyItsButtonMeansYes) {
    const auto answer = [this](Qt::Key key) {
        KeyNext(key);
        return desktop.MsgBox("Text", BoxIcon::Question, BoxButtons::YesNoDefaultNo);
    };
    EXPECT_EQ(answer(Qt::Key_Return), BoxAnswer::No);
    EXPECT_EQ(answer(Qt::Key_Enter), BoxAnswer::No);
    EXPECT_EQ(answer(Qt::Key_Escape), BoxAnswer::No);
    PressNext("Yes");
    EXPECT_EQ(desktop.MsgBox("Text", BoxIcon::Question, BoxButtons::YesNoDefaultNo), BoxAnswer::Yes);
}

TEST_F(StandardBoxesTest, AnEndlessTextStillLeavesTheButtonsOnTheScreen) {
    Look(std::string(100000, 'x'), BoxIcon::Exclamation, BoxButtons::Ok);
    EXPECT_LT(shown.size(), 5000);
}

TEST_F(StandardBoxesTest, BelongToTheWindow) {
    QWidget window;
    desktop.SetWindow(&window);
    guide.Next([&](QWidget& dialogue) {
        EXPECT_EQ(dialogue.parentWidget(), &window);
        EXPECT_TRUE(dialogue.isModal());
        DialogueGuide::Press(dialogue, "OK");
    });
    desktop.MsgBox("Text", BoxIcon::None, BoxButtons::Ok);
}

TEST_F(StandardBoxesTest, TheInputBoxReturnsWhatWasTyped) {
    guide.Next([](QWidget& dialogue) {
        EXPECT_EQ(dialogue.windowTitle(), QStringLiteral("Quexal Editor"));
        auto* edit = dialogue.findChild<QLineEdit*>();
        EXPECT_EQ(edit->text(), QString());
        edit->insert(QStringLiteral("Caf\u00E9 \u0105"));
        DialogueGuide::Press(dialogue, "OK");
    });
    EXPECT_EQ(desktop.InputBox("Please enter"), "Caf\xE9 ?");
}

TEST_F(StandardBoxesTest, TheInputBoxShowsItsPromptAsItStands) {
    guide.Next([](QWidget& dialogue) {
        auto& input = dynamic_cast<QInputDialog&>(dialogue);
        EXPECT_EQ(input.labelText(), QStringLiteral("Replace <b>A</b>\n<img src=x>"));
        for (const auto* label : dialogue.findChildren<QLabel*>()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
        }
        DialogueGuide::Press(dialogue, "Cancel");
    });
    desktop.InputBox("Replace <b>A</b>\r\n<img src=x>");
}

TEST_F(StandardBoxesTest, ACancelledInputBoxReturnsNothing) {
    PressNext("Cancel");
    EXPECT_EQ(desktop.InputBox("Please enter"), std::nullopt);
    KeyNext(Qt::Key_Escape);
    EXPECT_EQ(desktop.InputBox("Please enter"), std::nullopt);
    PressNext("OK");
    EXPECT_EQ(desktop.InputBox("Please enter"), "");
}

TEST_F(StandardBoxesTest, ALongPromptKeepsTheInputBoxOnTheScreen) {
    guide.Next([](QWidget& dialogue) {
        EXPECT_LE(dialogue.width(), dialogue.screen()->availableGeometry().width());
        DialogueGuide::Press(dialogue, "Cancel");
    });
    desktop.InputBox("Please enter a replacement for the variation " + std::string(600, 'x'));
}

TEST_F(StandardBoxesTest, TheTextCanBeCopiedWithoutAMouse) {
    guide.Next([](QWidget& dialogue) {
        auto* label = dialogue.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        ASSERT_NE(label, nullptr);
        EXPECT_FALSE(label->hasFocus());
        label->setFocus(Qt::TabFocusReason);
        QTest::keyClick(label, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(label, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Copy me"));
        DialogueGuide::Press(dialogue, "OK");
    });
    desktop.MsgBox("Copy me", BoxIcon::Information, BoxButtons::Ok);
}
