#include "ui/widgets/WindowInside.h"

#include <QApplication>
#include <QVBoxLayout>

namespace Ui {

WindowInside::WindowInside(QWidget* window, QWidget* inside) : QScrollArea(window) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(inside);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
        // Nothing moves away from under the mouse while it is being clicked.
        if (now != nullptr && widget()->isAncestorOf(now) && QGuiApplication::mouseButtons() == Qt::NoButton) {
            const QRect place(now->mapTo(widget(), QPoint()), now->size());
            ensureVisible(place.right(), place.bottom(), 1, 1);
            ensureVisible(place.left(), place.top(), 0, 0); // the beginning of what is too large
        }
    });
}

} // namespace Ui
