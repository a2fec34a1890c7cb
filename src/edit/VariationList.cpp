#include "edit/VariationList.h"

#include "core/State.h"
#include "core/UpperCase.h"
#include "edit/Variations.h"
#include "rules/Capitals.h"
#include "rules/OrdinaryText.h"
#include "rules/Validation.h"

namespace CommonRoutines {

namespace {

using CountsOfStates = std::array<std::int32_t, VariationStateCount>;

std::string Summary(const DistrictRecord& record) {
    std::string summary;
    for (const VariationStateFacts& facts : VariationStateTable) {
        if (facts.count != nullptr && record.*facts.count > 0) {
            summary += std::to_string(record.*facts.count).append(facts.summary);
        }
    }
    return summary;
}

void StoreCounts(DistrictRecord& record, const CountsOfStates& counts) {
    record.iQuestionCount = 0;
    for (const VariationStateFacts& facts : VariationStateTable) {
        if (facts.countedBy == CountedBy::List) {
            record.*facts.count = counts[static_cast<std::size_t>(facts.state)];
        }
    }
}

} // namespace

std::string ReasonOf(VariationState state, std::int32_t lDistrict, const VariationRecord& variation) {
    switch (state) {
    case VariationState::Invalid:
        return CheckVariation(variation.Text).reason;
    case VariationState::Warning:
        return CheckVariation(variation.Text).warning.value_or("");
    case VariationState::Duplicate:
        return "Duplicates " + VariationOf(lDistrict, variation.lDuplicateOf).Text;
    case VariationState::UnusualCaps:
        return "Unusual Capitals";
    default:
        return {};
    }
}

VariationState StateOfVariation(const VariationRecord& variation) {
    if (IsOrdinary(variation.Text)) {
        return variation.bDuplicate ? VariationState::Duplicate : VariationState::Plain;
    }
    const Verdict verdict = CheckVariation(variation.Text);
    if (!verdict.IsValid()) {
        return VariationState::Invalid;
    }
    if (verdict.Warns()) {
        return VariationState::Warning;
    }
    if (variation.bDuplicate) {
        return VariationState::Duplicate;
    }
    return CapitalsAreUnusual(variation.Text) ? VariationState::UnusualCaps : VariationState::Plain;
}

VariationList ListVariations(std::int32_t lDistrict) {
    DistrictRecord& record = RecordOf(lDistrict);
    const auto variationAt = [&](std::int32_t i) -> const VariationRecord& {
        return record.Variations[static_cast<std::size_t>(i)];
    };
    CountsOfStates counts{};
    VariationList list;
    for (std::int32_t i = 1; i <= record.lVariationCount; ++i) {
        if (variationAt(i).IsDeleted()) {
            continue;
        }
        const VariationState state = StateOfVariation(variationAt(i));
        ++counts[static_cast<std::size_t>(state)];
        list.rows.push_back({i, state});
    }
    Ansi::SortByUpperCase(list.rows,
                          [&](const VariationRow& row) -> std::string_view { return variationAt(row.slot).Text; });
    StoreCounts(record, counts);
    list.summary = Summary(record);
    return list;
}

} // namespace CommonRoutines
