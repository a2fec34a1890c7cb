#include "core/SeededHash.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace CommonRoutines;

TEST(SeededHashTest, IsTheSameForEqualTexts) {
    const std::string text = "Ashby de la Zouch";
    EXPECT_EQ(SeededHash()(text), SeededHash()(std::string(text)));
}

TEST(SeededHashTest, TellsTextsApart) {
    std::set<std::size_t> hashes;
    for (int i = 0; i < 10'000; ++i) {
        hashes.insert(SeededHash()("word " + std::to_string(i)));
    }
    EXPECT_EQ(hashes.size(), 10'000U);
}

// The program is not started twice here; but the hash must not be the one that anybody can compute.
TEST(SeededHashTest, IsNotTheUnseededOne) {
    constexpr std::size_t unseededOfNothing = 0x2D06800538D394C2; // XXH3_64bits of the empty text
    EXPECT_NE(SeededHash()(""), unseededOfNothing);
}
