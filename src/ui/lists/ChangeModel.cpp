#include "ui/lists/ChangeModel.h"

#include "ui/Text.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/StateWords.h"

#include <QGuiApplication>

#include <algorithm>

namespace Ui {

using namespace CommonRoutines;

namespace {

VariationState StateOf(const ChangeRow& row) {
    if (row.bWarning) {
        return VariationState::Warning;
    }
    return row.iTag == ChangeRow::Invalid ? VariationState::Invalid : VariationState::Plain;
}

QString RowInWords(const ChangeRow& row) {
    QString words;
    if (row.iTag == ChangeRow::Heading) {
        words += QStringLiteral(" - heading");
    }
    if (row.iTag == ChangeRow::Invalid) {
        words += StateInWords(VariationState::Invalid);
    }
    if (row.bWarning) {
        words += StateInWords(VariationState::Warning);
    }
    return words;
}

} // namespace

void ChangeModel::SetRows(std::vector<ChangeRow> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

bool ChangeModel::AnyChecked() const {
    return std::any_of(m_rows.begin(), m_rows.end(), [](const ChangeRow& row) { return row.bChecked; });
}

void ChangeModel::UncheckAll() {
    if (m_rows.empty()) {
        return;
    }
    for (ChangeRow& row : m_rows) {
        row.bChecked = false;
    }
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

int ChangeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ChangeModel::data(const QModelIndex& index, int role) const {
    const ChangeRow& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return Text::ForList(row.sText);
    case Qt::ForegroundRole:
        return StateColours::InList(StateOf(row), QGuiApplication::palette());
    case Qt::CheckStateRole:
        return row.bChecked ? Qt::Checked : Qt::Unchecked;
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole: {
        const QString words = Text::ForList(row.sText) + RowInWords(row);
        return role == Qt::ToolTipRole ? Text::ForToolTip(words) : words;
    }
    default:
        return {};
    }
}

void ChangeModel::SetChecked(int row, bool checked) {
    m_rows[static_cast<std::size_t>(row)].bChecked = checked;
    Q_EMIT dataChanged(index(row), index(row), {Qt::CheckStateRole});
}

bool ChangeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole) {
        return false;
    }
    const bool check = value.toInt() == Qt::Checked;
    if (check && m_rows[static_cast<std::size_t>(index.row())].iTag != ChangeRow::Valid) {
        Q_EMIT TickRefused();
        return false;
    }
    SetChecked(index.row(), check);
    Q_EMIT Ticked();
    return true;
}

Qt::ItemFlags ChangeModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractListModel::flags(index);
    return index.isValid() ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant ChangeModel::headerData(int /*section*/, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(QStringLiteral("Proposed variation"))
                                                                    : QVariant();
}

} // namespace Ui
