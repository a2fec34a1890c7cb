#pragma once

#include "changes/Proposal.h"
#include "ui/lists/ShownRows.h"

#include <QAbstractListModel>

#include <vector>

namespace Ui {

// The list of proposals, each with a check box. Whether one may be ticked is not decided here.
class ProposalModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void Show(const Commands::ListView<CommonRoutines::Proposal>& list);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    // The user wants to tick a row, or to take its tick away.
    void TickWanted(int row, bool ticked);

private:
    ShownRows<CommonRoutines::Proposal> m_rows;
};

} // namespace Ui
