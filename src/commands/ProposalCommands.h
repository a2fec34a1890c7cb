#pragma once

#include "changes/Proposal.h"
#include "core/Encoding.h"

#include <string>
#include <vector>

// The commands for change files and their proposals.
namespace Commands {

struct Session;

// Asks for a change file and lists its proposals.
void ProcessFile(Session& session);

// The same for a file that is known already.
void ProcessPath(Session& session, const std::string& path);

// Adds proposals to the current district: all or the ticked ones, as they are or as spelling mistakes.
void ApplyAll(Session& session);
void ApplyAllAsSpelling(Session& session);
void ApplySelected(Session& session);
void ApplySelectedAsSpelling(Session& session);

// The first ticked proposal is taken into the edit box.
void EditTicked(Session& session);

// Takes all ticks away; the buttons for all proposals are enabled then whatever the mode.
void UntickAll(Session& session);

// The user ticks a proposal or takes its tick away. Only a valid one may be ticked.
void TickProposal(Session& session, int row, bool ticked);

// The user has clicked on the text of a proposal.
void ClickProposal(Session& session, int row);

// The user has moved the highlight, which counts when the mode is next applied.
void HighlightProposals(Session& session, const std::vector<int>& rows);

// The proposals as a file of another encoding can have them.
void RecodeProposals(Session& session, CommonRoutines::Encoding from, CommonRoutines::Encoding to);

// Fills the list with these proposals, of which none is ticked.
void ShowProposals(Session& session, std::vector<CommonRoutines::Proposal> proposals);

} // namespace Commands
