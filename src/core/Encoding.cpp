#include "core/Encoding.h"

#include "core/Ansi.h"

#include <algorithm>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

// Whether the text is UTF-8 and all of its characters exist in Windows-1252.
bool IsConvertible(std::string_view utf8) {
    while (!utf8.empty()) {
        if (IsAscii(utf8.front())) {
            utf8.remove_prefix(1);
        } else if (!Ansi::TakeCharacter(utf8)) {
            return false;
        }
    }
    return true;
}

} // namespace

Encoding EncodingOf(std::string_view bytes) {
    if (bytes.starts_with(ByteOrderMark)) {
        return IsConvertible(bytes.substr(ByteOrderMark.size())) ? Encoding::Utf8WithMark : Encoding::Windows1252;
    }
    const bool plain = std::all_of(bytes.begin(), bytes.end(), IsAscii);
    return !plain && IsConvertible(bytes) ? Encoding::Utf8 : Encoding::Windows1252;
}

std::string Decoded(std::string bytes, Encoding encoding) {
    if (encoding == Encoding::Windows1252) {
        return bytes;
    }
    std::string_view rest = bytes;
    rest.remove_prefix(encoding == Encoding::Utf8WithMark ? ByteOrderMark.size() : 0);
    std::string text;
    text.reserve(rest.size());
    while (!rest.empty()) {
        text += Ansi::TakeCharacter(rest).value_or('?');
    }
    return text;
}

std::string Encoded(std::string text, Encoding encoding) {
    if (encoding == Encoding::Windows1252) {
        return text;
    }
    std::string bytes(encoding == Encoding::Utf8WithMark ? ByteOrderMark : std::string_view());
    bytes.reserve(text.size() + text.size() / 16);
    for (const char c : text) {
        Ansi::AppendUtf8(bytes, c);
    }
    return bytes;
}

} // namespace CommonRoutines
