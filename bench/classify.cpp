// Measures one keystroke of an add in a district of 10,000 variations, the slowest thing that typing
// does, next to one pass of upper-casing the same texts, without which no comparison could be made.

#include "core/Ansi.h"
#include "core/State.h"
#include "edit/EditPanel.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

using namespace CommonRoutines;

namespace {

constexpr std::size_t VariationCount = 10'000;

// Names of the lengths and with the markers that data files have, no two of them alike.
std::string VariationText(std::size_t number) {
    static const std::vector<std::string> prefixes{"", "!", "%", "", "!%"};
    static const std::vector<std::string> names{"Upper Smithton", "St Mary-le-Strand", "Ashby", "Caf\xE9 Oakham"};
    static const std::vector<std::string> suffixes{"", "", "%12", "", "", "", "%7b"};
    return prefixes[number % prefixes.size()] + names[number % names.size()] + ' ' + std::to_string(number) +
           suffixes[number % suffixes.size()];
}

void FillDistrict() {
    ResetState();
    DistrictRecord district;
    district.Name = "North";
    district.Founded = 1837;
    district.Abolished = NoYear;
    district.Variations.resize(VariationCount + 1);
    for (std::size_t i = 1; i <= VariationCount; ++i) {
        district.Variations[i].Text = std::string_view(VariationText(i));
    }
    district.lVariationCount = VariationCount;
    Districts.resize(1);
    Districts.push_back(std::move(district));
    lLineCount = 1;
    lCurrentDistrict = 1;
    iEditMode = AddingAcceptable;
}

void FollowingAText(benchmark::State& state) {
    FillDistrict();
    const std::string text = "Upper Smithton of the North"; // new, so every variation is looked at
    for (auto _ : state) {
        TextChange change = FollowText(text);
        if (change.editMode != AddingAcceptable) {
            state.SkipWithError("the text is not new");
        }
        benchmark::DoNotOptimize(change);
    }
}

void UpperCasingTheDistrict(benchmark::State& state) {
    FillDistrict();
    for (auto _ : state) {
        for (const VariationRecord& variation : Districts[1].Variations) {
            std::string upper = Ansi::Upper(variation.Text);
            benchmark::DoNotOptimize(upper);
        }
    }
}

BENCHMARK(FollowingAText)->Unit(benchmark::kMicrosecond);
BENCHMARK(UpperCasingTheDistrict)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
