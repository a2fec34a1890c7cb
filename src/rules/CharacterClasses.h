#pragma once

// Which of the characters that the rules look for a text holds, found in one pass, so that most rules
// need not look at most texts at all.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace CommonRoutines {

enum CharacterClass : std::uint8_t {
    ClassOrdinary = 0,
    ClassShriek = 1,    // !
    ClassPercent = 2,   // %
    ClassPipe = 4,      // |
    ClassQuestion = 8,  // ?
    ClassDoubtful = 16, // _ * [ ] { }, which stand for characters that somebody could not read
    ClassControl = 32,  // codes below the blank
    ClassUnusual = 64,  // codes above the tilde
};

inline constexpr std::array<std::uint8_t, 256> CharacterClassTable = [] {
    constexpr std::size_t blank = ' ';
    constexpr std::size_t tilde = '~';
    std::array<std::uint8_t, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code) {
        table[code] = code < blank ? ClassControl : code > tilde ? ClassUnusual : ClassOrdinary;
    }
    table['!'] = ClassShriek;
    table['%'] = ClassPercent;
    table['|'] = ClassPipe;
    table['?'] = ClassQuestion;
    for (const char c : std::string_view("_*[]{}")) {
        table[static_cast<unsigned char>(c)] = ClassDoubtful;
    }
    return table;
}();

// The classes of all characters of a text together.
[[nodiscard]] inline unsigned CharacterClassesIn(std::string_view text) {
    unsigned classes = 0;
    for (const char c : text) {
        classes |= CharacterClassTable[static_cast<unsigned char>(c)];
    }
    return classes;
}

} // namespace CommonRoutines
