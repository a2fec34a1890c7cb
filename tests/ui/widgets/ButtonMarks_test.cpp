#include "ui/widgets/ButtonMarks.h"

#include "ui/Rendered.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Ui;

namespace {

class ButtonMarksTest : public testing::TestWithParam<QPalette (*)()> {
protected:
    ButtonMarksTest() {
        m_box.setPalette(GetParam()());
        auto* layout = new QHBoxLayout(&m_box);
        for (QPushButton** button : {&m_default, &m_focused, &m_other}) {
            *button = new QPushButton(QStringLiteral("Same"), &m_box);
            (*button)->setAutoDefault(false);
            layout->addWidget(*button);
        }
        m_default->setDefault(true);
        MarkButtons(m_box);
        m_box.show();
        m_box.activateWindow();
        m_focused->setFocus(Qt::OtherFocusReason); // as a program does, without any key
        QApplication::processEvents();
    }
    QImage Picture(QPushButton* button) { return Rendered::Of(*button); }
    int Edge(QPushButton* button) {
        return Rendered::Count(Picture(button), button->palette().color(QPalette::Highlight));
    }
    static QColor Ground(const QImage& button) { return button.pixelColor(8, button.height() / 2); }

    QDialog m_box;
    QPushButton* m_default = nullptr;
    QPushButton* m_focused = nullptr;
    QPushButton* m_other = nullptr;
};

INSTANTIATE_TEST_SUITE_P(LightAndDark, ButtonMarksTest, testing::Values(&Rendered::Light, &Rendered::Dark));

} // namespace

TEST_P(ButtonMarksTest, TheFocusIsAColouredEdge) {
    ASSERT_TRUE(m_focused->hasFocus());
    EXPECT_GT(Edge(m_focused), m_focused->width());
    EXPECT_EQ(Edge(m_default), 0);
    EXPECT_EQ(Edge(m_other), 0);
}

TEST_P(ButtonMarksTest, TheButtonForEnterHasATintedGround) {
    const QColor usual = Ground(Picture(m_other));
    EXPECT_EQ(Ground(Picture(m_focused)), usual);
    EXPECT_GT(Ground(Picture(m_default)).saturation(), usual.saturation() + 30);
}

TEST_P(ButtonMarksTest, AButtonCanBeBoth) {
    m_default->setFocus();
    EXPECT_GT(Edge(m_default), m_default->width());
    EXPECT_NE(Ground(Picture(m_default)), Ground(Picture(m_other)));
    EXPECT_EQ(Picture(m_focused), Picture(m_other));
}

TEST_P(ButtonMarksTest, CaptionsStayLegible) {
    for (QPushButton* button : {m_default, m_focused, m_other}) {
        const QImage image = Picture(button).copy(8, 4, button->width() - 16, button->height() - 8);
        const QColor ground = image.pixelColor(0, image.height() / 2);
        EXPECT_GE(Colours::Contrast(Rendered::Ink(image, ground), ground), 4.5);
    }
}
