#pragma once

#include <QAbstractListModel>

#include <string>
#include <vector>

namespace Ui {

// The lines of a report.
class ReportModel : public QAbstractListModel {
public:
    // `items` must live as long as the model.
    explicit ReportModel(const std::vector<std::string>& items, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    const std::vector<std::string>& m_items;
};

} // namespace Ui
