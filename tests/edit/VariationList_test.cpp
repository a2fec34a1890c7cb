#include "edit/VariationList.h"

#include "rules/Validation.h"
#include "support/LowerCaseWords.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using Texts = std::vector<std::string>;

class VariationListTest : public StateTest {
protected:
    VariationListTest() { iEditMode = DistrictIdle; }

    static VariationState StateOf(const std::string& text, bool isDuplicate = false) {
        VariationRecord variation;
        variation.Text = text;
        variation.bDuplicate = isDuplicate;
        return StateOfVariation(variation);
    }

    // The texts of a list in its order.
    static Texts TextsOf(std::int32_t district, const VariationList& list) {
        Texts texts;
        for (const VariationRow& row : list.rows) {
            texts.push_back(VariationAt(district, row.slot).Text);
        }
        return texts;
    }

    static Texts Sorted(const Texts& texts) {
        const std::int32_t district = AddDistrict("North", texts);
        return TextsOf(district, ListVariations(district));
    }

    static std::vector<std::int32_t> IndicesOf(const VariationList& list) {
        std::vector<std::int32_t> indices;
        for (const VariationRow& row : list.rows) {
            indices.push_back(row.slot);
        }
        return indices;
    }
};

constexpr bool Duplicate = true;

} // namespace

// States

TEST_F(VariationListTest, AVariationWithoutAFindingIsPlain) {
    EXPECT_EQ(StateOf("Upper Smithton"), VariationState::Plain);
    EXPECT_EQ(StateOf("!%Smithton"), VariationState::Plain);
    EXPECT_EQ(StateOf("%Smithton%12"), VariationState::Plain);
}

TEST_F(VariationListTest, ARefusedVariationIsInvalid) {
    EXPECT_EQ(StateOf("!!Smithton"), VariationState::Invalid);
    EXPECT_EQ(StateOf("Smithton%"), VariationState::Invalid);
    EXPECT_EQ(StateOf("Smit?on"), VariationState::Invalid);
}

TEST_F(VariationListTest, AWarnedVariationIsAWarning) {
    EXPECT_EQ(StateOf("Sm_thton"), VariationState::Warning);
    EXPECT_EQ(StateOf("Caf\xE9"), VariationState::Warning);
}

TEST_F(VariationListTest, AMarkedDuplicateIsADuplicate) {
    EXPECT_EQ(StateOf("Smithton", Duplicate), VariationState::Duplicate);
}

TEST_F(VariationListTest, AnUnusualCapitalIsFound) {
    EXPECT_EQ(StateOf("smithton"), VariationState::UnusualCaps);
    EXPECT_EQ(StateOf("McDonald"), VariationState::UnusualCaps);
}

TEST_F(VariationListTest, AListedWordNeedsNoCapital) {
    UseLowerCaseWords({"upon"});
    EXPECT_EQ(StateOf("Stoke-upon-Trent"), VariationState::Plain);
    EXPECT_EQ(StateOf("Stoke-near-Trent"), VariationState::UnusualCaps);
}

TEST_F(VariationListTest, CapitalsAreJudgedByTheTextAndNotByWhatReadingFound) {
    VariationRecord variation;
    variation.Text = "Smithton";
    variation.bUnusualCaps = true;
    EXPECT_EQ(StateOfVariation(variation), VariationState::Plain);
}

TEST_F(VariationListTest, InvalidGoesBeforeWarning) {
    ASSERT_TRUE(CheckVariation("!!Caf\xE9").Warns());
    EXPECT_EQ(StateOf("!!Caf\xE9"), VariationState::Invalid);
}

TEST_F(VariationListTest, InvalidGoesBeforeDuplicate) {
    EXPECT_EQ(StateOf("!!Smithton", Duplicate), VariationState::Invalid);
}

TEST_F(VariationListTest, InvalidGoesBeforeCapitals) {
    EXPECT_EQ(StateOf("!!smithton"), VariationState::Invalid);
}

TEST_F(VariationListTest, WarningGoesBeforeDuplicate) {
    EXPECT_EQ(StateOf("Sm_thton", Duplicate), VariationState::Warning);
}

TEST_F(VariationListTest, WarningGoesBeforeCapitals) {
    EXPECT_EQ(StateOf("sm_thton"), VariationState::Warning);
}

TEST_F(VariationListTest, DuplicateGoesBeforeCapitals) {
    EXPECT_EQ(StateOf("smithton", Duplicate), VariationState::Duplicate);
}

TEST_F(VariationListTest, AWarningDoesNotOutliveItsVariation) {
    EXPECT_EQ(StateOf("Sm_thton"), VariationState::Warning);
    EXPECT_EQ(StateOf("Smithton"), VariationState::Plain);
}

// Rows

