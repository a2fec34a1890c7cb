#pragma once

#include <cstdint>
#include <vector>

namespace Commands {

struct Session;

// Lists all districts of a table that was read, their columns as wide as their texts, and says which
// names there are twice.
void FillDistrictList(Session& session);

// The user has chosen among the rows of the districts; without a row nothing happens.
void ChooseDistrict(Session& session, const std::vector<int>& rows);

// Chooses the row of a district. False when it is not listed.
[[nodiscard]] bool GoToDistrict(Session& session, std::int32_t district);

// The user has chosen among the comment types: only the districts with comments of that type are listed,
// and the proposals go.
void ChooseCommentType(Session& session, const std::vector<int>& rows);

} // namespace Commands
