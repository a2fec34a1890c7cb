#include "rules/Duplicates.h"

#include "core/State.h"
#include "core/UpperCase.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using Texts = std::vector<std::string>;

class Duplicates : public StateTest {
protected:
    // The pairs collected so far, each as "first = second".
    static Texts Pairs() {
        Texts pairs;
        for (std::int32_t i = 1; i <= lDupePairCount; ++i) {
            const DupePair& pair = DupePairs[static_cast<std::size_t>(i)];
            pairs.push_back(pair.first + " = " + pair.second);
        }
        return pairs;
    }

    // Of each slot the index of its partner, 0 for a slot that is no duplicate.
    static std::vector<std::int32_t> Partners(std::int32_t district) {
        std::vector<std::int32_t> partners;
        for (std::int32_t i = 1; i <= DistrictAt(district).lVariationCount; ++i) {
            const VariationRecord& variation = VariationAt(district, i);
            partners.push_back(variation.bDuplicate ? variation.lDuplicateOf : 0);
        }
        return partners;
    }

    static std::ptrdiff_t UpperBound() { return std::ssize(DupePairs) - 1; }
};

using Slots = std::vector<std::int32_t>;

TEST_F(Duplicates, ADistrictWithoutVariationsHasNone) {
    const auto district = AddDistrict("Smithton");
    DistrictAt(district).iDuplicateCount = 5;
    EXPECT_FALSE(FindDuplicateVariations(district));
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 0);
    EXPECT_EQ(lDupePairCount, 0);
}

TEST_F(Duplicates, ASingleVariationIsNoneEvenIfItWasOne) {
    const auto district = AddDistrict("Smithton", {"Smithton"});
    DistrictAt(district).iDuplicateCount = 5;
    VariationAt(district, 1).bDuplicate = true;
    EXPECT_FALSE(FindDuplicateVariations(district));
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 0);
    EXPECT_FALSE(VariationAt(district, 1).bDuplicate);
}

TEST_F(Duplicates, DifferentVariationsAreNone) {
    const auto district = AddDistrict("Smithton", {"Abc", "Abd", "Ab", "%Abc"});
    EXPECT_FALSE(FindDuplicateVariations(district));
    EXPECT_EQ(Partners(district), (Slots{0, 0, 0, 0}));
    EXPECT_EQ(Pairs(), Texts{});
}

TEST_F(Duplicates, VariationsThatOnlyShareAHashAreNone) {
    ASSERT_EQ(Ansi::HashUpper("ABERYSTWYTHWALES"), Ansi::HashUpper("AMSLKBCKVIBFFHUQ"));
    const auto district = AddDistrict("Smithton", {"Aberystwythwales", "Shqbrtxowufoolex"});
    EXPECT_FALSE(FindDuplicateVariations(district));
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 0);
    EXPECT_EQ(Partners(district), (Slots{0, 0}));
    EXPECT_EQ(Pairs(), Texts{});
}

TEST_F(Duplicates, TwoSpellingsThatAreTheSameAreOnePair) {
    const auto district = AddDistrict("Smithton", {"!Abc", "Xyz", "ABC"});
    EXPECT_TRUE(FindDuplicateVariations(district));
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 1);
    EXPECT_EQ(Partners(district), (Slots{3, 0, 1}));
    EXPECT_EQ(Pairs(), Texts{"ABC = !Abc"});
}

TEST_F(Duplicates, ThreeEqualOnesAreTwoPairsAndTheLastPartnerIsKept) {
    const auto district = AddDistrict("Smithton", {"Abc", "ABC", "abc"});
    EXPECT_TRUE(FindDuplicateVariations(district));
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 2);
    EXPECT_EQ(Pairs(), (Texts{"abc = ABC", "ABC = Abc"}));
    EXPECT_EQ(Partners(district), (Slots{2, 1, 2}));
}

// Sorting looks at the base names alone, so that another kind of variation may come between two equal ones.
TEST_F(Duplicates, EqualOnesThatAreNoNeighboursInSortedOrderAreNotFound) {
    const auto district = AddDistrict("Smithton", {"Abc", "%Abc", "ABC"});
    EXPECT_FALSE(FindDuplicateVariations(district));
    EXPECT_EQ(Partners(district), (Slots{0, 0, 0}));
}

TEST_F(Duplicates, AVolumeMatchesNoneInsideADistrict) {
    const auto district = AddDistrict("Smithton", {"Abc%12", "Xyz%1", "Abc", "Xyz%2"});
    EXPECT_TRUE(FindDuplicateVariations(district));
    EXPECT_EQ(Partners(district), (Slots{3, 0, 1, 0}));
}

TEST_F(Duplicates, AccentedLettersAreComparedWithoutCase) {
    const auto district = AddDistrict("Smithton", {"Caf\xE9", "CAF\xC9"});
    EXPECT_TRUE(FindDuplicateVariations(district));
}

