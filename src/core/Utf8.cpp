#include "core/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <numeric>

namespace Utf8 {

namespace {

// The smallest code point that needs a sequence of this many bytes; a longer one than needed is not UTF-8.
constexpr std::array<char32_t, 5> SmallestOfLength{0, 0, 0x80, 0x800, 0x10000};
constexpr char32_t FirstSurrogate = 0xD800;
constexpr char32_t LastSurrogate = 0xDFFF;
constexpr char32_t LastCodePoint = 0x10FFFF;
constexpr unsigned SixBits = 6;
constexpr unsigned LowSix = 0x3F;

// How many bytes a sequence with this one in front has; 0 for one that starts none.
constexpr std::size_t LengthFrom(unsigned char lead) {
    return lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

constexpr bool IsCodePoint(char32_t number) {
    return number <= LastCodePoint && (number < FirstSurrogate || number > LastSurrogate);
}

// The text behind its first bytes of ASCII, which are passed over in blocks.
std::string_view WithoutAscii(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::array<std::uint64_t, 8> block{};
    while (text.size() >= sizeof block) {
        std::memcpy(block.data(), text.data(), sizeof block);
        if ((std::reduce(block.begin(), block.end(), std::uint64_t{0}, std::bit_or<>()) & highBits) != 0) {
            break;
        }
        text.remove_prefix(sizeof block);
    }
    const auto* const other = std::find_if_not(text.begin(), text.end(), [](char c) { return IsAscii(c); });
    return text.substr(static_cast<std::size_t>(other - text.begin()));
}

} // namespace

bool IsAscii(std::string_view text) {
    return WithoutAscii(text).empty();
}

bool IsValid(std::string_view text) {
    for (text = WithoutAscii(text); !text.empty(); text = WithoutAscii(text)) {
        if (TakeCodePoint(text) == NotACharacter) {
            return false;
        }
    }
    return true;
}

std::size_t CharacterCount(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), IsContinuation));
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count) {
        return text;
    }
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count) {
        do {
            ++end;
        } while (end < text.size() && IsContinuation(text[end]));
    }
    return text.substr(0, end);
}

char32_t TakeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = LengthFrom(lead);
    char32_t codePoint = length < 2 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= text.size() || !IsContinuation(text[i])) {
            text.remove_prefix(i);
            return NotACharacter;
        }
        codePoint = (codePoint << SixBits) | (static_cast<unsigned char>(text[i]) & LowSix);
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
    const bool isOne = length > 0 && codePoint >= SmallestOfLength[length] && IsCodePoint(codePoint);
    return isOne ? codePoint : NotACharacter;
}

void Append(std::string& text, char32_t codePoint) {
    const auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
    const auto appendContinuation = [&](unsigned shift) { append(0x80U | ((codePoint >> shift) & LowSix)); };
    if (codePoint < SmallestOfLength[2]) {
        append(codePoint);
    } else if (codePoint < SmallestOfLength[3]) {
        append(0xC0U | (codePoint >> SixBits));
        appendContinuation(0);
    } else if (codePoint < SmallestOfLength[4]) {
        append(0xE0U | (codePoint >> (2 * SixBits)));
        appendContinuation(SixBits);
        appendContinuation(0);
    } else {
        append(0xF0U | (codePoint >> (3 * SixBits)));
        appendContinuation(2 * SixBits);
        appendContinuation(SixBits);
        appendContinuation(0);
    }
}

std::string Cleaned(std::string_view text) {
    std::string cleaned;
    while (!text.empty()) {
        const char32_t codePoint = TakeCodePoint(text);
        Append(cleaned, codePoint == NotACharacter ? U'?' : codePoint);
    }
    return cleaned;
}

} // namespace Utf8
