#include "core/State.h"
#include "rules/Validation.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using ValidationState = StateTest;

constexpr std::int16_t OtherModes[] = {OneSelected,      FileOpen,           DistrictIdle,     ChangesApplied,
                                       EditingVariation, AddingUnacceptable, AddingAcceptable, SeveralSelected};

constexpr const char* NullDistricts[] = {"!", "%", "!%", "Smithton%", "Smithton!"};

TEST_F(ValidationState, WhileAFileIsReadANullDistrictIsFlaggedAndTheReasonStays) {
    iEditMode = NothingOpen;
    for (const char* text : NullDistricts) {
        sInvalidReason = "old";
        bool bNullDistrict = false;
        EXPECT_FALSE(ValidateVariation(text, 1, &bNullDistrict)) << text;
        EXPECT_TRUE(bNullDistrict) << text;
        EXPECT_EQ(sInvalidReason, "old") << text;
    }
}

TEST_F(ValidationState, InEveryOtherModeANullDistrictIsAReasonAndNoFlag) {
    for (const std::int16_t mode : OtherModes) {
        iEditMode = mode;
        for (const char* text : NullDistricts) {
            sInvalidReason = "old";
            bool bNullDistrict = true;
            EXPECT_FALSE(ValidateVariation(text, 1, &bNullDistrict)) << text << mode;
            EXPECT_FALSE(bNullDistrict) << text << mode;
            EXPECT_EQ(sInvalidReason, "Null District") << text << mode;
        }
    }
}

TEST_F(ValidationState, WithoutAFlagToSetANullDistrictIsRefusedQuietlyWhileReading) {
    iEditMode = NothingOpen;
    sInvalidReason = "old";
    EXPECT_FALSE(ValidateVariation("!", 1));
    EXPECT_EQ(sInvalidReason, "old");
}

TEST_F(ValidationState, TheFlagIsClearedWhateverTheTextIs) {
    iEditMode = NothingOpen;
    for (const char* text : {"", "Smithton", "Smit|ton", "%S%1", "!!a", "a\tb"}) {
        bool bNullDistrict = true;
        static_cast<void>(ValidateVariation(text, 1, &bNullDistrict));
        EXPECT_FALSE(bNullDistrict) << text;
    }
}

TEST_F(ValidationState, OtherReasonsAreGivenWhileReadingToo) {
    iEditMode = NothingOpen;
    EXPECT_FALSE(ValidateVariation("Smit?on", 1));
    EXPECT_EQ(sInvalidReason, "Question Mark");
}

TEST_F(ValidationState, AValidTextLeavesTheReasonOfTheCheckBefore) {
    EXPECT_FALSE(ValidateVariation("!!a", 1));
    EXPECT_TRUE(ValidateVariation("Smithton", 1));
    EXPECT_EQ(sInvalidReason, "Multiple !'s");
}

TEST_F(ValidationState, AValidTextWithoutAWarningClearsTheWarningBefore) {
    EXPECT_TRUE(ValidateVariation("Sm_thton", 1));
    EXPECT_TRUE(bWarning);
    EXPECT_TRUE(ValidateVariation("", 1));
    EXPECT_FALSE(bWarning);
    EXPECT_EQ(sWarningReason, "");
}

TEST_F(ValidationState, ATextRefusedByALaterRuleClearsTheWarningBefore) {
    for (const char* text : {"!!a", "! a", "% a", "a %b", " a", "a ", "a?b", "a\tb"}) {
        EXPECT_TRUE(ValidateVariation("Sm_thton", 1));
        EXPECT_FALSE(ValidateVariation(text, 1)) << text;
        EXPECT_FALSE(bWarning) << text;
        EXPECT_EQ(sWarningReason, "") << text;
    }
}

TEST_F(ValidationState, ATextRefusedAtOnceLeavesTheWarningBefore) {
    for (const std::int16_t mode : {NothingOpen, DistrictIdle}) {
        iEditMode = mode;
        for (const char* text : {"Smit|ton", "!", "%", "!%", "Smithton%", "Smithton!", "a%1%2", "%S%1", "%Sm%"}) {
            EXPECT_TRUE(ValidateVariation("Sm_thton", 1));
            EXPECT_FALSE(ValidateVariation(text, 1)) << text;
            EXPECT_TRUE(bWarning) << text;
            EXPECT_EQ(sWarningReason, "Should have !") << text;
        }
    }
}

TEST_F(ValidationState, ATextRefusedAtOnceDoesNotRaiseAWarning) {
    iEditMode = DistrictIdle;
    for (const char* text : {"Sm_|ton", "Sm_thton%", "Sm_thton!", "_%1%2", "\xE9!"}) {
        EXPECT_FALSE(ValidateVariation(text, 1)) << text;
        EXPECT_FALSE(bWarning) << text;
    }
}

TEST_F(ValidationState, TheMarkersOfTheTextAreLeft) {
    EXPECT_TRUE(ValidateVariation("!%Smithton%12", 1));
    EXPECT_EQ(sMarkerPrefix, "!%");
    EXPECT_EQ(sMarkerSuffix, "%12");
    EXPECT_FALSE(ValidateVariation(" Smithton", 1));
    EXPECT_EQ(sMarkerPrefix, "");
    EXPECT_EQ(sMarkerSuffix, "");
}

TEST_F(ValidationState, ATextRefusedAtOnceLeavesTheMarkersBefore) {
    for (const char* text : {"%Smit|ton", "Smithton!", "a%1%2", "%"}) {
        EXPECT_TRUE(ValidateVariation("!Smithton%12", 1));
        EXPECT_FALSE(ValidateVariation(text, 1)) << text;
        EXPECT_EQ(sMarkerPrefix, "!") << text;
        EXPECT_EQ(sMarkerSuffix, "%12") << text;
    }
}

TEST_F(ValidationState, AVerdictNeitherReadsNorWritesIt) {
    for (const std::int16_t mode : {NothingOpen, DistrictIdle}) {
        iEditMode = mode;
        sInvalidReason = sWarningReason = sMarkerPrefix = sMarkerSuffix = "untouched";
        for (const char* text : {"Smithton", "!Sm_thton%12", "Caf\xE9", "Smit|ton", "%", "!!a"}) {
            EXPECT_EQ(CheckVariation(text).state == Verdict::State::Null, text == std::string("%")) << text;
            EXPECT_FALSE(bWarning) << text;
            for (const std::string& left : {sInvalidReason, sWarningReason, sMarkerPrefix, sMarkerSuffix}) {
                EXPECT_EQ(left, "untouched") << text;
            }
        }
    }
}

TEST_F(ValidationState, AVerdictOnATextRefusedAtOnceSaysNothingOfWarnings) {
    for (const char* text : {"Sm_|ton", "Sm_thton%", "Sm_thton!", "_%1%2", "\xE9!"}) {
        EXPECT_EQ(CheckVariation(text).warning, std::nullopt) << text;
        EXPECT_FALSE(CheckVariation(text).Warns()) << text;
    }
    EXPECT_EQ(CheckVariation("Smithton").warning, "");
    EXPECT_EQ(CheckVariation("!!a").warning, "");
    EXPECT_FALSE(CheckVariation("Smithton").Warns());
    EXPECT_EQ(CheckVariation(" Sm_thton").warning, "Should have !");
}

TEST_F(ValidationState, TheTextIsNotChanged) {
    const std::string text = " !Sm_thton %12\t ";
    std::string checked = text;
    EXPECT_FALSE(ValidateVariation(checked, 1));
    EXPECT_EQ(checked, text);
}

} // namespace
