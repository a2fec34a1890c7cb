// The message box whose buttons are chosen by the caller.

#include "ui/machine/DesktopTest.h"

#include "ui/widgets/PlainLabel.h"

#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>

using namespace CommonRoutines;
using namespace Ui;

namespace {

using Captions = std::vector<std::string>;

const Captions RepairCaptions{"Combine Previous", "Combine Next", "Remove", "Type", "Quit"};

class ChosenButtonsTest : public DesktopTest {
protected:
    // Shows the box; `answer` must leave it. Returns the box's answer.
    std::string Ask(const Captions& captions, std::function<void(QWidget&)> answer,
                    const std::string& prompt = "Which?", std::int32_t icon = IconQuestion) {
        guide.Next(std::move(answer));
        return desktop.MyMsgBox(prompt, icon, "Null Variation", captions);
    }
    std::string Press(const Captions& captions, const std::string& caption) {
        return Ask(captions, [=](QWidget& box) { DialogueGuide::Press(box, caption); });
    }
    std::string PressKey(const Captions& captions, Qt::Key key) {
        return Ask(captions, [=](QWidget& box) { QTest::keyClick(&box, key); });
    }

    static std::vector<QPushButton*> Buttons(const QWidget& box) {
        std::vector<QPushButton*> buttons;
        for (int i = 0;; ++i) {
            auto* button = box.findChild<QPushButton*>(QStringLiteral("cmdButton%1").arg(i));
            if (button == nullptr) {
                return buttons;
            }
            buttons.push_back(button);
        }
    }
    static PlainLabel& Prompt(const QWidget& box) { return *box.findChild<PlainLabel*>(QStringLiteral("lblCaption")); }
    // All buttons in one row, at the places of the rule, each with room for its caption.
    static void ExpectRow(const QWidget& box, const Captions& captions) {
        const std::vector<QPushButton*> buttons = Buttons(box);
        ASSERT_EQ(buttons.size(), captions.size());
        const int width = buttons[0]->width();
        const int upperBound = static_cast<int>(std::ssize(captions)) - 1;
        for (int i = 0; i <= upperBound; ++i) {
            const QPushButton& button = *buttons[static_cast<std::size_t>(i)];
            EXPECT_EQ(button.text().replace(QLatin1Char('\n'), QLatin1Char(' ')).toStdString(),
                      captions[static_cast<std::size_t>(i)]);
            const int room = box.width() - 10 - width;
            EXPECT_EQ(button.x(), upperBound == 0 ? room / 2 : room * i / upperBound);
            EXPECT_EQ(button.y(), buttons[0]->y());
            EXPECT_EQ(button.size(), buttons[0]->size());
            EXPECT_TRUE(button.isVisible());
            const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
            EXPECT_LE(text.width(), width);
            EXPECT_LE(text.height(), button.height());
            const QRect place(button.mapTo(&box, QPoint()), button.size());
            EXPECT_TRUE(box.rect().contains(place));
            EXPECT_GE(place.top(), Prompt(box).geometry().bottom());
        }
    }
};

} // namespace

TEST_F(ChosenButtonsTest, OneToFiveCaptionsGiveAsManyButtonsInARow) {
    for (const Captions& captions : {Captions{"Remove"}, Captions{"Remove", "Quit"}, Captions{"Remove", "Type", "Quit"},
                                     Captions{"Combine Next", "Remove", "Type", "Quit"}, RepairCaptions}) {
        SCOPED_TRACE(captions.size());
        const std::string answer = Ask(captions, [&](QWidget& box) {
            ExpectRow(box, captions);
            // Only where the row would be too wide are the buttons narrower than usual.
            EXPECT_EQ(Buttons(box)[0]->width() >= 75, captions.size() < 5);
            DialogueGuide::Press(box, captions.back());
        });
        EXPECT_EQ(answer, captions.back());
    }
}

TEST_F(ChosenButtonsTest, TheAnswerIsTheCaptionPressed) {
    for (const std::string& caption : RepairCaptions) {
        EXPECT_EQ(Press(RepairCaptions, caption), caption);
    }
}

