#include "rules/Duplicates.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

using namespace CommonRoutines;

namespace {

using Keys = std::vector<VariationKey>;
using Order = std::vector<std::int32_t>;

// Keys in this order behind the unused element, each with its place as its index.
Keys KeysOf(const std::vector<std::string>& texts) {
    Keys keys(1);
    for (const std::string& text : texts) {
        VariationKey key;
        key.Key = text;
        key.lIndex = static_cast<std::int32_t>(std::ssize(keys));
        keys.push_back(key);
    }
    return keys;
}

std::int32_t Last(const Keys& keys) {
    return static_cast<std::int32_t>(std::ssize(keys)) - 1;
}

Order OrderOf(const Keys& keys) {
    Order order;
    for (const VariationKey& key : keys) {
        order.push_back(key.lIndex);
    }
    return order;
}

// The same sort with both parts sorted by recursion, the lower one first.
void SlowSort(Keys& a, std::int32_t lo, std::int32_t hi) {
    if (hi <= lo) {
        return;
    }
    const auto at = [&](std::int32_t index) -> VariationKey& { return a[static_cast<std::size_t>(index)]; };
    const VariationKey pivot = at((lo + hi) / 2);
    std::int32_t i = lo;
    std::int32_t j = hi;
    while (i <= j) {
        while (at(i).Key < pivot.Key && i != hi) {
            i += 1;
        }
        while (pivot.Key < at(j).Key && j != lo) {
            j -= 1;
        }
        if (i > j) {
            break;
        }
        const VariationKey held = at(i);
        at(i) = at(j);
        at(j) = held;
        i += 1;
        j -= 1;
    }
    if (lo < j) {
        SlowSort(a, lo, j);
        if (i < hi) {
            SlowSort(a, i, hi);
        }
    } else if (i < hi) {
        SlowSort(a, i, hi);
    }
}

void ExpectTheSameOrder(const Keys& keys) {
    Keys expected = keys;
    SlowSort(expected, 1, Last(expected));
    Keys sorted = keys;
    SortVariationKeys(sorted, 1, Last(sorted));
    ASSERT_EQ(OrderOf(sorted), OrderOf(expected));
    ASSERT_TRUE(std::is_sorted(sorted.begin() + 1, sorted.end(),
                               [](const VariationKey& a, const VariationKey& b) { return a.Key < b.Key; }));
}

std::string Numbered(std::size_t number) {
    std::string text = std::to_string(number);
    return std::string(6 - text.size(), '0') + text;
}

TEST(SortVariationKeys, RandomKeysWithManyEqualOnesComeInTheOrderOfTheQuicksort) {
    std::mt19937 random(17);
    for (int round = 0; round < 2'000; ++round) {
        const auto distinct = 1 + random() % (round % 3 == 0 ? 3 : 60);
        std::vector<std::string> texts(random() % 301);
        for (std::string& text : texts) {
            text = Numbered(random() % distinct);
        }
        ASSERT_NO_FATAL_FAILURE(ExpectTheSameOrder(KeysOf(texts))) << round;
    }
}

TEST(SortVariationKeys, SoDoKeysInRegularPatterns) {
    for (std::size_t size = 0; size <= 130; ++size) {
        for (const std::size_t step : {1U, 2U, 7U}) {
            std::vector<std::string> ascending;
            std::vector<std::string> organPipe;
            std::vector<std::string> sawTooth;
            for (std::size_t i = 0; i < size; ++i) {
                ascending.push_back(Numbered(i / step));
                organPipe.push_back(Numbered(std::min(i, size - 1 - i) / step));
                sawTooth.push_back(Numbered(i % (step + 1)));
            }
            const std::vector<std::string> descending(ascending.rbegin(), ascending.rend());
            for (const auto& texts : {ascending, descending, organPipe, sawTooth}) {
                ASSERT_NO_FATAL_FAILURE(ExpectTheSameOrder(KeysOf(texts))) << size << ' ' << step;
            }
        }
    }
}

TEST(SortVariationKeys, EqualKeysChangePlaces) {
    Keys two = KeysOf({"a", "a"});
    SortVariationKeys(two, 1, 2);
    EXPECT_EQ(OrderOf(two), (Order{0, 2, 1}));
    Keys three = KeysOf({"a", "a", "a"});
    SortVariationKeys(three, 1, 3);
    EXPECT_EQ(OrderOf(three), (Order{0, 3, 2, 1}));
}

TEST(SortVariationKeys, KeysAreComparedByCharacterCode) {
    Keys keys = KeysOf({"\xE9", "b", "B", "a", "", "~", "aa", "\x80", "a b", "a\t"});
    SortVariationKeys(keys, 1, Last(keys));
    std::vector<std::string> sorted;
    for (const VariationKey& key : keys) {
        sorted.push_back(key.Key);
    }
    EXPECT_EQ(sorted, (std::vector<std::string>{"", "", "B", "a", "a\t", "a b", "aa", "b", "~", "\x80", "\xE9"}));
}

TEST(SortVariationKeys, OnlyTheRangeIsSorted) {
    Keys keys = KeysOf({"z", "d", "c", "b", "a"});
    SortVariationKeys(keys, 2, 4);
    EXPECT_EQ(OrderOf(keys), (Order{0, 1, 4, 3, 2, 5}));
}

TEST(SortVariationKeys, ARangeOfOneOrNoneIsLeftAsItIs) {
    Keys keys = KeysOf({"b", "a"});
    SortVariationKeys(keys, 1, 1);
    SortVariationKeys(keys, 2, 1);
    SortVariationKeys(keys, 1, 0);
    EXPECT_EQ(OrderOf(keys), (Order{0, 1, 2}));
}

TEST(SortVariationKeys, RecordsMoveAsAWhole) {
    Keys keys(3);
    keys[1] = {"text of b", "b", "Smithton", 4, 7, true};
    keys[2] = {"text of a", "a", "Other", 5, 8, false};
    SortVariationKeys(keys, 1, 2);
    EXPECT_EQ(keys[1].Text + keys[1].DistrictName, "text of aOther");
    EXPECT_EQ(keys[1].lIndex * 10 + keys[1].lDistrict, 58);
    EXPECT_FALSE(keys[1].bIsName);
    EXPECT_EQ(keys[2].Text + keys[2].DistrictName, "text of bSmithton");
    EXPECT_EQ(keys[2].lIndex * 10 + keys[2].lDistrict, 47);
    EXPECT_TRUE(keys[2].bIsName);
}

// Keys in which the middle of every part is the smallest (or the greatest) of it, so that each pass
// of a quicksort splits off a single key. Found by playing the sort with the places of the keys.
Keys UnluckyKeys(std::size_t size, bool middleIsSmallest) {
    std::vector<std::size_t> places(size);
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::vector<std::string> texts(size);
    std::size_t low = 1;
    std::size_t high = size;
    while (low <= high) {
        const std::size_t middle = (low + high) / 2;
        const std::size_t end = middleIsSmallest ? low++ : high--;
        texts[places[middle - 1]] = Numbered(end);
        std::swap(places[middle - 1], places[end - 1]);
    }
    return KeysOf(texts);
}

// Sorts on a thread whose stack holds far fewer calls than there are keys.
void SortOnASmallStack(Keys& keys) {
    constexpr std::size_t stackSize = 128UL * 1024;
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, stackSize), 0);
    const auto sort = [](void* argument) -> void* {
        Keys& all = *static_cast<Keys*>(argument);
        SortVariationKeys(all, 1, Last(all));
        return nullptr;
    };
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, sort, &keys), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

TEST(SortVariationKeys, UnluckyPivotsDoNotFillTheStack) {
    for (const bool middleIsSmallest : {true, false}) {
        Keys keys = UnluckyKeys(2'000, middleIsSmallest);
        SortOnASmallStack(keys);
        for (std::int32_t i = 1; i <= Last(keys); ++i) {
            ASSERT_EQ(keys[static_cast<std::size_t>(i)].Key, Numbered(static_cast<std::size_t>(i)));
        }
    }
}

} // namespace
