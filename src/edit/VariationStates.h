#pragma once

// The states of a variation, and all that is said and shown of each: one table, which the lists, their
// colours and the summary read. A new state is a value here and an entry in the table; when a variation has it is said
// in edit/VariationList.

#include "core/Records.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace CommonRoutines {

// What is to be said about a variation; the first that applies, in this order. End only closes the list.
enum class VariationState { Invalid, Warning, Duplicate, UnusualCaps, Plain, End };

inline constexpr auto VariationStateCount = static_cast<std::size_t>(VariationState::End);

struct Rgb {
    int red;
    int green;
    int blue;
};

// Who finds out how many variations of a district have a state, or pairs of variations.
enum class CountedBy { Nobody, List, Search };

struct VariationStateFacts {
    VariationState state;
    std::string_view words; // for tooltips and screen readers; empty where there is nothing to say
    Rgb onLight;
    Rgb onDark; // the same hue, with a contrast of more than 4.5 to 1
    CountedBy countedBy = CountedBy::Nobody;
    std::int32_t DistrictRecord::*count = nullptr;
    std::string_view summary = {}; // of the district, behind the count
};

// In the order of the summary.
inline constexpr auto VariationStateTable = std::to_array<VariationStateFacts>({
    {.state = VariationState::Invalid,
     .words = "invalid",
     .onLight = {236, 0, 0},
     .onDark = {255, 128, 128},
     .countedBy = CountedBy::List,
     .count = &DistrictRecord::lInvalidCount,
     .summary = " Invalid (red).\r\n"},
    {.state = VariationState::Duplicate,
     .words = "duplicate",
     .onLight = {0, 0, 255},
     .onDark = {150, 170, 255},
     .countedBy = CountedBy::Search,
     .count = &DistrictRecord::iDuplicateCount,
     .summary = " Duplicates(Blue).\r\n"},
    {.state = VariationState::Warning,
     .words = "warning",
     .onLight = {204, 102, 0},
     .onDark = {255, 170, 85},
     .countedBy = CountedBy::List,
     .count = &DistrictRecord::lWarningCount,
     .summary = " warnings (Brown)."},
    {.state = VariationState::UnusualCaps,
     .words = "unusual capitals",
     .onLight = {0, 128, 0},
     .onDark = {110, 210, 110}},
    {.state = VariationState::Plain, .words = "", .onLight = {0, 0, 0}, .onDark = {255, 255, 255}},
});

[[nodiscard]] constexpr const VariationStateFacts& FactsOf(VariationState state) {
    return *std::find_if(VariationStateTable.begin(), VariationStateTable.end(),
                         [=](const VariationStateFacts& facts) { return facts.state == state; });
}

// True when every state has exactly one entry, and a count wherever one is shown.
[[nodiscard]] consteval bool EveryStateHasItsFacts() {
    std::array<int, VariationStateCount + 1> entries{};
    for (const VariationStateFacts& facts : VariationStateTable) {
        ++entries[static_cast<std::size_t>(facts.state)];
        const bool isCounted = facts.countedBy != CountedBy::Nobody;
        if (isCounted != (facts.count != nullptr) || isCounted == facts.summary.empty()) {
            return false;
        }
    }
    return std::all_of(entries.begin(), entries.end() - 1, [](int count) { return count == 1; }) && entries.back() == 0;
}
static_assert(EveryStateHasItsFacts(), "every state of a variation needs its entry in the table");

} // namespace CommonRoutines
