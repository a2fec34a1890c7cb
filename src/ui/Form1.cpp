#include "ui/Form1.h"

#include "core/Desktop.h"
#include "core/Paths.h"
#include "core/State.h"
#include "edit/Selection.h"
#include "edit/UndoClass.h"
#include "edit/VariationList.h"
#include "file/CommentTypes.h"
#include "file/DistrictComments.h"
#include "file/DistrictFileReader.h"
#include "file/DistrictFileWriter.h"
#include "file/DistrictList.h"
#include "rules/Capitals.h"
#include "rules/Markers.h"
#include "ui/ChangeModel.h"
#include "ui/CommentModels.h"
#include "ui/DistrictColumns.h"
#include "ui/DistrictModel.h"
#include "ui/PlainLabel.h"
#include "ui/RowList.h"
#include "ui/StateColours.h"
#include "ui/Text.h"
#include "ui/VariationModel.h"
#include "ui/WindowFit.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

using namespace CommonRoutines;

namespace {

constexpr QSize DesignSize(1240, 680);
constexpr std::string_view SettingsSection = "Paths";
constexpr std::string_view DataFolderKey = "InFile";

// Room beside the comment column, so that its text never touches the scroll bar.
constexpr int CommentColumnTwips = 400;

QColor ReasonColour(VariationState state) {
    return StateColours::OnLight(state);
}

} // namespace

Form1::Form1(Desktop& desktop) : m_desktop(desktop), m_controls(this) {
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(QStringLiteral("Quexal Editor"));
    resize(DesignSize);
    SetModels();
    ConnectControls();
}

void Form1::SetModels() {
    m_districts = new DistrictModel(this);
    m_variations = new VariationModel(this);
    m_changes = new ChangeModel(this);
    m_comments = new CommentModel(this);
    m_commentTypes = new CommentTypeModel(this);
    m_controls.lvAlpha->setModel(m_districts);
    m_controls.lvVariations->setModel(m_variations);
    m_controls.LvChanges->setModel(m_changes);
    m_controls.lvComments->setModel(m_comments);
    m_controls.lbComments->setModel(m_commentTypes);
}

void Form1::ConnectControls() {
    const auto onClick = [this](QPushButton* button, void (Form1::*handler)()) {
        connect(button, &QPushButton::clicked, this, handler);
    };
    onClick(m_controls.cbOpen, &Form1::OpenClicked);
    onClick(m_controls.cbSave, &Form1::SaveClicked);

    connect(m_controls.lvAlpha, &RowList::Chosen, this, &Form1::DistrictChosen);
    connect(m_controls.lvVariations, &RowList::Chosen, this, &Form1::VariationsChosen);
    connect(m_controls.lbComments, &RowList::Chosen, this, &Form1::CommentTypeChosen);
    connect(m_controls.lvVariations, &RowList::Resized, this, &Form1::SizeWideColumns);
    connect(m_controls.LvChanges, &RowList::Resized, this, &Form1::SizeWideColumns);
    connect(m_controls.lvComments, &RowList::Resized, this, [this] {
        SizeCommentColumn();
        ShowDistrictComments();
    });

    // A button that is disabled ignores its shortcut as it ignores a click.
    const auto onKeys = [this](const QKeySequence& keys, QPushButton* button) {
        connect(new QShortcut(keys, this), &QShortcut::activated, button, &QPushButton::click);
    };
    onKeys(QKeySequence::Open, m_controls.cbOpen);
    onKeys(QKeySequence::Save, m_controls.cbSave);
}

void Form1::LoadForm() {
    ClearUndoRing();
    iUndoStep = 1;
    LoadLowerCaseWords(m_desktop);
    SizeWideColumns();
    SizeCommentColumn();
    bChanged = false;
    iEditMode = NothingOpen;
    ApplyWindowMode();
}

void Form1::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    FitWindowToScreen();
}

void Form1::closeEvent(QCloseEvent* event) {
    event->setAccepted(MayDiscardChanges());
}

bool Form1::MayDiscardChanges() {
    return !bChanged || m_desktop.MsgBox("This will loose your changes.\r\nAre you sure you want to do this?",
                                         BoxIcon::Question, BoxButtons::YesNo) == BoxAnswer::Yes;
}

void Form1::OpenClicked() {
    if (!MayDiscardChanges()) {
        return;
    }
    ResetWindow();
    FileRequest request;
    request.sFolder = m_desktop.GetSetting(SettingsSection, DataFolderKey);
    if (request.sFolder.empty()) {
        request.sFolder = m_desktop.ProgramFolder();
    }
    const auto path = m_desktop.ChooseFileToOpen(request);
    if (!path) {
        return;
    }
    sDataFileName = *path;
    if (const std::string_view folder = Paths::FolderOf(*path); !folder.empty()) {
        m_desktop.SaveSetting(SettingsSection, DataFolderKey, std::string(folder));
    }
    bChanged = false;
    ReadDistrictFile(m_desktop);
    m_commentTypes->Refresh();
    m_controls.lbComments->SelectRow(0);
    if (iRepairAction == Quit) {
        lLineCount = 0;
    }
    if (lLineCount > 0) {
        FillDistrictList();
        iEditMode = FileOpen;
        ApplyWindowMode();
        m_controls.lvAlpha->setFocus();
    }
}

void Form1::ResetWindow() {
    lCurrentDistrict = 0;
    lEditIndex = 0;
    m_controls.lbApplyTo->clear();
    m_comments->SetRows({});
    SizeCommentColumn();
    ClearWhyError();
    ClearUndoRing();
    CommentTypes.Reset();
    m_commentTypes->Refresh();
    m_controls.lbComments->SelectRow(0);
    iEditMode = NothingOpen;
    m_controls.lbUndo->clear();
    m_districts->SetDistricts({});
    m_variations->SetRows(0, {});
}

