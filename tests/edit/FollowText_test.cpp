#include "edit/EditPanel.h"

#include "edit/EditTest.h"
#include "rules/Validation.h"

using namespace CommonRoutines;

namespace {

constexpr std::int16_t Modes[] = {NothingOpen,      OneSelected, FileOpen,           DistrictIdle,     ChangesApplied,
                                  EditingVariation, 7,           AddingUnacceptable, AddingAcceptable, SeveralSelected};

class FollowTextTest : public EditTest {
protected:
    FollowTextTest() {
        Show("North", {"Ash", "%Elm", "Oak%12"});
        iEditMode = AddingUnacceptable;
    }

    // What the status label gets, as a text of its own where it is left alone.
    static std::string StatusOf(const TextChange& change) { return change.status.value_or("(left alone)"); }

    static void ExpectFollowed(const std::string& text, std::int16_t mode, const std::string& status) {
        const TextChange change = FollowText(text);
        EXPECT_EQ(change.editMode, mode) << text;
        EXPECT_EQ(StatusOf(change), status) << text;
    }
};

} // namespace

// Which texts are acceptable

TEST_F(FollowTextTest, ANewNameIsAcceptableAndEmptiesTheStatus) {
    ExpectFollowed("Smith", AddingAcceptable, "");
}

TEST_F(FollowTextTest, TheVerdictIsTheSameWhicheverOfTheTwoAddingModesComesBefore) {
    for (const std::int16_t mode : {AddingUnacceptable, AddingAcceptable}) {
        iEditMode = mode;
        ExpectFollowed("Smith", AddingAcceptable, "");
        ExpectFollowed("Ash", AddingUnacceptable, "Duplicates Ash");
        ExpectFollowed("Smith%", AddingUnacceptable, "");
        ExpectFollowed("", AddingUnacceptable, "(left alone)");
    }
}

TEST_F(FollowTextTest, AnEmptyTextIsUnacceptableAndLeavesTheStatus) {
    ExpectFollowed("", AddingUnacceptable, "(left alone)");
}

TEST_F(FollowTextTest, AVariationOfTheDistrictIsNamedAsItStandsInTheTable) {
    ExpectFollowed("Ash", AddingUnacceptable, "Duplicates Ash");
    ExpectFollowed("aSH", AddingUnacceptable, "Duplicates Ash");
    ExpectFollowed("!Ash", AddingUnacceptable, "Duplicates Ash");
    ExpectFollowed("!%elm", AddingUnacceptable, "Duplicates %Elm");
    ExpectFollowed("Oak", AddingUnacceptable, "Duplicates Oak%12");
}

TEST_F(FollowTextTest, AVariationThatDiffersInItsDateOrItsVolumeIsNew) {
    ExpectFollowed("%Ash", AddingAcceptable, "");
    ExpectFollowed("Elm", AddingAcceptable, "");
    ExpectFollowed("Oak%13", AddingAcceptable, "");
}

TEST_F(FollowTextTest, TheNameOfTheDistrictIsTakenToo) {
    ExpectFollowed("north", AddingUnacceptable, "Duplicates North");
    ExpectFollowed("!NORTH", AddingUnacceptable, "Duplicates North");
}

TEST_F(FollowTextTest, TheNameIsTakenAlsoRightAfterAVariationWasFound) {
    ExpectFollowed("Oak", AddingUnacceptable, "Duplicates Oak%12");
    ExpectFollowed("North", AddingUnacceptable, "Duplicates North");
}

TEST_F(FollowTextTest, AVariationEqualToTheNameIsNamedBeforeIt) {
    Show("South", {"SOUTH"});
    ExpectFollowed("South", AddingUnacceptable, "Duplicates SOUTH");
}

TEST_F(FollowTextTest, VariationsOfOtherDistrictsAreFree) {
    AddDistrict("South", {"Yew"});
    ExpectFollowed("Yew", AddingAcceptable, "");
    ExpectFollowed("South", AddingAcceptable, "");
}

TEST_F(FollowTextTest, ADeletedVariationIsFree) {
    VariationAt(lCurrentDistrict, 1).Text = DeletedText;
    ExpectFollowed("Ash", AddingAcceptable, "");
}

TEST_F(FollowTextTest, ADistrictWithoutVariationsAcceptsAllButItsName) {
    Show("Empty");
    ExpectFollowed("Ash", AddingAcceptable, "");
    ExpectFollowed("Empty", AddingUnacceptable, "Duplicates Empty");
}

TEST_F(FollowTextTest, AnInvalidTextIsUnacceptableAndEmptiesTheStatus) {
    for (const char* text : {"!!Smith", "! Smith", "Smith ", " Smith", "Smi?th", "Smi|th", "Smith!", "Smi\tth",
                             "Smith%1%2", "%Smith%", "Smith %12", "Smith% 12", " ", "%12%"}) {
        ExpectFollowed(text, AddingUnacceptable, "");
    }
}

TEST_F(FollowTextTest, AnInvalidTextThatIsTakenIsStillReportedAsTaken) {
    ExpectFollowed("Ash ", AddingUnacceptable, "Duplicates Ash");
}

TEST_F(FollowTextTest, AMarkerAloneIsUnacceptable) {
    for (const char* text : {"!", "%", "!%", " ! ", " % ", "! "}) {
        ExpectFollowed(text, AddingUnacceptable, "");
    }
}

TEST_F(FollowTextTest, ATextThatEndsInAPercentSignIsUnacceptableHoweverLong) {
    for (const char* text : {"Smith%", "A rather long name of a place%", "%Smith%12%", "Smith%  "}) {
        ExpectFollowed(text, AddingUnacceptable, "");
    }
}

