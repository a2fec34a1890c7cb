#include "checks/ReportPosition.h"

#include <gtest/gtest.h>

#include <set>

using namespace CommonRoutines;

namespace {

// Lines that are their numbers.
ReportItems Numbers(std::size_t count) {
    return {count, [](std::size_t place) { return std::to_string(place); }};
}

} // namespace

TEST(ReportPosition, TheSameLineIsFoundWhereItWas) {
    EXPECT_EQ(LineLeft({3, "3"}, Numbers(10)), 3U);
    EXPECT_EQ(LineLeft({0, "0"}, Numbers(10)), 0U);
}

TEST(ReportPosition, TheSameLineIsFoundBeforeAndBehindItsPlace) {
    EXPECT_EQ(LineLeft({3, "5"}, Numbers(10)), 5U);
    EXPECT_EQ(LineLeft({3, "0"}, Numbers(10)), 0U);
    EXPECT_EQ(LineLeft({0, "9"}, Numbers(10)), 9U);
    EXPECT_EQ(LineLeft({99, "7"}, Numbers(10)), 7U);
}

TEST(ReportPosition, OfEqualLinesTheNearestIsTaken) {
    EXPECT_EQ(LineLeft({2, "a"}, {"a", "b", "c", "a", "a"}), 3U);
}

TEST(ReportPosition, ALineThatHasGoneLeavesItsPlace) {
    EXPECT_EQ(LineLeft({3, "gone"}, Numbers(10)), 3U);
    EXPECT_EQ(LineLeft({30, "gone"}, Numbers(10)), 9U);
    EXPECT_EQ(LineLeft({1, ""}, {"a", "b"}), 1U);
}

TEST(ReportPosition, AReportWithoutLinesHasNone) {
    EXPECT_EQ(LineLeft({3, "3"}, {}), std::nullopt);
}

TEST(ReportPosition, OnlyLinesNearThePlaceAreMade) {
    std::set<std::size_t> made;
    const ReportItems items{1'000'000, [&made](std::size_t place) {
                                made.insert(place);
                                return std::to_string(place);
                            }};
    EXPECT_EQ(LineLeft({500'000, "1"}, items), 500'000U);
    EXPECT_LT(made.size(), 10'000U);
    EXPECT_EQ(LineLeft({500'000, "501234"}, items), 501'234U);
}

TEST(ReportPosition, OfVeryLongLinesFewerAreMade) {
    std::size_t made = 0;
    const ReportItems items{1000, [&made](std::size_t /*place*/) {
                                ++made;
                                return std::string(10'000'000, 'x');
                            }};
    EXPECT_EQ(LineLeft({500, "x"}, items), 500U);
    EXPECT_LT(made, 20U);
}
