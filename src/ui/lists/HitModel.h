#pragma once

#include "find/Hits.h"

#include <QAbstractTableModel>

#include <memory>

namespace Ui {

// What was found, each hit with its district and volume. There may be as many as variations: rows are made as the list
// is scrolled down to them.
class HitModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    // The rows are counted anew, also where the hits are the same ones and have become more.
    void Show(std::shared_ptr<const CommonRoutines::Hits> hits);
    // Makes the rows up to this one, and tells whether there is one.
    bool Reach(std::size_t row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    std::shared_ptr<const CommonRoutines::Hits> m_hits = std::make_shared<CommonRoutines::Hits>();
    int m_count = 0; // of the hits when they were shown
    int m_rows = 0;
};

} // namespace Ui
