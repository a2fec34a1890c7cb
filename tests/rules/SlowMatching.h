#pragma once

// The comparison of variations and the sort of their keys once more, step by step and on copies.

#include "core/State.h"
#include "rules/SlowRules.h"

#include <string>
#include <vector>

namespace Slow {

inline bool Overlap(const CommonRoutines::DistrictRecord& a, const CommonRoutines::DistrictRecord& b) {
    if (b.Founded > a.Abolished) {
        return false;
    }
    if (a.Founded > b.Abolished) {
        return false;
    }
    if (a.Founded == b.Abolished) {
        if (a.QtrF > b.QtrA) {
            return false;
        }
    } else if (b.Founded == a.Abolished) {
        if (b.QtrF > a.QtrA) {
            return false;
        }
    }
    return true;
}

inline bool Same(const std::string& a, const std::string& b, std::int32_t districtA, std::int32_t districtB) {
    const Split first = SplitAtMarkers(a);
    const Split second = SplitAtMarkers(b);
    const std::string firstBase = Trimmed(first.base);
    const std::string secondBase = Trimmed(second.base);
    if (firstBase == "\t" || secondBase == "\t" || Ansi::Upper(firstBase) != Ansi::Upper(secondBase)) {
        return false;
    }
    const std::string firstSuffix = Trimmed(first.suffix);
    const std::string secondSuffix = Trimmed(second.suffix);
    const bool oneIsEmpty = firstSuffix.empty() != secondSuffix.empty();
    if (firstSuffix != secondSuffix && !oneIsEmpty) {
        return false;
    }
    const bool firstDate = InStr(first.prefix, "%") > 0;
    const bool secondDate = InStr(second.prefix, "%") > 0;
    if (firstDate != secondDate) {
        return false;
    }
    if (firstDate && secondDate && !Overlap(CommonRoutines::RecordOf(districtA), CommonRoutines::RecordOf(districtB))) {
        return false;
    }
    const bool someVolume = InStr(firstSuffix, "%") > 0 || InStr(secondSuffix, "%") > 0;
    return !(someVolume && districtA != districtB && firstSuffix != secondSuffix);
}

// Sorts a[lo..hi] by quicksort, both parts by recursion, the lower one first.
template <typename Element, typename Less>
void Sort(std::vector<Element>& a, std::ptrdiff_t lo, std::ptrdiff_t hi, Less less) {
    if (hi <= lo) {
        return;
    }
    const auto at = [&](std::ptrdiff_t index) -> Element& { return a[static_cast<std::size_t>(index)]; };
    const Element pivot = at((lo + hi) / 2);
    std::ptrdiff_t i = lo;
    std::ptrdiff_t j = hi;
    while (i <= j) {
        while (less(at(i), pivot) && i != hi) {
            i += 1;
        }
        while (less(pivot, at(j)) && j != lo) {
            j -= 1;
        }
        if (i > j) {
            break;
        }
        const Element held = at(i);
        at(i) = at(j);
        at(j) = held;
        i += 1;
        j -= 1;
    }
    if (lo < j) {
        Sort(a, lo, j, less);
        if (i < hi) {
            Sort(a, i, hi, less);
        }
    } else if (i < hi) {
        Sort(a, i, hi, less);
    }
}

// Texts that share their beginnings, also beyond what a sort key holds of them, with markers around
// them and blanks and NULs among them.
inline std::string SimilarText(std::mt19937& random) {
    static const std::string beginning = "Stoke-upon-the-Marsh-by-Upper-Wendle";
    const std::size_t length = random() % 3 == 0 ? beginning.size() : random() % beginning.size();
    std::string text = beginning.substr(0, length) + RandomText(random, std::string_view("aAbB \0\xE9\xC9", 8), 3);
    if (random() % 4 == 0) {
        text = Ansi::Upper(text);
    }
    constexpr const char* prefixes[] = {"", "", "!", "%", "!%", "! "};
    constexpr const char* suffixes[] = {"", "", "", "%12", "%13", " ", "!", " %12"};
    return prefixes[random() % std::size(prefixes)] + text + suffixes[random() % std::size(suffixes)];
}

} // namespace Slow
