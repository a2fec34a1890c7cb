#include "commands/DistrictCommands.h"

#include "commands/EditCommands.h"
#include "commands/ProposalCommands.h"
#include "commands/Session.h"
#include "commands/VariationCommands.h"
#include "commands/WindowMode.h"
#include "core/Progress.h"
#include "core/State.h"
#include "file/CommentTypes.h"
#include "file/DistrictList.h"

#include <algorithm>

using namespace CommonRoutines;

namespace Commands {

namespace {

void ShowDistrictComments(Session& session) {
    CommentsView& comments = session.view.comments;
    comments = {lCurrentDistrict, comments.filled + 1};
}

std::vector<NamedDistrict> SortAndMeasureDistricts(Session& session) {
    Progress progress(session.desktop, "Listing the districts", static_cast<std::size_t>(lLineCount));
    session.screen.StartColumnWidths();
    return DistrictsByName([&](std::int32_t line) {
        if (IsDistrict(line)) {
            session.screen.AddDistrictRow(RecordOf(line));
        }
        progress.Advance(1);
    });
}

} // namespace

void FillDistrictList(Session& session) {
    session.desktop.ShowBusy(true);
    const std::vector<NamedDistrict> districts = SortAndMeasureDistricts(session);
    session.districtsByName = LinesOf(districts);
    session.desktop.ShowBusy(false);
    session.view.districts.Fill(session.districtsByName);
    session.screen.SetColumnWidths(); // before a question shows the list
    ReportDuplicatedDistricts(districts, session.desktop);
}

void ChooseDistrict(Session& session, const std::vector<int>& rows) {
    WindowView& view = session.view;
    view.districts.selected = rows;
    if (rows.empty()) {
        return;
    }
    lCurrentDistrict = view.districts.At(rows.front());
    lEditIndex = 0;
    RefreshVariationList(session);
    view.applyTo = lCurrentDistrict;
    EnterMode(session, DistrictIdle);
    ResetEditPanel(session);
    ShowDistrictComments(session);
}

bool GoToDistrict(Session& session, std::int32_t district) {
    const std::vector<std::int32_t>& rows = *session.view.districts.rows;
    const auto found = std::find(rows.begin(), rows.end(), district);
    if (found == rows.end()) {
        return false;
    }
    ChooseDistrict(session, {static_cast<int>(found - rows.begin())});
    return true;
}

void ChooseCommentType(Session& session, const std::vector<int>& rows) {
    WindowView& view = session.view;
    view.commentTypes.selected = rows;
    if (rows.empty()) {
        return;
    }
    ShowVariations(session, 0, {});
    lEditIndex = 0;
    view.comments = {0, view.comments.filled + 1};
    // A filter change discards a loaded change file on purpose.
    ShowProposals(session, {});
    if (iEditMode == DistrictIdle) {
        ApplyWindowMode(session); // its commands go with it
    }
    view.applyTo = 0;
    EmptyWhyError(session);
    // The columns are already as wide as the widest row of the whole file.
    const std::string& type = CommentTypes.Items()[static_cast<std::size_t>(rows.front())].type;
    view.districts.Fill(DistrictsOfType(session.districtsByName, type));
}

} // namespace Commands