TEST_F(ChosenButtonsTest, LongCaptionsAreWrappedInTallerButtons) {
    const Captions captions{"Combine with the previous one", "Combine with the next one", "Remove it altogether",
                            "Type a replacement for it", "Quit"};
    Ask(captions, [&](QWidget& box) {
        ExpectRow(box, captions);
        const QPushButton& button = *Buttons(box)[0];
        EXPECT_TRUE(button.text().contains(QLatin1Char('\n')));
        EXPECT_GE(button.height(),
                  QPushButton(QStringLiteral("X")).sizeHint().height() + button.fontMetrics().height());
        EXPECT_LE(4 * (button.width() + 20), 500);
        DialogueGuide::Press(box, "Quit");
    });
    EXPECT_EQ(Press(captions, "Type a replacement for it"), "Type a replacement for it");
}

TEST_F(ChosenButtonsTest, EnterPressesOkOrYesInAnyCase) {
    EXPECT_EQ(PressKey({"Remove", "OK"}, Qt::Key_Return), "OK");
    EXPECT_EQ(PressKey({"Remove", "ok", "Quit"}, Qt::Key_Enter), "ok");
    EXPECT_EQ(PressKey({"No", "Yes"}, Qt::Key_Return), "Yes");
}

TEST_F(ChosenButtonsTest, EscPressesCancelInAnyCase) {
    EXPECT_EQ(PressKey({"Ok", "Cancel"}, Qt::Key_Escape), "Cancel");
    EXPECT_EQ(PressKey({"CANCEL", "Ok"}, Qt::Key_Escape), "CANCEL");
}

TEST_F(ChosenButtonsTest, WithoutCancelTheBoxIsOnlyLeftThroughItsButtons) {
    const std::string answer = Ask(RepairCaptions, [](QWidget& box) {
        EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_TRUE(box.isVisible());
        EXPECT_FALSE(box.close());
        EXPECT_TRUE(box.isVisible());
        DialogueGuide::Press(box, "Remove");
    });
    EXPECT_EQ(answer, "Remove");
}

TEST_F(ChosenButtonsTest, EvenWithCancelTheBoxCannotBeClosed) {
    Ask({"Ok", "Cancel"}, [](QWidget& box) {
        EXPECT_FALSE(box.close());
        EXPECT_TRUE(box.isVisible());
        DialogueGuide::Press(box, "Ok");
    });
}

TEST_F(ChosenButtonsTest, TheTitleIsTheCallersOrTheProgramsOwn) {
    Ask({"Ok"}, [](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Null Variation"));
        DialogueGuide::Press(box, "Ok");
    });
    guide.Next([](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Quexal Editor"));
        DialogueGuide::Press(box, "Ok");
    });
    desktop.MyMsgBox("Which?", IconNone, "", Captions{"Ok"});
}

TEST_F(ChosenButtonsTest, AnIconStandsAtItsPlaceAndMovesThePrompt) {
    const QRect iconPlace(10, 10, 32, 32);
    const auto picture = [&](std::int32_t icon, int promptLeft) {
        QImage image;
        Ask(
            {"Ok"},
            [&](QWidget& box) {
                EXPECT_EQ(Prompt(box).x(), promptLeft);
                EXPECT_TRUE(box.rect().contains(iconPlace));
                image = box.grab(iconPlace).toImage();
                DialogueGuide::Press(box, "Ok");
            },
            " ", icon);
        return image;
    };
    const QImage none = picture(IconNone, 10);
    for (const std::int32_t icon : {IconStop, IconQuestion, IconExclamation, IconInformation}) {
        EXPECT_NE(picture(icon, 52), none) << icon;
    }
    EXPECT_NE(picture(IconStop, 52), picture(IconQuestion, 52));
}