void Form1::SaveClicked() {
    ClearWhyError();
    SaveDistrictFile(m_desktop);
    bChanged = false;
}

void Form1::FillDistrictList() {
    DistrictColumns columns(m_controls.lvAlpha->font());
    m_districtsByName = DistrictsByName();
    for (const std::int32_t district : m_districtsByName) {
        columns.AddDistrictRow(Districts[static_cast<std::size_t>(district)]);
    }
    m_districts->SetDistricts(m_districtsByName);
    ReportDuplicatedDistricts(m_districtsByName, m_desktop);
    for (std::size_t column = 0; column < DistrictHeadings.size(); ++column) {
        m_controls.lvAlpha->setColumnWidth(static_cast<int>(column), columns.Width(column));
    }
}

void Form1::DistrictChosen() {
    const std::vector<int> rows = m_controls.lvAlpha->SelectedRows();
    if (rows.empty()) {
        return;
    }
    lCurrentDistrict = m_districts->DistrictAt(rows.front());
    lEditIndex = 0;
    RefreshVariationList();
    iEditMode = DistrictIdle;
    const DistrictRecord& record = Districts[static_cast<std::size_t>(lCurrentDistrict)];
    m_controls.lbApplyTo->setText(Text::ForList(record.Name));
    ApplyWindowMode();
    ResetEditPanel();
    ShowDistrictComments();
    if (record.lVariationCount == 0) {
        m_controls.cbAdd->setEnabled(true);
    }
}

void Form1::VariationsChosen() {
    std::vector<VariationRow> selected;
    for (const int row : m_controls.lvVariations->SelectedRows()) {
        selected.push_back(m_variations->Rows()[static_cast<std::size_t>(row)]);
    }
    const SelectionView view = DescribeSelection(selected);
    ShowWhyError(view.reason, ReasonColour(view.reasonState));
    m_controls.cbShriek->setText(Text::ToQt(view.shriekCaption));
    m_controls.cbDate->setText(Text::ToQt(view.dateCaption));
    m_controls.cbShriek->setAccessibleName(m_controls.cbShriek->text());
    m_controls.cbDate->setAccessibleName(m_controls.cbDate->text());

    lEditIndex = view.editIndex;
    if (lEditIndex > 0) {
        iLastAction = VariationSelected;
        const DistrictRecord& record = Districts[static_cast<std::size_t>(lCurrentDistrict)];
        PutIntoEditBox(Text::ToQt(record.Variations[static_cast<std::size_t>(lEditIndex)].Text));
    } else {
        PutIntoEditBox({});
    }
    iEditMode = view.editMode;
    ApplyWindowMode();
}

void Form1::CommentTypeChosen() {
    const std::vector<int> rows = m_controls.lbComments->SelectedRows();
    if (rows.empty()) {
        return;
    }
    m_districts->SetDistricts({});
    m_variations->SetRows(0, {});
    m_comments->SetRows({});
    // A filter change discards a loaded change file on purpose.
    m_changes->SetRows({});
    m_controls.lbApplyTo->clear();
    m_controls.lbWhyError->clear();
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
        ShowWhyError(list.summary, ReasonColour(VariationState::Plain));
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

void Form1::ApplyWindowMode() {
    const ChangeListState changes{m_changes->rowCount() > 0,
                                  m_changes->AnyChecked() || !m_controls.LvChanges->SelectedRows().empty()};
    for (std::size_t i = 0; i < ControlCount; ++i) {
        const auto control = static_cast<Control>(i);
        if (const auto enabled = EnabledInMode(control, iEditMode, bChanged, changes)) {
            m_controls.Widget(control)->setEnabled(*enabled);
        }
    }
    if (ModeClearsStatus(iEditMode)) {
        m_controls.lbStatus->clear();
    }
    if (ModeClearsApplyTo(iEditMode)) {
        m_controls.lbApplyTo->clear();
    }
}

void Form1::FitWindowToScreen() {
    if (m_fittedToScreen) {
        return;
    }
    m_fittedToScreen = true;
    const QRect available = screen()->availableGeometry();
    const int caption = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const WindowFit::Screen fit{screen()->geometry().height(), available.height() - caption, caption};
    if (const auto height = WindowFit::FittedHeight(this->height() + caption, fit)) {
        resize(std::min(width(), available.width()), *height - caption);
        move(x(), available.top());
    }
}

void Form1::ResetEditPanel() {
    bIgnoreEvents = true;
    for (QCheckBox* box :
         {m_controls.cbSpelling, m_controls.cbVariation, m_controls.cbValidinyears, m_controls.cbVNF}) {
        box->setChecked(false);
    }
    m_controls.tbEdit->clear();
    bIgnoreEvents = false;
}

void Form1::UpdateMarkerOptions() {
    const MarkerOptions options = MarkerOptionsOf(Text::FromQt(m_controls.tbEdit->text()));
    m_controls.cbSpelling->setChecked(options.spelling);
    m_controls.cbVariation->setChecked(options.variation);
    m_controls.cbValidinyears->setChecked(options.validInYears);
    m_controls.cbVNF->setChecked(options.volume);
}

void Form1::PutIntoEditBox(const QString& text) {
    bIgnoreEvents = true;
    m_controls.tbEdit->setText(text);
    UpdateMarkerOptions();
    bIgnoreEvents = false;
}

void Form1::ShowWhyError(std::string_view text, const QColor& colour) {
    m_controls.lbWhyError->SetColours(colour, StateColours::LightGrey);
    m_controls.lbWhyError->setText(Text::ForBox(text));
}

void Form1::ClearWhyError() {
    ShowWhyError({}, ReasonColour(VariationState::Plain));
}
