#pragma once

// Text of one byte per character, in Windows-1252: the only kind of text the core knows. Every
// text is kept as the bytes that were read; nothing here decodes a text to look at it, so positions
// and lengths are bytes. Conversion to Unicode is for the windows and for file names.

#include "core/AnsiCase.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Ansi {

// The text in capital or in small letters.
[[nodiscard]] std::string Upper(std::string_view text);
[[nodiscard]] std::string Lower(std::string_view text);

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

// The Unicode code point of a byte. The code page leaves five bytes open: 81, 8D, 8F, 90 and 9D hexadecimal.
// They stand for the control characters of the same number, so that no byte is lost. Table: Unicode Consortium,
// MAPPINGS/VENDORS/MICSFT/WindowsBestFit/bestfit1252.txt.
[[nodiscard]] char16_t ToUnicode(char c);

// The byte of a code point; "?" for one that the code page lacks.
[[nodiscard]] char FromUnicode(char32_t codePoint);

// Takes the first character off a UTF-8 text that is not empty. Nothing is returned for one that the
// code page lacks or for bytes that are no UTF-8, of which as many are taken as belong together.
std::optional<char> TakeCharacter(std::string_view& utf8);

// Appends a character as UTF-8.
void AppendUtf8(std::string& utf8, char c);

// A UTF-8 text (a file name of the machine, say) as code page text; bytes that are no UTF-8
// become "?".
[[nodiscard]] std::string FromUtf8(std::string_view utf8);

} // namespace Ansi
