#include "ui/windows/LongWork.h"

#include "ui/widgets/ProgressPanel.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace Ui {

namespace {

bool s_painting = false;

bool HasRun(const QElapsedTimer& timer, std::chrono::milliseconds time) {
    return timer.elapsed() >= time.count();
}

} // namespace

bool LongWork::IsPainting() {
    return s_painting;
}

void LongWork::UnlessPainting(const std::function<void()>& command) {
    if (!IsPainting()) {
        command();
    }
}

void LongWork::Begin(QWidget* window) {
    End();
    m_window = window;
    if (m_window != nullptr) {
        m_window->setCursor(Qt::WaitCursor);
        m_begun.start();
        m_painted.invalidate();
    }
}

void LongWork::Show(const QString& doing, double part) {
    const bool isDue = m_begun.isValid() && HasRun(m_begun, m_delays.painting) &&
                       (!m_painted.isValid() || HasRun(m_painted, m_delays.betweenPaintings));
    if (!isDue || s_painting || m_window.isNull()) {
        return;
    }
    if (m_panel.isNull() && HasRun(m_begun, m_delays.panel)) {
        m_panel = new ProgressPanel(m_window);
    }
    if (!m_panel.isNull()) {
        m_panel->Show(doing, part);
    }
    const QScopedValueRollback painting(s_painting, true);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_painted.start();
}

void LongWork::GoOn() {
    if (m_begun.isValid() && m_panel.isNull()) {
        m_begun.restart();
    }
}

void LongWork::End() {
    if (!m_begun.isValid()) {
        return;
    }
    m_begun.invalidate();
    delete m_panel;
    if (m_window != nullptr) {
        m_window->unsetCursor();
    }
}

} // namespace Ui
