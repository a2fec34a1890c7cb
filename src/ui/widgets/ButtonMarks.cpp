#include "ui/widgets/ButtonMarks.h"

#include "ui/Colours.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOptionButton>

namespace Ui {

namespace {

class MarkingStyle : public QProxyStyle {
public:
    explicit MarkingStyle(QObject* owner) : QProxyStyle(QApplication::style()->name()) { setParent(owner); }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (element != CE_PushButton || button == nullptr) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        QStyleOptionButton marked(*button);
        const QColor highlight = marked.palette.color(QPalette::Highlight);
        if (marked.features.testFlag(QStyleOptionButton::DefaultButton)) {
            const QColor ground = Colours::Tinted(marked.palette.color(QPalette::Button), highlight);
            marked.palette.setColor(QPalette::Button, ground);
            marked.palette.setColor(QPalette::ButtonText,
                                    Colours::Legible(marked.palette.color(QPalette::ButtonText), ground));
        }
        const bool hasFocus = marked.state.testFlag(State_HasFocus);
        marked.state &= ~State_HasFocus;
        QProxyStyle::drawControl(element, &marked, painter, widget);
        if (hasFocus) {
            PaintEdge(*painter, marked.rect, highlight);
        }
    }

private:
    static void PaintEdge(QPainter& painter, const QRect& button, const QColor& colour) {
        constexpr double thickness = 2;
        constexpr double radius = 2.5;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colour, thickness));
        const double inset = thickness / 2;
        painter.drawRoundedRect(QRectF(button).adjusted(inset, inset, -inset, -inset), radius, radius);
        painter.restore();
    }
};

} // namespace

void MarkButtons(QWidget& window) {
    auto* style = new MarkingStyle(&window);
    for (auto* button : window.findChildren<QPushButton*>()) {
        button->setStyle(style);
    }
}

} // namespace Ui
