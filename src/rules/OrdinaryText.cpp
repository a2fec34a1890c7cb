#include "rules/OrdinaryText.h"

#include "core/AnsiCase.h"
#include "rules/Capitals.h"
#include "rules/CharacterClasses.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace CommonRoutines {

namespace {

enum Kind : std::uint8_t {
    KindOdd = 1, // some rule looks for it, or it is not of ASCII
    KindPercent = 2,
    KindSeparator = 4, // of words
    KindCapital = 8,
    KindSmall = 16,
    KindOther = 32,
};

// What a character is, and what may not follow it within a name.
struct Facts {
    std::uint8_t kind;
    std::uint8_t refusedNext;
};

constexpr std::array<Facts, 256> FactsTable = [] {
    std::array<Facts, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code) {
        const char c = static_cast<char>(code);
        table[code].kind = CharacterClassTable[code] == ClassPercent    ? KindPercent
                           : CharacterClassTable[code] != ClassOrdinary ? KindOdd
                           : Ansi::Lower(c) != c                        ? KindCapital
                           : Ansi::Upper(c) != c                        ? KindSmall
                                                                        : KindOther;
    }
    for (const char c : WordSeparators) {
        Facts& facts = table[static_cast<unsigned char>(c)];
        facts.kind = facts.kind == KindOdd ? KindOdd : KindSeparator;
    }
    for (Facts& facts : table) {
        facts.refusedNext = KindOdd | KindPercent | (facts.kind == KindSeparator ? KindSmall : KindCapital);
    }
    return table;
}();

Facts FactsOf(char c) {
    return FactsTable[static_cast<unsigned char>(c)];
}

bool HasNoOuterBlanks(std::string_view text) {
    return !text.starts_with(' ') && !text.ends_with(' ');
}

// What follows the "%" behind a name.
bool IsOrdinaryVolume(std::string_view volume) {
    return !volume.empty() && HasNoOuterBlanks(volume) && std::none_of(volume.begin(), volume.end(), [](char c) {
        return (FactsOf(c).kind & (KindOdd | KindPercent)) != 0;
    });
}

} // namespace

bool IsOrdinary(std::string_view variation) {
    constexpr std::size_t shortest = 2; // name between two "%"
    std::string_view text = variation;
    text.remove_prefix(text.starts_with('!') ? 1 : 0);
    const bool hasDate = text.starts_with('%');
    text.remove_prefix(hasDate ? 1 : 0);
    unsigned refused = KindOdd | KindPercent | KindSmall;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const Facts facts = FactsOf(text[at]);
        if ((facts.kind & refused) != 0) {
            return facts.kind == KindPercent && at >= (hasDate ? shortest : 1) &&
                   HasNoOuterBlanks(text.substr(0, at)) && IsOrdinaryVolume(text.substr(at + 1));
        }
        refused = facts.refusedNext;
    }
    return !text.empty() && HasNoOuterBlanks(text);
}

} // namespace CommonRoutines
