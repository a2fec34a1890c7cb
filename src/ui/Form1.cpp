#include "ui/Form1.h"

#include "core/State.h"
#include "edit/UndoClass.h"
#include "rules/Capitals.h"
#include "rules/Markers.h"
#include "ui/ChangeModel.h"
#include "ui/CommentModels.h"
#include "ui/DistrictModel.h"
#include "ui/PlainLabel.h"
#include "ui/RowList.h"
#include "ui/StateColours.h"
#include "ui/Text.h"
#include "ui/VariationModel.h"
#include "ui/WindowFit.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

using namespace CommonRoutines;

namespace {

constexpr QSize DesignSize(1240, 680);

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

void Form1::ShowWhyError(std::string_view text, VariationState state) {
    m_controls.lbWhyError->SetColours(StateColours::OnLight(state), StateColours::LightGrey);
    m_controls.lbWhyError->setText(Text::ForBox(text));
}

void Form1::ClearWhyError() {
    ShowWhyError({}, VariationState::Plain);
}
