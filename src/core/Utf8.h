#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Texts in UTF-8, of which nobody has said yet that they are. Only what the standard allows is UTF-8: no
// sequence longer than needed, no surrogate, nothing beyond the last code point.
namespace Utf8 {

// What TakeCodePoint gives for bytes that are no character.
inline constexpr char32_t NotACharacter = 0xFFFFFFFF;

[[nodiscard]] constexpr bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}
// Whether a byte goes on with a character that an earlier one has begun.
[[nodiscard]] constexpr bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

[[nodiscard]] bool IsAscii(std::string_view text);
[[nodiscard]] bool IsValid(std::string_view text);

// How many characters a text has, all of which is UTF-8.
[[nodiscard]] std::size_t CharacterCount(std::string_view text);

// The first characters of a text, all of it where it has no more.
[[nodiscard]] std::string_view FirstCharacters(std::string_view text, std::size_t count);

// Takes the first character off a text that is not empty. Of bytes that are none, as many are taken as
// belong together: one that starts no sequence alone, a sequence that breaks off as far as it goes.
char32_t TakeCodePoint(std::string_view& text);

void Append(std::string& text, char32_t codePoint);

// The text with a "?" for what is no character.
[[nodiscard]] std::string Cleaned(std::string_view text);

} // namespace Utf8
