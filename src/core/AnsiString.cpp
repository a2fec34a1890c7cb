#include "core/AnsiString.h"

#include <algorithm>
#include <functional>
#include <new>
#include <ostream>

namespace Ansi {

namespace {

std::uint32_t SizeOf(std::string_view text) {
    if (text.size() > String::MostBytes) {
        throw std::bad_alloc();
    }
    return static_cast<std::uint32_t>(text.size());
}

} // namespace

String::String(std::string_view text) {
    if (!text.empty()) {
        const std::uint32_t size = SizeOf(text) | OwnBlock;
        char* block = new char[text.size()];
        std::copy(text.begin(), text.end(), block);
        m_address = block;
        m_size = size;
    }
}

bool String::IsPartOf(std::string_view content) const {
    const std::less<> precedes; // has an order also for places in different blocks, which "<" need not have
    const char* const begin = m_address;
    return IsPart() && !precedes(begin, content.data()) && !precedes(content.data() + content.size(), begin + size());
}

String String::PartOf(std::string_view content) {
    return {content.data(), SizeOf(content)};
}

String& String::operator=(String&& other) noexcept {
    if (this != &other) {
        Release();
        m_address = other.m_address;
        m_size = other.m_size;
        other.Forget();
    }
    return *this;
}

std::ostream& operator<<(std::ostream& out, const String& text) {
    return out << text.View();
}

} // namespace Ansi
