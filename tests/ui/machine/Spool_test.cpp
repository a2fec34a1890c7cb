#include "ui/machine/Spool.h"

#include "ui/machine/Pieces.h"

#include <gtest/gtest.h>

TEST(SpoolTest, ContentsOfAllSizesArePutTogether) {
    for (const std::size_t count : {0U, 1U, 31U, 32U, 33U, 34U, 100U}) {
        bool isWhole = false;
        EXPECT_TRUE(Spool::Use(Pieces(count), [&](std::string_view content) {
            isWhole = HasPieces(content, count);
            return true;
        })) << count;
        EXPECT_TRUE(isWhole) << count;
    }
}

TEST(SpoolTest, WhatIsDoneWithThemDecides) {
    for (const std::size_t count : {1U, 40U}) {
        EXPECT_FALSE(Spool::Use(Pieces(count), [](std::string_view) { return false; }));
    }
}
