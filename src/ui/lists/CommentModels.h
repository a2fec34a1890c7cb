#pragma once

#include "commands/WindowView.h"
#include "file/DistrictComments.h"

#include <QAbstractListModel>
#include <QAbstractTableModel>

#include <vector>

namespace Ui {

// The comments of the current district, with the columns "Type" and "Comment".
class CommentModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetRows(std::vector<CommonRoutines::CommentRow> rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<CommonRoutines::CommentRow> m_rows;
};

// The comment types met in the file, as CommentTypes has them.
class CommentTypeModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    // Types that are being added do not count until the list is filled with them.
    void Show(const Commands::CommentTypesView& types);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int m_count = 0;
    std::int32_t m_filled = -1;
};

} // namespace Ui
