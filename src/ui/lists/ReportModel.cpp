#include "ui/lists/ReportModel.h"

#include "ui/Text.h"

#include <algorithm>
#include <utility>

namespace Ui {

ReportModel::ReportModel(CommonRoutines::ReportItems items, QObject* parent)
    : QAbstractListModel(parent), m_items(std::move(items)) {}

void ReportModel::ShowAll() {
    if (m_found) {
        beginResetModel();
        m_found.reset();
        endResetModel();
    }
}

void ReportModel::ShowNone() {
    beginResetModel();
    m_found.emplace();
    endResetModel();
}

void ReportModel::ShowMore(const std::vector<std::size_t>& lines) {
    if (m_found && !lines.empty()) {
        const int rows = rowCount();
        beginInsertRows({}, rows, rows + static_cast<int>(lines.size()) - 1);
        m_found->insert(m_found->end(), lines.begin(), lines.end());
        endInsertRows();
    }
}

std::size_t ReportModel::LineOf(int row) const {
    const auto place = static_cast<std::size_t>(row);
    return m_found ? (*m_found)[place] : place;
}

std::optional<int> ReportModel::RowOf(std::size_t line) const {
    if (!m_found) {
        return line < m_items.size() ? std::optional(static_cast<int>(line)) : std::nullopt;
    }
    const auto found = std::lower_bound(m_found->begin(), m_found->end(), line);
    const bool isShown = found != m_found->end() && *found == line;
    return isShown ? std::optional(static_cast<int>(found - m_found->begin())) : std::nullopt;
}

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_found ? m_found->size() : m_items.size());
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    return Text::ForList(m_items[LineOf(index.row())]);
}

} // namespace Ui
