#pragma once

// Comparing, sorting and hashing texts by their upper-case forms without making the forms.

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace Ansi {

// The order of the upper-case forms of two texts, by character code.
[[nodiscard]] std::strong_ordering CompareUpper(std::string_view a, std::string_view b);

// A number that is the same for texts with the same upper-case form, and hardly ever for others.
[[nodiscard]] std::uint64_t HashUpper(std::string_view text);

// The beginning of the upper-case form of a text, so packed that comparing two of them takes a few
// instructions. Where two differ, their order is that of the forms. Where they are equal, so are the
// forms if they are whole; otherwise only CompareUpper of the texts can tell.
class UpperPrefix {
public:
    UpperPrefix() = default;
    explicit UpperPrefix(std::string_view text);

    // Whether the text ends within the prefix.
    [[nodiscard]] bool IsWhole() const { return (m_third & LengthMask) <= Length; }

    friend bool operator==(const UpperPrefix&, const UpperPrefix&) = default;
    friend std::strong_ordering operator<=>(const UpperPrefix&, const UpperPrefix&) = default;

    // The bytes of the forms at the first place where two different prefixes differ, NUL behind the end of a text.
    // Of texts that differ only in the NULs at their ends, it is two small numbers.
    struct Difference {
        char a;
        char b;
    };
    [[nodiscard]] static Difference FirstDifference(const UpperPrefix& a, const UpperPrefix& b);

private:
    // From the bytes of an upper-case form, which `change` makes of those of the text, eight at a time.
    template <typename Change>
    void Fill(std::string_view text, Change change);

    static constexpr std::size_t Length = 23;
    static constexpr std::uint64_t LengthMask = 0xFF;

    // Eight bytes each, the first one highest. The last byte is the length of the form, 24 for
    // any longer one, so that a text comes before those that go on with NUL.
    std::uint64_t m_first = 0;
    std::uint64_t m_second = 0;
    std::uint64_t m_third = 0;
};

// Sorts items by the upper-case forms of their texts, equal forms in the order in which they came.
template <typename Item>
class UpperCaseOrder {
public:
    void Reserve(std::size_t count) {
        m_items.reserve(count);
        m_keys.reserve(count);
    }
    // One more item. Its text is looked at here, and by Sorted only where it begins like another one.
    void Add(const Item& item, std::string_view text) {
        m_keys.push_back({UpperPrefix(text), static_cast<std::uint32_t>(m_items.size())});
        m_items.push_back(item);
    }
    // All items in their order; `textOf` has their texts.
    template <typename TextOf>
    [[nodiscard]] std::vector<Item> Sorted(TextOf textOf) && {
        std::sort(m_keys.begin(), m_keys.end(), [&](const Key& a, const Key& b) {
            auto order = a.text <=> b.text;
            if (order == 0 && !a.text.IsWhole()) {
                order = CompareUpper(textOf(m_items[a.place]), textOf(m_items[b.place]));
            }
            return order != 0 ? order < 0 : a.place < b.place;
        });
        std::vector<Item> sorted;
        sorted.reserve(m_items.size());
        for (const Key& key : m_keys) {
            sorted.push_back(m_items[key.place]);
        }
        return sorted;
    }

private:
    struct Key {
        UpperPrefix text;
        std::uint32_t place = 0; // in m_items
    };
    std::vector<Item> m_items;
    std::vector<Key> m_keys;
};

// The same for a list that is there already.
template <typename Item, typename TextOf>
void SortByUpperCase(std::vector<Item>& items, TextOf textOf) {
    UpperCaseOrder<Item> order;
    order.Reserve(items.size());
    for (const Item& item : items) {
        order.Add(item, textOf(item));
    }
    items = std::move(order).Sorted(textOf);
}

} // namespace Ansi
