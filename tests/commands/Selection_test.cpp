#include "commands/Selection.h"

#include "rules/Duplicates.h"
#include "support/Table.h"

using namespace CommonRoutines;
using namespace Commands;

namespace {

constexpr std::string_view Mixture = "Warning - You've selected a mixture of Spelling and Non-Spelling Variations";

class SelectionTest : public StateTest {
protected:
    SelectionTest() { iEditMode = DistrictIdle; }

    // Makes a current district of these variations, with its duplicates marked.
    static void Show(const std::vector<std::string>& variations) {
        lCurrentDistrict = AddDistrict("North", variations);
        FindDuplicateVariations(lCurrentDistrict, false);
    }

    // Selects the rows of these slots, in this order.
    static SelectionView Select(const std::vector<std::int32_t>& slots) {
        std::vector<VariationRow> rows;
        for (const std::int32_t slot : slots) {
            rows.push_back({slot, StateOfVariation(VariationAt(lCurrentDistrict, slot))});
        }
        return DescribeSelection(rows);
    }

    // Shows the variations and selects all of them, in file order.
    static SelectionView SelectAll(const std::vector<std::string>& variations) {
        Show(variations);
        std::vector<std::int32_t> slots;
        for (std::int32_t i = 1; i <= std::ssize(variations); ++i) {
            slots.push_back(i);
        }
        return Select(slots);
    }
};

} // namespace

// Reasons

TEST_F(SelectionTest, AnUnsuspiciousVariationHasNoReason) {
    const SelectionView view = SelectAll({"Smithton"});
    EXPECT_EQ(view.reason, "");
    EXPECT_EQ(view.reasonState, VariationState::Plain);
    EXPECT_EQ(sInvalidReason, "");
}

TEST_F(SelectionTest, TheReasonOfAnEarlierCheckIsForgotten) {
    sInvalidReason = "Leading space";
    sWarningReason = "Should have !";
    EXPECT_EQ(SelectAll({"Smithton"}).reason, "");
}

TEST_F(SelectionTest, AnInvalidVariationShowsWhy) {
    const SelectionView view = SelectAll({"!!Smithton"});
    EXPECT_EQ(view.reason, "Multiple !'s");
    EXPECT_EQ(view.reasonState, VariationState::Invalid);
    EXPECT_EQ(sInvalidReason, "Multiple !'s");
}

TEST_F(SelectionTest, ANullVariationShowsItsReason) {
    EXPECT_EQ(SelectAll({"Smithton%"}).reason, "Null District");
    EXPECT_EQ(sInvalidReason, "Null District");
}

TEST_F(SelectionTest, AVariationRefusedBeforeTheWarningStageShowsItsOwnReason) {
    sWarningReason = "Should have !";
    EXPECT_EQ(SelectAll({"Smit|ton"}).reason, "Invalid Char - |");
}

TEST_F(SelectionTest, AWarnedVariationShowsItsWarning) {
    const SelectionView view = SelectAll({"Sm_thton"});
    EXPECT_EQ(view.reason, "Should have !");
    EXPECT_EQ(view.reasonState, VariationState::Warning);
    EXPECT_EQ(sInvalidReason, "");
}

TEST_F(SelectionTest, AnUnusualCharacterShowsItsPositionAndCode) {
    EXPECT_EQ(SelectAll({"Caf\xE9"}).reason, "Unusual char at position 4 (Char=233)");
}

TEST_F(SelectionTest, TheReasonOfARefusalGoesBeforeAWarning) {
    EXPECT_EQ(SelectAll({"Caf\xE9 "}).reason, "Trailing space");
}

TEST_F(SelectionTest, TheReasonOfARefusalGoesBeforeCapitalsAndBeforeADuplicate) {
    Show({"!!smithton", "! Ash", "Ash"});
    ASSERT_TRUE(VariationAt(lCurrentDistrict, 2).bDuplicate);
    EXPECT_EQ(Select({1}).reason, "Multiple !'s");
    EXPECT_EQ(Select({2}).reason, "Space after !");
}

