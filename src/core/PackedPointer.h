#pragma once

#include <array>
#include <cstddef>
#include <cstring>

// A pointer as bytes, which may stand at any address: a record with one and a number of 32 bits takes 12 bytes, not 16.
template <typename T>
class PackedPointer {
public:
    PackedPointer(T* pointer = nullptr) { std::memcpy(m_bytes.data(), &pointer, Size); }
    operator T*() const {
        T* pointer = nullptr;
        std::memcpy(&pointer, m_bytes.data(), Size);
        return pointer;
    }

private:
    static constexpr std::size_t Size = sizeof(void*);
    std::array<char, Size> m_bytes{};
};
