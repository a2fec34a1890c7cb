#include "core/AnsiString.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace Ansi {

String& String::operator=(std::string_view text) {
    String copy(text); // first, since the text may be a part of this one
    return *this = std::move(copy);
}

String& String::operator=(String&& other) noexcept {
    if (this != &other) {
        Release();
        m_bytes = other.m_bytes;
        other.m_bytes = {};
    }
    return *this;
}

void String::Assign(std::string_view text) {
    if (text.size() <= Capacity) {
        std::copy(text.begin(), text.end(), m_bytes.begin());
        m_bytes[Tag] = static_cast<char>(text.size());
        return;
    }
    char* block = new char[text.size()];
    std::copy(text.begin(), text.end(), block);
    Store(0, block);
    Store(SizeAt, text.size());
    m_bytes[Tag] = LongTag;
}

std::ostream& operator<<(std::ostream& out, const String& text) {
    return out << text.View();
}

} // namespace Ansi
