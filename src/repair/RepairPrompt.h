#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

struct DistrictRecord;

// A null variation between its neighbours, as they stand in the fields of the line. A neighbour that
// does not exist or has been removed is empty.
struct NullVariation {
    std::string_view districtName;
    std::int32_t index = 0; // among the fields; the variations begin at 1
    std::int32_t last = 0;  // index of the last variation
    std::string previous;
    std::string current;
    std::string next;
    bool canCombinePrevious = false; // the joined text would be valid
    bool canCombineNext = false;
};

// What the repair dialogue says, and its buttons in order.
struct RepairPrompt {
    std::string text;
    std::vector<std::string> buttons;
};

namespace RepairButton {
inline constexpr std::string_view CombinePrevious = "Combine Previous";
inline constexpr std::string_view CombineNext = "Combine Next";
inline constexpr std::string_view Remove = "Remove";
inline constexpr std::string_view Type = "Type";
inline constexpr std::string_view Quit = "Quit";
} // namespace RepairButton

// The prompt for a null variation, by its place among the variations of its district. Some of its
// lines are odd (a line written twice, a "Remove" line that shows a neighbour); users know them so.
[[nodiscard]] RepairPrompt PromptFor(const NullVariation& variation);

} // namespace CommonRoutines
