#pragma once

#include "Words.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace BenchData {

// A share of a whole, in billionths: chances are drawn in whole numbers, because sums of fractions may
// be rounded differently by another machine.
class Share {
public:
    static constexpr std::uint32_t Whole = 1'000'000'000;

    constexpr Share() = default;
    // `fraction` lies between 0 and 1.
    explicit Share(double fraction) : m_billionths(static_cast<std::uint32_t>(std::llround(fraction * Whole))) {}
    static constexpr Share Percent(std::uint32_t percent) { return FromBillionths(percent * (Whole / 100)); }
    static constexpr Share FromBillionths(std::uint64_t billionths) {
        Share share;
        share.m_billionths = static_cast<std::uint32_t>(billionths < Whole ? billionths : Whole);
        return share;
    }

    [[nodiscard]] constexpr std::uint32_t Billionths() const { return m_billionths; }

private:
    std::uint32_t m_billionths = 0;
};

// Numbers that look random and are the same on every machine, which those of the standard library's
// distributions are not: the generator "splitmix64" of S. Vigna (in the public domain).
class Random {
public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    // A number below `count`.
    std::size_t Below(std::size_t count) { return static_cast<std::size_t>((Next() >> 32U) * count >> 32U); }

    // A number from `first` to `last`.
    int Between(int first, int last) {
        return first + static_cast<int>(Below(static_cast<std::size_t>(last - first + 1)));
    }

    // A place between nothing and the whole.
    std::uint32_t Billionths() { return static_cast<std::uint32_t>(Below(Share::Whole)); }

    bool Happens(Share share) { return Billionths() < share.Billionths(); }

    // True in `percent` of a hundred cases.
    bool Happens(std::uint32_t percent) { return Happens(Share::Percent(percent)); }

    std::string_view OneOf(Words::Table words) { return words[Below(words.size())]; }

    char OneOf(std::string_view letters) { return letters[Below(letters.size())]; }

private:
    std::uint64_t Next() {
        m_state += 0x9E3779B97F4A7C15;
        std::uint64_t z = m_state;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EB;
        return z ^ (z >> 31U);
    }

    std::uint64_t m_state;
};

} // namespace BenchData