TEST_F(VariationListTest, EveryRowNamesItsSlotAndItsState) {
    const std::int32_t district = AddDistrict("North", {"!!A", "B_", "C", "d", "E"});
    VariationAt(district, 3).bDuplicate = true;

    const VariationList list = ListVariations(district);

    ASSERT_EQ(IndicesOf(list), (std::vector<std::int32_t>{1, 2, 3, 4, 5}));
    EXPECT_EQ(list.rows[0].state, VariationState::Invalid);
    EXPECT_EQ(list.rows[1].state, VariationState::Warning);
    EXPECT_EQ(list.rows[2].state, VariationState::Duplicate);
    EXPECT_EQ(list.rows[3].state, VariationState::UnusualCaps);
    EXPECT_EQ(list.rows[4].state, VariationState::Plain);
}

TEST_F(VariationListTest, ADeletedSlotHasNoRowAndMovesNoOther) {
    const std::int32_t district = AddDistrict("North", {"Ash", "\t", "Birch", "\t"});
    EXPECT_EQ(IndicesOf(ListVariations(district)), (std::vector<std::int32_t>{1, 3}));
}

TEST_F(VariationListTest, OnlyASingleTabIsADeletedSlot) {
    const std::int32_t district = AddDistrict("North", {"\t\t", "", " "});
    EXPECT_EQ(TextsOf(district, ListVariations(district)), (Texts{"", "\t\t", " "}));
}

TEST_F(VariationListTest, ADistrictWithoutVariationsGivesAnEmptyList) {
    const std::int32_t district = AddDistrict("North");
    const VariationList list = ListVariations(district);
    EXPECT_TRUE(list.rows.empty());
    EXPECT_EQ(list.summary, "");
}

TEST_F(VariationListTest, ADistrictWithDeletedSlotsOnlyGivesAnEmptyListAndKeepsTheMode) {
    const std::int32_t district = AddDistrict("North", {"\t", "\t"});
    iEditMode = FileOpen;

    const VariationList list = ListVariations(district);

    EXPECT_TRUE(list.rows.empty());
    EXPECT_EQ(list.summary, "");
    EXPECT_EQ(iEditMode, FileOpen);
}

TEST_F(VariationListTest, ListingIsNoChange) {
    const std::int32_t district = AddDistrict("North", {"smith", "!!X"});
    static_cast<void>(ListVariations(district));
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(VariationAt(district, 1).Text, "smith");
    EXPECT_FALSE(VariationAt(district, 1).bUnusualCaps);
}

// Order

TEST_F(VariationListTest, RowsAreInTheOrderOfTheirTexts) {
    EXPECT_EQ(Sorted({"Oak", "Ash", "Elm"}), (Texts{"Ash", "Elm", "Oak"}));
}

TEST_F(VariationListTest, CaseDoesNotCountInTheOrder) {
    EXPECT_EQ(Sorted({"b", "C", "A", "d"}), (Texts{"A", "b", "C", "d"}));
}

TEST_F(VariationListTest, TextsThatDifferInCaseOnlyStandInFileOrder) {
    EXPECT_EQ(Sorted({"smith", "SMITH", "Ash", "Smith", "ash"}), (Texts{"Ash", "ash", "smith", "SMITH", "Smith"}));
}

TEST_F(VariationListTest, ManyEqualTextsStandInFileOrder) {
    Texts texts;
    std::vector<std::int32_t> indices;
    for (std::int32_t i = 1; i <= 100; ++i) {
        texts.emplace_back(i % 2 == 0 ? "Ash" : "ash");
        indices.push_back(i);
    }
    EXPECT_EQ(IndicesOf(ListVariations(AddDistrict("North", texts))), indices);
}

TEST_F(VariationListTest, MarkersCountInTheOrder) {
    EXPECT_EQ(Sorted({"Ash", "%Ash", "!Zeal", "!%Ash"}), (Texts{"!%Ash", "!Zeal", "%Ash", "Ash"}));
}

TEST_F(VariationListTest, AShorterTextStandsBeforeItsContinuation) {
    EXPECT_EQ(Sorted({"Ashton", "Ash", "Ash Green"}), (Texts{"Ash", "Ash Green", "Ashton"}));
}

TEST_F(VariationListTest, AnUnderscoreStandsBehindTheLetters) {
    // Its code is between those of the capital and the small letters.
    EXPECT_EQ(Sorted({"a_", "ab", "aZ"}), (Texts{"ab", "aZ", "a_"}));
}

TEST_F(VariationListTest, AccentedLettersStandBehindZInTheOrderOfTheirCapitals) {
    // e acute, z caron and y with diaeresis: the capitals of the last two have the smaller codes.
    EXPECT_EQ(Sorted({"\xE9t\xE9", "\xFF", "Zeal", "\x9E", "\xC9ton"}),
              (Texts{"Zeal", "\x9E", "\xFF", "\xC9ton", "\xE9t\xE9"}));
}

