#pragma once

#include "edit/VariationList.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// The decisions of the edit panel: which keys may be typed, what a text is good for, and what its
// commands do to lCurrentDistrict.
namespace CommonRoutines {

class Desktop;

// A longer text can only be looked at: each key would lay it out anew.
inline constexpr std::size_t LongestEditableText = 200'000;

// Why a character may not be typed into the text behind `caret` characters, for the user; empty where it may.
// Markers are kept where the rules for variations want them; other characters than blank to "|" always pass.
[[nodiscard]] std::string_view WhyKeyIsRefused(char key, std::string_view text, std::size_t caret);

[[nodiscard]] inline bool MayType(char key, std::string_view text, std::size_t caret) {
    return WhyKeyIsRefused(key, text, caret).empty();
}

// What a change of the text in the edit box leads to.
struct TextChange {
    std::int16_t editMode = 0;
    std::optional<std::string> status; // for lbStatus; nothing leaves it as it is
    std::string refusal = {};          // why the text cannot be added, for the user; empty where it can
};

// Follows the text from the present iEditMode. While a variation is added, the text is acceptable when it is
// valid, new to the district and not only or at its end a marker. While an existing one is edited, nothing is
// checked. Without a district the mode stays as it is.
[[nodiscard]] TextChange FollowText(std::string_view text);

// What became of a text that was committed.
struct Committed {
    bool stored = false;
    std::string warning; // empty when there is none
};

// Stores the text as a new variation or over the one at lEditIndex, as iEditMode says, and records
// that; in any other mode nothing is stored. Then checks the text for a warning, and looks for
// duplicates again. A warning or an invalid text is no obstacle. Sets bChanged.
Committed CommitText(std::string_view text, Desktop& desktop);

// The question before rows are deleted, of which there is at least one.
[[nodiscard]] std::string DeleteQuestion(std::span<const VariationRow> rows);

// Empties the slots of the rows and records that. Sets bChanged and lEditIndex to 0; looks for
// duplicates again.
void DeleteVariations(std::span<const VariationRow> rows, Desktop& desktop);

} // namespace CommonRoutines
