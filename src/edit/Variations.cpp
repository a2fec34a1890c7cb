#include "edit/Variations.h"

#include "core/State.h"
#include "recovery/UnsavedChanges.h"
#include "rules/SpellingIndex.h"

namespace CommonRoutines {

namespace {

void PutText(std::int32_t lDistrict, std::int32_t slot, std::string_view text) {
    Ansi::String& stored = VariationOf(lDistrict, slot).Text;
    const Ansi::String before = stored;
    stored = text;
    SpellingChanged(lDistrict, slot, before, stored);
}

} // namespace

VariationRecord& VariationOf(std::int32_t lDistrict, std::int32_t slot) {
    return RecordOf(lDistrict).Variations[static_cast<std::size_t>(slot)];
}

std::int32_t FirstSlotWith(std::int32_t lDistrict, std::string_view text) {
    for (std::int32_t slot = 1; slot <= RecordOf(lDistrict).lVariationCount; ++slot) {
        if (VariationOf(lDistrict, slot).Text == text) {
            return slot;
        }
    }
    return 0;
}

void StoreText(std::int32_t lDistrict, std::int32_t slot, std::string_view text) {
    if (VariationOf(lDistrict, slot).Text != text) {
        Unsaved.Note(lDistrict, slot, text);
        PutText(lDistrict, slot, text);
    }
}

std::int32_t AddSlot(std::int32_t lDistrict, std::string_view text, std::int32_t spare) {
    DistrictRecord& district = RecordOf(lDistrict);
    const std::int32_t slot = district.lVariationCount + 1;
    if (slot >= std::ssize(district.Variations)) {
        district.Variations.resize(static_cast<std::size_t>(slot) + 1 + static_cast<std::size_t>(spare));
    }
    VariationOf(lDistrict, slot) = {}; // one left from before may hold anything
    Unsaved.Note(lDistrict, slot, text);
    PutText(lDistrict, slot, text);
    district.lVariationCount = slot; // last, in case that there is not enough memory
    return slot;
}

} // namespace CommonRoutines
