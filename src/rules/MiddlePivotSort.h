#pragma once

// A quicksort whose order of equal elements is part of the program's results: it takes the middle
// element as its pivot and swaps from both ends. The result is always that of the plain algorithm, but
// neither its time nor its stack depends on how lucky the pivots are.

#include "rules/LinearScan.h"
#include "rules/TreeScan.h"

#include <bit>
#include <cstddef>
#include <span>
#include <type_traits>

namespace MiddlePivotSort {

// Sorts elements[low..high]. `placed` is told of every element, in numbers, that has got its final place.
template <template <typename, typename> typename Scan, typename Element, typename Less, typename Placed>
void SortRange(Scan<Element, Less>& scan, std::span<Element> elements, std::ptrdiff_t low, std::ptrdiff_t high,
               const Less& less, int passesLeft, const Placed& placed) {
    while (low < high) {
        if (std::is_same_v<Scan<Element, Less>, LinearScan<Element, Less>> && passesLeft-- == 0) {
            const auto rest = elements.subspan(static_cast<std::size_t>(low), static_cast<std::size_t>(high - low) + 1);
            TreeScan<Element, Less> tree(rest, less);
            SortRange(tree, rest, 0, high - low, less, 0, placed);
            return;
        }
        const auto pivot = scan.PivotAt((low + high) / 2);
        std::ptrdiff_t i = low;
        std::ptrdiff_t j = high;
        while (i <= j) {
            i = scan.Up(i, high, pivot);
            j = scan.Down(j, low, pivot);
            if (i > j) {
                break;
            }
            scan.Swap(i, j);
            ++i;
            --j;
        }
        placed(static_cast<std::size_t>(i - j - 1));
        // The two parts do not touch each other, so the smaller one may go first: the stack then never
        // grows deeper than the logarithm of the length.
        if (j - low < high - i) {
            SortRange(scan, elements, low, j, less, passesLeft, placed);
            low = i;
        } else {
            SortRange(scan, elements, i, high, less, passesLeft, placed);
            high = j;
        }
    }
    placed(static_cast<std::size_t>(high - low + 1));
}

// Sorts all elements, telling `placed` how many more have got their places.
template <typename Element, typename Less, typename Placed>
void Sort(std::span<Element> elements, const Less& less, const Placed& placed) {
    // Random elements need about twice as many passes, one within the other, as halving would.
    const int passes = 4 * static_cast<int>(std::bit_width(elements.size()));
    LinearScan<Element, Less> scan(elements, less);
    SortRange(scan, elements, 0, std::ssize(elements) - 1, less, passes, placed);
}

template <typename Element, typename Less>
void Sort(std::span<Element> elements, const Less& less) {
    Sort(elements, less, [](std::size_t) {});
}

} // namespace MiddlePivotSort
