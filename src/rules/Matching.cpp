#include "rules/Matching.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "rules/Markers.h"
#include "rules/Spelling.h"
#include "rules/SpellingIndex.h"

namespace CommonRoutines {

namespace {

constexpr auto None = std::string_view::npos;
constexpr std::int32_t NameSlot = 0;

// Whether the years of the two districts overlap. Where one begins in the year that the other ends,
// the quarters decide; only one of the two such cases is looked at, also when both hold.
bool LifetimesOverlap(const DistrictRecord& a, const DistrictRecord& b) {
    if (b.Founded > a.Abolished || a.Founded > b.Abolished) {
        return false;
    }
    if (a.Founded == b.Abolished) {
        return a.QtrF <= b.QtrA;
    }
    if (b.Founded == a.Abolished) {
        return b.QtrF <= a.QtrA;
    }
    return true;
}

// Whether two spellings are the same as far as their districts do not matter.
bool MayBeSame(const Spelling& a, const Spelling& b) {
    if (a.IsDeleted() || b.IsDeleted()) {
        return false;
    }
    if (!Ansi::EqualIgnoringCase(a.base, b.base)) {
        return false;
    }
    if (a.suffix != b.suffix && !a.suffix.empty() && !b.suffix.empty()) {
        return false;
    }
    return a.hasDate == b.hasDate;
}

// Whether two spellings of different districts name the same volume, where one of them names any.
bool VolumesAgree(const Spelling& a, const Spelling& b) {
    return (!a.hasVolume && !b.hasVolume) || a.suffix == b.suffix;
}

} // namespace

Spelling::Spelling(std::string_view variation) {
    const MarkerParts parts = SplitMarkers(variation);
    base = Ansi::Trim(parts.base);
    suffix = Ansi::Trim(parts.suffix);
    hasDate = parts.prefix.find('%') != None;
    hasVolume = suffix.find('%') != None;
}

bool Spelling::IsDeleted() const {
    return base == DeletedText;
}

bool SameSpelling(const Spelling& a, const Spelling& b, std::int32_t districtA, std::int32_t districtB) {
    if (!MayBeSame(a, b)) {
        return false;
    }
    if (a.hasDate && !LifetimesOverlap(RecordOf(districtA), RecordOf(districtB))) {
        return false;
    }
    return districtA == districtB || VolumesAgree(a, b);
}

bool SameSpellingElsewhere(const Spelling& a, const Spelling& b) {
    return MayBeSame(a, b) && VolumesAgree(a, b);
}

bool SameVariation(std::string_view a, std::string_view b, std::int32_t districtA, std::int32_t districtB) {
    StripMarkers(b); // the markers of the second text stay in the shared state
    return SameSpelling(Spelling(a), Spelling(b), districtA, districtB);
}

std::optional<std::int32_t> FindSpelling(std::int32_t lDistrict, std::string_view v) {
    const Spelling sought(v);
    if (const std::int32_t slot = SpellingsOf(lDistrict).Find(sought); slot > 0) {
        return slot;
    }
    const Spelling name(RecordOf(lDistrict).Name());
    return SameSpelling(sought, name, lDistrict, lDistrict) ? std::optional(NameSlot) : std::nullopt;
}

std::optional<std::string_view> RepeatedText(std::int32_t lDistrict, std::string_view v) {
    const auto slot = FindSpelling(lDistrict, v);
    if (!slot) {
        return std::nullopt;
    }
    const DistrictRecord& district = RecordOf(lDistrict);
    return *slot == NameSlot ? district.Name() : district.Variations[static_cast<std::size_t>(*slot)].Text.View();
}

bool FindVariationInDistrict(std::string_view v) {
    const auto slot = FindSpelling(lCurrentDistrict, v);
    const bool isVariation = slot.value_or(NameSlot) != NameSlot;
    if (isVariation) {
        lFoundVariation = *slot;
    }
    // Past the variations, the name was the last text to be split.
    StripMarkers(isVariation ? v : RecordOf(lCurrentDistrict).Name());
    return slot.has_value();
}

} // namespace CommonRoutines
