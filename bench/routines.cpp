// Measures the routines behind every variation that is read, checked or typed, next to two things that
// cannot be done without: copying the same texts, and upper-casing them. A change that goes on the disk is
// measured next to a bare file that grows by as many bytes.

#include "DistrictFile.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "driver/AnsweringDesktop.h"
#include "driver/OffscreenPlatform.h"
#include "driver/UserPlaces.h"
#include "edit/EditPanel.h"
#include "file/DistrictFileReader.h"
#include "recovery/RecoveryFile.h"
#include "recovery/UnsavedChanges.h"
#include "rules/Capitals.h"
#include "rules/Duplicates.h"
#include "rules/Markers.h"
#include "rules/Matching.h"
#include "rules/Validation.h"
#include "rules/VariationKeys.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

using namespace CommonRoutines;

namespace {

constexpr std::size_t DistrictCount = 2'000;
constexpr std::size_t BigDistrict = 10'000; // variations

// A file like those of users, with one district that is far bigger than theirs, is read once.
class Data {
public:
    Data() {
        BenchData::FilePlan plan;
        plan.districts = DistrictCount;
        plan.big = BigDistrict;
        const QTemporaryDir folder;
        sDataFileName = folder.filePath(QStringLiteral("generated.txt")).toStdString();
        std::ofstream out(sDataFileName, std::ios::binary);
        static_cast<void>(BenchData::WriteDistrictFile(plan, out));
        out.close();
        Ui::AnsweringDesktop desktop;
        LoadLowerCaseWords(desktop);
        iEditMode = NothingOpen;
        ReadDistrictFile(desktop);
        for (std::int32_t i = 1; i <= lLineCount; ++i) {
            AddTexts(i);
        }
    }

