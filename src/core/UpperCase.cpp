#include "core/UpperCase.h"

#include "core/Ansi.h"
#include "core/LetterPairs.h"
#include "core/State.h"

#include <algorithm>
#include <bit>

namespace Ansi {

namespace {

constexpr std::size_t WordLength = sizeof(std::uint64_t);
constexpr unsigned BitsPerCharacter = 8;

constexpr auto UpperByte = [](char c) { return Upper(c); };
constexpr auto SameByte = [](char c) { return c; };

// Up to eight bytes from a place on, the first one in the highest byte, filled up with NUL.
template <typename Change>
std::uint64_t Pack(std::string_view text, std::size_t from, Change change) {
    const std::size_t end = std::min(text.size(), from + WordLength);
    std::uint64_t word = 0;
    for (std::size_t i = from; i < end; ++i) {
        word = (word << BitsPerCharacter) | static_cast<unsigned char>(change(text[i]));
    }
    const std::size_t missing = from < end ? WordLength - (end - from) : WordLength;
    return missing == WordLength ? 0 : word << (BitsPerCharacter * missing);
}

template <typename Change>
std::uint64_t Hash(std::string_view text, Change change) {
    // Multiplying by the golden ratio, as in Knuth, The Art of Computer Programming 3, 6.4, spreads the
    // bits upwards; the rotation brings the upper ones back into play.
    constexpr std::uint64_t goldenRatio = 0x9E3779B97F4A7C15;
    constexpr int half = 32;
    std::uint64_t hash = text.size();
    for (std::size_t from = 0; from < text.size(); from += WordLength) {
        hash = std::rotl((hash ^ Pack(text, from, change)) * goldenRatio, half);
    }
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
    return IsBytewise(text) ? Hash(text, UpperByte) : Hash(Upper(text), SameByte);
}

UpperPrefix::UpperPrefix(std::string_view text) {
    if (IsBytewise(text)) {
        Fill(text, UpperByte);
    } else {
        // So many characters have at least as many bytes as a prefix can tell from a longer one.
        Fill(Upper(FirstCharacters(text, Length + 1)), SameByte);
    }
}

template <typename Change>
void UpperPrefix::Fill(std::string_view text, Change change) {
    m_first = Pack(text, 0, change);
    m_second = Pack(text, WordLength, change);
    m_third = (Pack(text, 2 * WordLength, change) & ~LengthMask) | std::min(text.size(), Length + 1);
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
