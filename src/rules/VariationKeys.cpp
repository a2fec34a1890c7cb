#include "rules/VariationKeys.h"

#include "core/Ansi.h"
#include "core/Progress.h"
#include "core/State.h"
#include "rules/Markers.h"
#include "rules/MiddlePivotSort.h"
#include "rules/Spelling.h"

#include <span>

namespace CommonRoutines {

namespace {

std::string_view VariationText(std::int32_t lDistrict, std::int32_t lIndex) {
    return RecordOf(lDistrict).Variations[static_cast<std::size_t>(lIndex)].Text;
}

// VariationKey::Text without copying a variation. `upper` is to hold the other texts.
std::string_view TextOf(const VariationKey& key, std::string& upper) {
    if (!key.bIsName()) {
        return VariationText(key.lDistrict, key.lIndex);
    }
    upper = key.Text();
    return upper;
}

// The text whose upper-case form is sorted by.
std::string_view KeyText(const VariationKey& key) {
    return key.bIsName() ? key.DistrictName() : SplitMarkers(VariationText(key.lDistrict, key.lIndex)).base;
}

// Blanks behind a base name and the markers around a district's name stand in a key although they do
// not count. Keys that first differ in anything else are different spellings whatever follows; this
// spares a look at the texts of nearly all neighbours.
bool CannotBeSame(const VariationKey& a, const VariationKey& b) {
    if (a.Key == b.Key) {
        return false;
    }
    const auto overlooked = [](char c) { return c == ' ' || c == '!' || c == '%'; };
    const auto certain = [](char c) { return static_cast<unsigned char>(c) > '%'; }; // not the end of a text either
    const auto [ofA, ofB] = Ansi::UpperPrefix::FirstDifference(a.Key, b.Key);
    return (certain(ofA) || certain(ofB)) && !overlooked(ofA) && !overlooked(ofB);
}

} // namespace

std::string VariationKey::Text() const {
    return bIsName() ? Ansi::Upper(DistrictName()) : std::string(VariationText(lDistrict, lIndex));
}

std::string_view VariationKey::DistrictName() const {
    return RecordOf(lDistrict).Name();
}

VariationKey KeyOfVariation(std::int32_t lDistrict, std::int32_t lIndex) {
    return {Ansi::UpperPrefix(SplitMarkers(VariationText(lDistrict, lIndex)).base), lIndex, lDistrict};
}

VariationKey KeyOfName(std::int32_t lDistrict) {
    return {Ansi::UpperPrefix(RecordOf(lDistrict).Name()), 0, lDistrict};
}

bool KeyPrecedes(const VariationKey& a, const VariationKey& b) {
    const auto order = a.Key <=> b.Key;
    return order < 0 || (order == 0 && !a.Key.IsWhole() && Ansi::CompareUpper(KeyText(a), KeyText(b)) < 0);
}

bool SameSpelling(const VariationKey& a, const VariationKey& b) {
    if (CannotBeSame(a, b)) {
        return false;
    }
    std::string upperA;
    std::string upperB;
    return SameSpelling(Spelling(TextOf(a, upperA)), Spelling(TextOf(b, upperB)), a.lDistrict, b.lDistrict);
}

void SortVariationKeys(std::vector<VariationKey>& Keys, std::int32_t lLow, std::int32_t lHigh) {
    Progress untold;
    SortVariationKeys(Keys, lLow, lHigh, untold);
}

void SortVariationKeys(std::vector<VariationKey>& Keys, std::int32_t lLow, std::int32_t lHigh, Progress& progress) {
    if (lLow >= lHigh) {
        return;
    }
    const auto first = static_cast<std::size_t>(lLow);
    const auto count = static_cast<std::size_t>(lHigh - lLow) + 1;
    // A function of its own for each comparison would take longer than the comparison.
    const auto precedes = [](const VariationKey& a, const VariationKey& b) { return KeyPrecedes(a, b); };
    MiddlePivotSort::Sort(std::span(Keys).subspan(first, count), precedes,
                          [&](std::size_t placed) { progress.Advance(placed); });
}

} // namespace CommonRoutines
