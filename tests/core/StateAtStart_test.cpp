// The shared state before anything has been done to it. Every other test resets it first, so it is copied
// ahead of them all.

#include "core/State.h"
#include "edit/UndoJournal.h"
#include "rules/Capitals.h"

#include <gtest/gtest.h>

#include <optional>

using namespace CommonRoutines;

namespace {

struct Numbers {
    std::int32_t lineCount = lLineCount;
    std::int32_t currentDistrict = lCurrentDistrict;
    std::int32_t districtTotal = lDistrictTotal;
    std::int32_t invalidTotal = lInvalidTotal;
    std::int32_t capsOkTotal = lCapsOkTotal;
    std::int32_t dupePairCount = lDupePairCount;
    std::int32_t foundVariation = lFoundVariation;
    std::int32_t lowerCaseWordCount = LowerCaseWords().count;
    std::int32_t editIndex = lEditIndex;
    std::int16_t repairAction = iRepairAction;
    std::int16_t editMode = iEditMode;
    std::int16_t lastAction = iLastAction;
    std::int16_t undoStep = iUndoStep;
};

std::optional<Numbers> Start;

// Set up when all of the program's variables have their first values and no test has run. Where the tests
// are repeated, it is set up again.
class BeforeAllTests : public testing::Environment {
    void SetUp() override {
        if (!Start) {
            Start.emplace();
        }
    }
};

[[maybe_unused]] const testing::Environment* const Registered =
    testing::AddGlobalTestEnvironment(new BeforeAllTests); // which GoogleTest deletes

TEST(StateAtStart, TheTableIsEmpty) {
    EXPECT_EQ(Start->lineCount, 0);
    EXPECT_EQ(Start->currentDistrict, 0);
    EXPECT_EQ(Start->districtTotal, 0);
    EXPECT_EQ(Start->invalidTotal, 0);
    EXPECT_EQ(Start->capsOkTotal, 0);
}

TEST(StateAtStart, NothingIsFoundYet) {
    EXPECT_EQ(Start->dupePairCount, 0);
    EXPECT_EQ(Start->foundVariation, 0);
    EXPECT_EQ(Start->lowerCaseWordCount, 0);
    EXPECT_EQ(Start->repairAction, NoRepair);
}

TEST(StateAtStart, NothingIsOpenAndNothingBeingEdited) {
    EXPECT_EQ(Start->editMode, NothingOpen);
    EXPECT_EQ(Start->editIndex, 0);
    EXPECT_EQ(Start->lastAction, NoAction);
}

TEST(StateAtStart, TheFirstStepOfTheUndoRingIsRecordedInto) {
    EXPECT_EQ(Start->undoStep, 1);
}

} // namespace
