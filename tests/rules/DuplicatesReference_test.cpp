// The duplicates of a district against a search that sorts every district and compares all neighbours.

#include "rules/Duplicates.h"
#include "rules/SlowMatching.h"
#include "support/Table.h"

#include <algorithm>

using namespace CommonRoutines;

namespace {

struct Found {
    std::vector<std::int32_t> partners; // of each slot, 0 for none
    std::vector<std::string> pairs;

    bool operator==(const Found&) const = default;
};

struct Entry {
    std::string text;
    std::string key;
    std::int32_t index = 0;
};

Found SlowDuplicates(std::int32_t district) {
    const std::int32_t count = DistrictAt(district).lVariationCount;
    Found found;
    found.partners.resize(static_cast<std::size_t>(count));
    std::vector<Entry> entries(1);
    for (std::int32_t i = 1; i <= count; ++i) {
        const std::string text = VariationAt(district, i).Text;
        entries.push_back({text, Ansi::Upper(Slow::SplitAtMarkers(text).base), i});
    }
    Slow::Sort(entries, 1, count, [](const Entry& a, const Entry& b) { return a.key < b.key; });
    for (std::size_t j = 1; j + 1 < entries.size(); ++j) {
        const Entry& a = entries[j];
        const Entry& b = entries[j + 1];
        if (Slow::Same(a.text, b.text, district, district)) {
            found.partners[static_cast<std::size_t>(a.index) - 1] = b.index;
            found.partners[static_cast<std::size_t>(b.index) - 1] = a.index;
            found.pairs.push_back(a.text + " = " + b.text);
        }
    }
    return found;
}

Found Duplicates(std::int32_t district) {
    const bool any = FindDuplicateVariations(district, false);
    Found found;
    for (std::int32_t i = 1; i <= DistrictAt(district).lVariationCount; ++i) {
        const VariationRecord& variation = VariationAt(district, i);
        found.partners.push_back(variation.bDuplicate ? variation.lDuplicateOf : 0);
    }
    for (std::int32_t i = 1; i <= lDupePairCount; ++i) {
        const DupePair& pair = DupePairs[static_cast<std::size_t>(i)];
        found.pairs.push_back(pair.first + " = " + pair.second);
    }
    EXPECT_EQ(any, !found.pairs.empty());
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, std::ssize(found.pairs));
    return found;
}

class DuplicatesReference : public StateTest {};

TEST_F(DuplicatesReference, AgreesOnRandomDistrictsOfAllSizes) {
    std::mt19937 random(23);
    std::size_t pairs = 0;
    std::size_t without = 0;
    for (int round = 0; round < 3'000; ++round) {
        ResetEverything();
        std::vector<std::string> variations(random() % (round % 4 == 0 ? 120U : 12U));
        std::generate(variations.begin(), variations.end(), [&] {
            return random() % 3 == 0 ? Slow::RandomText(random, "!% aAbB\t\xE9\xC9", 4) : Slow::SimilarText(random);
        });
        const std::int32_t district = AddDistrict("North", variations);
        DistrictAt(district).Abolished = random() % 4 == 0 ? std::int16_t{1800} : NoYear; // ends before it begins
        const Found expected = SlowDuplicates(district);
        const Found found = Duplicates(district);
        ASSERT_TRUE(found == expected) << round;
        pairs += found.pairs.size();
        without += found.pairs.empty() ? 1U : 0U;
    }
    EXPECT_GT(pairs, 3'000U);
    EXPECT_GT(without, 300U);
}

} // namespace
