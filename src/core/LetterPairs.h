#pragma once

#include <string>
#include <string_view>

// The two cases of the letters of Unicode. Only pairs count of which each letter is the other's single
// counterpart: no text changes its number of characters, and going there and back changes nothing. So the
// sharp s, the dotless i and the micro sign are their own, and no letter beyond ASCII has one in it.
namespace LetterPairs {

// The capital or small form of a character; its own where it has no counterpart.
[[nodiscard]] char32_t Upper(char32_t codePoint);
[[nodiscard]] char32_t Lower(char32_t codePoint);

// The same of a text in UTF-8, character by character; bytes that are none become U+FFFD.
[[nodiscard]] std::string Upper(std::string_view utf8);
[[nodiscard]] std::string Lower(std::string_view utf8);

// The capital form of the first character of a text that is not empty; it is taken off.
char32_t TakeUpper(std::string_view& utf8);

} // namespace LetterPairs
