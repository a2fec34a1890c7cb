#include "core/VariationSlots.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>
#include <utility>

using namespace CommonRoutines;

namespace {

void Fill(VariationSlots& slots, const std::string& prefix) {
    for (std::size_t slot = 1; slot < slots.size(); ++slot) {
        slots[slot].Text = prefix + std::to_string(slot);
        slots[slot].bDuplicate = true;
    }
}

void ExpectFilled(const VariationSlots& slots, const std::string& prefix, std::size_t count) {
    for (std::size_t slot = 1; slot <= count; ++slot) {
        EXPECT_EQ(slots[slot].Text, prefix + std::to_string(slot));
        EXPECT_TRUE(slots[slot].bDuplicate);
    }
    for (std::size_t slot = count + 1; slot < slots.size(); ++slot) {
        EXPECT_EQ(slots[slot].Text, "");
        EXPECT_FALSE(slots[slot].bDuplicate);
    }
}

TEST(VariationSlots, AreNoneAtFirst) {
    const VariationSlots slots;
    EXPECT_TRUE(slots.empty());
    EXPECT_EQ(slots.size(), 0U);
    EXPECT_EQ(slots.begin(), slots.end());
}

TEST(VariationSlots, KeepWhatTheyHoldWhenTheyGrow) {
    for (const bool isInPool : {false, true}) {
        SlotPool pool;
        VariationSlots slots;
        if (isInPool) {
            slots.TakeFrom(pool, 3);
        } else {
            slots.Grow(3);
        }
        EXPECT_EQ(slots.end() - slots.begin(), 2);
        Fill(slots, "A");
        for (std::size_t size = 3; size < 40; ++size) {
            slots.Grow(size);
            EXPECT_EQ(slots.size(), size);
            ExpectFilled(slots, "A", 2);
        }
    }
}

TEST(VariationSlots, OfOneDistrictDoNotReachIntoThoseOfTheNext) {
    SlotPool pool;
    VariationSlots first;
    VariationSlots second;
    first.TakeFrom(pool, 4);
    second.TakeFrom(pool, 3);
    EXPECT_EQ(first.end(), second.begin());
    Fill(first, "A");
    Fill(second, "B");
    first.Grow(5);
    ExpectFilled(first, "A", 3);
    ExpectFilled(second, "B", 2);
}

TEST(VariationSlots, MoreThanABlockOfThePoolStandTogether) {
    SlotPool pool;
    VariationSlots few;
    VariationSlots many;
    VariationSlots others;
    few.TakeFrom(pool, 2);
    many.TakeFrom(pool, 10001);
    others.TakeFrom(pool, 4001);
    Fill(few, "A");
    Fill(many, "B");
    Fill(others, "C");
    ExpectFilled(few, "A", 1);
    ExpectFilled(many, "B", 10000);
    ExpectFilled(others, "C", 4000);
}

TEST(VariationSlots, ACopyOutlivesThePool) {
    auto pool = std::make_unique<SlotPool>();
    VariationSlots slots;
    slots.TakeFrom(*pool, 3);
    Fill(slots, "A");
    VariationSlots copy = slots;
    VariationSlots assigned;
    assigned.Grow(2);
    assigned = slots;
    Fill(slots, "B");
    slots = {};
    pool.reset();
    ExpectFilled(copy, "A", 2);
    ExpectFilled(assigned, "A", 2);
}

TEST(VariationSlots, AreTakenAlong) {
    SlotPool pool;
    VariationSlots slots;
    slots.TakeFrom(pool, 3);
    Fill(slots, "A");
    const VariationRecord* first = slots.begin();
    const VariationSlots moved = std::move(slots);
    EXPECT_EQ(moved.begin(), first);
    ExpectFilled(moved, "A", 2);
}

TEST(VariationSlots, TooManyFindNoMemory) {
    SlotPool pool;
    VariationSlots slots;
    const std::size_t tooMany = std::size_t{VariationSlots::MostSlots} + 2;
    EXPECT_THROW(slots.Grow(tooMany), std::bad_alloc);
    EXPECT_THROW(slots.TakeFrom(pool, tooMany), std::bad_alloc);
    EXPECT_TRUE(slots.empty());
}

} // namespace
