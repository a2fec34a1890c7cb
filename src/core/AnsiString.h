#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iosfwd>
#include <string>
#include <string_view>

namespace Ansi {

// A text that owns its bytes, for the millions of short texts of a table. Of its 24 bytes up to 23 hold
// characters in place, so that most names need no memory of their own. A longer text has a block of exactly its
// length. Reads as a std::string_view, which it invalidates whenever it is assigned to.
class String {
public:
    String() = default;
    String(std::string_view text) { Assign(text); }
    String(const char* text) : String(std::string_view(text)) {}
    String(const String& other) : String(other.View()) {}
    String(String&& other) noexcept : m_bytes(other.m_bytes) { other.m_bytes = {}; }
    ~String() { Release(); }

    String& operator=(std::string_view text);
    String& operator=(const char* text) { return *this = std::string_view(text); }
    String& operator=(const String& other) { return *this = other.View(); }
    String& operator=(String&& other) noexcept;

    operator std::string_view() const { return View(); }
    operator std::string() const { return std::string(View()); }
    [[nodiscard]] std::string_view View() const { return {IsLong() ? Block() : m_bytes.data(), size()}; }
    [[nodiscard]] std::size_t size() const { return IsLong() ? LongSize() : static_cast<std::size_t>(m_bytes[Tag]); }
    [[nodiscard]] bool empty() const { return size() == 0; }

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
    // The last byte is the length of a text in place. For a long one it is LongTag, and the first bytes are the
    // address of its block and its length.
    static constexpr std::size_t Capacity = 23;
    static constexpr std::size_t Tag = Capacity;
    static constexpr std::size_t SizeAt = sizeof(char*);
    static constexpr char LongTag = 127;

    [[nodiscard]] bool IsLong() const { return m_bytes[Tag] == LongTag; }
    [[nodiscard]] std::size_t LongSize() const { return Load<std::size_t>(SizeAt); }
    [[nodiscard]] char* Block() const { return Load<char*>(0); }

    template <typename T>
    [[nodiscard]] T Load(std::size_t at) const {
        T value;
        std::memcpy(&value, m_bytes.data() + at, sizeof value);
        return value;
    }
    template <typename T>
    void Store(std::size_t at, T value) {
        std::memcpy(m_bytes.data() + at, &value, sizeof value);
    }

    void Assign(std::string_view text); // to a text that owns no block
    void Release() {
        if (IsLong()) {
            delete[] Block();
        }
    }

    alignas(char*) std::array<char, Capacity + 1> m_bytes{};
};

// As the tests' messages show it.
std::ostream& operator<<(std::ostream& out, const String& text);

} // namespace Ansi
