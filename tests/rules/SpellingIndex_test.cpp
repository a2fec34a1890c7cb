// The search by the index against a walk through all slots, while the district changes.

#include "edit/Variations.h"
#include "rules/Matching.h"
#include "rules/SlowMatching.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

std::int32_t SlowFind(const std::string& sought) {
    for (std::int32_t i = 1; i <= DistrictAt(lCurrentDistrict).lVariationCount; ++i) {
        const std::string stored = VariationAt(lCurrentDistrict, i).Text;
        if (Slow::Same(stored, sought, lCurrentDistrict, lCurrentDistrict)) {
            return i;
        }
    }
    return 0;
}

class SpellingIndexTest : public StateTest {
protected:
    std::string Text() {
        return m_random() % 2 == 0 ? Slow::RandomText(m_random, "!%% aAb\t1", 4) : Slow::SimilarText(m_random);
    }

    void ChangeTheDistrict() {
        const std::int32_t count = DistrictAt(lCurrentDistrict).lVariationCount;
        if (count == 0 || (count < MostSlots && m_random() % 3 == 0)) {
            AddSlot(lCurrentDistrict, Text());
        } else {
            const auto slot = static_cast<std::int32_t>(1 + m_random() % static_cast<unsigned>(count));
            StoreText(lCurrentDistrict, slot, m_random() % 3 == 0 ? std::string(DeletedText) : Text());
        }
    }

    // What the walk takes grows with the slots, and most changes are of texts, not of their number.
    static constexpr std::int32_t MostSlots = 32;

    std::mt19937 m_random{31};
};

TEST_F(SpellingIndexTest, FindsWhatAWalkThroughTheSlotsFinds) {
    for (int i = 0; i < 4; ++i) {
        DistrictAt(AddDistrict("North", {Text(), Text()})).Abolished = i == 0 ? std::int16_t{1800} : NoYear;
    }
    int found = 0;
    constexpr int rounds = 20'000;
    for (int round = 0; round < rounds; ++round) {
        if (round % 40 == 0) {
            lCurrentDistrict = static_cast<std::int32_t>(1 + m_random() % 4);
        }
        ChangeTheDistrict();
        const std::string sought = Text();
        lFoundVariation = 0;
        const std::int32_t expected = SlowFind(sought);
        const bool isName = Slow::Same(sought, "North", lCurrentDistrict, lCurrentDistrict);
        ASSERT_EQ(FindVariationInDistrict(sought), expected > 0 || isName) << sought;
        ASSERT_EQ(lFoundVariation, expected) << sought;
        const bool isNew = expected == 0 && !isName;
        ASSERT_EQ(FindSpelling(lCurrentDistrict, sought), isNew ? std::nullopt : std::optional(expected)) << sought;
        found += expected > 0 ? 1 : 0;
    }
    EXPECT_GT(found, rounds / 20);
    EXPECT_LT(found, rounds - rounds / 20);
}

TEST_F(SpellingIndexTest, ATableReadAnewIsSearchedAnew) {
    lCurrentDistrict = AddDistrict("North", {"Ash"});
    EXPECT_TRUE(FindVariationInDistrict("Ash"));
    ResetState();
    lCurrentDistrict = AddDistrict("North", {"Elm"});
    EXPECT_FALSE(FindVariationInDistrict("Ash"));
    EXPECT_TRUE(FindVariationInDistrict("Elm"));
}

} // namespace
