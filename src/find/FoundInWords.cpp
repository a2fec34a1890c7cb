#include "find/FoundInWords.h"

#include <array>
#include <string_view>

namespace CommonRoutines {

std::string FoundInWords(const Hits& hits, bool isSearching, bool isSought) {
    struct Words {
        std::string_view one;
        std::string_view several;
    };
    constexpr std::array<Words, HitKindCount> inWords{
        {{" district", " districts"}, {" variation", " variations"}, {" comment", " comments"}}};
    if (!isSought) {
        return {};
    }
    std::string found;
    for (std::size_t kind = 0; kind < inWords.size(); ++kind) {
        if (const std::size_t count = hits.Count(static_cast<HitKind>(kind)); count > 0) {
            found += (found.empty() ? "" : ", ") + WithCommas(count);
            found += count == 1 ? inWords[kind].one : inWords[kind].several;
        }
    }
    if (isSearching) {
        return found.empty() ? "Searching" : found + " so far";
    }
    return found.empty() ? "Nothing found" : found;
}

std::string WithCommas(std::size_t number) {
    constexpr std::size_t group = 3;
    std::string digits = std::to_string(number);
    for (std::size_t place = digits.size(); place > group;) {
        place -= group;
        digits.insert(place, 1, ',');
    }
    return digits;
}

} // namespace CommonRoutines
