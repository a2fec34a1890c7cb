#include "ui/lists/ChangeModel.h"

#include "ui/Text.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/StateWords.h"

#include <QGuiApplication>

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

void ChangeModel::Show(const Commands::ListView<ChangeRow>& list) {
    if (m_rows.AreOthersThan(list)) {
        beginResetModel();
        m_rows.Take(list);
        endResetModel();
    } else if (m_rows.HaveChanged(list) && m_rows.Count() > 0) {
        Q_EMIT dataChanged(index(0), index(m_rows.Count() - 1), {Qt::CheckStateRole});
    }
}

int ChangeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.Count();
}

QVariant ChangeModel::data(const QModelIndex& index, int role) const {
    const ChangeRow& row = m_rows.At(index.row());
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

bool ChangeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole) {
        return false;
    }
    const bool wanted = value.toInt() == Qt::Checked;
    Q_EMIT TickWanted(index.row(), wanted);
    return m_rows.At(index.row()).bChecked == wanted;
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
