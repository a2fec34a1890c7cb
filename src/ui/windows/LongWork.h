#pragma once

#include <QElapsedTimer>
#include <QPointer>

#include <chrono>
#include <functional>

class QString;
class QWidget;

namespace Ui {

class ProgressPanel;

// Work that may take long, as the user sees it: the busy cursor from its beginning and, once it has taken a
// while, how far it has come. There is no second thread. The work itself says now and then where it is, and
// that is when the windows are painted; what the user does meanwhile waits until it is over.
class LongWork {
public:
    // When something is seen, counted from the beginning.
    struct Delays {
        std::chrono::milliseconds painting{500};
        std::chrono::milliseconds panel{2000};
        std::chrono::milliseconds betweenPaintings{50};
    };

    LongWork() : LongWork(Delays()) {}
    explicit LongWork(Delays delays) : m_delays(delays) {}
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;
    ~LongWork() { End(); }

    // `window` gets the busy cursor, and the panel in its middle.
    void Begin(QWidget* window);
    // A part (0 to 1) of what is being done is over. Nothing happens unless work has begun.
    void Show(const QString& doing, double part);
    // The work has waited for an answer of the user, which nobody calls long.
    void GoOn();
    void End();

    // True while a window is painted in the middle of some work, when nothing else may be begun.
    [[nodiscard]] static bool IsPainting();
    // Does what comes from a user, or from a screen reader, unless it comes then.
    static void UnlessPainting(const std::function<void()>& command);

private:
    Delays m_delays;
    QPointer<QWidget> m_window;
    QPointer<ProgressPanel> m_panel;
    QElapsedTimer m_begun;   // valid while there is work
    QElapsedTimer m_painted; // valid once the windows were painted
};

} // namespace Ui
