#pragma once

// The texts of the core: those of the open file, as the bytes that were read. Here is the one place that knows what a
// character of them is: a byte of Windows-1252 or, where TextsAreUtf8, a sequence of UTF-8. Places in a text
// are bytes. The separators and markers are ASCII, so that most code may look at bytes alone.

#include "core/AnsiCase.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Ansi {

// The text in capital or in small letters, character by character. In UTF-8, bytes that are none become U+FFFD.
[[nodiscard]] std::string Upper(std::string_view text);
[[nodiscard]] std::string Lower(std::string_view text);

// The same for the letters of ASCII alone, which leaves every byte in its place.
[[nodiscard]] std::string UpperAscii(std::string_view text);

// True when both texts have the same upper-case form.
[[nodiscard]] bool EqualIgnoringCase(std::string_view a, std::string_view b);

// The text without blanks (the space character, nothing else) at either end, or at the left end.
[[nodiscard]] constexpr std::string_view TrimLeft(std::string_view text) {
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    return text;
}
[[nodiscard]] constexpr std::string_view Trim(std::string_view text) {
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return TrimLeft(text);
}

// The text before the first blank, or all of it when it has none.
[[nodiscard]] std::string_view FirstWord(std::string_view text);

// The pieces between separators, always at least one. The pieces are parts of `text`.
[[nodiscard]] std::vector<std::string_view> Split(std::string_view text, char separator);
// The same into a vector that is used again and again; of more than `most` pieces, the first ones.
void SplitInto(std::vector<std::string_view>& pieces, std::string_view text, char separator,
               std::size_t most = std::string_view::npos);

// Whether every byte of a text is a character: in Windows-1252, and in ASCII.
[[nodiscard]] bool IsBytewise(std::string_view text);

[[nodiscard]] std::size_t CharacterCount(std::string_view text);
// The code of the character at a place: that of the code page, or the code point.
[[nodiscard]] char32_t CodeAt(std::string_view text, std::size_t place);
// The first characters of a text, all of it where it has no more.
[[nodiscard]] std::string_view FirstCharacters(std::string_view text, std::size_t count);
// At least so many bytes from the front of a text that has them, so that no character is cut.
[[nodiscard]] std::string_view Beginning(std::string_view text, std::size_t bytes);

// The Unicode code point of a byte of Windows-1252. It leaves five bytes open: 81, 8D, 8F, 90 and 9D hexadecimal.
// They stand for the control characters of the same number, so that no byte is lost. Table: Unicode Consortium,
// MAPPINGS/VENDORS/MICSFT/WindowsBestFit/bestfit1252.txt.
[[nodiscard]] char16_t ToUnicode(char c);

// The byte of a code point; "?" for one that the code page lacks.
[[nodiscard]] char FromUnicode(char32_t codePoint);

// Windows-1252 as UTF-8 and back; what the code page lacks, and what is no UTF-8, becomes "?".
[[nodiscard]] std::string ToUtf8(std::string_view ansi);
[[nodiscard]] std::string FromUtf8(std::string_view utf8);

} // namespace Ansi
