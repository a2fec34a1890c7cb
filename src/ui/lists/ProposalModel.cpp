#include "ui/lists/ProposalModel.h"

#include "core/CaselessSearch.h"
#include "ui/Text.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/StateWords.h"

#include <QGuiApplication>

#include <algorithm>
#include <string>
#include <utility>

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
        m_found = Found();
        endResetModel();
    } else if (m_rows.TakeTouched(list)) {
        ShowTouched();
    }
}

// A tick changes no text; another encoding of the open file may.
void ProposalModel::ShowTouched() {
    if (auto found = Found(); found != m_found) {
        beginResetModel();
        m_found = std::move(found);
        endResetModel();
        Q_EMIT Filtered();
    } else if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

void ProposalModel::SetFilter(const QString& sought) {
    if (sought != m_sought) {
        beginResetModel();
        m_sought = sought;
        m_found = Found();
        endResetModel();
        Q_EMIT Filtered();
    }
}

std::optional<std::vector<int>> ProposalModel::Found() const {
    if (m_sought.isEmpty()) {
        return std::nullopt;
    }
    std::vector<int> found;
    const std::string text = Text::FromQt(m_sought);
    if (Text::ToQt(text) != m_sought) { // no proposal has such a character
        return found;
    }
    const Ansi::CaselessSearch search(text);
    for (int proposal = 0; proposal < m_rows.Count(); ++proposal) {
        if (search.FindIn(m_rows.At(proposal).text)) {
            found.push_back(proposal);
        }
    }
    return found;
}

int ProposalModel::ProposalAt(int row) const {
    return m_found ? (*m_found)[static_cast<std::size_t>(row)] : row;
}

std::vector<int> ProposalModel::ProposalsAt(std::vector<int> rows) const {
    std::transform(rows.begin(), rows.end(), rows.begin(), [this](int row) { return ProposalAt(row); });
    return rows;
}

std::vector<int> ProposalModel::RowsOf(const std::vector<int>& proposals) const {
    std::vector<int> rows;
    for (const int proposal : proposals) {
        if (!m_found) {
            rows.push_back(proposal);
        } else if (const auto row = std::lower_bound(m_found->begin(), m_found->end(), proposal);
                   row != m_found->end() && *row == proposal) {
            rows.push_back(static_cast<int>(row - m_found->begin()));
        }
    }
    return rows;
}

int ProposalModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_found ? std::ssize(*m_found) : m_rows.Count());
}

QVariant ProposalModel::data(const QModelIndex& index, int role) const {
    const Proposal& proposal = m_rows.At(ProposalAt(index.row()));
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
    const int proposal = ProposalAt(index.row());
    Q_EMIT TickWanted(proposal, wanted);
    return m_rows.At(proposal).ticked == wanted;
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
