#pragma once

#include "changes/Proposal.h"
#include "ui/lists/ShownRows.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace Ui {

// The list of proposals, each with a check box, or only those that hold a text. Whether one may be ticked is not
// decided here. Commands know proposals by their numbers among all, lists by their rows.
class ProposalModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void Show(const Commands::ListView<CommonRoutines::Proposal>& list);

    // Shows only the proposals that hold a text, whatever the case of its letters; for an empty one all. It goes for
    // others that are shown later, too.
    void SetFilter(const QString& sought);
    [[nodiscard]] int ProposalCount() const { return m_rows.Count(); }
    [[nodiscard]] int ProposalAt(int row) const;
    [[nodiscard]] std::vector<int> ProposalsAt(std::vector<int> rows) const;
    // The rows of those proposals that are shown. Both are in the order of the list.
    [[nodiscard]] std::vector<int> RowsOf(const std::vector<int>& proposals) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    // The user wants to tick a proposal, or to take its tick away.
    void TickWanted(int proposal, bool ticked);
    // Other rows of the same proposals are shown.
    void Filtered();

private:
    void ShowTouched();
    // What SetFilter leaves of the proposals; nothing where that is all of them.
    [[nodiscard]] std::optional<std::vector<int>> Found() const;

    ShownRows<CommonRoutines::Proposal> m_rows;
    QString m_sought;
    std::optional<std::vector<int>> m_found;
};

} // namespace Ui
