// Takes any bytes for a file: what is taken for UTF-8 must be so by another check, and every way there and back
// must end with the same bytes.

#include "Invariant.h"

#include "core/Ansi.h"
#include "core/Encoding.h"
#include "core/State.h"
#include "core/UpperCase.h"
#include "core/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

using namespace CommonRoutines;

namespace {

// The well-formed sequences as the standard lists them, a row of its table for each case.
bool IsWellFormed(std::string_view text) {
    const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    const auto isIn = [&](std::size_t i, unsigned low, unsigned high) { return byte(i) >= low && byte(i) <= high; };
    const auto isTail = [&](std::size_t i) { return isIn(i, 0x80, 0xBF); };
    while (!text.empty()) {
        std::size_t length = 0;
        if (isIn(0, 0x00, 0x7F)) {
            length = 1;
        } else if (isIn(0, 0xC2, 0xDF) && isTail(1)) {
            length = 2;
        } else if (isTail(2) && ((byte(0) == 0xE0 && isIn(1, 0xA0, 0xBF)) || (isIn(0, 0xE1, 0xEC) && isTail(1)) ||
                                 (byte(0) == 0xED && isIn(1, 0x80, 0x9F)) || (isIn(0, 0xEE, 0xEF) && isTail(1)))) {
            length = 3;
        } else if (isTail(2) && isTail(3) &&
                   ((byte(0) == 0xF0 && isIn(1, 0x90, 0xBF)) || (isIn(0, 0xF1, 0xF3) && isTail(1)) ||
                    (byte(0) == 0xF4 && isIn(1, 0x80, 0x8F)))) {
            length = 4;
        }
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

void CheckEncoding(const std::string& bytes) {
    const Encoding encoding = EncodingOf(bytes);
    const bool isUtf8 = encoding != Encoding::Windows1252;
    Demand(Utf8::IsValid(bytes) == IsWellFormed(bytes) && (!isUtf8 || IsWellFormed(bytes)));
    const std::string text = Decoded(bytes, encoding);
    Demand(Encoded(text, encoding) == bytes);
    const std::string asUtf8 = Recoded(bytes, Encoding::Windows1252, Encoding::Utf8);
    Demand(IsWellFormed(asUtf8) && Recoded(asUtf8, Encoding::Utf8, Encoding::Windows1252) == bytes);
    eFileEncoding = encoding;
}

// Of a text of the file as it is taken for.
void CheckCases(const std::string& text) {
    const std::string upper = Ansi::Upper(text);
    const std::string lower = Ansi::Lower(text);
    if (TextsAreUtf8()) {
        Demand(IsWellFormed(upper) && IsWellFormed(lower));
    }
    const std::size_t count = Ansi::CharacterCount(text);
    Demand(Ansi::CharacterCount(upper) == count && Ansi::CharacterCount(lower) == count);
    Demand(Ansi::Upper(upper) == upper && Ansi::Upper(lower) == upper && Ansi::Lower(upper) == lower);
    Demand(Ansi::EqualIgnoringCase(upper, lower) && Ansi::HashUpper(upper) == Ansi::HashUpper(lower));
    Demand(Ansi::UpperPrefix(upper) == Ansi::UpperPrefix(lower));
}

void CheckCuts(std::string_view text, std::size_t at) {
    const std::string_view first = Ansi::FirstCharacters(text, at);
    const std::string_view beginning = Ansi::Beginning(text, at);
    Demand(text.starts_with(first) && text.starts_with(beginning) && beginning.size() >= std::min(at, text.size()));
    Demand(Ansi::CharacterCount(first) == std::min(at, Ansi::CharacterCount(text)));
    Demand(!TextsAreUtf8() || (IsWellFormed(first) && IsWellFormed(beginning)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    ResetState();
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    CheckEncoding(bytes);
    const std::string text = Decoded(bytes, eFileEncoding);
    CheckCases(text);
    for (const std::size_t at : {std::size_t{0}, std::size_t{1}, size / 3, size / 2, size}) {
        CheckCuts(text, at);
    }
    // Bytes of any kind in a file that is UTF-8 do no harm either.
    eFileEncoding = Encoding::Utf8;
    Demand(IsWellFormed(Ansi::Upper(bytes)) && Ansi::EqualIgnoringCase(bytes, Ansi::Upper(bytes)));
    Demand(IsWellFormed(Utf8::Cleaned(bytes)));
    return 0;
}
