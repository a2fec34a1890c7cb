#include "edit/VariationList.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "rules/Capitals.h"
#include "rules/Validation.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

struct SortedRow {
    std::string upperText;
    VariationRow row;
};

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

    std::vector<SortedRow> sorted;
    for (std::int32_t i = 1; i <= record.lVariationCount; ++i) {
        const VariationRecord& variation = record.Variations[static_cast<std::size_t>(i)];
        if (variation.IsDeleted()) {
            continue;
        }
        const VariationState state = StateOfVariation(variation, lDistrict);
        record.lInvalidCount += state == VariationState::Invalid ? 1 : 0;
        record.lWarningCount += state == VariationState::Warning ? 1 : 0;
        sorted.push_back({Ansi::Upper(variation.Text), {i, state}});
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const SortedRow& a, const SortedRow& b) { return a.upperText < b.upperText; });

    VariationList list;
    list.rows.reserve(sorted.size());
    std::transform(sorted.begin(), sorted.end(), std::back_inserter(list.rows),
                   [](const SortedRow& row) { return row.row; });
    list.summary = Summary(record);
    return list;
}

} // namespace CommonRoutines
