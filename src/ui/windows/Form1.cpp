#include "ui/windows/Form1.h"

#include "core/Desktop.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "recovery/UnsavedChanges.h"
#include "rules/Capitals.h"
#include "ui/Text.h"
#include "ui/lists/ChangeModel.h"
#include "ui/lists/CommentModels.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/VariationModel.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/windows/Commands.h"
#include "ui/windows/LongWork.h"
#include "ui/windows/WindowFit.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QCloseEvent>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTimer>

namespace Ui {

using namespace CommonRoutines;

namespace {

constexpr QSize DesignSize(1240, 680);

// The list whose rows a button works on.
RowList* ListBeside(const QWidget& button, const Form1Controls& controls) {
    const QWidget* frame = button.parentWidget();
    if (frame == controls.cbAdd->parentWidget()) {
        return controls.lvVariations;
    }
    return frame == controls.cbApplyAll->parentWidget() ? controls.LvChanges : controls.lvAlpha;
}

// A bare widget would be a nameless part of a window to a screen reader.
QAccessibleInterface* AccessibleWindow(const QString& /*className*/, QObject* object) {
    auto* form = dynamic_cast<Form1*>(object);
    return form == nullptr ? nullptr : new QAccessibleWidget(form, QAccessible::Window);
}

} // namespace

Form1::Form1(Desktop& desktop) : m_desktop(desktop), m_controls(this) {
    QAccessible::installFactory(&AccessibleWindow);
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(QStringLiteral("Quexal Editor"));
    resize(DesignSize);
    setAcceptDrops(true);
    SetModels();
    ConnectButtons();
    ConnectEditPanel();
    ConnectLists();
    AddShortcuts();
}

void Form1::Run(void (Form1::*handler)()) {
    Commands::Run(m_desktop, [=, this] { (this->*handler)(); });
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

void Form1::ConnectButtons() {
    const auto onClick = [this](QPushButton* button, void (Form1::*handler)()) {
        connect(button, &QPushButton::clicked, this, [=, this] { Run(handler); });
    };
    onClick(m_controls.cbOpen, &Form1::OpenClicked);
    onClick(m_controls.cbSave, &Form1::SaveClicked);
    onClick(m_controls.cbUndo, &Form1::UndoClicked);
    onClick(m_controls.cbAdd, &Form1::AddClicked);
    onClick(m_controls.cbDelete, &Form1::DeleteClicked);
    onClick(m_controls.cbShriek, &Form1::ShriekClicked);
    onClick(m_controls.cbDate, &Form1::DateClicked);
    onClick(m_controls.cbOk, &Form1::OkClicked);
    onClick(m_controls.cbCancel, &Form1::CancelClicked);
    onClick(m_controls.btnProcess, &Form1::ProcessClicked);
    onClick(m_controls.cbCompleteCheck, &Form1::CompleteCheckClicked);
    onClick(m_controls.cbSaveVariations, &Form1::SaveVariationsClicked);
    onClick(m_controls.cbEditSel, &Form1::EditSelClicked);
    onClick(m_controls.cbClearSel, &Form1::ClearSelClicked);

    const auto onApply = [this](QPushButton* button, bool selectedOnly, bool asSpelling) {
        connect(button, &QPushButton::clicked, this,
                [=, this] { Commands::Run(m_desktop, [=, this] { Apply(selectedOnly, asSpelling); }); });
    };
    onApply(m_controls.cbApplyAll, false, false);
    onApply(m_controls.cbApplyAllSpell, false, true);
    onApply(m_controls.cbApplySelected, true, false);
    onApply(m_controls.cbApplySelSpell, true, true);
}

void Form1::ConnectEditPanel() {
    connect(m_controls.cbSpelling, &QCheckBox::clicked, this, [this] { Run(&Form1::SpellingClicked); });
    connect(m_controls.cbVariation, &QCheckBox::clicked, this, [this] { Run(&Form1::VariationClicked); });

    EditBox* edit = m_controls.tbEdit;
    connect(edit, &QLineEdit::textChanged, this, [this] { Run(&Form1::EditTextChanged); });
    connect(edit, &EditBox::KeyRefused, this, [this] { m_desktop.Beep(); });
    connect(edit, &EditBox::Entered, m_controls.cbOk, &QPushButton::click);
    connect(edit, &EditBox::Escaped, m_controls.cbCancel, &QPushButton::click);
    connect(edit, &EditBox::NothingToUndo, m_controls.cbUndo, &QPushButton::click);
}

void Form1::ConnectLists() {
    connect(m_controls.lvAlpha, &RowList::Chosen, this, [this] { Run(&Form1::DistrictChosen); });
    connect(m_controls.lvVariations, &RowList::Chosen, this, [this] { Run(&Form1::VariationsChosen); });
    connect(m_controls.lbComments, &RowList::Chosen, this, [this] { Run(&Form1::CommentTypeChosen); });
    connect(m_controls.lvVariations, &RowList::Resized, this, &Form1::SizeWideColumns);
    connect(m_controls.LvChanges, &RowList::Resized, this, &Form1::SizeWideColumns);
    connect(m_controls.lvComments, &RowList::Resized, this, [this] {
        SizeCommentColumn();
        // A filter may have cleared the comments since the district was chosen.
        if (m_comments->rowCount() > 0) {
            Commands::Show(m_desktop, [this] { ShowDistrictComments(); });
        }
    });
    connect(m_changes, &ChangeModel::Ticked, this, [this] { Run(&Form1::ChangeTicked); });
    connect(m_changes, &ChangeModel::TickRefused, this, [this] { Run(&Form1::ChangeTickRefused); });
    connect(m_controls.LvChanges, &QAbstractItemView::pressed, this, [this] { m_tickedByClick = false; });
    connect(m_controls.LvChanges, &QAbstractItemView::clicked, this,
            [this](const QModelIndex& index) { Commands::Run(m_desktop, [&] { ChangeRowClicked(index); }); });
}

void Form1::AddShortcuts() {
    // A button that is disabled ignores its shortcut as it ignores a click.
    const auto onKeys = [this](const QKeySequence& keys, QPushButton* button) {
        connect(new QShortcut(keys, this), &QShortcut::activated, button, &QPushButton::click);
    };
    onKeys(QKeySequence::Open, m_controls.cbOpen);
    onKeys(QKeySequence::Save, m_controls.cbSave);
    onKeys(QKeySequence::Undo, m_controls.cbUndo);
    onKeys(Qt::Key_Insert, m_controls.cbAdd);
    // In the edit box the key deletes a character.
    auto* deleteKey = new QShortcut(QKeySequence::Delete, m_controls.lvVariations);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, m_controls.cbDelete, &QPushButton::click);
    auto* escapeKey = new QShortcut(Qt::Key_Escape, m_controls.lvVariations);
    escapeKey->setContext(Qt::WidgetShortcut);
    connect(escapeKey, &QShortcut::activated, this, [this] { Run(&Form1::LeaveVariations); });
    connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, this, [this] {
        if (m_controls.tbEdit->isEnabled()) {
            m_controls.tbEdit->setFocus(Qt::ShortcutFocusReason);
        }
    });
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
    m_controls.cbOpen->setFocus();
}

