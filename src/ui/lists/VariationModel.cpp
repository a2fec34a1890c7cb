#include "ui/lists/VariationModel.h"

#include "core/State.h"
#include "ui/Text.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/StateWords.h"

#include <QGuiApplication>

#include <algorithm>

namespace Ui {

using namespace CommonRoutines;

void VariationModel::SetRows(std::int32_t district, std::vector<VariationRow> rows) {
    beginResetModel();
    m_district = district;
    m_rows = std::move(rows);
    endResetModel();
}

void VariationModel::RefreshRows(const std::vector<int>& rows) {
    if (rows.empty()) {
        return;
    }
    for (const int row : rows) {
        m_rows[static_cast<std::size_t>(row)].state = StateOfVariation(VariationAt(row));
    }
    const auto [first, last] = std::minmax_element(rows.begin(), rows.end());
    Q_EMIT dataChanged(index(*first), index(*last));
}

const VariationRecord& VariationModel::VariationAt(int row) const {
    const auto slot = static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)].lIndex);
    return RecordOf(m_district).Variations[slot];
}

int VariationModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant VariationModel::data(const QModelIndex& index, int role) const {
    const VariationState state = m_rows[static_cast<std::size_t>(index.row())].state;
    switch (role) {
    case Qt::DisplayRole:
        return Text::ForList(VariationAt(index.row()).Text);
    case Qt::ForegroundRole:
        return StateColours::InList(state, QGuiApplication::palette());
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole: {
        const QString words = Text::ForList(VariationAt(index.row()).Text) + StateInWords(state);
        return role == Qt::ToolTipRole ? Text::ForToolTip(words) : words;
    }
    default:
        return {};
    }
}

QVariant VariationModel::headerData(int /*section*/, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(QStringLiteral("Variation"))
                                                                    : QVariant();
}

} // namespace Ui
