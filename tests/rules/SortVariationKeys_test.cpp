#include "rules/VariationKeys.h"

#include "core/Ansi.h"
#include "rules/SlowMatching.h"
#include "support/Table.h"

#include <algorithm>
#include <random>

using namespace CommonRoutines;

namespace {

using Keys = std::vector<VariationKey>;
using Order = std::vector<std::int32_t>;
using Texts = std::vector<std::string>;

class SortVariationKeysTest : public StateTest {
protected:
    // The keys of a new district's variations, behind the unused element.
    static Keys KeysOf(const Texts& variations) {
        const std::int32_t district = AddDistrict("North", variations);
        Keys keys(1);
        for (std::int32_t i = 1; i <= std::ssize(variations); ++i) {
            keys.push_back(KeyOfVariation(district, i));
        }
        return keys;
    }

    static std::int32_t Last(const Keys& keys) { return static_cast<std::int32_t>(std::ssize(keys)) - 1; }

    static Order OrderOf(const Keys& keys) {
        Order order;
        for (const VariationKey& key : keys) {
            order.push_back(key.lIndex);
        }
        return order;
    }

    static std::string SlowKey(const VariationKey& key) { return Ansi::Upper(Slow::SplitAtMarkers(key.Text()).base); }
};

TEST_F(SortVariationKeysTest, EqualKeysChangePlaces) {
    Keys two = KeysOf({"a", "a"});
    SortVariationKeys(two, 1, 2);
    EXPECT_EQ(OrderOf(two), (Order{0, 2, 1}));
    Keys three = KeysOf({"a", "a", "a"});
    SortVariationKeys(three, 1, 3);
    EXPECT_EQ(OrderOf(three), (Order{0, 3, 2, 1}));
}

TEST_F(SortVariationKeysTest, KeysAreTheUpperCasedBaseNamesByCharacterCode) {
    Keys keys = KeysOf({"\xE9", "b", "!A%2", "", "~", "%aa", "\x80", "a b", "a\tc"});
    SortVariationKeys(keys, 1, Last(keys));
    Texts sorted;
    for (std::size_t i = 1; i < keys.size(); ++i) {
        sorted.push_back(keys[i].Text());
    }
    EXPECT_EQ(sorted, (Texts{"", "!A%2", "a\tc", "a b", "%aa", "b", "~", "\x80", "\xE9"}));
}

TEST_F(SortVariationKeysTest, OnlyTheRangeIsSorted) {
    Keys keys = KeysOf({"z", "d", "c", "b", "a"});
    SortVariationKeys(keys, 2, 4);
    EXPECT_EQ(OrderOf(keys), (Order{0, 1, 4, 3, 2, 5}));
}

TEST_F(SortVariationKeysTest, ARangeOfOneOrNoneIsLeftAsItIs) {
    Keys keys = KeysOf({"b", "a"});
    SortVariationKeys(keys, 1, 1);
    SortVariationKeys(keys, 2, 1);
    SortVariationKeys(keys, 1, 0);
    EXPECT_EQ(OrderOf(keys), (Order{0, 1, 2}));
}

TEST_F(SortVariationKeysTest, RecordsMoveAsAWhole) {
    const std::int32_t smithton = AddDistrict("Smithton", {"Zeal"});
    const std::int32_t other = AddDistrict("Other", {"Ash"});
    Keys keys{{}, KeyOfVariation(smithton, 1), KeyOfName(other)};
    SortVariationKeys(keys, 1, 2);
    EXPECT_EQ(keys[1].Text() + "/" + std::string(keys[1].DistrictName()), "OTHER/Other");
    EXPECT_TRUE(keys[1].bIsName());
    EXPECT_EQ(keys[2].Text() + "/" + std::string(keys[2].DistrictName()), "Zeal/Smithton");
    EXPECT_EQ(keys[2].lIndex, 1);
    EXPECT_EQ(keys[2].lDistrict, smithton);
    EXPECT_FALSE(keys[2].bIsName());
}

TEST_F(SortVariationKeysTest, TheOrderIsThatOfTheWholeTexts) {
    std::mt19937 random(5);
    for (int round = 0; round < 300; ++round) {
        ResetState();
        Texts texts(random() % 60);
        std::generate(texts.begin(), texts.end(), [&] { return Slow::SimilarText(random); });
        Keys keys = KeysOf(texts);
        for (std::size_t i = 1; i < keys.size(); ++i) {
            for (std::size_t j = 1; j < keys.size(); ++j) {
                ASSERT_EQ(KeyPrecedes(keys[i], keys[j]), SlowKey(keys[i]) < SlowKey(keys[j]))
                    << keys[i].Text() << '/' << keys[j].Text();
            }
        }
        SortVariationKeys(keys, 1, Last(keys));
        ASSERT_TRUE(std::is_sorted(keys.begin() + 1, keys.end(), [](const VariationKey& a, const VariationKey& b) {
            return SlowKey(a) < SlowKey(b);
        }));
    }
}

} // namespace
