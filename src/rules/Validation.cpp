#include "rules/Validation.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "core/Utf8.h"
#include "rules/CharacterClasses.h"
#include "rules/Markers.h"

#include <string>

namespace CommonRoutines {

namespace {

constexpr auto None = std::string_view::npos;
constexpr std::string_view BadQuestionMark = "Question Mark";
constexpr std::string_view LackingShriek = "Should have !";

// Where the percent signs of a trimmed text that has some stand.
struct PercentSigns {
    std::size_t first;
    std::size_t last;

    explicit PercentSigns(std::string_view text) : first(text.find('%')), last(text.rfind('%')) {}
    [[nodiscard]] bool Several() const { return first != last; }
};

bool OpensWithDateMark(std::string_view text) {
    return text.starts_with('%') || text.starts_with("!%");
}

// A lone "%" needs something behind it: a name, or a volume.
bool IsLonePercentAtEnd(std::string_view text, const PercentSigns& percent) {
    return percent.first + 1 == text.size();
}

// With two signs the first is the date mark and the last, not before the fourth character, opens the
// volume. A third one in between is not looked at.
bool IsBadDependency(std::string_view text, const PercentSigns& percent) {
    constexpr std::size_t fewestBeforeVolume = 3;
    return percent.Several() && (!OpensWithDateMark(text) || percent.last + 1 == text.size() ||
                                 Ansi::CharacterCount(text.substr(0, percent.last)) < fewestBeforeVolume);
}

bool IsBlankAt(std::string_view text, std::size_t position) {
    return position < text.size() && text[position] == ' ';
}

// A verdict before its texts are made, which nearly all variations do without. Positions are None where
// there is no such character.
struct Finding {
    Verdict::State state = Verdict::State::Valid;
    std::string_view reason;
    std::size_t control = None;   // the reason instead
    bool reachedWarnings = false; // what follows is filled then
    MarkerParts markers;
    bool lacksShriek = false;
    std::size_t unusual = None; // goes before a lacking "!"

