#include "edit/VariationList.h"

#include "core/State.h"
#include "core/UpperCase.h"
#include "rules/Capitals.h"
#include "rules/Validation.h"

namespace CommonRoutines {

namespace {

std::string Summary(const DistrictRecord& record) {
    std::string summary;
    if (record.lInvalidCount > 0) {
        summary += std::to_string(record.lInvalidCount) + " Invalid (red).\r\n";
    }
    if (record.iDuplicateCount > 0) {
        summary += std::to_string(record.iDuplicateCount) + " Duplicates(Blue).\r\n";
    }
    if (record.lWarningCount > 0) {
        summary += std::to_string(record.lWarningCount) + " warnings (Brown).";
    }
    return summary;
}

} // namespace

VariationState StateOfVariation(const VariationRecord& variation, std::int32_t lDistrict) {
    if (!ValidateVariation(variation.Text, lDistrict)) {
        return VariationState::Invalid;
    }
    if (bWarning) {
        return VariationState::Warning;
    }
    if (variation.bDuplicate) {
        return VariationState::Duplicate;
    }
    return HasUnusualCapitals(variation.Text) ? VariationState::UnusualCaps : VariationState::Plain;
}

VariationList ListVariations(std::int32_t lDistrict) {
    DistrictRecord& record = RecordOf(lDistrict);
    record.iQuestionCount = 0;
    record.lInvalidCount = 0;
    record.lWarningCount = 0;

    const auto variationAt = [&](std::int32_t i) -> const VariationRecord& {
        return record.Variations[static_cast<std::size_t>(i)];
    };
    VariationList list;
    for (std::int32_t i = 1; i <= record.lVariationCount; ++i) {
        if (variationAt(i).IsDeleted()) {
            continue;
        }
        const VariationState state = StateOfVariation(variationAt(i), lDistrict);
        record.lInvalidCount += state == VariationState::Invalid ? 1 : 0;
        record.lWarningCount += state == VariationState::Warning ? 1 : 0;
        list.rows.push_back({i, state});
    }
    Ansi::SortByUpperCase(list.rows,
                          [&](const VariationRow& row) -> std::string_view { return variationAt(row.lIndex).Text; });
    list.summary = Summary(record);
    return list;
}

} // namespace CommonRoutines
