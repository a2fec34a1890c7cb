// The main window's lists: what choosing something in them shows, and their columns.

#include "core/State.h"
#include "edit/Selection.h"
#include "edit/VariationList.h"
#include "edit/Variations.h"
#include "file/CommentTypes.h"
#include "file/DistrictComments.h"
#include "file/DistrictList.h"
#include "ui/Text.h"
#include "ui/lists/ChangeModel.h"
#include "ui/lists/CommentModels.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/VariationModel.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/windows/Form1.h"
#include "ui/windows/WindowFit.h"

#include <QPushButton>

namespace Ui {

using namespace CommonRoutines;

namespace {

// Room beside the comment column, so that its text never touches the scroll bar.
constexpr int CommentColumnTwips = 400;

} // namespace

void Form1::DistrictChosen() {
    const std::vector<int> rows = m_controls.lvAlpha->SelectedRows();
    if (rows.empty()) {
        return;
    }
    lCurrentDistrict = m_districts->DistrictAt(rows.front());
    lEditIndex = 0;
    RefreshVariationList();
    iEditMode = DistrictIdle;
    const DistrictRecord& record = RecordOf(lCurrentDistrict);
    m_controls.lbApplyTo->ShowText(Text::ForList(record.Name));
    ApplyWindowMode();
    ResetEditPanel();
    ShowDistrictComments();
    if (record.lVariationCount == 0) {
        m_controls.cbAdd->setEnabled(true);
    }
}

void Form1::VariationsChosen() {
    const SelectionView view = DescribeSelection(SelectedVariations());
    ClearWhyError();
    ShowWhyError(view.reason, view.reasonState);
    m_controls.cbShriek->setText(Text::ToQt(view.shriekCaption));
    m_controls.cbDate->setText(Text::ToQt(view.dateCaption));
    m_controls.cbShriek->setAccessibleName(m_controls.cbShriek->text());
    m_controls.cbDate->setAccessibleName(m_controls.cbDate->text());

    lEditIndex = view.editIndex;
    if (lEditIndex > 0) {
        iLastAction = VariationSelected;
        PutIntoEditBox(VariationOf(lCurrentDistrict, lEditIndex).Text);
    } else {
        PutIntoEditBox({});
    }
    iEditMode = view.editMode;
    ApplyWindowMode();
}

std::vector<VariationRow> Form1::SelectedVariations() const {
    std::vector<VariationRow> selected;
    for (const int row : m_controls.lvVariations->SelectedRows()) {
        selected.push_back(m_variations->Rows()[static_cast<std::size_t>(row)]);
    }
    return selected;
}

void Form1::CommentTypeChosen() {
    const std::vector<int> rows = m_controls.lbComments->SelectedRows();
    if (rows.empty()) {
        return;
    }
    m_districts->SetDistricts({});
    m_variations->SetRows(0, {});
    lEditIndex = 0;
    m_comments->SetRows({});
    // A filter change discards a loaded change file on purpose.
    ShowChanges({});
    if (iEditMode == DistrictIdle) {
        ApplyWindowMode(); // its commands go with it
    }
    m_controls.lbApplyTo->ShowText({});
    m_controls.lbWhyError->ShowText({});
    // The columns are already as wide as the widest row of the whole file.
    const std::string& type = CommentTypes.Items()[static_cast<std::size_t>(rows.front())].sType;
    m_districts->SetDistricts(DistrictsOfType(m_districtsByName, type));
}

void Form1::RefreshVariationList() {
    lEditIndex = 0;
    VariationList list = ListVariations(lCurrentDistrict);
    const bool hasRows = !list.rows.empty();
    m_variations->SetRows(lCurrentDistrict, std::move(list.rows));
    m_districts->Refresh(lCurrentDistrict);
    if (hasRows) {
        iEditMode = DistrictIdle;
        ApplyWindowMode();
    }
    // Without a problem the label keeps what it shows.
    if (!list.summary.empty()) {
        ShowWhyError(list.summary, VariationState::Plain);
    }
}

void Form1::ShowDistrictComments() {
    const QFontMetricsF metrics(font());
    const auto measure = [&](std::string_view text) { return metrics.horizontalAdvance(Text::ForList(text)); };
    const int room =
        m_controls.lvComments->columnWidth(1) - WindowFit::TwipsToPixels(CommentColumnTwips, logicalDpiX());
    m_comments->SetRows(CommentRows(lCurrentDistrict, room, measure));
}

void Form1::SizeCommentColumn() {
    const RowList& list = *m_controls.lvComments;
    const int width = list.width() - list.columnWidth(0) - WindowFit::TwipsToPixels(CommentColumnTwips, logicalDpiX());
    m_controls.lvComments->setColumnWidth(1, width);
}

void Form1::SizeWideColumns() {
    for (RowList* list : {m_controls.lvVariations, m_controls.LvChanges}) {
        list->setColumnWidth(0, 2 * list->width());
    }
}

} // namespace Ui
