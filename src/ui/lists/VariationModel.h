#pragma once

#include "edit/VariationList.h"

#include <QAbstractListModel>

#include <cstdint>
#include <vector>

namespace Ui {

// The variations list: the texts are read from the district's record whenever they are painted.
class VariationModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void SetRows(std::int32_t district, std::vector<CommonRoutines::VariationRow> rows);

    // The texts of some rows' variations have changed: their states are found anew, their places stay.
    void RefreshRows(const std::vector<int>& rows);

    [[nodiscard]] const std::vector<CommonRoutines::VariationRow>& Rows() const { return m_rows; }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] const CommonRoutines::VariationRecord& VariationAt(int row) const;

    std::int32_t m_district = 0;
    std::vector<CommonRoutines::VariationRow> m_rows;
};

} // namespace Ui
