#pragma once

// How a data file writes its characters. The table always holds Windows-1252, one byte a character; a
// file in UTF-8 whose characters all exist there is converted on its way in and back on its way out.

#include <string>
#include <string_view>

namespace CommonRoutines {

enum class Encoding {
    Windows1252,
    Utf8,
    Utf8WithMark, // with a byte order mark in front
};

// What a file's bytes are. UTF-8 with a character that Windows-1252 lacks is not taken for UTF-8: its
// bytes stay as they are, so that they can be written back.
[[nodiscard]] Encoding EncodingOf(std::string_view bytes);

// The bytes of a file as Windows-1252, and back. Nothing is lost on the way there and back again.
[[nodiscard]] std::string Decoded(std::string bytes, Encoding encoding);
[[nodiscard]] std::string Encoded(std::string text, Encoding encoding);

} // namespace CommonRoutines
