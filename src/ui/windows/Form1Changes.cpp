// The main window's commands for change files, the complete check and the saving of variations.

#include "changes/ApplyChanges.h"
#include "changes/ChangeFile.h"
#include "changes/ChangeSelection.h"
#include "checks/CompleteCheck.h"
#include "checks/SaveVariations.h"
#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/Paths.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "edit/Variations.h"
#include "ui/Text.h"
#include "ui/lists/ChangeModel.h"
#include "ui/lists/RowList.h"
#include "ui/widgets/EditBox.h"
#include "ui/widgets/PlainLabel.h"
#include "ui/windows/Form1.h"

#include <QPushButton>

#include <algorithm>

namespace Ui {

using namespace CommonRoutines;

void Form1::ProcessClicked() {
    ClearWhyError();
    FileRequest request;
    request.sFolder = m_desktop.GetSetting(Settings::Section, Settings::ChangeFolder);
    const auto path = m_desktop.ChooseFileToOpen(request);
    if (!path) {
        return;
    }
    RememberFolder(*path, Settings::ChangeFolder);
    m_desktop.ShowBusy(true);
    const auto content = m_desktop.ReadFile(*path);
    if (!content) {
        m_desktop.ShowBusy(false);
        m_desktop.MsgBox("The file cannot be read:\r\n" + Ansi::FromUtf8(*path), BoxIcon::Exclamation);
        return;
    }
    ChangeList changes = ReadChanges(*content);
    m_desktop.ShowBusy(false);
    const std::string summary = changes.Summary();
    ShowChanges(std::move(changes.rows));
    iEditMode = DistrictIdle;
    ApplyWindowMode();
    if (!summary.empty()) {
        ShowWhyError(summary, VariationState::Plain);
    }
    m_controls.LvChanges->setFocus();
}

void Form1::ShowChanges(std::vector<ChangeRow> rows) {
    m_changes->SetRows(std::move(rows));
    m_controls.lbSelectCount->ShowText({});
    m_controls.cbEditSel->setEnabled(false);
}

void Form1::ChangeTicked() {
    m_tickedByClick = true;
    UpdateChangeSelection();
}

void Form1::ChangeTickRefused() {
    m_tickedByClick = true;
    m_desktop.Beep();
}

void Form1::ChangeRowClicked(const QModelIndex& index) {
    // A click on the check box only ticks.
    if (m_tickedByClick) {
        return;
    }
    const ChangeRow& row = m_changes->Rows()[static_cast<std::size_t>(index.row())];
    m_changes->SetChecked(index.row(), row.iTag == ChangeRow::Valid);
    m_controls.LvChanges->clearSelection();
    if (IsDistrict(lCurrentDistrict)) {
        iEditMode = AddingUnacceptable;
        PutIntoEditBox(row.sText);
        EditTextChanged();
    }
    UpdateChangeSelection();
}

void Form1::UpdateChangeSelection() {
    ClearWhyError();
    const ChangeSelection selection = DescribeChangeSelection(m_changes->Rows());
    m_controls.lbSelectCount->ShowText(Text::ToQt(selection.count));
    if (m_changes->rowCount() == 0 || !IsDistrict(lCurrentDistrict)) {
        return;
    }
    m_controls.cbClearSel->setEnabled(true);
    m_controls.cbApplySelected->setEnabled(selection.applySelected);
    m_controls.cbApplySelSpell->setEnabled(selection.applySelected);
    m_controls.cbApplyAll->setEnabled(selection.applyAll);
    m_controls.cbApplyAllSpell->setEnabled(selection.applyAll);
    m_controls.cbEditSel->setEnabled(selection.edit);
}

void Form1::Apply(bool selectedOnly, bool asSpelling) {
    // The buttons stay enabled when opening a file is cancelled, which leaves no district chosen.
    if (!IsDistrict(lCurrentDistrict)) {
        return;
    }
    const auto applied = ApplyChanges(m_changes->Rows(), selectedOnly, asSpelling, m_desktop);
    if (!applied) {
        return;
    }
    RefreshVariationList();
    ReportAppliedChanges(*applied, m_desktop);
    iEditMode = ChangesApplied;
    ApplyWindowMode();
    m_controls.lbApplyTo->ShowText({});
    ShowNextUndo(CurrentUndoStep().WhatAmI());
}

void Form1::EditSelClicked() {
    const auto& rows = m_changes->Rows();
    const auto ticked = std::find_if(rows.begin(), rows.end(), [](const ChangeRow& row) { return row.bChecked; });
    if (ticked != rows.end()) {
        PutIntoEditBox(ticked->sText);
        EditTextChanged();
        m_controls.tbEdit->setFocus();
    }
}

void Form1::ClearSelClicked() {
    m_changes->UncheckAll();
    for (QPushButton* button :
         {m_controls.cbClearSel, m_controls.cbApplySelected, m_controls.cbApplySelSpell, m_controls.cbEditSel}) {
        button->setEnabled(false);
    }
    for (QPushButton* button : {m_controls.cbApplyAll, m_controls.cbApplyAllSpell}) {
        button->setEnabled(true);
    }
    m_controls.lbSelectCount->ShowText({});
}

void Form1::CompleteCheckClicked() {
    ClearWhyError();
    m_desktop.ShowReport(CompleteVariationCheck(m_desktop));
}

void Form1::SaveVariationsClicked() {
    std::vector<std::string> texts;
    for (const VariationRow& row : SelectedVariations()) {
        texts.push_back(VariationOf(lCurrentDistrict, row.lIndex).Text);
    }
    SaveSelectedVariations(texts, m_desktop);
}

} // namespace Ui
