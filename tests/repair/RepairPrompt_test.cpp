#include "repair/RepairPrompt.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

using Captions = std::vector<std::string>;

const std::string TypeAndQuit = "Type = Type a complete replacement for this variation\r\n"
                                "Quit = Stop processing this file\r\n";

std::string Opening(const std::string& current, int index) {
    return "District Ash has a null variation.\r\nThe invalid dependency is " + current + " and it is variation #" +
           std::to_string(index) + "\r\n";
}

NullVariation At(std::int32_t index, std::int32_t last, std::string previous, std::string current, std::string next) {
    NullVariation v;
    v.districtName = "Ash";
    v.index = index;
    v.last = last;
    v.previous = std::move(previous);
    v.current = std::move(current);
    v.next = std::move(next);
    return v;
}

void ExpectPrompt(const NullVariation& variation, const std::string& text, const Captions& buttons) {
    const RepairPrompt prompt = PromptFor(variation);
    EXPECT_EQ(prompt.text, text);
    EXPECT_EQ(prompt.buttons, buttons);
}

} // namespace

TEST(RepairPrompt, TheOnlyVariationCanOnlyBeRemovedOrReplaced) {
    ExpectPrompt(At(1, 1, "", "%", ""),
                 Opening("%", 1) +
                     " As it is the only variation it can only be removed or replaced.\r\n"
                     "Remove\r\n" +
                     TypeAndQuit + "\r\n",
                 {"Remove", "Type", "Quit"});
}

TEST(RepairPrompt, TheOnlyVariationIsNeverCombined) {
    NullVariation only = At(1, 1, "", "%", "");
    only.canCombinePrevious = only.canCombineNext = true;
    EXPECT_EQ(PromptFor(only).buttons, (Captions{"Remove", "Type", "Quit"}));
}

TEST(RepairPrompt, TheLastVariationThatFitsThePreviousOneOffersToCombineThemAndSaysSoTwice) {
    NullVariation last = At(3, 3, "Elm", "%12", "");
    last.canCombinePrevious = true;
    ExpectPrompt(last,
                 Opening("%12", 3) +
                     "It is the last variation and can only be combined with the previous or removed.\r\n"
                     "Combine Previous = Elm%12\r\n"
                     "Combine Previous = Elm%12\r\n"
                     "Remove Elm\r\n" +
                     TypeAndQuit + "\r\n",
                 {"Combine Previous", "Remove", "Type", "Quit"});
}

TEST(RepairPrompt, TheLastVariationThatDoesNotFitThePreviousOneShowsAnEmptyRemoveLine) {
    ExpectPrompt(At(2, 2, "Elm", "%", ""),
                 Opening("%", 2) +
                     "It is the last variation and can only be combined with the previous or removed.\r\n"
                     "Combine Previous = Elm%\r\n"
                     "Combining with Previous gives an invalid variation\r\n\r\n"
                     "Remove = \r\n" +
                     TypeAndQuit + "\r\n",
                 {"Remove", "Type", "Quit"});
}

TEST(RepairPrompt, TheLastVariationBehindARemovedOneSaysThatItIsGone) {
    NullVariation last = At(2, 2, "", "!", "");
    last.canCombinePrevious = true; // does not matter without a previous one
    ExpectPrompt(last,
                 Opening("!", 2) +
                     "It is the last variation and the previous has been deleted and so it can only be removed\r\n\r\n"
                     "Remove = \r\n" +
                     TypeAndQuit + "\r\n",
                 {"Remove", "Type", "Quit"});
}

TEST(RepairPrompt, TheFirstVariationThatFitsTheNextOneOffersToCombineThem) {
    NullVariation first = At(1, 2, "", "!", "Elm");
    first.canCombineNext = true;
    ExpectPrompt(first,
                 Opening("!", 1) +
                     "It is the first variation and can only be combined with the next or removed.\r\n"
                     "The next variation is Elm\r\n"
                     "Combine Next = !Elm\r\n"
                     "Remove Elm\r\n" +
                     TypeAndQuit + "\r\n",
                 {"Combine Next", "Remove", "Type", "Quit"});
}

