#include "core/Ansi.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace Ansi {

namespace {

constexpr unsigned char Code(char c) {
    return static_cast<unsigned char>(c);
}

// Bytes 80 to 9F hexadecimal; all others are the code point of the same number.
constexpr std::array<char16_t, 32> UpperControls{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t NotACharacter = 0xFFFFFFFF;

// The smallest code point that needs a sequence of this many bytes; a longer one than needed is not UTF-8.
constexpr std::array<char32_t, 5> SmallestOfLength{0, 0, 0x80, 0x800, 0x10000};

// One code point from the front of `utf8`, which is shortened by the bytes used. A byte that starts
// no sequence is used up alone, a sequence that breaks off as far as it goes.
char32_t TakeCodePoint(std::string_view& utf8) {
    const unsigned char lead = Code(utf8.front());
    const std::size_t length = lead < 0x80   ? 1U
                               : lead < 0xC2 ? 0U
                               : lead < 0xE0 ? 2U
                               : lead < 0xF0 ? 3U
                               : lead < 0xF5 ? 4U
                                             : 0U;
    char32_t codePoint = length < 2 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= utf8.size() || (Code(utf8[i]) & 0xC0U) != 0x80U) {
            utf8.remove_prefix(i);
            return NotACharacter;
        }
        codePoint = (codePoint << 6U) | (Code(utf8[i]) & 0x3FU);
    }
    utf8.remove_prefix(std::max<std::size_t>(length, 1));
    return length == 0 || codePoint < SmallestOfLength[length] ? NotACharacter : codePoint;
}

std::optional<char> ByteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<char>(codePoint);
    }
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), codePoint);
    if (found == UpperControls.end()) {
        return std::nullopt;
    }
    return static_cast<char>(0x80 + (found - UpperControls.begin()));
}

template <typename Change>
std::string Changed(std::string_view text, Change change) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), change);
    return result;
}

} // namespace

std::string Upper(std::string_view text) {
    return Changed(text, [](char c) { return Upper(c); });
}

std::string Lower(std::string_view text) {
    return Changed(text, [](char c) { return Lower(c); });
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Upper(x) == Upper(y); });
}

std::string_view FirstWord(std::string_view text) {
    return text.substr(0, text.find(' '));
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    SplitInto(pieces, text, separator);
    return pieces;
}

void SplitInto(std::vector<std::string_view>& pieces, std::string_view text, char separator, std::size_t most) {
    pieces.clear();
    while (pieces.size() < most) {
        const auto end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        text.remove_prefix(end + 1);
    }
}

char16_t ToUnicode(char c) {
    const unsigned char code = Code(c);
    return code >= 0x80 && code <= 0x9F ? UpperControls[code - 0x80U] : code;
}

char FromUnicode(char32_t codePoint) {
    return ByteOf(codePoint).value_or('?');
}

std::optional<char> TakeCharacter(std::string_view& utf8) {
    return ByteOf(TakeCodePoint(utf8));
}

void AppendUtf8(std::string& utf8, char c) {
    constexpr unsigned sixBits = 6;
    constexpr unsigned lowSix = 0x3F;
    const unsigned code = ToUnicode(c);
    const auto append = [&](unsigned byte) { utf8 += static_cast<char>(byte); };
    if (code < SmallestOfLength[2]) {
        append(code);
    } else if (code < SmallestOfLength[3]) {
        append(0xC0U | (code >> sixBits));
        append(0x80U | (code & lowSix));
    } else {
        append(0xE0U | (code >> (2 * sixBits)));
        append(0x80U | ((code >> sixBits) & lowSix));
        append(0x80U | (code & lowSix));
    }
}

std::string FromUtf8(std::string_view utf8) {
    std::string result;
    while (!utf8.empty()) {
        result += TakeCharacter(utf8).value_or('?');
    }
    return result;
}

} // namespace Ansi
