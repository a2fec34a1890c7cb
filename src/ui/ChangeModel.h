#pragma once

#include "changes/ChangeRow.h"

#include <QAbstractListModel>

#include <vector>

// The change list: proposed variations, each with a check box.
class ChangeModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void SetRows(std::vector<CommonRoutines::ChangeRow> rows);

    [[nodiscard]] const std::vector<CommonRoutines::ChangeRow>& Rows() const { return m_rows; }
    [[nodiscard]] bool AnyChecked() const;
    void UncheckAll();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<CommonRoutines::ChangeRow> m_rows;
};