TEST_F(VariationListTest, AnAccentedSmallLetterEqualsItsCapital) {
    EXPECT_EQ(Sorted({"\xE9", "\xC9", "\xE9"}), (Texts{"\xE9", "\xC9", "\xE9"}));
    EXPECT_EQ(Sorted({"\xC9", "\xE9", "\xC9"}), (Texts{"\xC9", "\xE9", "\xC9"}));
}

// Counters

TEST_F(VariationListTest, InvalidAndWarnedVariationsAreCounted) {
    const std::int32_t district = AddDistrict("North", {"!!A", "B_", "!!C", "D*", " E", "Fine"});
    static_cast<void>(ListVariations(district));
    EXPECT_EQ(DistrictAt(district).lInvalidCount, 3);
    EXPECT_EQ(DistrictAt(district).lWarningCount, 2);
}

TEST_F(VariationListTest, CountingStartsAfreshEveryTime) {
    const std::int32_t district = AddDistrict("North", {"!!A", "B_"});
    DistrictAt(district).lInvalidCount = 5;
    DistrictAt(district).lWarningCount = 7;
    static_cast<void>(ListVariations(district));
    static_cast<void>(ListVariations(district));
    EXPECT_EQ(DistrictAt(district).lInvalidCount, 1);
    EXPECT_EQ(DistrictAt(district).lWarningCount, 1);
}

TEST_F(VariationListTest, AnInvalidVariationWithAWarningCountsAsInvalidOnly) {
    const std::int32_t district = AddDistrict("North", {"!!Caf\xE9"});
    static_cast<void>(ListVariations(district));
    EXPECT_EQ(DistrictAt(district).lInvalidCount, 1);
    EXPECT_EQ(DistrictAt(district).lWarningCount, 0);
}

TEST_F(VariationListTest, CapitalsAndDeletedSlotsAreNotCounted) {
    const std::int32_t district = AddDistrict("North", {"smith", "\t", "McDonald"});
    const VariationList list = ListVariations(district);
    EXPECT_EQ(DistrictAt(district).lInvalidCount, 0);
    EXPECT_EQ(DistrictAt(district).lWarningCount, 0);
    EXPECT_EQ(list.summary, "");
}

TEST_F(VariationListTest, TheQuestionCountIsForgottenAndTheDuplicateCountKept) {
    const std::int32_t district = AddDistrict("North", {"Smith", "smith"});
    DistrictAt(district).iQuestionCount = 3;
    DistrictAt(district).iDuplicateCount = 1;
    static_cast<void>(ListVariations(district));
    EXPECT_EQ(DistrictAt(district).iQuestionCount, 0);
    EXPECT_EQ(DistrictAt(district).iDuplicateCount, 1);
}

TEST_F(VariationListTest, OtherDistrictsKeepTheirCounts) {
    const std::int32_t other = AddDistrict("South", {"!!A"});
    DistrictAt(other).iQuestionCount = 2;
    DistrictAt(other).lInvalidCount = 9;
    const std::int32_t district = AddDistrict("North", {"!!A"});
    static_cast<void>(ListVariations(district));
    EXPECT_EQ(DistrictAt(other).iQuestionCount, 2);
    EXPECT_EQ(DistrictAt(other).lInvalidCount, 9);
    EXPECT_EQ(DistrictAt(district).lInvalidCount, 1);
}

// Summary

TEST_F(VariationListTest, TheSummaryNamesEveryKindOfProblemThatThereIs) {
    struct Case {
        Texts variations;
        std::int32_t duplicates;
        std::string summary;
    };
    const Case cases[] = {
        {{"Fine"}, 0, ""},
        {{"!!A", "!!B"}, 0, "2 Invalid (red).\r\n"},
        {{"Fine"}, 3, "3 Duplicates(Blue).\r\n"},
        {{"A_"}, 0, "1 warnings (Brown)."},
        {{"!!A"}, 2, "1 Invalid (red).\r\n2 Duplicates(Blue).\r\n"},
        {{"!!A", "B_", "C_"}, 0, "1 Invalid (red).\r\n2 warnings (Brown)."},
        {{"A_"}, 1, "1 Duplicates(Blue).\r\n1 warnings (Brown)."},
        {{"!!A", "B_", "C_"}, 4, "1 Invalid (red).\r\n4 Duplicates(Blue).\r\n2 warnings (Brown)."},
    };
    for (const Case& c : cases) {
        const std::int32_t district = AddDistrict("North", c.variations);
        DistrictAt(district).iDuplicateCount = c.duplicates;
        EXPECT_EQ(ListVariations(district).summary, c.summary);
    }
}

TEST_F(VariationListTest, TheSummaryCountsPairsAndNotTheirRows) {
    const std::int32_t district = AddDistrict("North", {"Smith", "smith"});
    DistrictAt(district).iDuplicateCount = 1;
    VariationAt(district, 1).bDuplicate = true;
    VariationAt(district, 2).bDuplicate = true;
    EXPECT_EQ(ListVariations(district).summary, "1 Duplicates(Blue).\r\n");
}
