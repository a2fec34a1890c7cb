#pragma once

#include <QAbstractTableModel>

#include <cstdint>
#include <vector>

namespace Ui {

// The districts list: rows of the district table, read from it whenever they are painted.
class DistrictModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetDistricts(std::vector<std::int32_t> districts);

    // The district of a row (the row's tag), and the row of a district, -1 when it is not listed.
    [[nodiscard]] std::int32_t DistrictAt(int row) const { return m_districts[static_cast<std::size_t>(row)]; }
    [[nodiscard]] int RowOf(std::int32_t district) const;

    // The state of a district has changed: its row is painted anew.
    void Refresh(std::int32_t district);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Finds a name by its beginning at once, as the list is sorted by name.
    [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                        Qt::MatchFlags flags) const override;

private:
    std::vector<std::int32_t> m_districts;
};

} // namespace Ui
