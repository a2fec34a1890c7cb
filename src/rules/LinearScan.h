#pragma once

#include <cstddef>
#include <span>
#include <utility>

namespace MiddlePivotSort {

// Finds the next element that stops a scan. The plain way is to look at one after the other.
template <typename Element, typename Less>
class LinearScan {
public:
    using Pivot = Element;

    LinearScan(std::span<Element> elements, const Less& less) : m_elements(elements), m_less(less) {}

    [[nodiscard]] Pivot PivotAt(std::ptrdiff_t i) const { return At(i); }

    // The first place from `i` on, at most `high`, whose element is not less than the pivot.
    [[nodiscard]] std::ptrdiff_t Up(std::ptrdiff_t i, std::ptrdiff_t high, const Pivot& pivot) const {
        while (m_less(At(i), pivot) && i != high) {
            ++i;
        }
        return i;
    }
    // The first place from `j` down, at least `low`, whose element the pivot is not less than.
    [[nodiscard]] std::ptrdiff_t Down(std::ptrdiff_t j, std::ptrdiff_t low, const Pivot& pivot) const {
        while (m_less(pivot, At(j)) && j != low) {
            --j;
        }
        return j;
    }
    void Swap(std::ptrdiff_t i, std::ptrdiff_t j) { std::swap(At(i), At(j)); }

private:
    [[nodiscard]] Element& At(std::ptrdiff_t i) const { return m_elements[static_cast<std::size_t>(i)]; }

    std::span<Element> m_elements;
    const Less& m_less;
};

} // namespace MiddlePivotSort
