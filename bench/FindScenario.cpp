#include "BenchWindow.h"
#include "Figures.h"
#include "Scenarios.h"

#include "core/State.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>

#include <algorithm>
#include <vector>

namespace Bench {

using namespace CommonRoutines;

using Figures::Median;
using Figures::Print;

namespace {

constexpr int Rounds = 7;

// Types a text at once, and times how long it takes until the first hits are painted and until all are counted.
class Finding : public QObject {
public:
    explicit Finding(BenchWindow& window) : m_window(window), m_box(window.Find<QLineEdit>("tbFind")) {
        window.List("lvFound").viewport()->installEventFilter(this);
    }

    void Measure(const QString& text) {
        m_box.clear();
        Finish();
        m_isPainted = false;
        m_clock.start();
        m_box.setText(text);
        Finish();
        m_all.push_back(Elapsed());
        if (!m_isPainted) { // nothing was found, and nothing was there before
            m_first.push_back(m_all.back());
        }
    }
    [[nodiscard]] double First() const { return Median(m_first); }
    [[nodiscard]] double All() const { return Median(m_all); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !m_isPainted) {
            watched->removeEventFilter(this);
            QApplication::sendEvent(watched, event); // painted when this returns
            watched->installEventFilter(this);
            m_first.push_back(Elapsed());
            m_isPainted = true;
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    [[nodiscard]] double Elapsed() const { return static_cast<double>(m_clock.nsecsElapsed()) / 1e6; }
    void Finish() {
        do {
            QApplication::processEvents();
        } while (m_window.TextOf("lbFound").endsWith(QLatin1String("so far")) ||
                 m_window.TextOf("lbFound") == QLatin1String("Searching"));
        m_window.Settle();
    }

    BenchWindow& m_window;
    QLineEdit& m_box;
    QElapsedTimer m_clock; // from the text on
    bool m_isPainted = true;
    std::vector<double> m_first;
    std::vector<double> m_all;
};

void MeasureText(BenchWindow& window, const std::string& name, const QString& text) {
    Finding finding(window);
    for (int round = 0; round < Rounds; ++round) {
        finding.Measure(text);
    }
    Print(name + "_first_ms", finding.First());
    Print(name + "_ms", finding.All());
}

} // namespace

void MeasureFinding(const std::string& file) {
    BenchWindow window;
    window.Open(file);
    window.Key("lvAlpha", Qt::Key_F, Qt::ControlModifier);
    const auto before = Figures::Memory("VmRSS");
    MeasureText(window, "find_rare", QStringLiteral("qxq"));
    MeasureText(window, "find_usual", QStringLiteral("ash"));
    window.Find<QAbstractButton>("cbWholeSpelling").click();
    MeasureText(window, "find_whole", QStringLiteral("ashton"));
    window.Find<QAbstractButton>("cbWholeSpelling").click();
    MeasureText(window, "find_letter", QStringLiteral("e"));
    Print("find_bytes", Figures::Memory("VmRSS") - before);
}

} // namespace Bench
