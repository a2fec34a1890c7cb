#include "core/Wording.h"

#include "core/Ansi.h"
#include "core/Encoding.h"
#include "core/State.h"
#include "core/Utf8.h"

namespace CommonRoutines {

void Wording::Append(std::string text, bool isPath) {
    if (!m_parts.empty() && m_parts.back().isPath == isPath) {
        m_parts.back().text += text;
    } else if (!text.empty()) {
        m_parts.push_back({std::move(text), isPath});
    }
}

Wording Wording::OfPath(std::string path) {
    Wording wording;
    wording.Append(std::move(path), true);
    return wording;
}

Wording operator+(Wording a, const Wording& b) {
    for (const Wording::Part& part : b.m_parts) {
        a.Append(part.text, part.isPath);
    }
    return a;
}

std::string Wording::Utf8() const {
    std::string utf8;
    for (const Part& part : m_parts) {
        utf8 += part.isPath ? part.text : Recoded(part.text, eFileEncoding, Encoding::Utf8);
    }
    return utf8;
}

std::string Wording::AsText() const {
    std::string text;
    for (const Part& part : m_parts) {
        text += !part.isPath ? part.text : TextsAreUtf8() ? Utf8::Cleaned(part.text) : Ansi::FromUtf8(part.text);
    }
    return text;
}

} // namespace CommonRoutines