TEST_F(SelectionTest, UnusualCapitalsAreAReason) {
    const SelectionView view = SelectAll({"smithton"});
    EXPECT_EQ(view.reason, "Unusual Capitals");
    EXPECT_EQ(view.reasonState, VariationState::UnusualCaps);
    EXPECT_EQ(sInvalidReason, "Unusual Capitals");
}

TEST_F(SelectionTest, ADuplicateNamesItsPartnerWithItsMarkers) {
    Show({"Smithton", "Ash", "!Smithton"});
    EXPECT_EQ(Select({1}).reason, "Duplicates !Smithton");
    EXPECT_EQ(sInvalidReason, "Duplicates !Smithton");
    EXPECT_EQ(Select({3}).reason, "Duplicates Smithton");
    EXPECT_EQ(Select({3}).reasonState, VariationState::Duplicate);
    EXPECT_EQ(Select({2}).reason, "");
}

TEST_F(SelectionTest, CapitalsGoBeforeADuplicateInTheReasonThoughNotInTheColour) {
    Show({"smithton", "Smithton"});
    const SelectionView view = Select({1});
    EXPECT_EQ(view.reason, "Unusual Capitals");
    EXPECT_EQ(view.reasonState, VariationState::Duplicate);
    EXPECT_EQ(Select({2}).reason, "Duplicates smithton");
}

TEST_F(SelectionTest, AWarningGoesBeforeCapitalsAndBeforeADuplicate) {
    Show({"sm_thton", "!Sm_thton"});
    ASSERT_TRUE(VariationAt(lCurrentDistrict, 1).bDuplicate);
    EXPECT_EQ(Select({1}).reason, "Should have !");
    EXPECT_EQ(Select({2}).reason, "Duplicates sm_thton");
}

TEST_F(SelectionTest, TheLastOfSeveralRowsGivesTheReason) {
    Show({"!!Ash", "Oak", "elm"});
    EXPECT_EQ(Select({2, 3}).reason, "Unusual Capitals");
    EXPECT_EQ(Select({2, 3}).reasonState, VariationState::UnusualCaps);
    EXPECT_EQ(Select({3, 2}).reason, "");
    EXPECT_EQ(Select({3, 2}).reasonState, VariationState::Plain);
}

TEST_F(SelectionTest, TheVariationsAreThoseOfTheCurrentDistrict) {
    Show({"elm"});
    AddDistrict("South", {"!!Ash"});
    EXPECT_EQ(Select({1}).reason, "Unusual Capitals");
}

// Mixtures

TEST_F(SelectionTest, ASpellingMistakeAndAPlainVariationAreAMixture) {
    const SelectionView view = SelectAll({"!Smith", "Ash"});
    EXPECT_EQ(view.reason, Mixture);
    EXPECT_EQ(view.shriekCaption, "Remove !");
    EXPECT_EQ(view.dateCaption, "Add Date%");
}

TEST_F(SelectionTest, AMixtureIsOneInEitherOrder) {
    EXPECT_EQ(SelectAll({"Ash", "!Smith"}).reason, Mixture);
}

TEST_F(SelectionTest, ASpellingMistakeAndADatedVariationAreAMixture) {
    const SelectionView view = SelectAll({"!Smith", "%Ash"});
    EXPECT_EQ(view.reason, Mixture);
    EXPECT_EQ(view.shriekCaption, "Remove !");
    EXPECT_EQ(view.dateCaption, "Remove Date%");
}

TEST_F(SelectionTest, AMixtureHidesTheReasonOfTheLastRowButHasItsColour) {
    const SelectionView view = SelectAll({"!Smith", "elm"});
    EXPECT_EQ(view.reason, Mixture);
    EXPECT_EQ(view.reasonState, VariationState::UnusualCaps);
}

