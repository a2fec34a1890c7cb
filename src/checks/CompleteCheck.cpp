#include "checks/CompleteCheck.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "rules/Duplicates.h"
#include "rules/Markers.h"
#include "rules/Matching.h"

namespace CommonRoutines {

namespace {

// Adds the district's name and all its slots to the keys.
void AddKeys(std::int32_t lDistrict, std::vector<VariationKey>& keys) {
    const DistrictRecord& record = RecordOf(lDistrict);
    VariationKey name;
    name.Text = Ansi::Upper(record.Name);
    name.Key = name.Text;
    name.DistrictName = record.Name;
    name.lDistrict = lDistrict;
    name.bIsName = true;
    keys.push_back(std::move(name));
    for (std::int32_t k = 1; k <= record.lVariationCount; ++k) {
        VariationKey key;
        key.Text = record.Variations[static_cast<std::size_t>(k)].Text;
        key.Key = Ansi::Upper(StripMarkers(key.Text));
        key.DistrictName = record.Name;
        key.lIndex = k;
        key.lDistrict = lDistrict;
        keys.push_back(std::move(key));
    }
}

std::string Finding(const VariationKey& key, const VariationKey& next) {
    if (key.DistrictName == next.DistrictName) {
        return key.DistrictName + " contains a duplicate variation - " + key.Text;
    }
    return key.DistrictName + " and " + next.DistrictName + " both use the variation " + key.Text;
}

} // namespace

Report CompleteVariationCheck() {
    std::vector<VariationKey> keys(1); // element 0 is never used
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        if (IsDistrict(i)) {
            AddKeys(i, keys);
        }
    }
    SortVariationKeys(keys, 1, static_cast<std::int32_t>(std::ssize(keys)) - 1);
    Report report;
    for (std::size_t j = 1; j + 1 < keys.size(); ++j) {
        const VariationKey& key = keys[j];
        const VariationKey& next = keys[j + 1];
        if (SameVariation(key.Text, next.Text, key.lDistrict, next.lDistrict)) {
            report.Items.push_back(Finding(key, next));
        }
    }
    if (report.Items.empty()) {
        report.Items.emplace_back("No duplicates found");
    }
    return report;
}

} // namespace CommonRoutines
