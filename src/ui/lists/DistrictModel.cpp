#include "ui/lists/DistrictModel.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "core/UpperCase.h"
#include "file/DistrictList.h"
#include "ui/Text.h"
#include "ui/lists/StateColours.h"

#include <QGuiApplication>

#include <algorithm>

namespace Ui {

using namespace CommonRoutines;

static_assert(DistrictColumnTable[0].field == decltype(DistrictColumn::field)(&DistrictRecord::Name),
              "type-ahead finds a district by its first column");

void DistrictModel::Show(const Commands::ListView<std::int32_t>& list, std::int32_t changed) {
    if (m_districts.AreOthersThan(list)) {
        beginResetModel();
        m_districts.Take(list);
        endResetModel();
    } else if (m_districts.TakeTouched(list)) {
        PaintAnew(changed);
    }
}

int DistrictModel::RowOf(std::int32_t district) const {
    const std::vector<std::int32_t>& all = m_districts.All();
    const auto found = std::find(all.begin(), all.end(), district);
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

void DistrictModel::PaintAnew(std::int32_t district) {
    if (const int row = RowOf(district); row >= 0) {
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
}

int DistrictModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_districts.Count();
}

int DistrictModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(DistrictColumnTable.size());
}

QVariant DistrictModel::data(const QModelIndex& index, int role) const {
    const DistrictRecord& record = RecordOf(DistrictAt(index.row()));
    // Of a name as long as its file, no more is copied than what is shown and told.
    const QString text =
        Text::ForList(DistrictCell(record, static_cast<std::size_t>(index.column()), Text::LongestShown + 1));
    const bool problem = DistrictHasProblem(record);
    switch (role) {
    case Qt::DisplayRole:
        return text;
    case Qt::ForegroundRole:
        return StateColours::InList(problem ? VariationState::Invalid : VariationState::Plain,
                                    QGuiApplication::palette());
    case Qt::AccessibleTextRole:
        return problem ? text + QStringLiteral(", has problems") : text;
    case Qt::ToolTipRole:
        return Text::ToQt(ProblemsOf(record));
    default:
        return {};
    }
}

QVariant DistrictModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return Text::ToQt(DistrictColumnTable[static_cast<std::size_t>(section)].heading);
}

QModelIndexList DistrictModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                     Qt::MatchFlags flags) const {
    const bool isTypeAhead = start.isValid() && start.column() == 0 && role == Qt::DisplayRole && hits == 1 &&
                             flags == (Qt::MatchStartsWith | Qt::MatchWrap);
    if (!isTypeAhead) {
        return QAbstractTableModel::match(start, role, value, hits, flags);
    }
    const std::string typed = Text::FromQt(value.toString());
    const auto beginning = [&, length = Ansi::CharacterCount(typed)](std::int32_t district) {
        return Ansi::FirstCharacters(RecordOf(district).Name(), length);
    };
    const std::vector<std::int32_t>& all = m_districts.All();
    const auto first = std::partition_point(all.begin(), all.end(), [&](std::int32_t district) {
        return Ansi::CompareUpper(beginning(district), typed) < 0;
    });
    const auto last = std::partition_point(
        first, all.end(), [&](std::int32_t district) { return Ansi::CompareUpper(beginning(district), typed) == 0; });
    if (first == last) {
        return {};
    }
    const auto from = all.begin() + start.row();
    const auto found = first <= from && from < last ? from : first;
    return {index(static_cast<int>(found - all.begin()), 0)};
}

} // namespace Ui
