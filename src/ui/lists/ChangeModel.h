#pragma once

#include "changes/ChangeRow.h"

#include <QAbstractListModel>

#include <vector>

namespace Ui {

// The change list: proposed variations, each with a check box. Only valid proposals can be ticked.
class ChangeModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void SetRows(std::vector<CommonRoutines::ChangeRow> rows);

    [[nodiscard]] const std::vector<CommonRoutines::ChangeRow>& Rows() const { return m_rows; }
    [[nodiscard]] bool AnyChecked() const;
    // The program's own ticking; nothing is announced.
    void SetChecked(int row, bool checked);
    void UncheckAll();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    // The user has ticked or unticked a row, or has tried to tick one that must not be ticked.
    void Ticked();
    void TickRefused();

private:
    std::vector<CommonRoutines::ChangeRow> m_rows;
};

} // namespace Ui
