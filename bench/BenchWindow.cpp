#include "BenchWindow.h"

#include "core/State.h"
#include "ui/Text.h"
#include "ui/windows/VarCheck.h"

#include <QElapsedTimer>

#include <algorithm>

namespace Bench {

using namespace CommonRoutines;
using namespace Ui;

namespace {

double Milliseconds(const QElapsedTimer& clock) {
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

} // namespace

BenchWindow::BenchWindow() {
    Window().resize(WindowSize);
    Settle();
}

void BenchWindow::Settle() {
    m_paints.Expect(nullptr);
    m_paints.Wait();
}

void BenchWindow::ScrollTo(const char* list, int row) {
    RowList& rows = List(list);
    rows.scrollTo(rows.model()->index(row, 0));
    Settle();
}

double BenchWindow::TimeOf(const std::function<void()>& action, QWidget& result) {
    Settle();
    QElapsedTimer clock;
    clock.start();
    action();
    m_paints.Expect(&result);
    m_paints.Wait();
    return Milliseconds(clock);
}

double BenchWindow::TimeOfClick(const char* button) {
    Settle();
    QElapsedTimer clock;
    clock.start();
    Click(button);
    Settle();
    return Milliseconds(clock);
}

double BenchWindow::TimeToReport(const char* button, std::size_t& lines) {
    Settle();
    QElapsedTimer clock;
    double time = 0;
    desktop.onReport = [&](const Report& report) {
        lines = report.items.size();
        ShowReport(report, [&] { time = Milliseconds(clock); });
    };
    clock.start();
    Click(button);
    desktop.onReport = {};
    return time;
}

// Shows the report window as the desktop does, until it has been painted.
void BenchWindow::ShowReport(const Report& report, const std::function<void()>& onPainted) {
    VarCheck window(report, desktop, &Window());
    const auto close = [&] {
        onPainted();
        window.reject();
    };
    // Queued, because the first paint has only begun when it is noticed.
    m_paints.Expect(window.findChild<RowList*>()->viewport(),
                    [&] { QMetaObject::invokeMethod(&window, close, Qt::QueuedConnection); });
    window.exec();
}

double BenchWindow::Open(const std::string& path) {
    desktop.fileToOpen = path;
    const double time = TimeOfClick("cbOpen", "lvAlpha");
    if (lDistrictTotal == 0) {
        qFatal("There are no districts in %s", path.c_str());
    }
    return time;
}

std::int32_t BenchWindow::ChooseBiggestDistrict() {
    const auto biggest = std::max_element(
        Districts.begin() + 1, Districts.begin() + 1 + lLineCount,
        [](const DistrictRecord& a, const DistrictRecord& b) { return a.lVariationCount < b.lVariationCount; });
    const int row = RowOf("lvAlpha", Text::ToQt(biggest->Name()));
    ScrollTo("lvAlpha", row);
    TimeOf([&] { ClickRow("lvAlpha", row); }, "lvVariations");
    return biggest->lVariationCount;
}

} // namespace Bench
