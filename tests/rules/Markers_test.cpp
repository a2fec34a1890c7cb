#include "rules/Markers.h"

#include "rules/SlowRules.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using Markers = StateTest;

// "prefix(base)suffix", as StripMarkers returns the base and leaves the markers.
std::string Stripped(std::string_view variation) {
    sMarkerPrefix = sMarkerSuffix = "old";
    const std::string base(StripMarkers(variation));
    return sMarkerPrefix + "(" + base + ")" + sMarkerSuffix;
}

TEST_F(Markers, APlainNameHasNone) {
    EXPECT_EQ(Stripped("Smithton"), "(Smithton)");
    EXPECT_EQ(Stripped("Upper Smithton"), "(Upper Smithton)");
    EXPECT_EQ(Stripped("?"), "(?)");
}

TEST_F(Markers, OfAnEmptyTextAreEmpty) {
    EXPECT_EQ(Stripped(""), "()");
    EXPECT_EQ(Stripped("   "), "()");
}

TEST_F(Markers, LeadingMarkersAreThePrefix) {
    EXPECT_EQ(Stripped("!Smithton"), "!(Smithton)");
    EXPECT_EQ(Stripped("%Smithton"), "%(Smithton)");
    EXPECT_EQ(Stripped("!%Smithton"), "!%(Smithton)");
    EXPECT_EQ(Stripped("%!%!!Smithton"), "%!%!!(Smithton)");
}

TEST_F(Markers, MarkersAloneAreAPrefix) {
    EXPECT_EQ(Stripped("!"), "!()");
    EXPECT_EQ(Stripped("%"), "%()");
    EXPECT_EQ(Stripped(" !% "), "!%()");
}

TEST_F(Markers, TheNextMarkerOpensTheSuffix) {
    EXPECT_EQ(Stripped("Smithton%12"), "(Smithton)%12");
    EXPECT_EQ(Stripped("%Smithton%12a"), "%(Smithton)%12a");
    EXPECT_EQ(Stripped("!%Smithton!x%12!"), "!%(Smithton)!x%12!");
    EXPECT_EQ(Stripped("Smithton%"), "(Smithton)%");
}

TEST_F(Markers, OuterBlanksAreCutOff) {
    EXPECT_EQ(Stripped("  !Smithton%12  "), "!(Smithton)%12");
    EXPECT_EQ(Stripped(" Smithton "), "(Smithton)");
}

TEST_F(Markers, ABlankEndsThePrefixAndGoesWithIt) {
    EXPECT_EQ(Stripped("!  Smithton"), "!(Smithton)");
    EXPECT_EQ(Stripped("! %"), "!(%)");
}

TEST_F(Markers, TheBaseNameKeepsItsBlankBeforeTheSuffix) {
    EXPECT_EQ(Stripped("Smithton !"), "(Smithton )!");
    EXPECT_EQ(Stripped("!Smithton  %12"), "!(Smithton  )%12");
}

TEST_F(Markers, AMarkerBehindTheBlankOfThePrefixBelongsToTheName) {
    EXPECT_EQ(Stripped("! !Smithton%12"), "!(!Smithton%12)");
    EXPECT_EQ(Stripped("% %%"), "%(%%)");
}

TEST_F(Markers, OnlySpacesAreTrimmed) {
    EXPECT_EQ(Stripped("\t"), "(\t)");
    EXPECT_EQ(Stripped("!\tSmithton"), "!(\tSmithton)");
    EXPECT_EQ(Stripped("\t!Smithton"), "(\t)!Smithton");
    EXPECT_EQ(Stripped("\xA0"
                       "Smithton\xA0"),
              "(\xA0"
              "Smithton\xA0)");
}

TEST_F(Markers, SplittingWithoutLeavingThemTouchesNoState) {
    sMarkerPrefix = sMarkerSuffix = "old";
    const MarkerParts parts = SplitMarkers("!%Smithton%12");
    EXPECT_EQ(parts.prefix, "!%");
    EXPECT_EQ(parts.base, "Smithton");
    EXPECT_EQ(parts.suffix, "%12");
    EXPECT_EQ(sMarkerPrefix, "old");
    EXPECT_EQ(sMarkerSuffix, "old");
}

