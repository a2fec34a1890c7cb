#include "ui/widgets/ProblemLabel.h"

#include "ui/Rendered.h"
#include "ui/lists/StateColours.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

using namespace Ui;
using CommonRoutines::VariationState;

namespace {

class ProblemLabelTest : public testing::Test {
protected:
    ProblemLabelTest() {
        m_label.resize(300, 100);
        m_label.show();
        m_label.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_label));
        m_label.TextBox()->clearFocus();
    }
    QImage Picture(VariationState ink, const QString& text) {
        m_label.ShowProblem(text, StateColours::OnLight(ink), StateColours::LightGrey);
        QApplication::processEvents();
        return Rendered::Of(m_label);
    }

    ProblemLabel m_label;
};

} // namespace

TEST_F(ProblemLabelTest, EveryStateIsLegibleInItsOwnColour) {
    for (const auto& facts : CommonRoutines::VariationStateTable) {
        const QImage image = Picture(facts.state, QString(20, QLatin1Char('H')));
        const QColor ink = StateColours::OnLight(facts.state);
        EXPECT_GT(Rendered::Count(image, ink), 20) << facts.words;
        const QColor behind = image.pixelColor(3, 10); // before the text
        EXPECT_GE(Colours::Contrast(ink, behind), 4.5) << facts.words;
        // The label itself keeps its ground.
        EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1), StateColours::LightGrey) << facts.words;
    }
}

TEST_F(ProblemLabelTest, AFieldLiesOnlyBehindTextsThatNeedIt) {
    const QImage black = Picture(VariationState::Plain, QStringLiteral("1 Duplicates(Blue)."));
    EXPECT_EQ(black.pixelColor(3, 10), StateColours::LightGrey);
    const QImage none = Picture(VariationState::Invalid, QString());
    EXPECT_EQ(Rendered::Count(none, StateColours::LightGrey), none.width() * none.height());
}

TEST_F(ProblemLabelTest, TheFieldEndsWithItsLines) {
    const QImage one = Picture(VariationState::Invalid, QStringLiteral("one line"));
    const QImage two = Picture(VariationState::Invalid, QStringLiteral("one line\nand another"));
    const auto height = [](const QImage& image) { return Rendered::Count(image.copy(6, 0, 1, 100), Qt::white); };
    EXPECT_GT(height(one), m_label.fontMetrics().lineSpacing() / 2);
    EXPECT_GT(height(two), height(one) + m_label.fontMetrics().lineSpacing() / 2);
    EXPECT_LT(height(two), 3 * m_label.fontMetrics().lineSpacing());
}

TEST_F(ProblemLabelTest, TheTextIsChosenAndCopiedByKeys) {
    Picture(VariationState::Duplicate, QStringLiteral("Duplicates <b>Alfa</b>"));
    m_label.TextBox()->setFocus();
    QTest::keyClick(m_label.TextBox(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(m_label.TextBox(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Duplicates <b>Alfa</b>"));
}

TEST_F(ProblemLabelTest, TheTextIsChosenAndCopiedByTheMouse) {
    Picture(VariationState::Duplicate, QStringLiteral("Word"));
    auto& lines = dynamic_cast<QTextEdit&>(*m_label.TextBox());
    QTest::mouseDClick(lines.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(12, 10));
    EXPECT_EQ(lines.textCursor().selectedText(), QStringLiteral("Word"));
}

TEST_F(ProblemLabelTest, TheTextCannotBeChanged) {
    Picture(VariationState::Invalid, QStringLiteral("Word"));
    m_label.TextBox()->setFocus();
    QTest::keyClicks(m_label.TextBox(), QStringLiteral("x"));
    QTest::keyClick(m_label.TextBox(), Qt::Key_Delete);
    EXPECT_EQ(dynamic_cast<QTextEdit&>(*m_label.TextBox()).toPlainText(), QStringLiteral("Word"));
}

TEST_F(ProblemLabelTest, MarkupIsShownAsItStands) {
    Picture(VariationState::Plain, QStringLiteral("<b>A</b>"));
    EXPECT_EQ(dynamic_cast<QTextEdit&>(*m_label.TextBox()).toPlainText(), QStringLiteral("<b>A</b>"));
    EXPECT_EQ(m_label.text(), QStringLiteral("<b>A</b>"));
}

TEST_F(ProblemLabelTest, TabLeadsOutOfTheText) {
    QWidget window;
    ProblemLabel label(&window);
    EXPECT_TRUE(dynamic_cast<QTextEdit&>(*label.TextBox()).tabChangesFocus());
}
