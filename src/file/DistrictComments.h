#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// A row of lvComments. The second and later rows of a long comment have a single blank as their type.
struct CommentRow {
    std::string type;
    std::string comment;

    bool operator==(const CommentRow&) const = default;
};

// Width of a text on the screen. Longer texts must not be narrower than their beginnings.
using MeasureText = std::function<double(std::string_view)>;

// True when a comment line of the district begins with the marker and has the type `sType`, in any case.
[[nodiscard]] bool DistrictHasCommentType(std::int32_t lDistrict, std::string_view sType);

// What stands behind the marker in a comment line, its type and the comment; nothing for a line that is none.
[[nodiscard]] std::optional<std::string_view> CommentIn(std::string_view line);

// The rows for the comments of a district, in file order; `available` is the room for the comment
// text, in the unit of `measure`. Here the marker may stand anywhere in a line. Empty for no district. Of
// a district with so many comments that nobody reads them all, those behind the first rows are not wrapped.
[[nodiscard]] std::vector<CommentRow> CommentRows(std::int32_t lDistrict, double available, const MeasureText& measure);

// Puts `sText` into the last of `rows`, going on in new rows wherever it gets as wide as the room. A
// word that is too wide for a row stays whole, and so does what follows thousands of rows.
void WrapComment(std::vector<CommentRow>& rows, std::string_view sText, double available, const MeasureText& measure);

} // namespace CommonRoutines
