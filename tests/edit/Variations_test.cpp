#include "edit/Variations.h"

#include "edit/EditTest.h"

using namespace CommonRoutines;

namespace {

using VariationsTest = EditTest;

} // namespace

TEST_F(VariationsTest, TheFirstSlotWithATextIsFound) {
    Show("North", {"Ash", "\t", "Elm", "\t", "Elm"});
    EXPECT_EQ(FirstSlotWith(1, "Ash"), 1);
    EXPECT_EQ(FirstSlotWith(1, "\t"), 2);
    EXPECT_EQ(FirstSlotWith(1, "Elm"), 3);
    EXPECT_EQ(FirstSlotWith(1, "elm"), 0);
    EXPECT_EQ(FirstSlotWith(1, "El"), 0);
}

TEST_F(VariationsTest, SlotsBeyondTheCountAreNotFound) {
    Show("North");
    VariationAt(1, 1).Text = "Ash";
    EXPECT_EQ(FirstSlotWith(1, "Ash"), 0);
}

TEST_F(VariationsTest, ASlotIsAddedBehindTheLast) {
    Show("North", {"Ash", "Elm"});
    EXPECT_EQ(AddSlot(1, "Fir"), 3);
    EXPECT_EQ(Slots(), (Texts{"Ash", "Elm", "Fir"}));
}

TEST_F(VariationsTest, ANewSlotHasNoFindingsWhateverWasLeftInIt) {
    Show("North", {"Ash", "Elm"});
    VariationAt(1, 2) = {"left", true, true, 1};
    DistrictAt(1).lVariationCount = 1;
    ASSERT_EQ(AddSlot(1, "Fir"), 2);
    EXPECT_EQ(VariationAt(1, 2).Text, "Fir");
    EXPECT_FALSE(VariationAt(1, 2).bDuplicate);
    EXPECT_EQ(VariationAt(1, 2).lDuplicateOf, 0);
    EXPECT_FALSE(VariationAt(1, 2).bUnusualCaps);
    EXPECT_EQ(DistrictAt(1).Variations.size(), 3U);
}

TEST_F(VariationsTest, TheArrayGrowsByASlotAndTheSpareOnesOnlyWhenItIsFull) {
    Show("North", {"Ash"});
    AddSlot(1, "Fir", 10);
    EXPECT_EQ(DistrictAt(1).Variations.size(), 13U);
    for (int i = 3; i <= 12; ++i) {
        EXPECT_EQ(AddSlot(1, "Fir", 10), i);
        EXPECT_EQ(DistrictAt(1).Variations.size(), 13U);
    }
    AddSlot(1, "Fir");
    EXPECT_EQ(DistrictAt(1).Variations.size(), 14U);
    EXPECT_EQ(Slots()[0], "Ash");
}
