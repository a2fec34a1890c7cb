#include "rules/MiddlePivotSort.h"

#include "rules/SlowMatching.h"
#include "support/Table.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <random>
#include <vector>

namespace {

// An element that is compared by its key alone; the place tells equal ones apart.
struct Element {
    std::size_t key = 0;
    std::size_t place = 0;

    bool operator==(const Element&) const = default;
};
using Elements = std::vector<Element>;

std::size_t Comparisons = 0;

struct ByKey {
    bool operator()(const Element& a, const Element& b) const {
        ++Comparisons;
        return a.key < b.key;
    }
};

Elements ElementsOf(const std::vector<std::size_t>& keys) {
    Elements elements;
    for (const std::size_t key : keys) {
        elements.push_back({key, elements.size()});
    }
    return elements;
}

void ExpectTheSameOrder(const Elements& elements) {
    Elements expected = elements;
    Slow::Sort(expected, 0, std::ssize(expected) - 1, ByKey());
    Elements sorted = elements;
    std::size_t inPlace = 0;
    const auto placed = [&](std::size_t count) { inPlace += count; };
    MiddlePivotSort::Sort(std::span(sorted), ByKey(), placed);
    ASSERT_TRUE(sorted == expected);
    ASSERT_EQ(inPlace, elements.size());
    // The scan for unlucky pivots from the beginning.
    Elements byTree = elements;
    if (!byTree.empty()) {
        const ByKey less;
        MiddlePivotSort::TreeScan<Element, ByKey> tree(byTree, less);
        MiddlePivotSort::SortRange(tree, std::span(byTree), 0, std::ssize(byTree) - 1, less, 0, placed);
    }
    ASSERT_TRUE(byTree == expected);
    ASSERT_EQ(inPlace, 2 * elements.size());
}

TEST(MiddlePivotSort, RandomKeysWithManyEqualOnesComeInTheOrderOfThePlainAlgorithm) {
    std::mt19937 random(17);
    for (int round = 0; round < 2'000; ++round) {
        const auto distinct = 1 + random() % (round % 3 == 0 ? 3 : 60);
        std::vector<std::size_t> keys(random() % 301);
        std::generate(keys.begin(), keys.end(), [&] { return random() % distinct; });
        ASSERT_NO_FATAL_FAILURE(ExpectTheSameOrder(ElementsOf(keys))) << round;
    }
}

TEST(MiddlePivotSort, SoDoKeysInRegularPatterns) {
    for (std::size_t size = 0; size <= 130; ++size) {
        for (const std::size_t step : {1U, 2U, 7U}) {
            std::vector<std::size_t> ascending;
            std::vector<std::size_t> organPipe;
            std::vector<std::size_t> sawTooth;
            for (std::size_t i = 0; i < size; ++i) {
                ascending.push_back(i / step);
                organPipe.push_back(std::min(i, size - 1 - i) / step);
                sawTooth.push_back(i % (step + 1));
            }
            const std::vector<std::size_t> descending(ascending.rbegin(), ascending.rend());
            for (const auto& keys : {ascending, descending, organPipe, sawTooth}) {
                ASSERT_NO_FATAL_FAILURE(ExpectTheSameOrder(ElementsOf(keys))) << size << ' ' << step;
            }
        }
    }
}

// Elements in which the middle of every part is the smallest (or the greatest) of it, so that each pass
// of a quicksort splits off a single one. Found by playing the sort with the places of the keys.
Elements UnluckyElements(std::size_t size, bool middleIsSmallest) {
    std::vector<std::size_t> places(size);
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::vector<std::size_t> keys(size);
    std::size_t low = 0;
    std::size_t high = size; // one behind the last
    while (low < high) {
        const std::size_t middle = (low + high - 1) / 2;
        const std::size_t end = middleIsSmallest ? low++ : --high;
        keys[places[middle]] = end;
        std::swap(places[middle], places[end]);
    }
    return ElementsOf(keys);
}

TEST(MiddlePivotSort, UnluckyPivotsChangeNothingInTheOrder) {
    for (const bool middleIsSmallest : {true, false}) {
        for (const std::size_t size : {100U, 1'000U, 3'000U}) {
            Elements elements = UnluckyElements(size, middleIsSmallest);
            ASSERT_NO_FATAL_FAILURE(ExpectTheSameOrder(elements));
            for (Element& element : elements) {
                element.key /= 5; // equal ones, whose order must stay that of the plain algorithm
            }
            ASSERT_NO_FATAL_FAILURE(ExpectTheSameOrder(elements));
        }
    }
}

// Two texts that share long beginnings are compared for as long as those are: not at every swap.
TEST(MiddlePivotSort, UnluckyPivotsDoNotCompareTheSameElementsAgainAndAgain) {
    constexpr std::size_t size = 20'000;
    constexpr std::size_t logarithm = 15;
    for (const bool middleIsSmallest : {true, false}) {
        Elements elements = UnluckyElements(size, middleIsSmallest);
        const auto isLong = [](const Element& element) { return element.key < 2 || element.key + 2 >= size; };
        std::size_t ofLongOnes = 0;
        const auto less = [&](const Element& a, const Element& b) {
            ofLongOnes += isLong(a) && isLong(b) ? 1U : 0U;
            return a.key < b.key;
        };
        MiddlePivotSort::Sort(std::span(elements), less);
        EXPECT_LT(ofLongOnes, 20 * logarithm);
        EXPECT_TRUE(std::is_sorted(elements.begin(), elements.end(), ByKey()));
    }
}

TEST(MiddlePivotSort, UnluckyPivotsDoNotMakeTheTimeQuadratic) {
    constexpr std::size_t size = 100'000;
    constexpr std::size_t logarithm = 17;
    for (const bool middleIsSmallest : {true, false}) {
        Elements elements = UnluckyElements(size, middleIsSmallest);
        Comparisons = 0;
        MiddlePivotSort::Sort(std::span(elements), ByKey());
        EXPECT_LT(Comparisons, 12 * size * logarithm);
        EXPECT_GT(Comparisons, size * logarithm);
    }
}

// Sorts on a thread whose stack holds far fewer calls than there are elements.
TEST(MiddlePivotSort, UnluckyPivotsDoNotFillTheStack) {
    constexpr std::size_t stackSize = 128UL * 1024;
    constexpr std::size_t size = 20'000;
    for (const bool middleIsSmallest : {true, false}) {
        Elements elements = UnluckyElements(size, middleIsSmallest);
        pthread_attr_t attributes;
        ASSERT_EQ(pthread_attr_init(&attributes), 0);
        ASSERT_EQ(pthread_attr_setstacksize(&attributes, stackSize), 0);
        const auto sort = [](void* argument) -> void* {
            MiddlePivotSort::Sort(std::span(*static_cast<Elements*>(argument)), ByKey());
            return nullptr;
        };
        pthread_t thread{};
        ASSERT_EQ(pthread_create(&thread, &attributes, sort, &elements), 0);
        pthread_join(thread, nullptr);
        pthread_attr_destroy(&attributes);
        for (std::size_t i = 0; i < elements.size(); ++i) {
            ASSERT_EQ(elements[i].key, i);
        }
    }
}

} // namespace
