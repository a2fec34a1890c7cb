#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace Ansi {

// Looks for a text in others whatever the case of their letters, and takes every character for itself. It is in a text
// whose upper-case form holds its own one. Both are in the encoding that texts have when the search is made.
class CaselessSearch {
public:
    // `sought` is not empty.
    explicit CaselessSearch(std::string_view sought);

    // The part of a text that is the sought one, the first from a place on.
    [[nodiscard]] std::optional<std::string_view> FindIn(std::string_view text, std::size_t from = 0) const;

private:
    // A character in its two cases, which may differ in their lengths.
    struct Letter {
        std::array<char, 4> upper{};
        std::array<char, 4> lower{};
        std::size_t upperSize = 0;
        std::size_t lowerSize = 0;
    };
    // What stands at a certain place of the sought text, in either case.
    struct Anchor {
        std::size_t place = 0;
        char upper = 0;
        char lower = 0;

        [[nodiscard]] bool IsAt(const char* beginning) const {
            return beginning[place] == upper || beginning[place] == lower;
        }
    };

    [[nodiscard]] static Letter LetterFrom(std::string_view& sought);
    [[nodiscard]] bool MayBeginAmong(const char* places) const;
    // How long the sought text is at the beginning of this one; 0 where it is not there.
    [[nodiscard]] std::size_t LengthAt(std::string_view text) const;

    std::vector<Letter> m_letters;
    Anchor m_first;
    Anchor m_last;               // the last byte, as long as letters of both cases have the same length
    bool m_isOfTwoBytes = false; // at most, each of them a letter
};

} // namespace Ansi
