#include "edit/VariationStates.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

using namespace CommonRoutines;

namespace {

std::string Shown(const Rgb& colour) {
    return std::to_string(colour.red) + ' ' + std::to_string(colour.green) + ' ' + std::to_string(colour.blue);
}

struct Expected {
    VariationState state;
    std::string words;
    std::string onLight;
    std::string onDark;
    std::string summary;
};

// The table once more, written independently.
const Expected States[] = {
    {VariationState::Invalid, "invalid", "236 0 0", "255 128 128", " Invalid (red).\r\n"},
    {VariationState::Warning, "warning", "204 102 0", "255 170 85", " warnings (Brown)."},
    {VariationState::Duplicate, "duplicate", "0 0 255", "150 170 255", " Duplicates(Blue).\r\n"},
    {VariationState::UnusualCaps, "unusual capitals", "0 128 0", "110 210 110", ""},
    {VariationState::Plain, "", "0 0 0", "255 255 255", ""},
};

} // namespace

TEST(VariationStatesTest, EveryStateHasItsColoursAndItsWords) {
    EXPECT_EQ(std::size(States), VariationStateCount);
    for (const Expected& expected : States) {
        const VariationStateFacts& facts = FactsOf(expected.state);
        EXPECT_EQ(facts.state, expected.state);
        EXPECT_EQ(facts.words, expected.words);
        EXPECT_EQ(Shown(facts.onLight), expected.onLight) << expected.words;
        EXPECT_EQ(Shown(facts.onDark), expected.onDark) << expected.words;
        EXPECT_EQ(facts.summary, expected.summary) << expected.words;
    }
}

TEST(VariationStatesTest, InvalidAndWarningAreCountedByTheListAndDuplicatesByTheirSearch) {
    EXPECT_EQ(FactsOf(VariationState::Invalid).count, &DistrictRecord::lInvalidCount);
    EXPECT_EQ(FactsOf(VariationState::Warning).count, &DistrictRecord::lWarningCount);
    EXPECT_EQ(FactsOf(VariationState::Duplicate).count, &DistrictRecord::iDuplicateCount);
    EXPECT_EQ(FactsOf(VariationState::Invalid).countedBy, CountedBy::List);
    EXPECT_EQ(FactsOf(VariationState::Warning).countedBy, CountedBy::List);
    EXPECT_EQ(FactsOf(VariationState::Duplicate).countedBy, CountedBy::Search);
    EXPECT_EQ(FactsOf(VariationState::UnusualCaps).countedBy, CountedBy::Nobody);
    EXPECT_EQ(FactsOf(VariationState::Plain).countedBy, CountedBy::Nobody);
}