TEST_F(Duplicates, DeletedSlotsAreNoneAndTheOthersKeepTheirNumbers) {
    const auto district = AddDistrict("Smithton", {"\t", "Abc", "\t", "\t", "abc"});
    EXPECT_TRUE(FindDuplicateVariations(district));
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 1);
    EXPECT_EQ(Partners(district), (Slots{0, 5, 0, 0, 2}));
}

TEST_F(Duplicates, EmptyVariationsAreTheSame) {
    const auto district = AddDistrict("Smithton", {"", " "});
    EXPECT_TRUE(FindDuplicateVariations(district));
    EXPECT_EQ(Partners(district), (Slots{2, 1}));
}

TEST_F(Duplicates, TheNameOfTheDistrictIsNotAmongThem) {
    const auto district = AddDistrict("Smithton", {"Smithton", "Xyz"});
    EXPECT_FALSE(FindDuplicateVariations(district));
}

TEST_F(Duplicates, ANewSearchForgetsTheMarksOfTheOld) {
    const auto district = AddDistrict("Smithton", {"Abc", "abc", "Xyz"});
    EXPECT_TRUE(FindDuplicateVariations(district));
    VariationAt(district, 2).Text = "Abd";
    EXPECT_FALSE(FindDuplicateVariations(district));
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 0);
    EXPECT_EQ(Partners(district), (Slots{0, 0, 0}));
}

TEST_F(Duplicates, TheVariationsStayInTheOrderOfTheFile) {
    const auto district = AddDistrict("Smithton", {"c", "a", "b", "A"});
    EXPECT_TRUE(FindDuplicateVariations(district));
    EXPECT_EQ(VariationAt(district, 1).Text, "c");
    EXPECT_EQ(VariationAt(district, 2).Text, "a");
    EXPECT_EQ(VariationAt(district, 3).Text, "b");
    EXPECT_EQ(VariationAt(district, 4).Text, "A");
}

TEST_F(Duplicates, OtherDistrictsAreNotTouched) {
    const auto other = AddDistrict("Other", {"Abc", "abc"});
    EXPECT_TRUE(FindDuplicateVariations(other));
    EXPECT_FALSE(FindDuplicateVariations(AddDistrict("Smithton", {"Abc", "Xyz"})));
    EXPECT_EQ(Partners(other), (Slots{2, 1}));
    EXPECT_EQ(DistrictAt(other).iDuplicateCount, 1);
}

TEST_F(Duplicates, PairsOfSeveralDistrictsAddUp) {
    const auto first = AddDistrict("Smithton", {"Abc", "abc"});
    const auto second = AddDistrict("Other", {"Xyz", "xyz"});
    EXPECT_TRUE(FindDuplicateVariations(first));
    EXPECT_TRUE(FindDuplicateVariations(second, true));
    EXPECT_TRUE(FindDuplicateVariations(first));
    EXPECT_EQ(Pairs(), (Texts{"abc = Abc", "xyz = Xyz", "abc = Abc"}));
}

TEST_F(Duplicates, OnlyAnExplicitNoStartsTheListAfresh) {
    const auto first = AddDistrict("Smithton", {"Abc", "abc"});
    const auto second = AddDistrict("Other", {"Xyz", "xyz"});
    EXPECT_TRUE(FindDuplicateVariations(first));
    EXPECT_TRUE(FindDuplicateVariations(second, false));
    EXPECT_EQ(Pairs(), Texts{"xyz = Xyz"});
    EXPECT_EQ(UpperBound(), 5);
}

TEST_F(Duplicates, TheListIsEmptiedForADistrictWithoutVariationsToo) {
    EXPECT_TRUE(FindDuplicateVariations(AddDistrict("Smithton", {"Abc", "abc"})));
    EXPECT_FALSE(FindDuplicateVariations(AddDistrict("Other"), false));
    EXPECT_EQ(lDupePairCount, 0);
    EXPECT_EQ(UpperBound(), 5);
    EXPECT_EQ(DupePairs[1].first + DupePairs[1].second, "");
}

TEST_F(Duplicates, AnEmptyListHasRoomForFivePairs) {
    EmptyDupePairs();
    EXPECT_EQ(UpperBound(), 5);
    EXPECT_EQ(lDupePairCount, 0);
}

TEST_F(Duplicates, APairThatDoesNotFitMakesRoomForFiveBehindIt) {
    EmptyDupePairs();
    const std::vector<std::ptrdiff_t> bounds = {5, 5, 5, 5, 5, 11, 11, 11, 11, 11, 11, 17};
    for (const std::ptrdiff_t bound : bounds) {
        AddDupePair("a", "A");
        EXPECT_EQ(UpperBound(), bound) << lDupePairCount;
    }
}

TEST_F(Duplicates, GrowingKeepsThePairsAndTheFirstElementEmpty) {
    Texts expected;
    for (int i = 1; i <= 30; ++i) {
        const std::string number = std::to_string(i);
        AddDupePair(Ansi::String("a" + number), Ansi::String("b" + number));
        expected.push_back("a" + number + " = b" + number);
    }
    EXPECT_EQ(Pairs(), expected);
    EXPECT_EQ(DupePairs[0].first + DupePairs[0].second, "");
}

} // namespace
