#include "commands/VariationCommands.h"

#include "commands/DistrictCommands.h"
#include "commands/EditCommands.h"
#include "commands/Selection.h"
#include "commands/Session.h"
#include "commands/WindowMode.h"
#include "core/State.h"
#include "edit/EditPanel.h"
#include "edit/MarkerCommands.h"
#include "edit/UndoJournal.h"
#include "edit/Variations.h"
#include "rules/Duplicates.h"

using namespace CommonRoutines;

namespace Commands {

namespace {

// The rows stay where they are, and selected, until the list is filled again.
void RefreshSelectedRows(Session& session) {
    ListView<VariationRow>& list = session.view.variations;
    for (const int row : list.selected) {
        VariationRow& shown = list.Change(row);
        shown.state = StateOfVariation(VariationOf(session.view.variationsOf, shown.slot));
    }
}

void ChangeSelectedMarkers(Session& session, MarkerCommand command) {
    ChangeMarkers(command, SelectedVariations(session), session.desktop);
    session.view.nextUndo = CurrentUndoStep().WhatAmI();
    RefreshSelectedRows(session);
    lEditIndex = 0;
    ResetEditPanel(session); // what is typed from now on is a new variation
    EnterMode(session, DistrictIdle);
}

void ReportLostDistrict(Session& session, std::int32_t district) {
    session.desktop.MsgBox("Undo crash - Failed to find District " + std::to_string(district), BoxIcon::Critical);
    session.desktop.MsgBox("Please save your work and exit", BoxIcon::Critical);
}

// The selection has gone with the old rows; a text that is being typed stays.
void EndSelection(Session& session, bool boxShowedSelection) {
    if (boxShowedSelection) {
        ResetEditPanel(session);
    }
    // Where no variation is left, none is selected or edited any more.
    const bool isOfSelection =
        iEditMode == OneSelected || iEditMode == SeveralSelected || iEditMode == EditingVariation;
    EnterMode(session, isOfSelection ? std::int16_t{DistrictIdle} : iEditMode);
}

} // namespace

void SelectVariations(Session& session, const std::vector<int>& rows) {
    WindowView& view = session.view;
    view.variations.selected = rows;
    const SelectionView selection = DescribeSelection(SelectedVariations(session));
    ClearWhyError(session);
    ShowWhyError(session, selection.reason, selection.reasonState);
    view.shriekCaption = selection.shriekCaption;
    view.dateCaption = selection.dateCaption;

    lEditIndex = selection.editIndex;
    if (lEditIndex > 0) {
        iLastAction = VariationSelected;
        PutIntoEditBox(session, VariationOf(lCurrentDistrict, lEditIndex).Text);
    } else {
        PutIntoEditBox(session, {});
    }
    EnterMode(session, selection.editMode);
}

void GiveUpSelection(Session& session) {
    const bool isMarked = iEditMode == DistrictIdle && !session.view.variations.selected.empty();
    if (iEditMode == OneSelected || iEditMode == SeveralSelected || isMarked) {
        Cancel(session);
    }
}

void TakeUpSelection(Session& session) {
    const std::vector<int> marked = session.view.variations.selected;
    if (iEditMode == DistrictIdle && !marked.empty()) {
        SelectVariations(session, marked);
    }
}

void Delete(Session& session) {
    EmptyWhyError(session);
    iLastAction = VariationDeleted;
    const std::vector<VariationRow> rows = SelectedVariations(session);
    const bool confirmed = !rows.empty() && session.desktop.MsgBox(DeleteQuestion(rows), BoxIcon::Question,
                                                                   BoxButtons::YesNo) == BoxAnswer::Yes;
    if (confirmed) {
        DeleteVariations(rows, session.desktop);
        session.view.nextUndo = CurrentUndoStep().WhatAmI();
        RefreshVariationList(session);
    }
    ReturnToIdle(session);
}

void ChangeShriek(Session& session) {
    ChangeSelectedMarkers(session, ShriekCommand(session.view.shriekCaption));
}

void ChangeDate(Session& session) {
    ChangeSelectedMarkers(session, DateCommand(session.view.dateCaption));
}

void Undo(Session& session) {
    if (CurrentUndoStep().Count() == 0) {
        return;
    }
    WindowView& view = session.view;
    EmptyWhyError(session);
    const UndoneItem undone = CurrentUndoStep().LastItem();
    if (undone.lDistrict != lCurrentDistrict && !GoToDistrict(session, undone.lDistrict)) {
        ReportLostDistrict(session, undone.lDistrict);
        view.nextUndo = DescribeNextUndo();
        return;
    }
    const bool boxShowsSelection = iEditMode == OneSelected;
    if (view.variations.IsEmpty()) {
        // A filter may have cleared the list, in which the change is looked for.
        ShowVariations(session, lCurrentDistrict, ListVariations(lCurrentDistrict).rows);
    }
    TakeBack(undone.item, *view.variations.rows);
    view.nextUndo = DescribeNextUndo();
    FindDuplicateVariations(undone.lDistrict, false);
    RefreshVariationList(session);
    EndSelection(session, boxShowsSelection);
}

void RefreshVariationList(Session& session) {
    lEditIndex = 0;
    VariationList list = ListVariations(lCurrentDistrict);
    const bool hasRows = !list.rows.empty();
    ShowVariations(session, lCurrentDistrict, std::move(list.rows));
    ++session.view.districts.touched; // its record has been counted anew
    if (hasRows) {
        EnterMode(session, DistrictIdle);
    }
    // Without a problem the label keeps what it shows.
    if (!list.summary.empty()) {
        ShowWhyError(session, list.summary, VariationState::Plain);
    }
}

void ShowVariations(Session& session, std::int32_t district, std::vector<VariationRow> rows) {
    session.view.variations.Fill(std::move(rows));
    session.view.variationsOf = district;
}

std::vector<VariationRow> SelectedVariations(const Session& session) {
    std::vector<VariationRow> selected;
    for (const int row : session.view.variations.selected) {
        selected.push_back(session.view.variations.At(row));
    }
    return selected;
}

void ShowWhyError(Session& session, std::string_view text, VariationState ink) {
    session.view.whyError.text = text;
    session.view.whyError.ink = ink;
}

void EmptyWhyError(Session& session) {
    session.view.whyError.text.clear();
}

void ClearWhyError(Session& session) {
    session.view.whyError = {};
}

} // namespace Commands
