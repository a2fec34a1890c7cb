#include "commands/ProposalCommands.h"

#include "changes/ApplyChanges.h"
#include "changes/ChangeFile.h"
#include "changes/ProposalSelection.h"
#include "commands/EditCommands.h"
#include "commands/FileCommands.h"
#include "commands/Session.h"
#include "commands/VariationCommands.h"
#include "commands/WindowMode.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "recovery/SaveCopy.h"

#include <algorithm>
#include <optional>
#include <utility>

using namespace CommonRoutines;

namespace Commands {

namespace {

void SetTick(Session& session, int row, bool ticked) {
    session.view.proposals.Change(row).ticked = ticked;
}

void UpdateChangeSelection(Session& session) {
    WindowView& view = session.view;
    ClearWhyError(session);
    ProposalSelection selection = DescribeProposalSelection(*view.proposals.rows);
    view.selectCount = std::move(selection.count);
    if (view.proposals.IsEmpty()) {
        return;
    }
    view.Enable(Control::cbClearSel, true);
    view.Enable(Control::cbApplySelected, selection.applySelected);
    view.Enable(Control::cbApplySelSpell, selection.applySelected);
    view.Enable(Control::cbApplyAll, selection.applyAll);
    view.Enable(Control::cbApplyAllSpell, selection.applyAll);
    view.Enable(Control::cbEditSel, selection.edit);
}

// The proposals of a file; nothing when it cannot be read.
std::optional<ProposalList> ReadChangeFile(Desktop& desktop, const std::string& path) {
    desktop.ShowBusy(true);
    auto content = desktop.ReadFile(path);
    auto list = content ? std::optional(ReadProposals(std::move(*content))) : std::nullopt;
    desktop.ShowBusy(false);
    if (!list) {
        desktop.MsgBox("The file cannot be read:\r\n" + Wording::OfPath(path), BoxIcon::Exclamation, BoxButtons::Ok);
    }
    return list;
}

void ReadAndShow(Session& session, const std::string& path) {
    RememberFolder(session, path, Settings::ChangeFolder);
    MendFile(session.desktop, path);
    auto list = ReadChangeFile(session.desktop, path);
    if (!list) {
        return;
    }
    const std::string summary = list->Summary();
    ShowProposals(session, std::move(list->proposals));
    EnterMode(session, DistrictIdle);
    if (!summary.empty()) {
        ShowWhyError(session, summary, VariationState::Plain);
    }
    session.view.focus = Focus::Proposals;
}

enum class Which { All, Ticked };
enum class As { Proposed, SpellingMistake };

void Apply(Session& session, Which which, As as) {
    // The buttons are disabled then. Another caller would have no record to write to.
    if (!IsDistrict(lCurrentDistrict)) {
        return;
    }
    WindowView& view = session.view;
    const auto applied =
        ApplyChanges(*view.proposals.rows, which == Which::Ticked, as == As::SpellingMistake, session.desktop);
    if (!applied) {
        return;
    }
    RefreshVariationList(session);
    ReportAppliedProposals(*applied, session.desktop);
    EnterMode(session, ChangesApplied);
    view.applyTo = 0;
    view.nextUndo = CurrentUndoStep().WhatAmI();
}

} // namespace

void ProcessFile(Session& session) {
    ClearWhyError(session);
    FileRequest request;
    request.folder = session.desktop.GetSetting(Settings::Section, Settings::ChangeFolder);
    if (const auto path = session.desktop.ChooseFileToOpen(request)) {
        ReadAndShow(session, *path);
    }
}

void ProcessPath(Session& session, const std::string& path) {
    if (session.view.IsEnabled(Control::btnProcess)) {
        ClearWhyError(session);
        ReadAndShow(session, path);
    }
}

void ApplyAll(Session& session) {
    Apply(session, Which::All, As::Proposed);
}

void ApplyAllAsSpelling(Session& session) {
    Apply(session, Which::All, As::SpellingMistake);
}

void ApplySelected(Session& session) {
    Apply(session, Which::Ticked, As::Proposed);
}

void ApplySelectedAsSpelling(Session& session) {
    Apply(session, Which::Ticked, As::SpellingMistake);
}

void EditTicked(Session& session) {
    const auto& proposals = *session.view.proposals.rows;
    const auto ticked =
        std::find_if(proposals.begin(), proposals.end(), [](const Proposal& proposal) { return proposal.ticked; });
    if (ticked != proposals.end()) {
        PutIntoEditBox(session, ticked->text);
        FollowEditText(session);
        session.view.focus = Focus::EditBox;
    }
}

void UntickAll(Session& session) {
    WindowView& view = session.view;
    for (Proposal& proposal : *view.proposals.rows) {
        proposal.ticked = false;
    }
    ++view.proposals.touched;
    for (const Control control :
         {Control::cbClearSel, Control::cbApplySelected, Control::cbApplySelSpell, Control::cbEditSel}) {
        view.Enable(control, false);
    }
    for (const Control control : {Control::cbApplyAll, Control::cbApplyAllSpell}) {
        view.Enable(control, true);
    }
    view.selectCount.clear();
}

void TickProposal(Session& session, int row, bool ticked) {
    if (ticked && session.view.proposals.At(row).tag != Proposal::Valid) {
        session.desktop.Beep();
        return;
    }
    SetTick(session, row, ticked);
    UpdateChangeSelection(session);
}

void ClickProposal(Session& session, int row) {
    const Proposal& proposal = session.view.proposals.At(row);
    SetTick(session, row, proposal.tag == Proposal::Valid);
    session.view.proposals.selected.clear();
    UpdateChangeSelection(session);
    if (IsDistrict(lCurrentDistrict)) {
        SetMode(AddingUnacceptable);
        PutIntoEditBox(session, proposal.text);
        FollowEditText(session);
    }
}

void HighlightProposals(Session& session, const std::vector<int>& rows) {
    session.view.proposals.selected = rows;
}

void RecodeProposals(Session& session, Encoding from, Encoding to) {
    auto& list = session.view.proposals;
    for (Proposal& proposal : *list.rows) {
        proposal = RecodedProposal(proposal, from, to);
    }
    ++list.touched;
    session.view.selectCount = DescribeProposalSelection(*list.rows).count;
}

void ShowProposals(Session& session, std::vector<Proposal> proposals) {
    session.view.proposals.Fill(std::move(proposals));
    session.view.selectCount.clear();
    session.view.Enable(Control::cbEditSel, false);
}

} // namespace Commands