    std::vector<std::string> texts; // of all variations
    std::vector<std::string> keys;  // in capitals, without markers
    std::int32_t bigDistrict = 0;

private:
    void AddTexts(std::int32_t line) {
        const DistrictRecord& record = RecordOf(line);
        if (record.lVariationCount == static_cast<std::int32_t>(BigDistrict)) {
            bigDistrict = line;
        }
        for (std::size_t k = 1; k <= static_cast<std::size_t>(record.lVariationCount); ++k) {
            const std::string_view text = record.Variations[k].Text;
            texts.emplace_back(text);
            keys.push_back(Ansi::Upper(SplitMarkers(text).base));
        }
    }
};

const Data& TheData() {
    static const Data data;
    return data;
}

// Carries `routine` out for every text of the file, and counts texts instead of rounds.
template <typename Routine>
void ForEachText(benchmark::State& state, Routine routine) {
    const std::vector<std::string>& texts = TheData().texts;
    for (auto _ : state) {
        for (const std::string& text : texts) {
            auto result = routine(text);
            benchmark::DoNotOptimize(result);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(texts.size()));
}

void CopyingTheTexts(benchmark::State& state) {
    std::vector<char> buffer(1'000);
    ForEachText(state, [&](const std::string& text) {
        std::memcpy(buffer.data(), text.data(), std::min(text.size(), buffer.size()));
        benchmark::ClobberMemory();
        return buffer.data();
    });
}

void UpperCasingTheTexts(benchmark::State& state) {
    ForEachText(state, [](std::string_view text) { return Ansi::Upper(text); });
}

void SplittingMarkers(benchmark::State& state) {
    ForEachText(state, [](std::string_view text) { return SplitMarkers(text); });
}

void Validating(benchmark::State& state) {
    ForEachText(state, [](std::string_view text) { return ValidateVariation(text, 1); });
}

void CheckingCapitals(benchmark::State& state) {
    ForEachText(state, [](std::string_view text) { return HasUnusualCapitals(text); });
}

void MatchingNeighbours(benchmark::State& state) {
    std::string_view before;
    ForEachText(state, [&](std::string_view text) {
        const bool same = SameVariation(before, text, 1, 1);
        before = text;
        return same;
    });
}

void UpperCasingTheBigDistrict(benchmark::State& state) {
    const DistrictRecord& district = RecordOf(TheData().bigDistrict);
    for (auto _ : state) {
        for (const VariationRecord& variation : district.Variations) {
            std::string upper = Ansi::Upper(variation.Text);
            benchmark::DoNotOptimize(upper);
        }
    }
}

// The keystroke of an add: the text is new, so every variation is looked at.
void FollowingAText(benchmark::State& state) {
    constexpr std::string_view text = "Upper Smithton of the North";
    lCurrentDistrict = TheData().bigDistrict;
    for (auto _ : state) {
        iEditMode = AddingAcceptable;
        TextChange change = FollowText(text);
        if (change.editMode != AddingAcceptable) {
            state.SkipWithError("the text is not new");
        }
        benchmark::DoNotOptimize(change);
    }
}

void FindingDuplicatesInTheBigDistrict(benchmark::State& state) {
    const std::int32_t district = TheData().bigDistrict;
    for (auto _ : state) {
        bool found = FindDuplicateVariations(district, false);
        benchmark::DoNotOptimize(found);
    }
}

std::vector<VariationKey> UnsortedKeys() {
    static_cast<void>(TheData());
    std::vector<VariationKey> keys(1); // element 0 is never used
    for (std::int32_t district = 1; district <= lLineCount; ++district) {
        for (std::int32_t i = 1; IsDistrict(district) && i <= RecordOf(district).lVariationCount; ++i) {
            keys.push_back(KeyOfVariation(district, i));
        }
    }
    return keys;
}

void SortingKeys(benchmark::State& state) {
    const std::vector<VariationKey> unsorted = UnsortedKeys();
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<VariationKey> keys = unsorted;
        state.ResumeTiming();
        SortVariationKeys(keys, 1, static_cast<std::int32_t>(std::ssize(keys)) - 1);
        benchmark::DoNotOptimize(keys.data());
    }
}

// What a sort of the standard library takes for the bare keys.
void SortingTexts(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<std::string> keys = TheData().keys;
        state.ResumeTiming();
        std::sort(keys.begin(), keys.end());
        benchmark::DoNotOptimize(keys.data());
    }
}

void WritingAnUnsavedChange(benchmark::State& state) {
    Ui::AnsweringDesktop desktop;
    UnsavedChanges changes;
    changes.Begin(desktop, "/data/districts.txt", FingerprintOf("bytes"), Numbering::AsRead);
    Districts.resize(4'712);
    RecordOf(4'711).lVariationCount = 12;
    for ([[maybe_unused]] const auto round : state) {
        changes.Note(4'711, 12, "Ashby de la Zouch");
        changes.Write(desktop);
    }
    changes.Remove(desktop);
}

// What no way of keeping a change could do without.
void GrowingABareFile(benchmark::State& state) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("bare")));
    RecoveryRecords one({}, Encoding::Windows1252);
    const std::size_t header = one.Content().size();
    one.AddChange({4'711, 12, "Ashby de la Zouch", {}});
    const std::string record = one.Content().substr(header);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        state.SkipWithError("no file");
    }
    for ([[maybe_unused]] const auto round : state) {
        file.write(record.data(), static_cast<qint64>(record.size()));
        fdatasync(file.handle());
    }
}

BENCHMARK(CopyingTheTexts)->Unit(benchmark::kMicrosecond);
BENCHMARK(UpperCasingTheTexts)->Unit(benchmark::kMicrosecond);
BENCHMARK(SplittingMarkers)->Unit(benchmark::kMicrosecond);
BENCHMARK(Validating)->Unit(benchmark::kMicrosecond);
BENCHMARK(CheckingCapitals)->Unit(benchmark::kMicrosecond);
BENCHMARK(MatchingNeighbours)->Unit(benchmark::kMicrosecond);
BENCHMARK(SortingTexts)->Unit(benchmark::kMicrosecond);
BENCHMARK(SortingKeys)->Unit(benchmark::kMicrosecond);
BENCHMARK(UpperCasingTheBigDistrict)->Unit(benchmark::kMicrosecond);
BENCHMARK(FollowingAText)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindingDuplicatesInTheBigDistrict)->Unit(benchmark::kMicrosecond);
BENCHMARK(GrowingABareFile)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(WritingAnUnsavedChange)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char* argv[]) {
    UseOffscreenPlatform(); // the desktop asks for its windows when it is busy
    const UserPlaces places;
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
