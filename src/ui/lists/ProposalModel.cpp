#include "ui/lists/ProposalModel.h"

#include "ui/Text.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/StateWords.h"

#include <QGuiApplication>

namespace Ui {

using namespace CommonRoutines;

namespace {

VariationState StateOf(const Proposal& proposal) {
    if (proposal.warns) {
        return VariationState::Warning;
    }
    return proposal.tag == Proposal::Invalid ? VariationState::Invalid : VariationState::Plain;
}

QString KindInWords(const Proposal& proposal) {
    QString words;
    if (proposal.tag == Proposal::Heading) {
        words += QStringLiteral(" - heading");
    }
    if (proposal.tag == Proposal::Invalid) {
        words += StateInWords(VariationState::Invalid);
    }
    if (proposal.warns) {
        words += StateInWords(VariationState::Warning);
    }
    return words;
}

} // namespace

void ProposalModel::Show(const Commands::ListView<Proposal>& list) {
    if (m_rows.AreOthersThan(list)) {
        beginResetModel();
        m_rows.Take(list);
        endResetModel();
    } else if (m_rows.TakeTouched(list) && m_rows.Count() > 0) {
        Q_EMIT dataChanged(index(0), index(m_rows.Count() - 1));
    }
}

int ProposalModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.Count();
}

QVariant ProposalModel::data(const QModelIndex& index, int role) const {
    const Proposal& proposal = m_rows.At(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return Text::ForList(proposal.text);
    case Qt::ForegroundRole:
        return StateColours::InList(StateOf(proposal), QGuiApplication::palette());
    case Qt::CheckStateRole:
        return proposal.ticked ? Qt::Checked : Qt::Unchecked;
    case Qt::AccessibleTextRole:
        return Text::ForList(proposal.text) + KindInWords(proposal);
    case Qt::ToolTipRole:
        if (proposal.tag == Proposal::Heading) {
            return QStringLiteral("a heading, which is never applied");
        }
        return ReasonInWords(proposal.tag == Proposal::Invalid ? VariationState::Invalid : StateOf(proposal),
                             ReasonOf(proposal));
    default:
        return {};
    }
}

bool ProposalModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole) {
        return false;
    }
    const bool wanted = value.toInt() == Qt::Checked;
    Q_EMIT TickWanted(index.row(), wanted);
    return m_rows.At(index.row()).ticked == wanted;
}

Qt::ItemFlags ProposalModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractListModel::flags(index);
    return index.isValid() ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant ProposalModel::headerData(int /*section*/, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(QStringLiteral("Proposed variation"))
                                                                    : QVariant();
}

} // namespace Ui
