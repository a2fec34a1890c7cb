#include "edit/Variations.h"

#include "core/State.h"

namespace CommonRoutines {

DistrictRecord& CurrentDistrict() {
    return RecordOf(lCurrentDistrict);
}

VariationRecord& VariationInCurrentDistrict(std::int32_t slot) {
    return CurrentDistrict().Variations[static_cast<std::size_t>(slot)];
}

std::int32_t FirstSlotWith(std::string_view text) {
    const DistrictRecord& district = CurrentDistrict();
    for (std::int32_t slot = 1; slot <= district.lVariationCount; ++slot) {
        if (district.Variations[static_cast<std::size_t>(slot)].Text == text) {
            return slot;
        }
    }
    return 0;
}

std::int32_t AddSlot(std::int32_t spare) {
    DistrictRecord& district = CurrentDistrict();
    ++district.lVariationCount;
    if (district.lVariationCount >= std::ssize(district.Variations)) {
        district.Variations.resize(static_cast<std::size_t>(district.lVariationCount) + 1 +
                                   static_cast<std::size_t>(spare));
    }
    // A slot left from before may hold anything.
    VariationInCurrentDistrict(district.lVariationCount) = {};
    return district.lVariationCount;
}

} // namespace CommonRoutines
