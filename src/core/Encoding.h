#pragma once

// How a file writes its characters. A text in memory is what its file holds, byte for byte, so that nothing is lost
// on the way there and back; only a byte order mark in front is no part of it.

#include <string>
#include <string_view>

namespace CommonRoutines {

enum class Encoding {
    Windows1252, // one byte a character; ASCII counts as this
    Utf8,
    Utf8WithMark, // with a byte order mark in front
};

// What a file's bytes are taken for: UTF-8 where all of it is, and something in it is not ASCII.
[[nodiscard]] Encoding EncodingOf(std::string_view bytes);

// The bytes of a file as a text, and back.
[[nodiscard]] std::string Decoded(std::string bytes, Encoding encoding);
[[nodiscard]] std::string Encoded(std::string text, Encoding encoding);

// The characters of a text in another encoding. What Windows-1252 lacks becomes "?".
[[nodiscard]] std::string Recoded(std::string text, Encoding from, Encoding to);

} // namespace CommonRoutines
