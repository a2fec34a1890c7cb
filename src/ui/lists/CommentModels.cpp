#include "ui/lists/CommentModels.h"

#include "file/CommentTypes.h"
#include "ui/Text.h"

namespace Ui {

using namespace CommonRoutines;

void CommentModel::SetRows(std::vector<CommentRow> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int CommentModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CommentModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant CommentModel::data(const QModelIndex& index, int role) const {
    const CommentRow& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role != Qt::DisplayRole) {
        return {};
    }
    return Text::ForList(index.column() == 0 ? row.type : row.comment);
}

QVariant CommentModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == 0 ? QStringLiteral("Type") : QStringLiteral("Comment");
}

void CommentTypeModel::Show(const Commands::CommentTypesView& types) {
    if (types.filled != m_filled) {
        beginResetModel();
        m_filled = types.filled;
        m_count = static_cast<int>(types.count);
        endResetModel();
    }
}

int CommentTypeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_count;
}

QVariant CommentTypeModel::data(const QModelIndex& index, int role) const {
    const CommentType& item = CommentTypes.Items()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return Text::ForList(item.type);
    case Qt::UserRole:
        return item.itemData;
    default:
        return {};
    }
}

QVariant CommentTypeModel::headerData(int /*section*/, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(QStringLiteral("Comment type"))
                                                                    : QVariant();
}

} // namespace Ui
