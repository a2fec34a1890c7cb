#pragma once

#include "core/Report.h"

#include <QAbstractListModel>

#include <cstddef>
#include <optional>
#include <vector>

namespace Ui {

// The lines of a report: all of them, or some that were found.
class ReportModel : public QAbstractListModel {
public:
    explicit ReportModel(CommonRoutines::ReportItems items, QObject* parent = nullptr);

    void ShowAll();
    // Shows none, and then more and more, which are in the order of the report.
    void ShowNone();
    void ShowMore(const std::vector<std::size_t>& lines);

    // The number of a row's line in the report, and the row of a line that is shown.
    [[nodiscard]] std::size_t LineOf(int row) const;
    [[nodiscard]] std::optional<int> RowOf(std::size_t line) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    CommonRoutines::ReportItems m_items;
    std::optional<std::vector<std::size_t>> m_found; // nothing while all are shown
};

} // namespace Ui
