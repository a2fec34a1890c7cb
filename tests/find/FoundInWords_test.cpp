#include "find/FoundInWords.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

TEST(FoundInWords, CountsEachKind) {
    Hits hits;
    hits.Add({HitKind::District, 1, 0});
    for (std::int32_t slot = 1; slot <= 1234; ++slot) {
        hits.Add({HitKind::Variation, 1, slot});
    }
    EXPECT_EQ(FoundInWords(hits, false, true), "1 district, 1,234 variations");
    hits.Add({HitKind::Comment, 3, 0});
    hits.Add({HitKind::Comment, 4, 0});
    EXPECT_EQ(FoundInWords(hits, true, true), "1 district, 1,234 variations, 2 comments so far");
}

TEST(FoundInWords, TellsOfNothing) {
    EXPECT_EQ(FoundInWords({}, false, true), "Nothing found");
    EXPECT_EQ(FoundInWords({}, true, true), "Searching");
    EXPECT_EQ(FoundInWords({}, false, false), "");
}

TEST(FoundInWords, NumbersHaveACommaBetweenTheThousands) {
    EXPECT_EQ(WithCommas(0), "0");
    EXPECT_EQ(WithCommas(999), "999");
    EXPECT_EQ(WithCommas(1'000), "1,000");
    EXPECT_EQ(WithCommas(154'983), "154,983");
    EXPECT_EQ(WithCommas(1'234'567'890), "1,234,567,890");
}
