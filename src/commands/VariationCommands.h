#pragma once

#include "edit/VariationList.h"

#include <cstdint>
#include <string_view>
#include <vector>

// The commands for the list of variations, and what the list shows of the current district.
namespace Commands {

struct Session;

// The user has chosen rows of the variations, perhaps none.
void SelectVariations(Session& session, const std::vector<int>& rows);

// The choice of variations is given up, as by "Cancel", which is disabled while there are several.
void GiveUpSelection(Session& session);

// Rows that stayed selected after a command are taken up again, exactly they.
void TakeUpSelection(Session& session);

// Asks, and deletes the selected variations.
void Delete(Session& session);

// Adds a marker to the selected variations or takes it away, as the button says.
void ChangeShriek(Session& session);
void ChangeDate(Session& session);

// Takes the last change back, in whichever district it was made.
void Undo(Session& session);

// Lists the variations of lCurrentDistrict anew; none is selected or edited then. Where there are some, enters
// the idle mode; where they have problems, their summary takes the place of what the label showed.
void RefreshVariationList(Session& session);

// Fills the list with these rows of a district.
void ShowVariations(Session& session, std::int32_t district, std::vector<CommonRoutines::VariationRow> rows);
// The selected rows, in list order.
[[nodiscard]] std::vector<CommonRoutines::VariationRow> SelectedVariations(const Session& session);

// The label of problems. Emptied, it keeps its ground, on which the warning of the last "Ok" is seen.
void ShowWhyError(Session& session, std::string_view text, CommonRoutines::VariationState ink);
void EmptyWhyError(Session& session);
void ClearWhyError(Session& session);

} // namespace Commands
