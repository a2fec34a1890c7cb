#include "checks/CompleteCheck.h"

#include "core/Desktop.h"
#include "core/Progress.h"
#include "core/State.h"
#include "rules/VariationKeys.h"

#include <array>
#include <memory>
#include <vector>

namespace CommonRoutines {

namespace {

std::size_t KeyCount() {
    std::size_t count = 0;
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        count += IsDistrict(i) ? static_cast<std::size_t>(RecordOf(i).lVariationCount) + 1 : 0;
    }
    return count;
}

// The names and all slots of all districts, sorted, behind an element that is never used.
std::vector<VariationKey> SortedKeys(std::size_t count, Progress& progress) {
    std::vector<VariationKey> keys(1);
    keys.reserve(count + 1);
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        if (!IsDistrict(i)) {
            continue;
        }
        keys.push_back(KeyOfName(i));
        for (std::int32_t k = 1; k <= RecordOf(i).lVariationCount; ++k) {
            keys.push_back(KeyOfVariation(i, k));
        }
        progress.Advance(static_cast<std::size_t>(RecordOf(i).lVariationCount) + 1);
    }
    SortVariationKeys(keys, 1, static_cast<std::int32_t>(std::ssize(keys)) - 1, progress);
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

Report CompleteVariationCheck(Desktop& desktop) {
    desktop.ShowBusy(true);
    const std::size_t count = KeyCount();
    // Every key is made, gets its place and is compared with the next one.
    Progress progress(desktop, "Looking for duplicates", 3 * count);
    const std::vector<VariationKey> keys = SortedKeys(count, progress);
    std::vector<std::array<VariationKey, 2>> equal;
    for (std::size_t j = 1; j + 1 < keys.size(); ++j) {
        if (SameSpelling(keys[j], keys[j + 1])) {
            equal.push_back({keys[j], keys[j + 1]});
        }
        progress.Advance(1);
    }
    desktop.ShowBusy(false);
    if (equal.empty()) {
        return {"Duplicate Check", {"No duplicates found"}};
    }
    const auto found = std::make_shared<const std::vector<std::array<VariationKey, 2>>>(std::move(equal));
    const auto line = [found](std::size_t place) {
        const auto& [key, next] = (*found)[place];
        return Finding(key, next);
    };
    const auto placeOf = [found](std::size_t place) {
        const VariationKey& key = (*found)[place].front();
        return ReportPlace{key.lDistrict, key.lIndex};
    };
    return {"Duplicate Check", {found->size(), line}, true, placeOf};
}

} // namespace CommonRoutines
