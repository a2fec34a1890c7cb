#include "recovery/SlotNumbers.h"

#include "file/DistrictFileWriter.h"
#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class SlotNumbersTest : public StateTest {
protected:
    static std::string Place(SlotNumbers& numbers, std::int32_t slot) {
        const SlotNumbers::Place place = numbers.TakePlace(slot);
        const std::string after = place.after ? " after " + std::to_string(*place.after) : "";
        return std::to_string(place.first) + "x" + std::to_string(place.count) + after;
    }
};

} // namespace

TEST_F(SlotNumbersTest, CountOnlyWhatIsSaved) {
    SlotNumbers numbers(DistrictAt(AddDistrict("North", {"Ash", "\t", "Elm", "\t", "Oak"})));
    EXPECT_EQ(Place(numbers, 5), "3x1");
    EXPECT_EQ(Place(numbers, 1), "1x1");
    EXPECT_EQ(Place(numbers, 3), "2x1");
    EXPECT_EQ(Place(numbers, 3), "2x1");
}

TEST_F(SlotNumbersTest, GiveANewPlaceToAFreeSlotAndToANewOne) {
    SlotNumbers numbers(DistrictAt(AddDistrict("North", {"Ash", "\t", "Elm"})));
    EXPECT_EQ(Place(numbers, 4), "3x1");
    EXPECT_EQ(Place(numbers, 2), "4x1 after 1");
    EXPECT_EQ(Place(numbers, 4), "3x1");
    EXPECT_EQ(Place(numbers, 2), "4x1");
    EXPECT_EQ(Place(numbers, 5), "5x1");
}

TEST_F(SlotNumbersTest, SayWhatANewPlaceFollows) {
    SlotNumbers numbers(DistrictAt(AddDistrict("North", {"\t", "\t", "Ash|Oak", "\t", "\t", "\t", "Elm", "\t"})));
    EXPECT_EQ(Place(numbers, 5), "4x1 after 2");
    EXPECT_EQ(Place(numbers, 6), "5x1 after 4");
    EXPECT_EQ(Place(numbers, 4), "6x1 after 2");
    EXPECT_EQ(Place(numbers, 2), "7x1 after 0");
    EXPECT_EQ(Place(numbers, 1), "8x1 after 0");
    EXPECT_EQ(Place(numbers, 8), "9x1");
}

TEST_F(SlotNumbersTest, OfSlotsInAnotherOrderGoOnBehindTheHighest) {
    SlotNumbers numbers({2, 5, 1}, 2);
    EXPECT_EQ(numbers.FirstCount(), 2);
    EXPECT_EQ(Place(numbers, 2), "5x1");
    EXPECT_EQ(Place(numbers, 4), "6x1");
    EXPECT_EQ(numbers.NumberOf(1), 2);
    EXPECT_EQ(numbers.NumberOf(4), 6);
    EXPECT_EQ(numbers.NumberOf(5), 0);
}

TEST_F(SlotNumbersTest, AsReadAreThoseOfTheSlots) {
    SlotNumbers numbers = SlotNumbers::AsRead(2);
    EXPECT_EQ(numbers.FirstCount(), 2);
    EXPECT_EQ(Place(numbers, 2), "2x1");
    EXPECT_EQ(Place(numbers, 3), "3x1");
    EXPECT_EQ(Place(numbers, 1), "1x1");
}

// A million slots that nobody can tell apart, taken in the least convenient order.
TEST_F(SlotNumbersTest, AreFoundQuicklyWhateverTheOrder) {
    SlotNumbers numbers(DistrictAt(AddDistrict("North", std::vector<std::string>(400'000, "\t"))));
    static_cast<void>(numbers.TakePlace(400'001));
    for (std::int32_t slot = 400'000; slot > 0; --slot) {
        ASSERT_EQ(numbers.TakePlace(slot).after, 0);
    }
}

TEST_F(SlotNumbersTest, KnowTheFieldsThatABarMakes) {
    SlotNumbers numbers(DistrictAt(AddDistrict("North", {"Ash|Elm||", "Oak"})));
    EXPECT_EQ(Place(numbers, 2), "5x1");
    EXPECT_EQ(Place(numbers, 1), "1x4");
    EXPECT_EQ(Place(numbers, 1), "1x1");
}

TEST_F(SlotNumbersTest, BeginAtOneInADistrictWithoutVariations) {
    SlotNumbers numbers(DistrictAt(AddDistrict("North")));
    EXPECT_EQ(Place(numbers, 1), "1x1");
}

TEST_F(SlotNumbersTest, BeginAtOneWhereTheWholeLineIsReadAsTheHeader) {
    const std::int32_t district = AddDistrict("North", {"Ash", "Elm"});
    DistrictAt(district).Line = "|North+1+Shire+1837+3+9999+0+A+B";
    SlotNumbers numbers(DistrictAt(district));
    EXPECT_EQ(Place(numbers, 2), "1x1");
    EXPECT_EQ(Place(numbers, 1), "2x1 after 0");
}

TEST_F(SlotNumbersTest, AreThoseOfTheLineReadAgain) {
    ScriptedDesktop desktop;
    desktop.recordReports = true;
    const std::int32_t district = AddDistrict("North", {"\t", "Ash", "Elm|Fir", "\t", "Oak", "\t"});
    SlotNumbers numbers(DistrictAt(district));
    ReadText(desktop, DistrictFileContent());
    EXPECT_EQ(DistrictAt(1).lVariationCount, 4);
    for (const auto& [slot, text] : {std::pair(2, "Ash"), {3, "Elm"}, {5, "Oak"}}) {
        EXPECT_EQ(VariationAt(1, numbers.TakePlace(slot).first).Text, text);
    }
    EXPECT_EQ(Place(numbers, 1), "5x1 after 0");
}
