#pragma once

#include "core/PackedPointer.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace Ansi {

// A text of a table, in 12 bytes, since there are millions of them. It has a block of its own, of exactly its length;
// or it is a part of a content that stays where it is, which costs neither time nor memory. A copy always has a block
// of its own. Reads as a std::string_view, which it invalidates whenever it is assigned to. A text of more than
// MostBytes finds no memory.
class String {
public:
    static constexpr std::size_t MostBytes = 0x7FFFFFFF;

    String() = default;
    String(std::string_view text);
    String(const char* text) : String(std::string_view(text)) {}
    String(const String& other) : String(other.View()) {}
    String(String&& other) noexcept : m_address(other.m_address), m_size(other.m_size) { other.Forget(); }
    ~String() { Release(); }

    // A part of a content that outlives the text and everything that it is moved to.
    [[nodiscard]] static String PartOf(std::string_view content);
    // The same text, also as a part of the same content.
    [[nodiscard]] String Shared() const { return IsPart() ? PartOf(View()) : *this; }

    String& operator=(std::string_view text) { return *this = String(text); } // which may be a part of this one
    String& operator=(const char* text) { return *this = String(text); }
    String& operator=(const String& other) { return *this = String(other); }
    String& operator=(String&& other) noexcept;

    operator std::string_view() const { return View(); }
    operator std::string() const { return std::string(View()); }
    [[nodiscard]] std::string_view View() const { return {m_address, size()}; }
    [[nodiscard]] std::size_t size() const { return m_size & MostBytes; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] bool IsPart() const { return (m_size & OwnBlock) == 0; }
    [[nodiscard]] bool IsPartOf(std::string_view content) const;

    friend bool operator==(const String& a, std::string_view b) { return a.View() == b; }
    friend bool operator==(const String& a, const String& b) { return a.View() == b.View(); }
    friend bool operator==(const String& a, const char* b) { return a.View() == b; }
    // What a text is put together with becomes an ordinary string.
    template <std::convertible_to<std::string_view> Other>
    friend std::string operator+(const String& a, const Other& b) {
        return std::string(a.View()).append(std::string_view(b));
    }
    template <std::convertible_to<std::string_view> Other>
    requires(!std::same_as<Other, String>) friend std::string operator+(const Other& a, const String& b) {
        return std::string(std::string_view(a)).append(b.View());
    }

private:
    static constexpr std::uint32_t OwnBlock = 0x80000000; // set in m_size

    String(const char* address, std::uint32_t size) : m_address(address), m_size(size) {}
    void Forget() {
        m_address = nullptr;
        m_size = 0;
    }
    void Release() {
        if (!IsPart()) {
            delete[] m_address;
        }
    }

    PackedPointer<const char> m_address; // of the first byte
    std::uint32_t m_size = 0;
};
static_assert(sizeof(String) == 12);

// As the tests' messages show it.
std::ostream& operator<<(std::ostream& out, const String& text);

} // namespace Ansi
