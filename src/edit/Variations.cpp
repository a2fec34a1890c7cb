#include "edit/Variations.h"

#include "core/State.h"
#include "recovery/UnsavedChanges.h"
#include "rules/SpellingIndex.h"

#include <utility>

namespace CommonRoutines {

namespace {

void PutText(std::int32_t lDistrict, std::int32_t slot, std::string_view text) {
    Ansi::String& stored = VariationOf(lDistrict, slot).Text;
    const Ansi::String before = std::exchange(stored, Ansi::String(text));
    SpellingChanged(lDistrict, slot, before, stored);
    ++lTextChanges;
}

// An empty slot behind the last one, which does not count yet.
std::int32_t NextSlot(std::int32_t lDistrict, std::size_t spare) {
    DistrictRecord& district = RecordOf(lDistrict);
    const std::int32_t slot = district.lVariationCount + 1;
    if (slot >= std::ssize(district.Variations)) {
        district.Variations.Grow(static_cast<std::size_t>(slot) + 1 + spare);
    }
    VariationOf(lDistrict, slot) = {}; // one left from before may hold anything
    return slot;
}

void PutIntoNextSlot(std::int32_t lDistrict, std::int32_t slot, std::string_view text) {
    PutText(lDistrict, slot, text);
    RecordOf(lDistrict).lVariationCount = slot; // last, in case that there is not enough memory
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
    const std::int32_t slot = NextSlot(lDistrict, static_cast<std::size_t>(spare));
    Unsaved.Note(lDistrict, slot, text);
    PutIntoNextSlot(lDistrict, slot, text);
    return slot;
}

void RestoreSlots(std::int32_t lDistrict, std::span<const std::string_view> texts) {
    const auto count = static_cast<std::size_t>(RecordOf(lDistrict).lVariationCount);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i < count) {
            PutText(lDistrict, static_cast<std::int32_t>(i) + 1, texts[i]);
        } else {
            PutIntoNextSlot(lDistrict, NextSlot(lDistrict, texts.size() - i), texts[i]);
        }
    }
}

} // namespace CommonRoutines
