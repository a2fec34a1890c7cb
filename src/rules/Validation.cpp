#include "rules/Validation.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "rules/CharacterClasses.h"
#include "rules/Markers.h"

#include <string>

namespace CommonRoutines {

namespace {

constexpr auto None = std::string_view::npos;

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
    constexpr std::size_t earliestVolume = 3;
    return percent.Several() &&
           (!OpensWithDateMark(text) || percent.last + 1 == text.size() || percent.last < earliestVolume);
}

bool IsBlankAt(std::string_view text, std::size_t position) {
    return position < text.size() && text[position] == ' ';
}

// Refuses with a reason, so that a rule reads as one line.
bool Refuse(std::string_view reason) {
    sInvalidReason = reason;
    return false;
}

bool RefuseNullDistrict(bool* bNullDistrict) {
    if (iEditMode != NothingOpen) {
        return Refuse("Null District");
    }
    if (bNullDistrict != nullptr) {
        *bNullDistrict = true;
    }
    return false;
}

// The rules that only note a failure, so that the last one that fails gives the reason.
bool CheckPunctuation(std::string_view variation, std::string_view trimmed, unsigned classes) {
    bool valid = true;
    if ((classes & ClassShriek) != 0) {
        const auto shriek = trimmed.find('!');
        if (trimmed.rfind('!') != shriek) {
            valid = Refuse("Multiple !'s");
        }
        // The position is that in the trimmed text, the character that of the untrimmed one: behind a
        // leading blank, which is refused below anyway, this looks one character early.
        if (IsBlankAt(variation, shriek + 1)) {
            valid = Refuse("Space after !");
        }
    }
    if ((classes & ClassPercent) != 0) {
        if (variation.find("% ") != None) {
            valid = Refuse("Space after %");
        }
        if (variation.find(" %") != None) {
            valid = Refuse("Space before %");
        }
    }
    if (variation.starts_with(' ')) {
        valid = Refuse("Leading space");
    }
    if (variation.ends_with(' ')) {
        valid = Refuse("Trailing space");
    }
    return valid;
}

bool HasBadQuestionMark(std::string_view base) {
    return base.find('?') != None && Ansi::Trim(base).size() > 1;
}

// Characters of a name that somebody could not read belong into a spelling mistake.
void WarnOfMissingShriek(const MarkerParts& parts, unsigned classes) {
    bWarning = false;
    sWarningReason.clear();
    const bool doubtful = (classes & ClassDoubtful) != 0 && parts.base.find_first_of("_*[]{}") != None;
    if (doubtful && parts.prefix.find('!') == None) {
        bWarning = true;
        sWarningReason = "Should have !";
    }
}

std::string CharacterAt(std::string_view kind, std::size_t index, int code) {
    return std::string(kind) + " char at position " + std::to_string(index + 1) + " (Char=" + std::to_string(code) +
           ")";
}

// False at the first control character; the last unusual one before it is the one warned about.
bool CheckCharacters(std::string_view variation) {
    constexpr int firstPrintable = 32;
    constexpr int lastOrdinary = 126;
    const auto codeAt = [&](std::size_t i) { return static_cast<unsigned char>(variation[i]); };
    std::size_t control = 0;
    std::size_t unusual = None;
    for (; control < variation.size() && codeAt(control) >= firstPrintable; ++control) {
        unusual = codeAt(control) > lastOrdinary ? control : unusual;
    }
    if (unusual != None) {
        bWarning = true;
        sWarningReason = CharacterAt("Unusual", unusual, codeAt(unusual));
    }
    return control == variation.size() || Refuse(CharacterAt("Invalid", control, codeAt(control)));
}

} // namespace

bool CheckQuestionMark(std::string_view variation) {
    return !HasBadQuestionMark(StripMarkers(variation)) || Refuse("Question Mark");
}

bool ValidateVariation(std::string_view variation, [[maybe_unused]] std::int32_t position, bool* bNullDistrict) {
    if (bNullDistrict != nullptr) {
        *bNullDistrict = false;
    }
    const unsigned classes = CharacterClassesIn(variation);
    if ((classes & ClassPipe) != 0) {
        return Refuse("Invalid Char - |");
    }
    const std::string_view trimmed = Ansi::Trim(variation);
    if ((classes & ClassPercent) != 0) {
        const PercentSigns percent(trimmed);
        if (IsLonePercentAtEnd(trimmed, percent)) {
            return RefuseNullDistrict(bNullDistrict);
        }
        if (IsBadDependency(trimmed, percent)) {
            return Refuse("Invalid VNF dependency format");
        }
    }
    const bool endsInOnlyShriek = trimmed.ends_with('!') && trimmed.find('!') + 1 == trimmed.size();
    if (endsInOnlyShriek) {
        return RefuseNullDistrict(bNullDistrict);
    }
    bool valid = CheckPunctuation(variation, trimmed, classes);
    const MarkerParts parts = LeaveMarkers(variation);
    if (valid && (classes & ClassQuestion) != 0 && HasBadQuestionMark(parts.base)) {
        valid = Refuse("Question Mark");
    }
    WarnOfMissingShriek(parts, classes);
    return ((classes & (ClassControl | ClassUnusual)) == 0 || CheckCharacters(variation)) && valid;
}

} // namespace CommonRoutines