TEST(RepairPrompt, TheFirstVariationThatDoesNotFitTheNextOneShowsThatInItsRemoveLine) {
    ExpectPrompt(At(1, 2, "", "!", "!Elm"),
                 Opening("!", 1) +
                     "It is the first variation and can only be combined with the next or removed.\r\n"
                     "The next variation is !Elm\r\n"
                     "Combining with next gives an invalid variation\r\n\r\n"
                     "Remove = !Elm\r\n" +
                     TypeAndQuit + "\r\n",
                 {"Remove", "Type", "Quit"});
}

TEST(RepairPrompt, AMiddleVariationThatFitsBothNeighboursOffersAllButtons) {
    NullVariation middle = At(2, 3, "Elm", "%", "12");
    middle.canCombinePrevious = middle.canCombineNext = true;
    ExpectPrompt(middle,
                 Opening("%", 2) +
                     "With the preceding and following variations the string is...\r\n"
                     "Elm|%|12\r\n\r\n"
                     "Combine Previous = Elm%|12\r\n"
                     "Combine Next = Elm|%12\r\n"
                     "Remove = Elm|12\r\n" +
                     TypeAndQuit,
                 {"Combine Previous", "Combine Next", "Remove", "Type", "Quit"});
}

TEST(RepairPrompt, AMiddleVariationThatFitsOnlyThePreviousOneOffersOnlyThat) {
    NullVariation middle = At(2, 3, "Elm", "%", "12");
    middle.canCombinePrevious = true;
    ExpectPrompt(middle,
                 Opening("%", 2) +
                     "With the preceding and following variations the string is...\r\n"
                     "Elm|%|12\r\n\r\n"
                     "Combine Previous = Elm%|12\r\n"
                     "Combined with the next gives an invalid variation\r\n"
                     "Remove = Elm|12\r\n" +
                     TypeAndQuit,
                 {"Combine Previous", "Remove", "Type", "Quit"});
}

TEST(RepairPrompt, AMiddleVariationThatFitsOnlyTheNextOneOffersOnlyThat) {
    NullVariation middle = At(2, 3, "Elm", "!", "Oak");
    middle.canCombineNext = true;
    ExpectPrompt(middle,
                 Opening("!", 2) +
                     "With the preceding and following variations the string is...\r\n"
                     "Elm|!|Oak\r\n\r\n"
                     "Combined with the previous gives an invalid variation\r\n\r\n"
                     "Combine Next = Elm|!Oak\r\n"
                     "Remove = Elm|Oak\r\n" +
                     TypeAndQuit,
                 {"Combine Next", "Remove", "Type", "Quit"});
}

TEST(RepairPrompt, AMiddleVariationThatFitsNeitherNeighbourOffersNoCombining) {
    ExpectPrompt(At(2, 3, "Elm", "!", "!Oak"),
                 Opening("!", 2) +
                     "With the preceding and following variations the string is...\r\n"
                     "Elm|!|!Oak\r\n\r\n"
                     "Combined with the previous gives an invalid variation\r\n\r\n"
                     "Combined with the next gives an invalid variation\r\n"
                     "Remove = Elm|!Oak\r\n" +
                     TypeAndQuit,
                 {"Remove", "Type", "Quit"});
}

TEST(RepairPrompt, AMiddleVariationBehindARemovedOneOffersTheNextOneOnly) {
    NullVariation middle = At(2, 3, "", "!", "Oak");
    middle.canCombinePrevious = middle.canCombineNext = true;
    ExpectPrompt(middle,
                 Opening("!", 2) +
                     "The preceding variation has been deleted.\r\n"
                     "Combine Next = |!Oak\r\n"
                     "Remove = |Oak\r\n" +
                     TypeAndQuit,
                 {"Combine Next", "Remove", "Type", "Quit"});
}

TEST(RepairPrompt, AMiddleVariationBehindARemovedOneThatDoesNotFitTheNextOneOffersNoCombining) {
    ExpectPrompt(At(12, 13, "", "!", ""),
                 Opening("!", 12) +
                     "The preceding variation has been deleted.\r\n"
                     "Combined with the next gives an invalid variation\r\n"
                     "Remove = |\r\n" +
                     TypeAndQuit,
                 {"Remove", "Type", "Quit"});
}