TEST_F(Markers, TheBaseNameIsAPartOfTheVariation) {
    const std::string_view variation = " !Smithton%12";
    EXPECT_EQ(StripMarkers(variation).data(), variation.data() + 2);
}

TEST_F(Markers, AgreeWithTheSlowRulesOnRandomTexts) {
    std::mt19937 random(11);
    for (int round = 0; round < 50'000; ++round) {
        const bool longText = round % 2 == 0; // with few markers, anywhere in it
        const std::string text =
            Slow::RandomText(random, longText ? "AAAAabcd $&\"\xA1\xA5!%" : "!%  \tA?", longText ? 40 : 9);
        const Slow::Split expected = Slow::SplitAtMarkers(text);
        ASSERT_EQ(Stripped(text), expected.prefix + "(" + expected.base + ")" + expected.suffix) << text;
    }
}

constexpr MarkerOptions Spelling{.spelling = true};
constexpr MarkerOptions Plain{.variation = true};
constexpr MarkerOptions InYears{.validInYears = true};
constexpr MarkerOptions SpellingInYears{.spelling = true, .validInYears = true};

MarkerOptions WithVolume(MarkerOptions options) {
    options.volume = true;
    return options;
}

TEST(MarkerOptionsOf, AnEmptyTextHasNoOption) {
    const MarkerOptions options = MarkerOptionsOf("");
    EXPECT_FALSE(options.spelling);
    EXPECT_FALSE(options.variation);
    EXPECT_FALSE(options.validInYears);
    EXPECT_FALSE(options.volume);
}

TEST(MarkerOptionsOf, AnOrdinaryNameIsAVariation) {
    EXPECT_EQ(MarkerOptionsOf("Smithton"), Plain);
    EXPECT_EQ(MarkerOptionsOf(" "), Plain);
    EXPECT_EQ(MarkerOptionsOf(" !Smithton"), Plain); // only the first character counts
    EXPECT_EQ(MarkerOptionsOf("Smithton!"), Plain);
}

TEST(MarkerOptionsOf, ALeadingShriekIsASpellingMistake) {
    EXPECT_EQ(MarkerOptionsOf("!"), Spelling);
    EXPECT_EQ(MarkerOptionsOf("!Smithton"), Spelling);
}

TEST(MarkerOptionsOf, ALeadingPercentIsValidInYears) {
    EXPECT_EQ(MarkerOptionsOf("%"), InYears);
    EXPECT_EQ(MarkerOptionsOf("%Smithton"), InYears);
    EXPECT_EQ(MarkerOptionsOf("%!Smithton"), InYears);
}

TEST(MarkerOptionsOf, ShriekAndPercentAreBoth) {
    EXPECT_EQ(MarkerOptionsOf("!%"), SpellingInYears);
    EXPECT_EQ(MarkerOptionsOf("!%Smithton"), SpellingInYears);
}

TEST(MarkerOptionsOf, APercentThatIsNoDateMarkIsAVolume) {
    EXPECT_EQ(MarkerOptionsOf("Smithton%12"), WithVolume(Plain));
    EXPECT_EQ(MarkerOptionsOf("Smithton%"), WithVolume(Plain));
    EXPECT_EQ(MarkerOptionsOf(" %"), WithVolume(Plain));
    EXPECT_EQ(MarkerOptionsOf("S%"), WithVolume(Plain)); // second, but not behind "!"
    EXPECT_EQ(MarkerOptionsOf("!Smithton%12"), WithVolume(Spelling));
    EXPECT_EQ(MarkerOptionsOf("!S%"), WithVolume(Spelling));
}

TEST(MarkerOptionsOf, ASecondPercentBehindTheDateMarkIsAVolume) {
    EXPECT_EQ(MarkerOptionsOf("%Smithton%12"), WithVolume(InYears));
    EXPECT_EQ(MarkerOptionsOf("%%"), WithVolume(InYears));
    EXPECT_EQ(MarkerOptionsOf("!%Smithton%12"), WithVolume(SpellingInYears));
    EXPECT_EQ(MarkerOptionsOf("!%%"), WithVolume(SpellingInYears));
}

} // namespace
