#pragma once

// The two cases of the letters of Windows-1252. Those of ASCII are the same in every text.

#include <array>
#include <cstddef>

namespace Ansi {

namespace Case {

using CaseTable = std::array<unsigned char, 256>;

struct CasePair {
    unsigned char capital;
    unsigned char small;
};

// The letters whose two forms do not stand 32 apart.
inline constexpr std::array<CasePair, 4> IrregularPairs{{
    {0x8A, 0x9A}, // S with caron
    {0x8C, 0x9C}, // OE
    {0x8E, 0x9E}, // Z with caron
    {0x9F, 0xFF}, // Y with diaeresis
}};

constexpr bool IsRegularCapital(int code) {
    constexpr int multiplicationSign = 0xD7;
    return (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != multiplicationSign);
}

constexpr CaseTable MakeCaseTable(bool toUpper) {
    CaseTable table{};
    for (int code = 0; code < 256; ++code) {
        table[static_cast<std::size_t>(code)] = static_cast<unsigned char>(code);
    }
    const auto add = [&](unsigned char capital, unsigned char small) {
        if (toUpper) {
            table[small] = capital;
        } else {
            table[capital] = small;
        }
    };
    for (int code = 0; code < 256; ++code) {
        if (IsRegularCapital(code)) {
            add(static_cast<unsigned char>(code), static_cast<unsigned char>(code + 32));
        }
    }
    for (const CasePair& pair : IrregularPairs) {
        add(pair.capital, pair.small);
    }
    return table;
}

inline constexpr CaseTable UpperTable = MakeCaseTable(true);
inline constexpr CaseTable LowerTable = MakeCaseTable(false);

} // namespace Case

// The capital or small form of one character; characters without a counterpart in the code page
// (among them the sharp s and the micro sign) are their own.
[[nodiscard]] constexpr char Upper(char c) {
    return static_cast<char>(Case::UpperTable[static_cast<unsigned char>(c)]);
}
[[nodiscard]] constexpr char Lower(char c) {
    return static_cast<char>(Case::LowerTable[static_cast<unsigned char>(c)]);
}

} // namespace Ansi
