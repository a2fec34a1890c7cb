#include "rules/Matching.h"
#include "rules/SlowMatching.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

struct Life {
    std::int16_t founded;
    std::int16_t quarterFounded;
    std::int16_t abolished;
    std::int16_t quarterAbolished;
};

class Lifetimes : public StateTest {
protected:
    static std::int32_t Add(const Life& life) {
        const std::int32_t index = AddDistrict("Smithton");
        DistrictAt(index).Founded = life.founded;
        DistrictAt(index).QtrF = life.quarterFounded;
        DistrictAt(index).Abolished = life.abolished;
        DistrictAt(index).QtrA = life.quarterAbolished;
        return index;
    }

    static bool SameByDate(const Life& a, const Life& b) { return SameVariation("%Abc", "%Abc", Add(a), Add(b)); }
};

TEST_F(Lifetimes, DistrictsThatNeverMetDoNotMatch) {
    EXPECT_FALSE(SameByDate({1850, 1, 1870, 4}, {1871, 1, 1900, 4}));
    EXPECT_FALSE(SameByDate({1871, 1, 1900, 4}, {1850, 1, 1870, 4}));
}

TEST_F(Lifetimes, DistrictsThatOverlapMatchWhateverTheQuarters) {
    EXPECT_TRUE(SameByDate({1850, 4, 1872, 1}, {1871, 4, 1900, 1}));
    EXPECT_TRUE(SameByDate({1871, 4, 1900, 1}, {1850, 4, 1872, 1}));
    EXPECT_TRUE(SameByDate({1850, 4, 1900, 1}, {1860, 4, 1870, 1})); // one inside the other
    EXPECT_TRUE(SameByDate({1850, 4, 1900, 1}, {1850, 1, 1900, 4}));
}

TEST_F(Lifetimes, InTheYearThatTheFirstEndsAndTheSecondBeginsTheQuartersDecide) {
    EXPECT_FALSE(SameByDate({1850, 1, 1871, 2}, {1871, 3, 1900, 4}));
    EXPECT_TRUE(SameByDate({1850, 1, 1871, 2}, {1871, 2, 1900, 4}));
    EXPECT_TRUE(SameByDate({1850, 1, 1871, 2}, {1871, 1, 1900, 4}));
}

TEST_F(Lifetimes, InTheYearThatTheSecondEndsAndTheFirstBeginsTheQuartersDecide) {
    EXPECT_FALSE(SameByDate({1871, 3, 1900, 4}, {1850, 1, 1871, 2}));
    EXPECT_TRUE(SameByDate({1871, 2, 1900, 4}, {1850, 1, 1871, 2}));
    EXPECT_TRUE(SameByDate({1871, 1, 1900, 4}, {1850, 1, 1871, 2}));
}

// Two districts of the same single year: the start of the first against the end of the second, no more.
TEST_F(Lifetimes, OnlyOneOfTheTwoTiesIsLookedAt) {
    const Life early{1871, 2, 1871, 1};
    const Life late{1871, 3, 1871, 2};
    EXPECT_TRUE(SameByDate(early, late));
    EXPECT_FALSE(SameByDate(late, early));
}

TEST_F(Lifetimes, DistrictsThatStillExistMatch) {
    EXPECT_TRUE(SameByDate({1850, 1, NoYear, 0}, {1974, 2, NoYear, 0}));
    EXPECT_FALSE(SameByDate({1850, 1, 1900, 4}, {1974, 2, NoYear, 0}));
}

TEST_F(Lifetimes, AnUnknownFoundingYearTiesWithAnOpenEnd) {
    EXPECT_FALSE(SameByDate({NoYear, 1, NoYear, 0}, {1850, 1, NoYear, 0}));
    EXPECT_TRUE(SameByDate({NoYear, 0, NoYear, 0}, {1850, 1, NoYear, 0}));
    EXPECT_FALSE(SameByDate({1850, 1, NoYear, 0}, {NoYear, 1, NoYear, 0}));
}

TEST_F(Lifetimes, DoNotCountWithoutTheDateMark) {
    const auto early = Add({1850, 1, 1870, 4});
    const auto late = Add({1871, 1, 1900, 4});
    EXPECT_TRUE(SameVariation("Abc", "!Abc", early, late));
    EXPECT_TRUE(SameVariation("Abc%12", "Abc%12", early, late));
    EXPECT_FALSE(SameVariation("!%Abc", "%Abc", early, late));
}

TEST_F(Lifetimes, AndVolumesMustBothAgree) {
    const auto early = Add({1850, 1, 1880, 4});
    const auto late = Add({1871, 1, 1900, 4});
    EXPECT_TRUE(SameVariation("%Abc%12", "%Abc%12", early, late));
    EXPECT_FALSE(SameVariation("%Abc%12", "%Abc", early, late));
    EXPECT_FALSE(SameVariation("%Abc%12", "%Abc%13", early, late));
}

// A text that is often the same as `text` to the rule: another case, a marker or a blank more or less.
std::string Varied(std::string text, std::mt19937& random) {
    for (char& c : text) {
        c = random() % 3 == 0 ? Ansi::Lower(c) : c;
    }
    for (auto changes = random() % 3; changes > 0; --changes) {
        const auto at = random() % (text.size() + 1);
        if (random() % 2 == 0 || at == text.size()) {
            text.insert(at, 1, "!% 1A"[random() % 5]);
        } else {
            text.erase(at, 1);
        }
    }
    return text;
}

TEST_F(Lifetimes, MatchingAgreesWithTheSlowRulesOnRandomTexts) {
    constexpr std::string_view nasty = "!%? \t-[](ABab_|\xE9\xC9\x80";
    std::mt19937 random(5);
    const auto few = [&] { return static_cast<std::int16_t>(random() % 4); };
    for (int i = 0; i < 40; ++i) {
        const std::int16_t founded = few();
        Add({founded, few(), static_cast<std::int16_t>(founded + few()), few()});
    }
    const auto anyDistrict = [&] { return static_cast<std::int32_t>(1 + random() % 40); };
    int matches = 0;
    constexpr int rounds = 200'000;
    for (int round = 0; round < rounds; ++round) {
        const std::string a = Slow::RandomText(random, random() % 2 == 0 ? nasty : "%%!A \t", 5);
        const std::string b = random() % 4 == 0 ? Slow::RandomText(random, nasty, 3) : Varied(a, random);
        const auto districtA = anyDistrict();
        const auto districtB = random() % 3 == 0 ? districtA : anyDistrict();
        const bool expected = Slow::Same(a, b, districtA, districtB);
        ASSERT_EQ(SameVariation(a, b, districtA, districtB), expected) << '[' << a << "] [" << b << ']';
        matches += expected ? 1 : 0;
    }
    EXPECT_GT(matches, rounds / 10);
    EXPECT_LT(matches, rounds - rounds / 10);
}

} // namespace
