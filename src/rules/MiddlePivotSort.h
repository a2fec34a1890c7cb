#pragma once

// A quicksort whose order of equal elements is part of the program's results: it takes the middle
// element as its pivot and swaps from both ends. The result is always that of the plain algorithm, but
// neither its time nor its stack depends on how lucky the pivots are.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>
#include <numeric>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

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

// Finds it in a tree that knows the smallest and the greatest element of every stretch, in logarithmic
// time. A pass that splits off few elements also swaps few, so that all passes together take
// n log^2 n steps, whatever the pivots are. The steps look at ranks, which are found beforehand by a sort
// of another kind: comparing two elements may take as long as they are.
template <typename Element, typename Less>
class TreeScan {
public:
    using Pivot = std::ptrdiff_t; // a rank

    TreeScan(std::span<Element> elements, const Less& less)
        : m_elements(elements), m_leaves(std::bit_ceil(elements.size())), m_stretches(2 * m_leaves) {
        std::vector<std::size_t> order(elements.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        const auto precedes = [&](std::size_t a, std::size_t b) { return less(elements[a], elements[b]); };
        std::stable_sort(order.begin(), order.end(), precedes);
        std::ptrdiff_t rank = 0;
        for (std::size_t i = 0; i < order.size(); ++i) {
            rank += i > 0 && precedes(order[i - 1], order[i]) ? 1 : 0;
            m_stretches[m_leaves + order[i]] = {rank, rank};
        }
        for (std::size_t node = m_leaves - 1; node >= 1; --node) {
            Update(node);
        }
    }

    [[nodiscard]] Pivot PivotAt(std::ptrdiff_t i) const { return LeafOf(i).smallest; }

    [[nodiscard]] std::ptrdiff_t Up(std::ptrdiff_t i, std::ptrdiff_t high, Pivot pivot) const {
        const auto stops = [&](std::size_t node) { return m_stretches[node].greatest >= pivot; };
        std::size_t node = m_leaves + static_cast<std::size_t>(i);
        while (!stops(node)) {
            while (node % 2 == 1) { // a right child: go on beside the parent
                node /= 2;
                if (node <= 1) {
                    return high;
                }
            }
            ++node;
        }
        while (node < m_leaves) {
            node = stops(2 * node) ? 2 * node : 2 * node + 1;
        }
        return std::min(static_cast<std::ptrdiff_t>(node - m_leaves), high);
    }

    [[nodiscard]] std::ptrdiff_t Down(std::ptrdiff_t j, std::ptrdiff_t low, Pivot pivot) const {
        const auto stops = [&](std::size_t node) { return m_stretches[node].smallest <= pivot; };
        std::size_t node = m_leaves + static_cast<std::size_t>(j);
        while (!stops(node)) {
            while (node % 2 == 0) { // a left child: go on beside the parent
                node /= 2;
                if (node <= 1) {
                    return low;
                }
            }
            if (node == 1) {
                return low;
            }
            --node;
        }
        while (node < m_leaves) {
            node = stops(2 * node + 1) ? 2 * node + 1 : 2 * node;
        }
        return std::max(static_cast<std::ptrdiff_t>(node - m_leaves), low);
    }

    void Swap(std::ptrdiff_t i, std::ptrdiff_t j) {
        std::swap(m_elements[static_cast<std::size_t>(i)], m_elements[static_cast<std::size_t>(j)]);
        std::swap(LeafOf(i), LeafOf(j));
        for (const std::ptrdiff_t place : {i, j}) {
            for (std::size_t node = (m_leaves + static_cast<std::size_t>(place)) / 2; node >= 1; node /= 2) {
                Update(node);
            }
        }
    }

private:
    // The ranks of the elements below a node; without elements, no rank is between them.
    struct Stretch {
        std::ptrdiff_t smallest = std::numeric_limits<std::ptrdiff_t>::max();
        std::ptrdiff_t greatest = -1;
    };

    [[nodiscard]] Stretch& LeafOf(std::ptrdiff_t i) { return m_stretches[m_leaves + static_cast<std::size_t>(i)]; }
    [[nodiscard]] const Stretch& LeafOf(std::ptrdiff_t i) const {
        return m_stretches[m_leaves + static_cast<std::size_t>(i)];
    }

    void Update(std::size_t node) {
        const Stretch& left = m_stretches[2 * node];
        const Stretch& right = m_stretches[2 * node + 1];
        m_stretches[node] = {std::min(left.smallest, right.smallest), std::max(left.greatest, right.greatest)};
    }

    std::span<Element> m_elements;
    std::size_t m_leaves;
    std::vector<Stretch> m_stretches; // node 1 is the whole, the children of n are 2n and 2n + 1
};

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