TEST_F(FollowTextTest, CharactersBehindTheLastPercentSignMakeItAcceptable) {
    for (const char* text : {"Smith%1", "%Smith%12", "!%Smith%12", "%Smith", "!%Smith", "!Smith%12"}) {
        ExpectFollowed(text, AddingAcceptable, "");
    }
}

TEST_F(FollowTextTest, AWarningIsNoObstacle) {
    for (const char* text : {"Sm_th", "Caf\xE9"}) {
        ASSERT_TRUE(CheckVariation(text).Warns()) << text;
        ExpectFollowed(text, AddingAcceptable, "");
    }
}

TEST_F(FollowTextTest, FollowingATextLeavesNothingBehind) {
    lFoundVariation = 7;
    sInvalidReason = sWarningReason = sMarkerPrefix = sMarkerSuffix = "untouched";
    for (const char* text : {"Sm_th", "Caf\xE9", "!!Smith", "!Oak%12", "North", "%"}) {
        static_cast<void>(FollowText(text));
        EXPECT_EQ(lFoundVariation, 7) << text;
        EXPECT_FALSE(bWarning) << text;
        for (const std::string& left : {sInvalidReason, sWarningReason, sMarkerPrefix, sMarkerSuffix}) {
            EXPECT_EQ(left, "untouched") << text;
        }
    }
}

TEST_F(FollowTextTest, TypingAMistakeStepByStepTogglesBetweenTheTwoModes) {
    iEditMode = DistrictIdle;
    const std::string text = "!Ash%1";
    const std::int16_t expected[] = {AddingUnacceptable, AddingAcceptable,   AddingAcceptable,
                                     AddingUnacceptable, AddingUnacceptable, AddingUnacceptable};
    const std::string statuses[] = {"", "", "", "Duplicates Ash", "Duplicates Ash", "Duplicates Ash"};
    for (std::size_t length = 1; length <= text.size(); ++length) {
        const TextChange change = FollowText(text.substr(0, length));
        EXPECT_EQ(change.editMode, expected[length - 1]) << text.substr(0, length);
        EXPECT_EQ(StatusOf(change), statuses[length - 1]) << text.substr(0, length);
        iEditMode = change.editMode;
    }
}

// Which mode a change of the text leads to

TEST_F(FollowTextTest, TypingIntoTheIdlePanelStartsAnAdd) {
    iEditMode = DistrictIdle;
    ExpectFollowed("!", AddingUnacceptable, "");
    ExpectFollowed("S", AddingAcceptable, "");
    ExpectFollowed("", AddingUnacceptable, "(left alone)");
}

TEST_F(FollowTextTest, TypingIntoTheIdlePanelStartsAnAddAlsoWhileAVariationIsSelected) {
    iEditMode = DistrictIdle;
    lEditIndex = 1;
    ExpectFollowed("Smith", AddingAcceptable, "");
    ExpectFollowed("Ash", AddingUnacceptable, "Duplicates Ash");
}

TEST_F(FollowTextTest, AnAddGoesOnWhateverVariationIsSelected) {
    lEditIndex = 1;
    ExpectFollowed("Smith", AddingAcceptable, "");
    iEditMode = AddingAcceptable;
    ExpectFollowed("!", AddingUnacceptable, "");
}

TEST_F(FollowTextTest, WithASelectedVariationEveryOtherModeLeadsToEditing) {
    lEditIndex = 2;
    for (const auto mode : std::to_array<std::int16_t>({1, 2, 3, 5, 6, 7, 10})) {
        iEditMode = mode;
        ExpectFollowed("Smith", EditingVariation, "(left alone)");
    }
}

TEST_F(FollowTextTest, WhileAVariationIsEditedNothingIsChecked) {
    iEditMode = OneSelected;
    lEditIndex = 2;
    lFoundVariation = 7;
    sInvalidReason = "untouched";
    bWarning = true;
    for (const char* text : {"", "!", "!!", "Smith%", "Ash", "North", "Smi|th"}) {
        ExpectFollowed(text, EditingVariation, "(left alone)");
        iEditMode = EditingVariation;
    }
    EXPECT_EQ(lFoundVariation, 7);
    EXPECT_EQ(sInvalidReason, "untouched");
    EXPECT_TRUE(bWarning);
}

TEST_F(FollowTextTest, WithNothingToEditEveryModeStartsAnAdd) {
    lEditIndex = 0;
    for (const std::int16_t mode : Modes) {
        if (mode == NothingOpen) {
            continue; // then there is no district
        }
        iEditMode = mode;
        ExpectFollowed("Smith", AddingAcceptable, "");
        ExpectFollowed("!", AddingUnacceptable, "");
    }
}

TEST_F(FollowTextTest, WithoutADistrictTheModeStaysAsItIs) {
    const std::int32_t retained = AddRetained("# note");
    for (const std::int32_t district : {0, retained, retained + 1}) {
        lCurrentDistrict = district;
        for (const std::int16_t mode : Modes) {
            for (const std::int32_t index : {0, 1}) {
                iEditMode = mode;
                lEditIndex = index;
                ExpectFollowed("Smith", mode, "(left alone)");
            }
        }
    }
}

TEST_F(FollowTextTest, FollowingATextStoresNothing) {
    for (const std::int16_t mode : Modes) {
        iEditMode = mode;
        static_cast<void>(FollowText("Smith"));
        EXPECT_EQ(iEditMode, mode) << "the caller sets it";
    }
    EXPECT_EQ(Slots(), (Texts{"Ash", "%Elm", "Oak%12"}));
    EXPECT_FALSE(bChanged);
    ExpectNothingRecorded();
}
