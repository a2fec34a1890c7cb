// The main window's editing commands: the edit panel, the markers, the undo journal.

#include "core/Desktop.h"
#include "core/State.h"
#include "edit/EditPanel.h"
#include "edit/MarkerCommands.h"
#include "edit/UndoJournal.h"
#include "edit/Variations.h"
#include "rules/Duplicates.h"
#include "rules/Markers.h"
#include "ui/Text.h"
#include "ui/lists/DistrictModel.h"
#include "ui/lists/RowList.h"
#include "ui/lists/StateColours.h"
#include "ui/lists/VariationModel.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/windows/Form1.h"

#include <QCheckBox>
#include <QPushButton>

namespace Ui {

using namespace CommonRoutines;

void Form1::EditTextChanged() {
    if (bIgnoreEvents) {
        return;
    }
    m_controls.lbWhyError->ShowText({});
    if (m_controls.tbEdit->IsCutOff()) {
        ApplyWindowMode();
        m_controls.lbStatus->ShowText(tr("This text is too long to be edited here."));
        return;
    }
    if (!IsDistrict(lCurrentDistrict)) {
        // The controls stay as they are: a file whose reopening was cancelled can still be saved.
        UpdateMarkerOptions();
        return;
    }
    const TextChange change = FollowText(Text::FromQt(m_controls.tbEdit->text()));
    if (change.status) {
        m_controls.lbStatus->ShowText(Text::ForBox(*change.status));
    }
    iEditMode = change.editMode;
    ApplyWindowMode();
    UpdateMarkerOptions();
}

void Form1::UpdateMarkerOptions() {
    const MarkerOptions options = MarkerOptionsOf(Text::FromQt(m_controls.tbEdit->text()));
    m_controls.cbSpelling->setChecked(options.spelling);
    m_controls.cbVariation->setChecked(options.variation);
    m_controls.cbValidinyears->setChecked(options.validInYears);
    m_controls.cbVNF->setChecked(options.volume);
}

void Form1::PutIntoEditBox(std::string_view text) {
    bIgnoreEvents = true;
    m_controls.tbEdit->ShowText(text);
    UpdateMarkerOptions();
    bIgnoreEvents = false;
}

void Form1::ResetEditPanel() {
    bIgnoreEvents = true;
    for (QCheckBox* box :
         {m_controls.cbSpelling, m_controls.cbVariation, m_controls.cbValidinyears, m_controls.cbVNF}) {
        box->setChecked(false);
    }
    // Clearing could be undone, which would bring a text back that was given up.
    m_controls.tbEdit->ShowText({});
    bIgnoreEvents = false;
}

void Form1::AddClicked() {
    m_controls.lbWhyError->ShowText({});
    iLastAction = AddStarted;
    PutIntoEditBox({});
    iEditMode = AddingUnacceptable;
    ApplyWindowMode();
    m_controls.tbEdit->setFocus();
}

void Form1::OkClicked() {
    const Committed committed = CommitText(Text::FromQt(m_controls.tbEdit->text()), m_desktop);
    if (committed.stored) {
        iEditMode = DistrictIdle;
    }
    ShowNextUndo(CurrentUndoStep().WhatAmI());
    if (!committed.warning.empty()) {
        m_desktop.Beep();
        m_controls.lbWhyError->SetBackground(StateColours::BlueGreen);
        ShowWhyError(committed.warning, VariationState::Plain);
    } else {
        m_controls.lbWhyError->SetBackground(StateColours::LightGrey);
    }
    RefreshVariationList();
    ApplyWindowMode();
    ResetEditPanel();
    m_controls.lvAlpha->setFocus();
}

void Form1::CancelClicked() {
    m_controls.lbWhyError->ShowText({});
    ReturnToIdle();
    // The button is disabled now; the focus must not fall just anywhere.
    m_controls.lvAlpha->setFocus();
}

// As "Cancel" does, which is disabled while several variations are chosen.
void Form1::LeaveVariations() {
    if (iEditMode == OneSelected || iEditMode == SeveralSelected) {
        CancelClicked();
    }
}

void Form1::ReturnToIdle() {
    ResetEditPanel();
    iEditMode = DistrictIdle;
    ApplyWindowMode();
}

void Form1::DeleteClicked() {
    m_controls.lbWhyError->ShowText({});
    iLastAction = VariationDeleted;
    const std::vector<VariationRow> rows = SelectedVariations();
    const bool confirmed =
        !rows.empty() && m_desktop.MsgBox(DeleteQuestion(rows), BoxIcon::Question, BoxButtons::YesNo) == BoxAnswer::Yes;
    if (confirmed) {
        DeleteVariations(rows, m_desktop);
        ShowNextUndo(CurrentUndoStep().WhatAmI());
        RefreshVariationList();
    }
    ReturnToIdle();
    m_controls.lvAlpha->setFocus();
}

void Form1::ShriekClicked() {
    ChangeSelectedMarkers(ShriekCommand(Text::FromQt(m_controls.cbShriek->text())), *m_controls.cbShriek);
}

void Form1::DateClicked() {
    ChangeSelectedMarkers(DateCommand(Text::FromQt(m_controls.cbDate->text())), *m_controls.cbDate);
}

void Form1::ChangeSelectedMarkers(MarkerCommand command, QPushButton& button) {
    ChangeMarkers(command, SelectedVariations(), m_desktop);
    ShowNextUndo(CurrentUndoStep().WhatAmI());
    // The rows stay where they are, and selected, until the list is filled again.
    m_variations->RefreshRows(m_controls.lvVariations->SelectedRows());
    if (lEditIndex > 0) {
        PutIntoEditBox(VariationOf(lCurrentDistrict, lEditIndex).Text);
    }
    button.setEnabled(false);
    iEditMode = DistrictIdle;
    ApplyWindowMode();
}

void Form1::UndoClicked() {
    if (CurrentUndoStep().Count() == 0) {
        return;
    }
    m_controls.lbWhyError->ShowText({});
    const UndoneItem undone = CurrentUndoStep().LastItem();
    if (undone.lDistrict != lCurrentDistrict && !GoToDistrict(undone.lDistrict)) {
        m_desktop.MsgBox("Undo crash - Failed to find District " + std::to_string(undone.lDistrict), BoxIcon::Critical);
        m_desktop.MsgBox("Please save your work and exit", BoxIcon::Critical);
        ShowNextUndo(DescribeNextUndo());
        return;
    }
    const bool boxShowsSelection = iEditMode == OneSelected || (iEditMode == DistrictIdle && lEditIndex > 0);
    if (m_variations->rowCount() == 0) {
        RefreshVariationList(); // a filter may have cleared the list, in which the change is looked for
    }
    TakeBack(undone.item, m_variations->Rows(), m_desktop);
    ShowNextUndo(DescribeNextUndo());
    FindDuplicateVariations(undone.lDistrict, false);
    RefreshVariationList();
    // The selection has gone with the old rows; a text that is being typed stays.
    if (boxShowsSelection) {
        ResetEditPanel();
    }
    // Where no variation is left, none is selected or edited any more.
    if (iEditMode == OneSelected || iEditMode == SeveralSelected || iEditMode == EditingVariation) {
        iEditMode = DistrictIdle;
    }
    ApplyWindowMode();
}

bool Form1::GoToDistrict(std::int32_t district) {
    const int row = m_districts->RowOf(district);
    if (row < 0) {
        return false;
    }
    m_controls.lvAlpha->SelectRow(row);
    DistrictChosen();
    return true;
}

void Form1::ShowNextUndo(std::string_view description) {
    m_controls.lbUndo->ShowText(Text::ForList(description));
}

// Proposals are applied with one of these two boxes ticked, which only makes sense while some are
// ticked themselves; while a text is being edited the boxes say what it is. That a click on "Spelling
// Mistake" is left standing then, and one on "Variation" undone, is meant.
void Form1::SpellingClicked() {
    if (iEditMode == DistrictIdle) {
        ChooseOption(*m_controls.cbSpelling, *m_controls.cbVariation);
    }
}

void Form1::VariationClicked() {
    if (iEditMode == DistrictIdle) {
        ChooseOption(*m_controls.cbVariation, *m_controls.cbSpelling);
    } else {
        m_controls.cbVariation->toggle();
    }
}

void Form1::ChooseOption(QCheckBox& chosen, QCheckBox& other) {
    if (m_controls.lbSelectCount->text().isEmpty()) {
        m_desktop.Beep();
        chosen.setChecked(false);
    } else if (chosen.isChecked()) {
        other.setChecked(false);
    }
}

} // namespace Ui
