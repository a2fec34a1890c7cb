#include "checks/CompleteCheck.h"

#include "core/State.h"
#include "rules/VariationKeys.h"

#include <vector>

namespace CommonRoutines {

namespace {

// The names and all slots of all districts, sorted, behind an element that is never used.
std::vector<VariationKey> SortedKeys() {
    std::size_t count = 1;
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        count += IsDistrict(i) ? static_cast<std::size_t>(RecordOf(i).lVariationCount) + 1 : 0;
    }
    std::vector<VariationKey> keys(1);
    keys.reserve(count);
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        if (!IsDistrict(i)) {
            continue;
        }
        keys.push_back(KeyOfName(i));
        for (std::int32_t k = 1; k <= RecordOf(i).lVariationCount; ++k) {
            keys.push_back(KeyOfVariation(i, k));
        }
    }
    SortVariationKeys(keys, 1, static_cast<std::int32_t>(std::ssize(keys)) - 1);
    return keys;
}

std::string Finding(const VariationKey& key, const VariationKey& next) {
    const std::string name(key.DistrictName());
    if (name == next.DistrictName()) {
        return name + " contains a duplicate variation - " + key.Text();
    }
    return name + " and " + std::string(next.DistrictName()) + " both use the variation " + key.Text();
}

} // namespace

Report CompleteVariationCheck() {
    const std::vector<VariationKey> keys = SortedKeys();
    Report report;
    for (std::size_t j = 1; j + 1 < keys.size(); ++j) {
        if (SameSpelling(keys[j], keys[j + 1])) {
            report.Items.push_back(Finding(keys[j], keys[j + 1]));
        }
    }
    if (report.Items.empty()) {
        report.Items.emplace_back("No duplicates found");
    }
    return report;
}

} // namespace CommonRoutines