TEST_F(ChosenButtonsTest, AShortPromptSizesTheBoxAndALongOneIsWrapped) {
    Ask(
        {"Ok"},
        [](QWidget& box) {
            const int text = box.fontMetrics().horizontalAdvance(QStringLiteral("A prompt of some more words"));
            EXPECT_EQ(Prompt(box).width(), text);
            EXPECT_EQ(box.width(), text + 62);
            DialogueGuide::Press(box, "Ok");
        },
        "A prompt of some more words");
    for (const std::string& unit : {std::string("some words "), std::string("x")}) {
        std::string prompt;
        while (prompt.size() < 600) {
            prompt += unit;
        }
        Ask(
            {"Ok"},
            [](QWidget& box) {
                EXPECT_EQ(Prompt(box).width(), 438);
                EXPECT_EQ(box.width(), 500);
                EXPECT_GE(Prompt(box).height(), Prompt(box).WrappedHeight(438));
                DialogueGuide::Press(box, "Ok");
            },
            prompt);
    }
}

TEST_F(ChosenButtonsTest, AnEndlessPromptLeavesTheButtonsOnTheScreen) {
    Ask(
        RepairCaptions,
        [](QWidget& box) {
            EXPECT_LE(box.height(), box.screen()->availableGeometry().height());
            ExpectRow(box, RepairCaptions);
            DialogueGuide::Press(box, "Quit");
        },
        std::string(30000, 'x'));
}

TEST_F(ChosenButtonsTest, ThePromptIsShownAsItStands) {
    Ask(
        {"Ok"},
        [](QWidget& box) {
            EXPECT_EQ(Prompt(box).text(), QStringLiteral("District <b>A</b>\n<img src=x>"));
            EXPECT_EQ(Prompt(box).textFormat(), Qt::PlainText);
            DialogueGuide::Press(box, "Ok");
        },
        "District <b>A</b>\r\n<img src=x>");
}

TEST_F(ChosenButtonsTest, CtrlShiftClickShowsThePromptInAStandardBoxAndKeepsTheBox) {
    const std::vector<std::pair<std::int32_t, QMessageBox::Icon>> icons{
        {IconStop, QMessageBox::Critical},       {IconQuestion, QMessageBox::Question},
        {IconExclamation, QMessageBox::Warning}, {IconInformation, QMessageBox::Information},
        {IconNone, QMessageBox::NoIcon},
    };
    for (const auto& [icon, expected] : icons) {
        const auto ask = [&, standardIcon = expected](QWidget& box) {
            for (const QPoint& place : {QPoint(3, 3), Prompt(box).geometry().center()}) {
                guide.Next([standardIcon](QWidget& copy) {
                    const auto& standard = dynamic_cast<QMessageBox&>(copy);
                    EXPECT_EQ(standard.text(), QStringLiteral("District <b>A</b>"));
                    EXPECT_EQ(standard.textFormat(), Qt::PlainText);
                    EXPECT_EQ(standard.windowTitle(), QStringLiteral("Null Variation"));
                    EXPECT_EQ(standard.icon(), standardIcon);
                    DialogueGuide::Press(copy, "OK");
                });
                QTest::mouseClick(&box, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier, place);
                EXPECT_TRUE(guide.AllAnswered());
                EXPECT_TRUE(box.isVisible());
            }
            DialogueGuide::Press(box, "Remove");
        };
        EXPECT_EQ(Ask(RepairCaptions, ask, "District <b>A</b>", icon), "Remove");
    }
}

TEST_F(ChosenButtonsTest, OtherClicksShowNoCopy) {
    Ask({"Ok"}, [](QWidget& box) {
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QTest::mouseClick(&box, Qt::LeftButton, Qt::ControlModifier, QPoint(3, 3));
        QTest::mouseClick(&box, Qt::LeftButton, Qt::ShiftModifier, QPoint(3, 3));
        QTest::mouseClick(&box, Qt::RightButton, Qt::ControlModifier | Qt::ShiftModifier, QPoint(3, 3));
        EXPECT_EQ(QApplication::activeModalWidget(), &box);
        DialogueGuide::Press(box, "Ok");
    });
}

TEST_F(ChosenButtonsTest, CtrlCShowsThePromptInAStandardBoxToo) {
    guide.Next([this](QWidget& box) {
        guide.Next([](QWidget& copy) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(copy).text(), QStringLiteral("Which?"));
            DialogueGuide::Press(copy, "OK");
        });
        QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
        DialogueGuide::Press(box, "One");
    });
    EXPECT_EQ(desktop.MyMsgBox("Which?", IconQuestion, "", std::vector<std::string>{"One"}), "One");
}
