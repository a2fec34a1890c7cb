#pragma once

#include <array>
#include <charconv>
#include <cstdint>
#include <string>

namespace CommonRoutines {

inline constexpr std::size_t HexLength = 16;

// A number as so many hexadecimal digits.
[[nodiscard]] inline std::string Hex(std::uint64_t number) {
    constexpr int base = 16;
    std::array<char, HexLength> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base).ptr;
    const auto length = static_cast<std::size_t>(end - digits.data());
    return std::string(HexLength - length, '0').append(digits.data(), length);
}

} // namespace CommonRoutines
