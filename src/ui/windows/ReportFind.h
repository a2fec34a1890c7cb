#pragma once

#include "checks/ReportFilter.h"

#include <QElapsedTimer>
#include <QTimer>

#include <cstddef>
#include <optional>
#include <vector>

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

namespace Ui {

class FindBar;
class ReportModel;
class RowList;

// Find in a report: its bar, and the list of only the lines that hold the text in it. They are looked for between
// events, so that typing stays quick however long the report is; the next key ends what the one before has begun.
class ReportFind {
public:
    // All of them must live as long as this. `model` is that of the list.
    ReportFind(const CommonRoutines::ReportItems& items, CommonRoutines::Desktop& desktop, ReportModel& model,
               RowList& list, FindBar& bar);

private:
    void LookFor(const QString& text);
    void LookOn();
    void ShowWaiting();
    void ShowAll();
    void ShowCount();
    void GoToFirst();
    void NoteLine();

    const CommonRoutines::ReportItems& m_items;
    CommonRoutines::Desktop& m_desktop;
    ReportModel& m_model;
    RowList& m_list;
    FindBar& m_bar;
    std::optional<CommonRoutines::ReportFilter> m_filter;
    QTimer m_next;                      // runs while there are lines to be looked at
    std::vector<std::size_t> m_waiting; // found, and not shown yet
    QElapsedTimer m_shown;              // when the list was last made longer
    bool m_wantsFirst = false;          // Enter was pressed before a line was found
    std::optional<std::size_t> m_line;  // that was chosen last
};

} // namespace Ui
