#pragma once

#include "core/Report.h"

#include <QAbstractListModel>

namespace Ui {

// The lines of a report.
class ReportModel : public QAbstractListModel {
public:
    explicit ReportModel(CommonRoutines::ReportItems items, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    CommonRoutines::ReportItems m_items;
};

} // namespace Ui
