#include "core/Encoding.h"

#include "core/Ansi.h"
#include "core/Utf8.h"

namespace CommonRoutines {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

} // namespace

Encoding EncodingOf(std::string_view bytes) {
    if (Utf8::IsAscii(bytes) || !Utf8::IsValid(bytes)) {
        return Encoding::Windows1252;
    }
    return bytes.starts_with(ByteOrderMark) ? Encoding::Utf8WithMark : Encoding::Utf8;
}

std::string Decoded(std::string bytes, Encoding encoding) {
    if (encoding == Encoding::Utf8WithMark) {
        bytes.erase(0, ByteOrderMark.size());
    }
    return bytes;
}

std::string Encoded(std::string text, Encoding encoding) {
    if (encoding == Encoding::Utf8WithMark) {
        text.insert(0, ByteOrderMark);
    }
    return text;
}

std::string Recoded(std::string text, Encoding from, Encoding to) {
    const bool fromUtf8 = from != Encoding::Windows1252;
    const bool toUtf8 = to != Encoding::Windows1252;
    if (fromUtf8 == toUtf8 || Utf8::IsAscii(text)) {
        return text;
    }
    return toUtf8 ? Ansi::ToUtf8(text) : Ansi::FromUtf8(text);
}

} // namespace CommonRoutines
