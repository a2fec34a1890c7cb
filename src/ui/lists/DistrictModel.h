#pragma once

#include "ui/lists/ShownRows.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <vector>

namespace Ui {

// The districts list: rows of the district table, read from it whenever they are painted.
class DistrictModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    // Shows a list. Where it is the one that is shown, `changed` is the district whose row is painted anew if
    // any has been touched.
    void Show(const Commands::ListView<std::int32_t>& list, std::int32_t changed);

    // The district of a row (the row's tag), and the row of a district, -1 when it is not listed.
    [[nodiscard]] std::int32_t DistrictAt(int row) const { return m_districts.At(row); }
    [[nodiscard]] int RowOf(std::int32_t district) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Finds a name by its beginning at once, as the list is sorted by name.
    [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                        Qt::MatchFlags flags) const override;

private:
    void PaintAnew(std::int32_t district);

    ShownRows<std::int32_t> m_districts;
};

} // namespace Ui
