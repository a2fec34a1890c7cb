#include "changes/ApplyChanges.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/State.h"
#include "edit/UndoJournal.h"
#include "edit/Variations.h"
#include "rules/Duplicates.h"
#include "rules/Matching.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

constexpr std::int32_t MostWithoutQuestion = 20;
constexpr std::int32_t SpareSlots = 50;
constexpr bool KeepPairs = true;

bool UserAgrees(std::span<const Proposal> proposals, bool selectedOnly, Desktop& desktop) {
    const auto candidates = std::count_if(proposals.begin(), proposals.end(), [&](const Proposal& proposal) {
        return proposal.tag == Proposal::Valid && (!selectedOnly || proposal.ticked);
    });
    if (candidates <= MostWithoutQuestion) {
        return true;
    }
    const std::string question = "Warning - That will add approximately " + std::to_string(candidates) +
                                 " Variations\r\nIs that what you want to do?";
    return desktop.MsgBox(question, BoxIcon::Question, BoxButtons::YesNo) == BoxAnswer::Yes;
}

// Adds a proposal that the district does not have yet. Returns false for one that it has, which is
// then listed with the text that it repeats, which many may do.
bool AddProposal(std::int32_t lDistrict, std::string_view proposal, bool asSpelling, Desktop& desktop) {
    if (const auto repeated = RepeatedText(lDistrict, proposal)) {
        AddDupePair(proposal, OnceForPairs(*repeated));
        return false;
    }
    const bool needsShriek = asSpelling && !proposal.starts_with('!');
    const std::string text = (needsShriek ? "!" : "") + std::string(proposal);
    AddSlot(lDistrict, text, SpareSlots);
    bChanged = true;
    CurrentUndoStep().NewItem({text, UndoAdd, ""}, lDistrict, desktop);
    return true;
}

// The pair of a line of the details; none for a heading. Behind the ignored proposals, the heading stands before every
// pair that was there already, not once before them all.
const DupePair* PairOf(std::size_t place, std::size_t ignored) {
    const std::size_t behind = place < ignored ? 0 : place - ignored;
    if (place >= ignored && behind % 2 == 0) {
        return nullptr;
    }
    return &DupePairs[(place < ignored ? place : ignored + behind / 2) + 1];
}

std::string DetailOf(const DupePair* pair) {
    return pair == nullptr ? "The following duplicates already existed in this district"
                           : "Variation " + pair->first + " duplicates " + pair->second;
}

// The variation that a pair begins with, or for an ignored proposal the one that it repeats. It is looked for again,
// since a pair has only the texts.
ReportPlace PlaceOf(const DupePair* pair) {
    if (pair == nullptr || !IsDistrict(lCurrentDistrict)) {
        return {};
    }
    return {lCurrentDistrict, FindSpelling(lCurrentDistrict, pair->first).value_or(0)};
}

} // namespace

std::optional<AppliedProposals> ApplyChanges(std::span<const Proposal> proposals, bool bSelectedOnly, bool bAsSpelling,
                                             Desktop& desktop) {
    if (!UserAgrees(proposals, bSelectedOnly, desktop)) {
        return std::nullopt;
    }
    StartUndoStep(lCurrentDistrict);
    EmptyDupePairs();
    AppliedProposals applied;
    for (const Proposal& proposal : proposals) {
        if (proposal.tag != Proposal::Valid) {
            ++applied.invalid;
            continue;
        }
        const std::string_view text = Ansi::Trim(proposal.text);
        if (text.empty() || (bSelectedOnly && !proposal.ticked)) {
            continue;
        }
        ++(AddProposal(lCurrentDistrict, text, bAsSpelling, desktop) ? applied.added : applied.ignored);
    }
    FindDuplicateVariations(lCurrentDistrict, KeepPairs);
    return applied;
}

void ReportAppliedProposals(const AppliedProposals& applied, Desktop& desktop) {
    std::string text = std::to_string(applied.added) + " New variations added.";
    if (lDupePairCount > 0) {
        text += "\r\n" + std::to_string(lDupePairCount) + " lines ignored which duplicate existing variations.";
    }
    if (applied.invalid > 0) {
        text += "\r\n" + std::to_string(applied.invalid) + " invalid variations were ignored";
    }
    desktop.MsgBox(text, BoxIcon::Information);
    if (lDupePairCount == 0) {
        return;
    }
    const auto ignored = static_cast<std::size_t>(applied.ignored);
    const std::size_t linesOfOwnPairs = 2 * (static_cast<std::size_t>(lDupePairCount) - ignored);
    const auto line = [=](std::size_t place) { return DetailOf(PairOf(place, ignored)); };
    const auto placeOf = [=](std::size_t place) { return PlaceOf(PairOf(place, ignored)); };
    desktop.ShowReport({"Details of Duplicates", {ignored + linesOfOwnPairs, line}, true, placeOf});
}

} // namespace CommonRoutines
