#include "ui/lists/VariationModel.h"

#include "core/State.h"
#include "ui/Text.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/StateWords.h"

#include <QGuiApplication>

namespace Ui {

using namespace CommonRoutines;

void VariationModel::Show(const Commands::ListView<VariationRow>& list, std::int32_t district) {
    if (m_rows.AreOthersThan(list)) {
        beginResetModel();
        m_district = district;
        m_rows.Take(list);
        endResetModel();
    } else if (m_rows.TakeTouched(list) && m_rows.Count() > 0) {
        Q_EMIT dataChanged(index(0), index(m_rows.Count() - 1));
    }
}

const VariationRecord& VariationModel::VariationAt(int row) const {
    const auto slot = static_cast<std::size_t>(m_rows.At(row).slot);
    return RecordOf(m_district).Variations[slot];
}

int VariationModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.Count();
}

QVariant VariationModel::data(const QModelIndex& index, int role) const {
    const VariationState state = m_rows.At(index.row()).state;
    switch (role) {
    case Qt::DisplayRole:
        return Text::ForList(VariationAt(index.row()).Text);
    case Qt::ForegroundRole:
        return StateColours::InList(state, QGuiApplication::palette());
    case Qt::AccessibleTextRole:
        return Text::ForList(VariationAt(index.row()).Text) + StateInWords(state);
    case Qt::ToolTipRole:
        return ReasonInWords(state, ReasonOf(state, m_district, VariationAt(index.row())));
    default:
        return {};
    }
}

QVariant VariationModel::headerData(int /*section*/, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(QStringLiteral("Variation"))
                                                                    : QVariant();
}

} // namespace Ui
