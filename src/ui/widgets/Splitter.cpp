#include "ui/widgets/Splitter.h"

#include "ui/Colours.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QSplitterHandle>

#include <algorithm>
#include <numeric>

namespace Ui {

std::vector<int> ShareOut(int length, std::span<const PartWish> parts) {
    std::vector<int> lengths;
    std::vector<std::size_t> turns(parts.size());
    int left = length;
    int weights = 0;
    for (const PartWish& part : parts) {
        lengths.push_back(part.least);
        left -= part.least;
        weights += part.weight;
    }
    std::iota(turns.begin(), turns.end(), std::size_t{0});
    std::stable_sort(turns.begin(), turns.end(), [&](auto a, auto b) { return parts[a].turn < parts[b].turn; });
    for (const std::size_t i : turns) {
        const int more = std::clamp(parts[i].enough - parts[i].least, 0, std::max(0, left));
        lengths[i] += more;
        left -= more;
    }
    for (std::size_t i = 0; i < parts.size() && left > 0; ++i) {
        const int share = left * parts[i].weight / weights; // of what the parts before have left
        lengths[i] += share;
        left -= share;
        weights -= parts[i].weight;
    }
    return lengths;
}

// A short line in the middle of the gap; coloured while the handle can be moved.
class Splitter::Handle : public QSplitterHandle {
public:
    Handle(Qt::Orientation orientation, QSplitter* splitter) : QSplitterHandle(orientation, splitter) {
        setFocusPolicy(Qt::TabFocus);
        setAccessibleName(QStringLiteral("Divider"));
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int length = 28;
        constexpr int thickness = 2;
        QRect line(0, 0, thickness, length);
        if (orientation() == Qt::Vertical) {
            line = line.transposed();
        }
        line.moveCenter(rect().center());
        QPainter painter(this);
        const bool isAtHand = hasFocus() || underMouse();
        const QColor grey = Colours::Mix(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.3);
        painter.fillRect(hasFocus() ? line.adjusted(-1, -1, 1, 1) : line,
                         isAtHand ? palette().color(QPalette::Highlight) : grey);
    }

    void keyPressEvent(QKeyEvent* event) override {
        constexpr int step = 16;
        const bool isAcross = orientation() == Qt::Horizontal;
        const int place = isAcross ? x() : y();
        if (event->key() == (isAcross ? Qt::Key_Left : Qt::Key_Up)) {
            moveSplitter(place - step);
        } else if (event->key() == (isAcross ? Qt::Key_Right : Qt::Key_Down)) {
            moveSplitter(place + step);
        } else {
            QSplitterHandle::keyPressEvent(event);
        }
    }
};

Splitter::Splitter(Qt::Orientation orientation, int gap, QWidget* parent) : QSplitter(orientation, parent) {
    setHandleWidth(gap);
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this] { m_moved = true; });
}

void Splitter::AddPart(QWidget* part, PartWish wish) {
    m_wishes.push_back(wish);
    addWidget(part);
}

QList<QWidget*> Splitter::Handles() const {
    QList<QWidget*> handles;
    for (int i = 1; i < count(); ++i) { // the first one is never shown
        handles.append(handle(i));
    }
    return handles;
}

QSplitterHandle* Splitter::createHandle() {
    return new Handle(orientation(), this);
}

bool Splitter::event(QEvent* event) {
    const bool handled = QSplitter::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        Share();
    }
    return handled;
}

void Splitter::resizeEvent(QResizeEvent* event) {
    QSplitter::resizeEvent(event);
    Share();
}

void Splitter::Share() {
    if (m_moved) {
        return;
    }
    const bool isAcross = orientation() == Qt::Horizontal;
    for (std::size_t i = 0; i < m_wishes.size(); ++i) {
        const QWidget& part = *widget(static_cast<int>(i));
        const QSize smallest = part.minimumSizeHint().expandedTo(part.minimumSize());
        m_wishes[i].least = isAcross ? smallest.width() : smallest.height();
    }
    const int gaps = (count() - 1) * handleWidth();
    const std::vector<int> lengths = ShareOut((isAcross ? width() : height()) - gaps, m_wishes);
    setSizes(QList<int>(lengths.begin(), lengths.end()));
}

} // namespace Ui
