#pragma once

#include <QObject>
#include <QWidget>

#include <cstdint>
#include <functional>

namespace Bench {

// Watches the painting of all widgets, so that a clock is stopped when a result is to be seen and not
// when it has merely been computed.
class PaintWatch : public QObject {
public:
    PaintWatch();

    // From now on `widget` counts as not painted. `onFirstPaint` is called at its first paint, which is
    // then just about to happen.
    void Expect(const QWidget* widget, std::function<void()> onFirstPaint = {});

    // Handles events until the expected widget is painted and nothing more is; without an expected
    // widget, until nothing is painted. Ends the program when that takes too long: there is then
    // nothing to be measured.
    void Wait();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const QWidget* m_expected = nullptr;
    std::function<void()> m_onFirstPaint;
    std::uint64_t m_paints = 0;
};

} // namespace Bench
