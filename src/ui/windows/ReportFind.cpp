#include "ui/windows/ReportFind.h"

#include "commands/Session.h"
#include "ui/Text.h"
#include "ui/lists/ReportModel.h"
#include "ui/lists/RowList.h"
#include "ui/widgets/FindBar.h"
#include "ui/windows/LongWork.h"

#include <QDeadlineTimer>
#include <QLineEdit>

#include <chrono>
#include <utility>

namespace Ui {

using namespace CommonRoutines;
using namespace std::chrono_literals;

namespace {

constexpr auto AtOnce = 8ms;            // what nobody feels while typing
constexpr std::size_t LinesOfStep = 16; // which take little of that, also where lines are long
constexpr qint64 BetweenShowings = 100; // milliseconds: the list is laid out anew for each

} // namespace

ReportFind::ReportFind(const ReportItems& items, Desktop& desktop, ReportModel& model, RowList& list, FindBar& bar)
    : m_items(items), m_desktop(desktop), m_model(model), m_list(list), m_bar(bar) {
    QObject::connect(&m_next, &QTimer::timeout, &bar, [this] { LongWork::UnlessPainting([this] { LookOn(); }); });
    QObject::connect(&bar, &FindBar::Typed, &bar, [this](const QString& text) { LookFor(text); });
    QObject::connect(&bar, &FindBar::Entered, &bar, [this] { GoToFirst(); });
    QObject::connect(&bar, &FindBar::Closed, &bar, [this] { m_bar.Box().clear(); });
    ShowCount();
}

void ReportFind::LookFor(const QString& text) {
    m_next.stop();
    m_wantsFirst = false;
    m_waiting.clear();
    m_filter.reset();
    NoteLine();
    if (text.isEmpty()) {
        ShowAll();
        return;
    }
    m_model.ShowNone();
    m_list.SetHint({});
    const std::string sought = Text::FromQt(text);
    if (Text::ToQt(sought) != text) { // no text of the file has such a character
        ShowWaiting();
        return;
    }
    m_filter.emplace(m_items, sought);
    m_shown.invalidate();
    LookOn();
}

// While a message is read, nothing is looked for; without memory no further.
void ReportFind::LookOn() {
    m_next.stop();
    Commands::WithinMemory(m_desktop, [this] {
        const QDeadlineTimer end(AtOnce, Qt::PreciseTimer);
        do {
            const auto found = m_filter->LookOn(LinesOfStep);
            m_waiting.insert(m_waiting.end(), found.begin(), found.end());
        } while (!m_filter->IsDone() && !end.hasExpired());
        if (!m_filter->IsDone()) {
            m_next.start(1); // a millisecond, so that what was found is painted before
        }
        if (!m_next.isActive() || !m_shown.isValid() || m_shown.hasExpired(BetweenShowings)) {
            ShowWaiting();
        }
    });
}

void ReportFind::ShowWaiting() {
    m_model.ShowMore(std::exchange(m_waiting, {}));
    if (m_model.rowCount() > 0) {
        m_shown.start();
    }
    if (!m_next.isActive()) {
        m_list.SetHint(QStringLiteral("No line contains this text."));
    }
    ShowCount();
    if (m_wantsFirst) {
        GoToFirst();
    }
}

void ReportFind::ShowAll() {
    m_model.ShowAll();
    m_list.SetHint({});
    ShowCount();
    if (m_line) {
        const QModelIndex index = m_model.index(*m_model.RowOf(*m_line), 0);
        m_list.setCurrentIndex(index);
        m_list.scrollTo(index, QAbstractItemView::PositionAtCenter);
    }
}

void ReportFind::ShowCount() {
    const QString count = FindBar::CountOf(static_cast<std::size_t>(m_model.rowCount()), m_items.size());
    m_bar.ShowFound(m_next.isActive() ? count + QStringLiteral(" so far") : count);
}

void ReportFind::GoToFirst() {
    m_wantsFirst = m_model.rowCount() == 0 && m_next.isActive();
    if (m_model.rowCount() > 0) {
        m_list.setCurrentIndex(m_model.index(0, 0));
        m_list.setFocus(Qt::OtherFocusReason);
    }
}

// The list forgets its choice with its rows.
void ReportFind::NoteLine() {
    const QModelIndex current = m_list.currentIndex();
    if (current.isValid() && m_list.selectionModel()->isSelected(current)) {
        m_line = m_model.LineOf(current.row());
    }
}

} // namespace Ui
