#include "ui/lists/ReportModel.h"

#include "ui/Text.h"

#include <utility>

namespace Ui {

ReportModel::ReportModel(CommonRoutines::ReportItems items, QObject* parent)
    : QAbstractListModel(parent), m_items(std::move(items)) {}

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    return Text::ForList(m_items[static_cast<std::size_t>(index.row())]);
}

} // namespace Ui
