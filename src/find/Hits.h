#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace CommonRoutines {

// What a sought text is found in, in the order of the list.
enum class HitKind { District, Variation, Comment, End };

inline constexpr auto HitKindCount = static_cast<std::size_t>(HitKind::End);

// Where it is found, and the district to which that belongs.
struct Hit {
    HitKind kind = HitKind::District;
    std::int32_t line = 0; // of the district, or of the comment
    std::int32_t slot = 0; // of the variation

    bool operator==(const Hit&) const = default;
};

// All hits of a search: the districts, the variations, the comments, each kind in the order of the file.
class Hits {
public:
    void Add(const Hit& hit) { m_places[static_cast<std::size_t>(hit.kind)].push_back({hit.line, hit.slot}); }

    [[nodiscard]] std::size_t Count(HitKind kind) const { return m_places[static_cast<std::size_t>(kind)].size(); }
    [[nodiscard]] std::size_t Count() const;
    // The hit in a row, counted from 0.
    [[nodiscard]] Hit At(std::size_t row) const;
    // The row of a hit, or nothing; and of the first one that stands at it or behind it, which may be Count().
    [[nodiscard]] std::optional<std::size_t> RowOf(const Hit& hit) const;
    [[nodiscard]] std::size_t RowFrom(const Hit& hit) const;

private:
    // There may be one for every variation of a file.
    struct Place {
        std::int32_t line;
        std::int32_t slot;

        auto operator<=>(const Place&) const = default;
    };
    std::array<std::vector<Place>, HitKindCount> m_places;
};

// The district that a hit leads to: for a comment the next one below it.
[[nodiscard]] std::int32_t DistrictOf(const Hit& hit);

} // namespace CommonRoutines
