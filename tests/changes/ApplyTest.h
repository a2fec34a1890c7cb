#pragma once

#include "changes/ApplyChanges.h"
#include "edit/UndoJournal.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

// A current district and an empty journal, and short ways to apply proposals to the one and look at
// the other.
class ApplyTest : public StateTest {
protected:
    using Proposals = std::vector<CommonRoutines::Proposal>;
    using Texts = std::vector<std::string>;

    ApplyTest() {
        CommonRoutines::ClearUndoRing();
        CommonRoutines::iUndoStep = 1;
        CommonRoutines::iEditMode = CommonRoutines::DistrictIdle;
    }

    // Makes a district and the one that proposals are applied to.
    static void Choose(const std::string& name, const Texts& variations) {
        CommonRoutines::lCurrentDistrict = AddDistrict(name, variations);
    }

    static CommonRoutines::Proposal Valid(std::string text) {
        return {std::move(text), CommonRoutines::Proposal::Valid, false, false};
    }
    static CommonRoutines::Proposal Ticked(std::string text) {
        return {std::move(text), CommonRoutines::Proposal::Valid, false, true};
    }
    static CommonRoutines::Proposal Invalid(std::string text) {
        return {std::move(text), CommonRoutines::Proposal::Invalid, false, false};
    }
    static CommonRoutines::Proposal Heading(std::string text) {
        return {std::move(text), CommonRoutines::Proposal::Heading, false, false};
    }
    // "Name 1", "Name 2" and so on, all of them valid.
    static Proposals Numbered(int count) {
        Proposals proposals;
        for (int i = 1; i <= count; ++i) {
            proposals.push_back(Valid("Name " + std::to_string(i)));
        }
        return proposals;
    }

    // Applies all proposals as they are.
    CommonRoutines::AppliedProposals Apply(const Proposals& proposals) { return Apply(proposals, false, false); }
    CommonRoutines::AppliedProposals Apply(const Proposals& proposals, bool selectedOnly, bool asSpelling) {
        const auto applied = CommonRoutines::ApplyChanges(proposals, selectedOnly, asSpelling, desktop);
        EXPECT_TRUE(applied.has_value());
        return applied.value_or(CommonRoutines::AppliedProposals{});
    }
    void ExpectQuestion(int count, CommonRoutines::BoxAnswer answer) {
        desktop.ExpectBox("Warning - That will add approximately " + std::to_string(count) +
                              " Variations\r\nIs that what you want to do?",
                          CommonRoutines::BoxIcon::Question, CommonRoutines::BoxButtons::YesNo, answer);
    }

    // The variations of the current district.
    static Texts Variations() {
        Texts texts;
        for (std::int32_t i = 1; i <= DistrictAt(CommonRoutines::lCurrentDistrict).lVariationCount; ++i) {
            texts.push_back(VariationAt(CommonRoutines::lCurrentDistrict, i).Text);
        }
        return texts;
    }
    // The duplicate pairs, each as "first = second".
    static Texts Pairs() {
        Texts pairs;
        for (std::size_t i = 1; i <= static_cast<std::size_t>(CommonRoutines::lDupePairCount); ++i) {
            pairs.push_back(CommonRoutines::DupePairs[i].first + " = " + CommonRoutines::DupePairs[i].second);
        }
        return pairs;
    }

    ScriptedDesktop desktop;
};
