// Reads any bytes as a data file, looks for duplicates in the file and in each of its districts, and compares
// what is found with a search that knows no short cuts.

#include "FuzzDesktop.h"
#include "Invariant.h"

#include "checks/CompleteCheck.h"
#include "core/State.h"
#include "edit/VariationList.h"
#include "file/CommentTypes.h"
#include "file/DistrictFileReader.h"
#include "rules/Duplicates.h"
#include "rules/SlowMatching.h"

using namespace CommonRoutines;

namespace {

struct Entry {
    std::string key;
    std::string text;
    std::int32_t district = 0;
    std::int32_t slot = 0;
};
using Entries = std::vector<Entry>;

void AddVariations(Entries& entries, std::int32_t district) {
    const DistrictRecord& record = RecordOf(district);
    for (std::int32_t slot = 1; slot <= record.lVariationCount; ++slot) {
        const std::string text = record.Variations[static_cast<std::size_t>(slot)].Text;
        entries.push_back({Ansi::Upper(Slow::SplitAtMarkers(text).base), text, district, slot});
    }
}

template <typename Found>
void ForEachPair(Entries& entries, Found found) {
    Slow::Sort(entries, 0, std::ssize(entries) - 1, [](const Entry& a, const Entry& b) { return a.key < b.key; });
    for (std::size_t i = 0; i + 1 < entries.size(); ++i) {
        const Entry& a = entries[i];
        const Entry& b = entries[i + 1];
        if (Slow::Same(a.text, b.text, a.district, b.district)) {
            found(a, b);
        }
    }
}

std::vector<std::string> SlowFindings() {
    Entries entries;
    for (std::int32_t district = 1; district <= lLineCount; ++district) {
        if (IsDistrict(district)) {
            const std::string name = Ansi::Upper(std::string(RecordOf(district).Name()));
            entries.push_back({name, name, district, 0});
            AddVariations(entries, district);
        }
    }
    std::vector<std::string> findings;
    ForEachPair(entries, [&](const Entry& a, const Entry& b) {
        const std::string name(RecordOf(a.district).Name());
        const std::string other(RecordOf(b.district).Name());
        findings.push_back(name == other ? name + " contains a duplicate variation - " + a.text
                                         : name + " and " + other + " both use the variation " + a.text);
    });
    return findings.empty() ? std::vector<std::string>{"No duplicates found"} : findings;
}

void CheckDistrict(std::int32_t district) {
    const DistrictRecord& record = RecordOf(district);
    Entries entries;
    AddVariations(entries, district);
    EmptyDupePairs();
    const bool any = FindDuplicateVariations(district);
    std::vector<bool> isDuplicate(entries.size() + 1);
    std::int32_t pairs = 0;
    ForEachPair(entries, [&](const Entry& a, const Entry& b) {
        ++pairs;
        const DupePair& pair = DupePairs[static_cast<std::size_t>(pairs)];
        Demand(pair.first == a.text && pair.second == b.text);
        isDuplicate[static_cast<std::size_t>(a.slot)] = isDuplicate[static_cast<std::size_t>(b.slot)] = true;
    });
    Demand(any == (pairs > 0) && record.iDuplicateCount == pairs && lDupePairCount == pairs);
    for (std::size_t slot = 1; slot < isDuplicate.size(); ++slot) {
        const VariationRecord& variation = record.Variations[slot];
        Demand(variation.bDuplicate == isDuplicate[slot]);
        Demand(!variation.bDuplicate ||
               (variation.lDuplicateOf >= 1 && variation.lDuplicateOf <= record.lVariationCount));
    }
    for (const VariationRow& row : ListVariations(district).rows) {
        Demand(row.slot >= 1 && row.slot <= record.lVariationCount);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    ResetState();
    CommentTypes.Reset();
    FuzzDesktop desktop({reinterpret_cast<const char*>(data), size}, "");
    ReadDistrictFile(desktop);
    const std::vector<std::string> findings = CompleteVariationCheck(desktop).items.All();
    Demand(findings == SlowFindings());
    Demand(findings == CompleteVariationCheck(desktop).items.All());
    for (std::int32_t district = 1; district <= lLineCount; ++district) {
        if (IsDistrict(district)) {
            CheckDistrict(district);
        }
    }
    return 0;
}
