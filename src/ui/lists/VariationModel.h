#pragma once

#include "edit/VariationList.h"
#include "ui/lists/ShownRows.h"

#include <QAbstractListModel>

#include <cstdint>
#include <vector>

namespace Ui {

// The variations list: the texts are read from the district's record whenever they are painted.
class VariationModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    // Shows a list of variations of a district.
    void Show(const Commands::ListView<CommonRoutines::VariationRow>& list, std::int32_t district);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] const CommonRoutines::VariationRecord& VariationAt(int row) const;

    std::int32_t m_district = 0;
    ShownRows<CommonRoutines::VariationRow> m_rows;
};

} // namespace Ui
