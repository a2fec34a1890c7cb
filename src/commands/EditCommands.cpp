#include "commands/EditCommands.h"

#include "commands/Session.h"
#include "commands/VariationCommands.h"
#include "commands/WindowMode.h"
#include "core/Ansi.h"
#include "core/State.h"
#include "edit/EditPanel.h"
#include "edit/UndoJournal.h"

using namespace CommonRoutines;

namespace Commands {

namespace {

void UpdateMarkerOptions(Session& session) {
    session.view.edit.options = MarkerOptionsOf(session.view.edit.text);
}

// Proposals are applied with one of these two boxes ticked, which only makes sense while some are ticked
// themselves.
void ChooseOption(Session& session, bool& chosen, bool& other) {
    if (session.view.selectCount.empty()) {
        session.desktop.Beep();
        chosen = false;
    } else if (chosen) {
        other = false;
    }
}

} // namespace

void StartAdding(Session& session) {
    EmptyWhyError(session);
    iLastAction = AddStarted;
    PutIntoEditBox(session, {});
    EnterMode(session, AddingUnacceptable);
    session.view.focus = Focus::EditBox;
}

void TypeText(Session& session, std::string_view text) {
    session.view.edit.text = text;
    FollowEditText(session);
}

void FollowEditText(Session& session) {
    WindowView& view = session.view;
    EmptyWhyError(session);
    view.edit.isPending = true;
    if (view.edit.text.size() > LongestEditableText) {
        ApplyWindowMode(session);
        view.status = "This text is too long to be edited here.";
        view.edit.refusal = view.status;
        return;
    }
    // Without a district the controls stay as they are: a file whose reopening was cancelled can still be saved.
    if (IsDistrict(lCurrentDistrict)) {
        TextChange change = FollowText(view.edit.text);
        if (change.status) {
            view.status = std::move(*change.status);
        }
        view.edit.refusal = std::move(change.refusal);
        EnterMode(session, change.editMode);
    } else {
        view.edit.refusal.clear();
    }
    // An emptied box holds nothing, unless it empties a variation.
    view.edit.isPending = !view.edit.text.empty() || iEditMode == EditingVariation;
    UpdateMarkerOptions(session);
}

void RefuseKey(Session& session, std::string_view reason) {
    session.desktop.Beep();
    session.view.edit.keyRefusal = reason;
}

void Accept(Session& session) {
    WindowView& view = session.view;
    const Committed committed = CommitText(view.edit.text, session.desktop);
    if (committed.stored) {
        SetMode(DistrictIdle);
    }
    view.nextUndo = CurrentUndoStep().WhatAmI();
    view.whyError.warns = !committed.warning.empty();
    if (view.whyError.warns) {
        session.desktop.Beep();
        ShowWhyError(session, committed.warning, VariationState::Plain); // until the list has a summary
    }
    RefreshVariationList(session);
    ApplyWindowMode(session);
    ResetEditPanel(session);
    view.focus = Focus::Districts;
}

void Cancel(Session& session) {
    EmptyWhyError(session);
    session.view.variations.selected.clear(); // what is given up must not look chosen
    ReturnToIdle(session);
}

void GoToEditBox(Session& session) {
    if (session.view.IsEnabled(Control::tbEdit)) {
        session.view.focus = Focus::WholeText;
    }
}

// While a text is being edited the boxes say what it is. That a click on "Spelling Mistake" is left standing
// then, and one on "Variation" undone, is meant.
void ClickSpelling(Session& session, bool ticked) {
    MarkerOptions& options = session.view.edit.options;
    options.spelling = ticked;
    if (iEditMode == DistrictIdle) {
        ChooseOption(session, options.spelling, options.variation);
    }
}

void ClickVariation(Session& session, bool ticked) {
    MarkerOptions& options = session.view.edit.options;
    if (iEditMode == DistrictIdle) {
        options.variation = ticked;
        ChooseOption(session, options.variation, options.spelling);
    }
}

void ClickValidInYears(Session& session, bool ticked) {
    session.view.edit.options.validInYears = ticked;
}

void ClickVolume(Session& session, bool ticked) {
    session.view.edit.options.volume = ticked;
}

void PutIntoEditBox(Session& session, std::string_view text) {
    EditView& edit = session.view.edit;
    edit.text = Ansi::Beginning(text, LongestEditableText + 1);
    edit.isPending = false;
    edit.refusal.clear();
    ++edit.filled;
    UpdateMarkerOptions(session);
}

void ResetEditPanel(Session& session) {
    PutIntoEditBox(session, {}); // no option belongs to an empty text
}

void ReturnToIdle(Session& session) {
    lEditIndex = 0;
    ResetEditPanel(session);
    EnterMode(session, DistrictIdle);
    session.view.focus = Focus::Districts; // the button is disabled now; the focus must not fall just anywhere
}

} // namespace Commands
