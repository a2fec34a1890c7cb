#include "PaintWatch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <cstdlib>
#include <iostream>
#include <utility>

namespace Bench {

namespace {

constexpr qint64 LongestWait = 60'000; // milliseconds

} // namespace

PaintWatch::PaintWatch() {
    QCoreApplication::instance()->installEventFilter(this);
}

void PaintWatch::Expect(const QWidget* widget, std::function<void()> onFirstPaint) {
    m_expected = widget;
    m_onFirstPaint = std::move(onFirstPaint);
}

void PaintWatch::Wait() {
    QElapsedTimer clock;
    clock.start();
    for (bool painted = true; painted || m_expected != nullptr;) {
        const std::uint64_t before = m_paints;
        QCoreApplication::processEvents();
        painted = m_paints != before;
        if (clock.hasExpired(LongestWait)) {
            std::cerr << "not painted: " << (m_expected ? m_expected->parent()->objectName().toStdString() : "")
                      << '\n';
            std::exit(EXIT_FAILURE);
        }
    }
}

bool PaintWatch::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        ++m_paints;
        if (object == m_expected) {
            m_expected = nullptr;
            if (const auto onFirstPaint = std::exchange(m_onFirstPaint, {})) {
                onFirstPaint();
            }
        }
    }
    return false;
}

} // namespace Bench
