#include "ui/lists/HitModel.h"

#include "core/State.h"
#include "edit/VariationList.h"
#include "edit/Variations.h"
#include "file/DistrictComments.h"
#include "ui/Text.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/StateWords.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace Ui {

using namespace CommonRoutines;

namespace {

constexpr int RowsAtOnce = 2000;

enum Column { Kind, District, Volume, Found, ColumnEnd };
constexpr std::array<const char*, ColumnEnd> Headings{"Found", "District", "Volume", "Text"};
constexpr std::array<const char*, HitKindCount> Kinds{"District", "Variation", "Comment"};

// A hit of a table that has changed since is not looked at.
bool IsThere(const Hit& hit) {
    if (hit.line < 1 || hit.line > lLineCount || !IsDistrict(DistrictOf(hit))) {
        return false;
    }
    return hit.kind != HitKind::Variation || hit.slot <= RecordOf(hit.line).lVariationCount;
}

std::string_view TextFound(const Hit& hit) {
    switch (hit.kind) {
    case HitKind::Variation:
        return VariationOf(hit.line, hit.slot).Text;
    case HitKind::Comment:
        return CommentIn(RecordOf(hit.line).Name()).value_or(std::string_view());
    default:
        return RecordOf(hit.line).County();
    }
}

QString TextIn(const Hit& hit, int column) {
    const DistrictRecord& district = RecordOf(DistrictOf(hit));
    switch (column) {
    case Kind:
        return QString::fromLatin1(Kinds[static_cast<std::size_t>(hit.kind)]);
    case District:
        return Text::ForList(district.Name());
    case Volume:
        return Text::ForList(district.Volume());
    default:
        return Text::ForList(TextFound(hit));
    }
}

VariationState StateOf(const Hit& hit, int column) {
    return hit.kind == HitKind::Variation && column == Found ? StateOfVariation(VariationOf(hit.line, hit.slot))
                                                             : VariationState::Plain;
}

} // namespace

void HitModel::Show(std::shared_ptr<const Hits> hits) {
    beginResetModel();
    m_hits = std::move(hits);
    m_count = static_cast<int>(m_hits->Count());
    m_rows = std::min(m_count, RowsAtOnce);
    endResetModel();
}

bool HitModel::Reach(std::size_t row) {
    if (row >= static_cast<std::size_t>(m_count)) {
        return false;
    }
    while (static_cast<std::size_t>(m_rows) <= row) {
        fetchMore({});
    }
    return true;
}

int HitModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int HitModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int{ColumnEnd};
}

bool HitModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && m_rows < m_count;
}

void HitModel::fetchMore(const QModelIndex& /*parent*/) {
    const int more = std::min(m_count - m_rows, std::max(RowsAtOnce, m_rows));
    if (more == 0) {
        return; // asked for without need
    }
    beginInsertRows({}, m_rows, m_rows + more - 1);
    m_rows += more;
    endInsertRows();
}

QVariant HitModel::data(const QModelIndex& index, int role) const {
    const Hit hit = m_hits->At(static_cast<std::size_t>(index.row()));
    if (!IsThere(hit)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return TextIn(hit, index.column());
    case Qt::ForegroundRole:
        return StateColours::InList(StateOf(hit, index.column()), QGuiApplication::palette());
    case Qt::AccessibleTextRole:
        return TextIn(hit, index.column()) + StateInWords(StateOf(hit, index.column()));
    default:
        return {};
    }
}

QVariant HitModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole
               ? QVariant(QString::fromLatin1(Headings[static_cast<std::size_t>(section)]))
               : QVariant();
}

} // namespace Ui