TEST_F(SelectionTest, SpellingMistakesAloneAreNoMixture) {
    EXPECT_EQ(SelectAll({"!Smith", "!%Ash"}).reason, "");
}

TEST_F(SelectionTest, VariationsThatAreNoSpellingMistakesAreNoMixture) {
    EXPECT_EQ(SelectAll({"Smith", "%Ash", "Oak%12"}).reason, "");
}

// Captions

TEST_F(SelectionTest, TheCaptionsFollowTheMarkers) {
    struct Case {
        std::vector<std::string> variations;
        std::string_view shriek;
        std::string_view date;
    };
    const Case cases[] = {
        {{"Smith"}, "Add !", "Add Date%"},
        {{"!Smith"}, "Remove !", "Add Date%"},
        {{"%Smith"}, "Add !", "Remove Date%"},
        {{"!%Smith"}, "Remove !", "Remove Date%"},
        {{"%!Smith"}, "Add !", "Remove Date%"},
        {{"Smith%12"}, "Add !", "Add Date%"},
        {{"!Smith%12"}, "Remove !", "Add Date%"},
        {{"Smith!"}, "Add !", "Add Date%"},
        {{" !Smith"}, "Add !", "Add Date%"},
        {{""}, "Add !", "Add Date%"},
        {{"Smith", "%Ash"}, "Add !", "Remove Date%"},
        {{"%Ash", "Smith"}, "Add !", "Remove Date%"},
        {{"!Smith", "!Ash"}, "Remove !", "Add Date%"},
        {{"!%Smith", "!Ash"}, "Remove !", "Remove Date%"},
    };
    for (const Case& c : cases) {
        const SelectionView view = SelectAll(c.variations);
        EXPECT_EQ(view.shriekCaption, c.shriek) << c.variations.front();
        EXPECT_EQ(view.dateCaption, c.date) << c.variations.front();
    }
}

// Mode and edited variation

TEST_F(SelectionTest, WithoutASelectionNothingIsEditedAndNothingIsSaid) {
    Show({"!%smith"});
    sInvalidReason = "Leading space";
    const SelectionView view = Select({});
    EXPECT_EQ(view.reason, "");
    EXPECT_EQ(view.reasonState, VariationState::Plain);
    EXPECT_EQ(view.shriekCaption, "Add !");
    EXPECT_EQ(view.dateCaption, "Add Date%");
    EXPECT_EQ(view.editMode, 2);
    EXPECT_EQ(view.editIndex, 0);
    EXPECT_EQ(sInvalidReason, "Leading space");
}

TEST_F(SelectionTest, WithoutASelectionThereNeedBeNoDistrict) {
    EXPECT_EQ(DescribeSelection({}).editMode, 2);
}

TEST_F(SelectionTest, OneSelectedVariationIsTheOneToEdit) {
    Show({"Ash", "\t", "Oak"});
    const SelectionView view = Select({3});
    EXPECT_EQ(view.editMode, 2);
    EXPECT_EQ(view.editIndex, 3);
}

TEST_F(SelectionTest, OfSeveralSelectedVariationsNoneIsEdited) {
    Show({"Ash", "Elm", "Oak"});
    EXPECT_EQ(Select({1, 2}).editMode, 10);
    EXPECT_EQ(Select({1, 2}).editIndex, 0);
    EXPECT_EQ(Select({1, 2, 3}).editMode, 10);
    EXPECT_EQ(Select({1, 2, 3}).editIndex, 0);
}

TEST_F(SelectionTest, DescribingChangesNeitherTheModeNorTheDistrict) {
    SelectAll({"elm", "!Oak"});
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(lEditIndex, 0);
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(VariationAt(lCurrentDistrict, 1).Text, "elm");
    EXPECT_EQ(VariationAt(lCurrentDistrict, 2).Text, "!Oak");
}
