#include "core/UpperCase.h"

#include "core/Ansi.h"
#include "core/LetterPairs.h"
#include "core/State.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

namespace Ansi {

namespace {

constexpr std::size_t WordLength = sizeof(std::uint64_t);
constexpr int BitsPerCharacter = 8;

constexpr auto UpperBytes = [](std::uint64_t word) {
    constexpr std::uint64_t inEachByte = 0x0101010101010101;
    constexpr std::uint64_t highBits = inEachByte * 0x80;
    if ((word & highBits) == 0) {
        // ASCII: the high bit of a sum tells that a byte is not before "a", or is behind "z".
        const std::uint64_t notBeforeA = word + inEachByte * (0x80 - 'a');
        const std::uint64_t behindZ = word + inEachByte * (0x7F - 'z');
        return word - ((notBeforeA & ~behindZ & highBits) >> 2); // 20 hexadecimal less for each small letter
    }
    std::uint64_t upper = 0;
    for (int shift = 0; shift < std::numeric_limits<std::uint64_t>::digits; shift += BitsPerCharacter) {
        upper |= std::uint64_t{static_cast<unsigned char>(Upper(static_cast<char>(word >> shift)))} << shift;
    }
    return upper;
};
constexpr auto SameBytes = [](std::uint64_t word) { return word; };

// Up to eight bytes from a place on, the first one in the highest byte, filled up with NUL.
std::uint64_t Pack(std::string_view text, std::size_t from) {
    const auto take = [&](std::size_t place, std::size_t count) {
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < count; ++i) {
            word = (word << BitsPerCharacter) | static_cast<unsigned char>(text[place + i]);
        }
        return word;
    };
    if (from + WordLength <= text.size()) {
        return take(from, WordLength);
    }
    if (from >= text.size()) {
        return 0;
    }
    const std::size_t length = text.size() - from;
    // From the end of a longer text, eight bytes are taken at once all the same.
    const std::uint64_t word =
        text.size() >= WordLength ? take(text.size() - WordLength, WordLength) : take(from, length);
    return word << (BitsPerCharacter * ((WordLength - length) % WordLength)); // less than a word, as length is not 0
}

// `change` makes the bytes that count of eight others.
template <typename Change>
std::uint64_t Hash(std::string_view text, Change change) {
    // Multiplying by the golden ratio, as in Knuth, The Art of Computer Programming 3, 6.4, spreads the
    // bits upwards; the rotation brings the upper ones back into play, before they are spread again.
    constexpr std::uint64_t goldenRatio = 0x9E3779B97F4A7C15;
    constexpr int half = 32;
    std::uint64_t hash = text.size();
    const auto take = [&](const char* from, std::size_t size) {
        std::array<char, WordLength> bytes{};
        std::copy_n(from, size, bytes.begin());
        const auto word = std::bit_cast<std::uint64_t>(bytes);
        hash = std::rotl(hash ^ (change(word) * goldenRatio), half) * goldenRatio;
    };
    if (text.size() < WordLength) {
        take(text.data(), text.size());
        return hash;
    }
    const char* end = text.data() + text.size() - WordLength;
    for (const char* from = text.data(); from < end; from += WordLength) {
        take(from, WordLength);
    }
    take(end, WordLength); // perhaps with bytes that were taken before
    return hash;
}

// The order of UTF-8 is that of its code points.
std::strong_ordering CompareUpperUtf8(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (const auto order = LetterPairs::TakeUpper(a) <=> LetterPairs::TakeUpper(b); order != 0) {
            return order;
        }
    }
    return a.size() <=> b.size();
}

} // namespace

std::strong_ordering CompareUpper(std::string_view a, std::string_view b) {
    if (CommonRoutines::TextsAreUtf8()) {
        return CompareUpperUtf8(a, b);
    }
    const auto code = [](char c) { return static_cast<unsigned char>(Upper(c)); };
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (const auto order = code(a[i]) <=> code(b[i]); order != 0) {
            return order;
        }
    }
    return a.size() <=> b.size();
}

std::uint64_t HashUpper(std::string_view text) {
    return IsBytewise(text) ? Hash(text, UpperBytes) : Hash(Upper(text), SameBytes);
}

UpperPrefix::UpperPrefix(std::string_view text) {
    if (IsBytewise(text)) {
        Fill(text, UpperBytes);
    } else {
        // So many characters have at least as many bytes as a prefix can tell from a longer one.
        Fill(Upper(FirstCharacters(text, Length + 1)), SameBytes);
    }
}

template <typename Change>
void UpperPrefix::Fill(std::string_view text, Change change) {
    m_first = change(Pack(text, 0));
    m_second = change(Pack(text, WordLength));
    m_third = (change(Pack(text, 2 * WordLength)) & ~LengthMask) | std::min(text.size(), Length + 1);
}

UpperPrefix::Difference UpperPrefix::FirstDifference(const UpperPrefix& a, const UpperPrefix& b) {
    const auto in = [](std::uint64_t wordOfA, std::uint64_t wordOfB) {
        const int shift = static_cast<int>(WordLength - 1) * 8 - std::countl_zero(wordOfA ^ wordOfB) / 8 * 8;
        return Difference{static_cast<char>(wordOfA >> shift), static_cast<char>(wordOfB >> shift)};
    };
    if (a.m_first != b.m_first) {
        return in(a.m_first, b.m_first);
    }
    if (a.m_second != b.m_second) {
        return in(a.m_second, b.m_second);
    }
    return in(a.m_third, b.m_third);
}

} // namespace Ansi
