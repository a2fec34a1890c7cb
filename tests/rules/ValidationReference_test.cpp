#include "rules/SlowRules.h"
#include "rules/Validation.h"
#include "support/Table.h"

#include <set>

using namespace CommonRoutines;

namespace {

using ValidationReference = StateTest;

constexpr std::string_view Nasty = "!%? \t-[](ABab_|\xE9\xC9\x80\x7F\xFF\x1F";
constexpr std::string_view Markers = "!%%  ?ABab_1";
const std::vector<std::string> Wide = {"!",
                                       "%",
                                       "%",
                                       " ",
                                       "?",
                                       "|",
                                       "_",
                                       "a",
                                       "B",
                                       "1",
                                       "\t",
                                       "[",
                                       "\xC5\xB5",
                                       "\xC5\xB4",
                                       "\xE2\x82\xAC",
                                       "\xF0\x9F\x98\x80"};
constexpr std::string_view Mild = "!%?_ABCabc 123}\xE9";

// The verdict against what was just checked, which in no mode may differ.
void ExpectSameVerdict(const std::string& text, const Slow::Validation& slow) {
    const Verdict verdict = CheckVariation(text);
    const bool isNull = verdict.state == Verdict::State::Null;
    EXPECT_EQ(isNull, verdict.reason == "Null District") << text;
    EXPECT_EQ(verdict.IsValid(), verdict.reason.empty()) << text;
    if (!verdict.IsValid() && !slow.nullDistrict) {
        EXPECT_EQ(verdict.reason, slow.invalidReason) << text;
    }
    if (verdict.warning) {
        EXPECT_EQ(*verdict.warning, slow.warning ? slow.warningReason : "") << text;
    }
}

// Runs both over the same texts, one after the other, so that what a check leaves to the next is
// compared as well. Returns the reasons met, so that a test can tell that it has met them all.
std::set<std::string> Compare(std::uint32_t seed, std::int16_t mode) {
    constexpr std::string_view alphabets[] = {Nasty, Markers, Mild};
    std::mt19937 random(seed);
    const auto randomText = [&] {
        return TextsAreUtf8() ? Slow::RandomText(random, Wide, 10)
                              : Slow::RandomText(random, alphabets[random() % 3], 10);
    };
    iEditMode = mode;
    Slow::Validation slow;
    slow.readingFile = mode == NothingOpen;
    std::set<std::string> reasons;
    for (int round = 0; round < 200'000; ++round) {
        const std::string text = randomText();
        bool bNullDistrict = round % 2 == 0;
        const bool valid = ValidateVariation(text, round, &bNullDistrict);
        const bool same = valid == slow.Check(text) && CheckVariation(text).IsValid() == valid &&
                          sInvalidReason == slow.invalidReason && bWarning == slow.warning &&
                          sWarningReason == slow.warningReason && bNullDistrict == slow.nullDistrict;
        if (!same) {
            ADD_FAILURE() << '[' << text << "] " << valid << ", " << sInvalidReason << ", " << sWarningReason;
            return {};
        }
        ExpectSameVerdict(text, slow);
        const std::string reason = valid ? "valid" : bNullDistrict ? "flagged" : sInvalidReason;
        reasons.insert(reason.substr(0, reason.find(" char at position")));
    }
    return reasons;
}

const std::set<std::string> ReasonsInAnyMode = {"valid",          "Invalid Char - |", "Invalid VNF dependency format",
                                                "Multiple !'s",   "Space after !",    "Space after %",
                                                "Space before %", "Leading space",    "Invalid",
                                                "Trailing space", "Question Mark"};

TEST_F(ValidationReference, AgreesOnRandomTextsWhileADistrictIsShown) {
    auto expected = ReasonsInAnyMode;
    expected.insert("Null District");
    EXPECT_EQ(Compare(1, DistrictIdle), expected);
}

TEST_F(ValidationReference, AgreesOnRandomTextsOfAUtf8File) {
    eFileEncoding = Encoding::Utf8;
    auto expected = ReasonsInAnyMode;
    expected.insert("Null District");
    EXPECT_EQ(Compare(3, DistrictIdle), expected);
}

TEST_F(ValidationReference, AgreesOnRandomTextsWhileAFileIsRead) {
    auto expected = ReasonsInAnyMode;
    expected.insert("flagged");
    EXPECT_EQ(Compare(2, NothingOpen), expected);
}

} // namespace
