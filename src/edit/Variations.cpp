#include "edit/Variations.h"

#include "core/State.h"
#include "recovery/UnsavedChanges.h"
#include "rules/SpellingIndex.h"

namespace CommonRoutines {

namespace {

void PutText(std::int32_t slot, std::string_view text) {
    Ansi::String& stored = VariationInCurrentDistrict(slot).Text;
    const Ansi::String before = stored;
    stored = text;
    SpellingChanged(lCurrentDistrict, slot, before, stored);
}

} // namespace

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

void StoreText(std::int32_t slot, std::string_view text) {
    if (VariationInCurrentDistrict(slot).Text != text) {
        Unsaved.Note(lCurrentDistrict, slot, text);
        PutText(slot, text);
    }
}

std::int32_t AddSlot(std::string_view text, std::int32_t spare) {
    DistrictRecord& district = CurrentDistrict();
    const std::int32_t slot = district.lVariationCount + 1;
    if (slot >= std::ssize(district.Variations)) {
        district.Variations.resize(static_cast<std::size_t>(slot) + 1 + static_cast<std::size_t>(spare));
    }
    VariationInCurrentDistrict(slot) = {}; // one left from before may hold anything
    Unsaved.Note(lCurrentDistrict, slot, text);
    PutText(slot, text);
    district.lVariationCount = slot; // last, in case that there is not enough memory
    return slot;
}

} // namespace CommonRoutines