    // A later reason replaces an earlier one.
    void Refuse(std::string_view why, Verdict::State how = Verdict::State::Invalid) {
        state = how;
        reason = why;
    }
    [[nodiscard]] bool IsValid() const { return state == Verdict::State::Valid; }
    [[nodiscard]] bool Warns() const { return lacksShriek || unusual != None; }
};

// The rules behind which nothing else is looked at. True when the text was refused.
bool RefusesAtOnce(std::string_view trimmed, unsigned classes, Finding& finding) {
    constexpr std::string_view nullDistrict = "Null District";
    if ((classes & ClassPipe) != 0) {
        finding.Refuse("Invalid Char - |");
        return true;
    }
    if ((classes & ClassPercent) != 0) {
        const PercentSigns percent(trimmed);
        if (IsLonePercentAtEnd(trimmed, percent)) {
            finding.Refuse(nullDistrict, Verdict::State::Null);
            return true;
        }
        if (IsBadDependency(trimmed, percent)) {
            finding.Refuse("Invalid VNF dependency format");
            return true;
        }
    }
    const bool endsInOnlyShriek = trimmed.ends_with('!') && trimmed.find('!') + 1 == trimmed.size();
    if (endsInOnlyShriek) {
        finding.Refuse(nullDistrict, Verdict::State::Null);
    }
    return endsInOnlyShriek;
}

// The rules that only note a failure, so that the last one that fails gives the reason.
void CheckPunctuation(std::string_view variation, std::string_view trimmed, unsigned classes, Finding& finding) {
    if ((classes & ClassShriek) != 0) {
        const auto shriek = trimmed.find('!');
        if (trimmed.rfind('!') != shriek) {
            finding.Refuse("Multiple !'s");
        }
        // The position is that in the trimmed text, the character that of the untrimmed one: behind a
        // leading blank, which is refused below anyway, this looks one character early.
        if (IsBlankAt(variation, shriek + 1)) {
            finding.Refuse("Space after !");
        }
    }
    if ((classes & ClassPercent) != 0) {
        if (variation.find("% ") != None) {
            finding.Refuse("Space after %");
        }
        if (variation.find(" %") != None) {
            finding.Refuse("Space before %");
        }
    }
    if (variation.starts_with(' ')) {
        finding.Refuse("Leading space");
    }
    if (variation.ends_with(' ')) {
        finding.Refuse("Trailing space");
    }
}

bool HasBadQuestionMark(std::string_view base) {
    return base.find('?') != None && Ansi::Trim(base).size() > 1;
}

// Characters of a name that somebody could not read belong into a spelling mistake.
bool LacksShriek(const MarkerParts& parts, unsigned classes) {
    const bool doubtful = (classes & ClassDoubtful) != 0 && parts.base.find_first_of("_*[]{}") != None;
    return doubtful && parts.prefix.find('!') == None;
}

// Refuses the first control character; the last unusual one before it is the one warned about.
void CheckCharacters(std::string_view variation, Finding& finding) {
    constexpr int firstPrintable = 32;
    constexpr int lastOrdinary = 126;
    const auto codeAt = [&](std::size_t i) { return static_cast<unsigned char>(variation[i]); };
    std::size_t at = 0;
    for (; at < variation.size() && codeAt(at) >= firstPrintable; ++at) {
        const bool isUnusual = codeAt(at) > lastOrdinary && !(TextsAreUtf8() && Utf8::IsContinuation(variation[at]));
        finding.unusual = isUnusual ? at : finding.unusual;
    }
    if (at < variation.size()) {
        finding.state = Verdict::State::Invalid;
        finding.control = at;
    }
}

// Runs for every variation of a file, so the markers are split once for all that want them.
Finding Check(std::string_view variation) {
    Finding finding;
    const unsigned classes = CharacterClassesIn(variation);
    const std::string_view trimmed = Ansi::Trim(variation);
    if (RefusesAtOnce(trimmed, classes, finding)) {
        return finding;
    }
    CheckPunctuation(variation, trimmed, classes, finding);
    finding.reachedWarnings = true;
    finding.markers = SplitMarkers(variation);
    if (finding.IsValid() && (classes & ClassQuestion) != 0 && HasBadQuestionMark(finding.markers.base)) {
        finding.Refuse(BadQuestionMark);
    }
    finding.lacksShriek = LacksShriek(finding.markers, classes);
    if ((classes & (ClassControl | ClassUnusual)) != 0) {
        CheckCharacters(variation, finding);
    }
    return finding;
}

std::string CharacterAt(std::string_view kind, std::string_view variation, std::size_t index) {
    return std::string(kind) + " char at position " +
           std::to_string(Ansi::CharacterCount(variation.substr(0, index)) + 1) +
           " (Char=" + std::to_string(std::uint32_t{Ansi::CodeAt(variation, index)}) + ")";
}

std::string ReasonText(const Finding& finding, std::string_view variation) {
    return finding.control != None ? CharacterAt("Invalid", variation, finding.control) : std::string(finding.reason);
}

std::string WarningText(const Finding& finding, std::string_view variation) {
    if (finding.unusual != None) {
        return CharacterAt("Unusual", variation, finding.unusual);
    }
    return std::string(finding.lacksShriek ? LackingShriek : std::string_view());
}

// Most variations have no markers, like the one before.
void Leave(std::string& markers, std::string_view found) {
    if (!found.empty() || !markers.empty()) {
        markers = found;
    }
}

} // namespace

Verdict CheckVariation(std::string_view variation) {
    const Finding finding = Check(variation);
    Verdict verdict{finding.state, ReasonText(finding, variation), std::nullopt};
    if (finding.reachedWarnings) {
        verdict.warning = WarningText(finding, variation);
    }
    return verdict;
}

bool ValidateVariation(std::string_view variation, [[maybe_unused]] std::int32_t position, bool* bNullDistrict) {
    const Finding finding = Check(variation);
    const bool isFlagged = finding.state == Verdict::State::Null && iEditMode == NothingOpen;
    if (bNullDistrict != nullptr) {
        *bNullDistrict = isFlagged;
    }
    if (!finding.IsValid() && !isFlagged) {
        sInvalidReason = ReasonText(finding, variation);
    }
    if (finding.reachedWarnings) {
        bWarning = finding.Warns();
        sWarningReason.clear();
        if (bWarning) {
            sWarningReason = WarningText(finding, variation);
        }
        Leave(sMarkerPrefix, finding.markers.prefix);
        Leave(sMarkerSuffix, finding.markers.suffix);
    }
    return finding.IsValid();
}

bool CheckQuestionMark(std::string_view variation) {
    const bool bad = HasBadQuestionMark(StripMarkers(variation));
    if (bad) {
        sInvalidReason = BadQuestionMark;
    }
    return !bad;
}

} // namespace CommonRoutines
