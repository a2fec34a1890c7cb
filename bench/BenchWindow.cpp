#include "BenchWindow.h"

#include "Figures.h"
#include "core/State.h"
#include "ui/Text.h"
#include "ui/windows/VarCheck.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QSettings>
#include <QTest>

#include <algorithm>

using namespace CommonRoutines;
using namespace Ui;

namespace {

constexpr QSize NormalSize(1240, 680);
constexpr int InsideRow = 5; // pixels from its left end

double Milliseconds(const QElapsedTimer& clock) {
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

} // namespace

PrivateSettings::PrivateSettings() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
}

BenchWindow::BenchWindow() : m_form(desktop) {
    desktop.SetWindow(&m_form);
    m_form.LoadForm();
    m_form.show();
    m_form.resize(NormalSize);
    m_form.activateWindow();
    Settle();
}

void BenchWindow::Settle() {
    m_paints.Expect(nullptr);
    m_paints.Wait();
}

void BenchWindow::Click(const char* button) {
    auto& control = Find<QPushButton>(button);
    Figures::Require(control.isEnabled(), button);
    QTest::mouseClick(&control, Qt::LeftButton);
}

void BenchWindow::ClickRow(const char* list, int row) {
    RowList& rows = List(list);
    const QRect place = rows.visualRect(rows.model()->index(row, 0));
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, {place.left() + InsideRow, place.center().y()});
}

void BenchWindow::ScrollTo(const char* list, int row) {
    RowList& rows = List(list);
    rows.scrollTo(rows.model()->index(row, 0));
    Settle();
}

void BenchWindow::Key(const char* control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&Find<QWidget>(control), key, modifiers);
}

void BenchWindow::Type(const QString& text) {
    QTest::keyClicks(&Find<QWidget>("tbEdit"), text);
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
        lines = report.Items.size();
        ShowReport(report, [&] { time = Milliseconds(clock); });
    };
    clock.start();
    Click(button);
    desktop.onReport = {};
    return time;
}

// Shows the report window as the desktop does, until it has been painted.
void BenchWindow::ShowReport(const Report& report, const std::function<void()>& onPainted) {
    VarCheck window(report, desktop, &m_form);
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
    const QAbstractItemModel& model = *List("lvAlpha").model();
    const QModelIndexList rows = model.match(model.index(0, 0), Qt::DisplayRole, Text::ToQt(biggest->Name), 1,
                                             Qt::MatchExactly | Qt::MatchCaseSensitive);
    ScrollTo("lvAlpha", rows.constFirst().row());
    TimeOf([&] { ClickRow("lvAlpha", rows.constFirst().row()); }, "lvVariations");
    return biggest->lVariationCount;
}
