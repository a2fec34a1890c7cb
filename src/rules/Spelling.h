#pragma once

#include <cstdint>
#include <string_view>

namespace CommonRoutines {

// A variation as it is compared with another: what is left of it without case, "!" and outer blanks.
// The texts are parts of the variation.
struct Spelling {
    std::string_view base;
    std::string_view suffix;
    bool hasDate;
    bool hasVolume;

    explicit Spelling(std::string_view variation);

    // A deleted slot is no spelling and matches nothing.
    [[nodiscard]] bool IsDeleted() const;
};

// SameVariation for two that have been taken apart already.
[[nodiscard]] bool SameSpelling(const Spelling& a, const Spelling& b, std::int32_t districtA, std::int32_t districtB);

// The same for two districts whose years overlap and which are not one, such as one in the table and one of which
// nothing but a spelling is known.
[[nodiscard]] bool SameSpellingElsewhere(const Spelling& a, const Spelling& b);

} // namespace CommonRoutines
