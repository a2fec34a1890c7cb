#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

namespace MiddlePivotSort {

// Finds the next element that stops a scan in a tree that knows the smallest and the greatest element of every stretch,
// in logarithmic time. A pass that splits off few elements also swaps few, so that all passes together take n log^2 n
// steps, whatever the pivots are. The steps look at ranks, which are found beforehand by a sort of another kind:
// comparing two elements may take as long as they are.
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

} // namespace MiddlePivotSort
