#include "core/Ansi.h"

#include "core/LetterPairs.h"
#include "core/State.h"
#include "core/UpperCase.h"
#include "core/Utf8.h"

#include <algorithm>
#include <array>
#include <optional>

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
std::string ChangedBytes(std::string_view text, Change change) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), change);
    return result;
}

// The place behind the character that holds the byte before this one.
std::size_t EndOfCharacter(std::string_view text, std::size_t place) {
    while (place < text.size() && Utf8::IsContinuation(text[place])) {
        ++place;
    }
    return place;
}

} // namespace

bool IsBytewise(std::string_view text) {
    return !CommonRoutines::TextsAreUtf8() || Utf8::IsAscii(text);
}

std::string Upper(std::string_view text) {
    return IsBytewise(text) ? ChangedBytes(text, [](char c) { return Upper(c); }) : LetterPairs::Upper(text);
}

std::string Lower(std::string_view text) {
    return IsBytewise(text) ? ChangedBytes(text, [](char c) { return Lower(c); }) : LetterPairs::Lower(text);
}

std::string UpperAscii(std::string_view text) {
    return ChangedBytes(text, [](char c) { return Utf8::IsAscii(c) ? Upper(c) : c; });
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    if (CommonRoutines::TextsAreUtf8()) {
        return CompareUpper(a, b) == 0;
    }
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

std::size_t CharacterCount(std::string_view text) {
    return CommonRoutines::TextsAreUtf8() ? Utf8::CharacterCount(text) : text.size();
}

char32_t CodeAt(std::string_view text, std::size_t place) {
    text.remove_prefix(place);
    return CommonRoutines::TextsAreUtf8() ? Utf8::TakeCodePoint(text) : Code(text.front());
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    return CommonRoutines::TextsAreUtf8() ? Utf8::FirstCharacters(text, count) : text.substr(0, count);
}

std::string_view Beginning(std::string_view text, std::size_t bytes) {
    return text.substr(0, CommonRoutines::TextsAreUtf8() ? EndOfCharacter(text, bytes) : bytes);
}

char16_t ToUnicode(char c) {
    const unsigned char code = Code(c);
    return code >= 0x80 && code <= 0x9F ? UpperControls[code - 0x80U] : code;
}

char FromUnicode(char32_t codePoint) {
    return ByteOf(codePoint).value_or('?');
}

std::string ToUtf8(std::string_view ansi) {
    std::string utf8;
    utf8.reserve(ansi.size() + ansi.size() / 16);
    for (const char c : ansi) {
        Utf8::Append(utf8, ToUnicode(c));
    }
    return utf8;
}

std::string FromUtf8(std::string_view utf8) {
    std::string ansi;
    ansi.reserve(utf8.size());
    while (!utf8.empty()) {
        ansi += FromUnicode(Utf8::TakeCodePoint(utf8));
    }
    return ansi;
}

} // namespace Ansi
