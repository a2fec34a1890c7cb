#pragma once

#include "core/Ansi.h"
#include "core/State.h"
#include "edit/Variations.h"
#include "find/Finder.h"
#include "rules/Matching.h"
#include "support/Reading.h"
#include "support/Table.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

// What a search has to find, by looking at one text after the other.
namespace PlainFind {

inline bool Holds(std::string_view text, std::string_view sought) {
    return Ansi::Upper(text).find(Ansi::Upper(sought)) != std::string::npos;
}

// Two districts that are there for the comparison alone: of different volumes, and of the same years.
inline bool SameElsewhere(std::string_view a, std::string_view b) {
    const auto line = static_cast<std::int32_t>(CommonRoutines::Districts.size());
    CommonRoutines::DistrictRecord always;
    always.Founded = 0;
    always.Abolished = 9999;
    CommonRoutines::Districts.push_back(always);
    CommonRoutines::Districts.push_back(always);
    const bool isSame = CommonRoutines::SameVariation(a, b, line, line + 1);
    CommonRoutines::Districts.resize(CommonRoutines::Districts.size() - 2);
    return isSame;
}

inline bool Matches(std::string_view text, std::string_view sought, CommonRoutines::FindBy by) {
    return by == CommonRoutines::FindBy::Part ? Holds(text, sought) : SameElsewhere(text, sought);
}

inline bool HasDistrictBelow(std::int32_t line) {
    while (line <= CommonRoutines::lLineCount && CommonRoutines::RecordOf(line).bRetained) {
        ++line;
    }
    return line <= CommonRoutines::lLineCount;
}

inline bool CommentHolds(std::int32_t line, std::string_view sought) {
    const std::string text(CommonRoutines::RecordOf(line).Name());
    const auto marker = Ansi::UpperAscii(text).find("#QX_");
    return marker != std::string::npos && HasDistrictBelow(line) && Holds(text.substr(marker + 4), sought);
}

inline std::vector<CommonRoutines::Hit> Find(const std::string& sought, CommonRoutines::FindBy by) {
    using namespace CommonRoutines;
    std::vector<Hit> districts;
    std::vector<Hit> variations;
    std::vector<Hit> comments;
    for (std::int32_t line = 1; !sought.empty() && line <= lLineCount; ++line) {
        const bool isByPart = by == FindBy::Part;
        if (!IsDistrict(line)) {
            if (isByPart && CommentHolds(line, sought)) {
                comments.push_back({HitKind::Comment, line, 0});
            }
            continue;
        }
        const std::string name(RecordOf(line).Name());
        if (Matches(name, sought, by) ||
            (isByPart && (Holds(RecordOf(line).Volume(), sought) || Holds(RecordOf(line).County(), sought)))) {
            districts.push_back({HitKind::District, line, 0});
        }
        for (std::int32_t slot = 1; slot <= RecordOf(line).lVariationCount; ++slot) {
            const std::string text = VariationOf(line, slot).Text;
            if (text != DeletedText && Matches(text, sought, by)) {
                variations.push_back({HitKind::Variation, line, slot});
            }
        }
    }
    districts.insert(districts.end(), variations.begin(), variations.end());
    districts.insert(districts.end(), comments.begin(), comments.end());
    return districts;
}

inline std::vector<CommonRoutines::Hit> AllOf(const CommonRoutines::Hits& hits) {
    std::vector<CommonRoutines::Hit> all;
    for (std::size_t row = 0; row < hits.Count(); ++row) {
        all.push_back(hits.At(row));
    }
    return all;
}

} // namespace PlainFind

// As the tests' messages show it.
namespace CommonRoutines {
inline std::ostream& operator<<(std::ostream& out, const Hit& hit) {
    return out << "kind " << static_cast<int>(hit.kind) << " line " << hit.line << " slot " << hit.slot;
}
} // namespace CommonRoutines