void Form1::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    FitWindowToScreen();
}

void Form1::closeEvent(QCloseEvent* event) {
    event->setAccepted(!LongWork::IsPainting() && MayDiscardChanges());
    if (event->isAccepted() && bChanged) {
        Unsaved.Remove(m_desktop);
    }
}

// A button that its own command disables gives the focus to the list that it belongs to, not to whatever
// control comes next.
bool Form1::focusNextPrevChild(bool next) {
    if (const QWidget* control = focusWidget(); control != nullptr && !control->isEnabled()) {
        ListBeside(*control, m_controls)->setFocus();
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

// One file that is dropped on the window is opened, wherever "Open File" could be pressed.
void Form1::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.constFirst().isLocalFile() && m_controls.cbOpen->isEnabled() &&
        !LongWork::IsPainting()) {
        event->acceptProposedAction();
    }
}

void Form1::dropEvent(QDropEvent* event) {
    const std::string path = Text::PathFromQt(event->mimeData()->urls().constFirst().toLocalFile());
    event->acceptProposedAction();
    // Questions come up only when the program that the file was dragged from has been answered.
    QTimer::singleShot(0, this, [=, this] { Commands::Run(m_desktop, [&] { OpenDropped(path); }); });
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
    ShowHints();
    if (ModeClearsStatus(iEditMode)) {
        m_controls.lbStatus->ShowText({});
    }
    if (ModeClearsApplyTo(iEditMode)) {
        m_controls.lbApplyTo->ShowText({});
    }
}

// What to do next, where a list is empty.
void Form1::ShowHints() {
    const bool hasDistricts = !m_districtsByName.empty() && iEditMode != NothingOpen;
    m_controls.lvAlpha->SetHint(hasDistricts ? tr("No district has a comment of this type")
                                             : tr("Open a file, or drop one here, to see its districts"));
    m_controls.lvVariations->SetHint(IsDistrict(lCurrentDistrict)
                                         ? tr("This district has no variations: press Add to enter one")
                                         : tr("Choose a district to see its variations"));
    m_controls.LvChanges->SetHint(tr("Process File shows proposals here"));
    m_controls.lvComments->SetHint(IsDistrict(lCurrentDistrict) ? tr("This district has no comments")
                                                                : tr("Choose a district to see its comments"));
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

void Form1::ShowWhyError(std::string_view text, VariationState state) {
    m_controls.lbWhyError->SetTextColour(StateColours::OnLight(state));
    m_controls.lbWhyError->ShowText(Text::ForBox(text));
}

void Form1::ClearWhyError() {
    ShowWhyError({}, VariationState::Plain);
    m_controls.lbWhyError->SetBackground(StateColours::LightGrey);
}

} // namespace Ui
