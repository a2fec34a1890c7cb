// Puts any two texts through everything that looks at a variation, and compares with the rules as they are
// written down for the tests.

#include "FuzzDesktop.h"
#include "Invariant.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "edit/EditPanel.h"
#include "edit/MarkerCommands.h"
#include "rules/Capitals.h"
#include "rules/Markers.h"
#include "rules/Matching.h"
#include "rules/SlowMatching.h"
#include "rules/SlowRules.h"
#include "rules/Validation.h"

using namespace CommonRoutines;

namespace {

void CheckMarkers(std::string_view text) {
    const MarkerParts parts = SplitMarkers(text);
    const Slow::Split slow = Slow::SplitAtMarkers(std::string(text));
    Demand(parts.base == slow.base && parts.prefix == slow.prefix && parts.suffix == slow.suffix);
    // Put together again, only blanks behind the front markers may be missing.
    const std::string_view trimmed = Ansi::Trim(text);
    const std::string_view rest = Ansi::TrimLeft(trimmed.substr(parts.prefix.size()));
    Demand(trimmed.starts_with(parts.prefix) && rest == std::string(parts.base).append(parts.suffix));
    Demand(StripMarkers(text) == parts.base && sMarkerPrefix == parts.prefix && sMarkerSuffix == parts.suffix);
    static_cast<void>(MarkerOptionsOf(text));
}

void CheckMarkerCommands(std::string_view text) {
    using enum MarkerCommand;
    for (const auto& [add, remove] : {std::pair(AddShriek, RemoveShriek), std::pair(AddDate, RemoveDate)}) {
        const std::string with = WithMarker(add, text);
        const std::string without = WithMarker(remove, text);
        Demand(WithMarker(add, with) == with);
        Demand(with == text || WithMarker(remove, with) == text);
        Demand(without == text || without.size() + 1 == text.size());
    }
}

// `slow` goes through the same texts, so that the state that it leaves is the same, too.
void CheckValidity(const std::string& text, Slow::Validation& slow) {
    bool null = false;
    slow.readingFile = iEditMode == NothingOpen;
    const bool valid = ValidateVariation(text, 1, &null);
    Demand(valid == slow.Check(text));
    Demand(null == slow.nullDistrict && sInvalidReason == slow.invalidReason);
    Demand(bWarning == slow.warning && sWarningReason == slow.warningReason);
    Demand(CheckQuestionMark(text) == Slow::PassesQuestionMark(text));
    slow.invalidReason = sInvalidReason;
    Demand(HasUnusualCapitals(text) == Slow::UnusualCapitals(text, {"of", "the"}));
}

void CheckMatching(const std::string& a, const std::string& b) {
    const bool same = SameVariation(a, b, 1, 2);
    Demand(same == Slow::Same(a, b, 1, 2));
    Demand(SameVariation(a, b, 1, 1) == Slow::Same(a, b, 1, 1));
    lCurrentDistrict = 1;
    lFoundVariation = 0;
    const bool found = FindVariationInDistrict(b);
    const bool isText = Slow::Same(a, b, 1, 1);
    Demand(found == (isText || Slow::Same(b, std::string(RecordOf(1).Name()), 1, 1)) &&
           lFoundVariation == (isText ? 1 : 0));
}

void CheckKeys(std::string_view text) {
    for (const std::size_t caret : {std::size_t{0}, text.size() / 2, text.size()}) {
        for (const char key : std::string_view(" !%?|aA\xE9")) {
            const bool may = MayType(key, text, caret);
            Demand(key != '|' || !may);
            Demand(std::string_view(" !%?|").find(key) != std::string_view::npos || may);
        }
    }
}

// Two districts, the first with a variation.
void MakeTable(const std::string& variation, unsigned char years) {
    Districts.assign(3, {});
    ++lTableNumber;
    lLineCount = 2;
    for (std::int32_t line = 1; line <= 2; ++line) {
        DistrictRecord& record = RecordOf(line);
        record.Line = "Ashby";
        record.Founded = static_cast<std::int16_t>(1850 + years % 4);
        record.Abolished = static_cast<std::int16_t>(record.Founded + years / 4 % 3);
        record.QtrF = static_cast<std::int16_t>(years / 16 % 4);
        years = static_cast<unsigned char>(years * 7 + 3);
    }
    RecordOf(1).Variations.Grow(2);
    RecordOf(1).Variations[1].Text = variation;
    RecordOf(1).lVariationCount = 1;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    ResetState();
    FuzzDesktop words("of,the", "");
    LoadLowerCaseWords(words);
    // The first byte chooses, the texts stand on both sides of the first LF.
    const std::string_view texts(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto cut = std::min(texts.find('\n'), texts.size());
    const std::string first(texts.substr(0, cut));
    const std::string second(texts.substr(std::min(cut + 1, texts.size())));
    iEditMode = data[0] % 2 == 0 ? NothingOpen : DistrictIdle;
    Slow::Validation slow;
    for (const std::string& text : {first, second}) {
        CheckMarkers(text);
        CheckMarkerCommands(text);
        CheckValidity(text, slow);
        CheckKeys(text);
    }
    MakeTable(first, data[0]);
    CheckMatching(first, second);
    return 0;
}
