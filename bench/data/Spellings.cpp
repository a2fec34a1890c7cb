#include "Spellings.h"

#include "Names.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace BenchData {

namespace {

constexpr auto None = std::string_view::npos;

constexpr int TriesAtASpelling = 12;
constexpr int TriesAtALetter = 8;
constexpr std::uint32_t HalfTheTime = 50; // percent
constexpr std::string_view Vowels = "aeiouy";
constexpr std::string_view Letters = "abcdefghijklmnoprstuvwy";

// No word that needs no capital is as long.
constexpr std::size_t LongWord = 8;

struct AccentedLetter {
    char plain;
    std::string_view accented;
};
constexpr std::array<AccentedLetter, 7> AccentedLetters{{
    {'a', "\xE0\xE2\xE4"},
    {'c', "\xE7"},
    {'e', "\xE8\xE9\xEA\xEB"},
    {'i', "\xEE\xEF"},
    {'n', "\xF1"},
    {'o', "\xF4\xF6"},
    {'u', "\xFB\xFC"},
}};

bool IsSmall(char c) {
    return c >= 'a' && c <= 'z';
}

bool IsCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

char Small(char c) {
    return IsCapital(c) ? static_cast<char>(c + ('a' - 'A')) : c;
}

// True for a small letter behind another letter, in a word that begins with a capital: whatever small
// letter stands there, the capitals are as they should be.
bool IsInsideWord(std::string_view text, std::size_t position) {
    if (position == 0 || position >= text.size() || !IsSmall(text[position])) {
        return false;
    }
    const char before = text[position - 1];
    const std::size_t separator = text.find_last_of(" -", position - 1);
    return (IsSmall(before) || IsCapital(before)) && IsCapital(text[separator == None ? 0 : separator + 1]);
}

std::vector<std::size_t> LettersInsideWords(std::string_view text) {
    std::vector<std::size_t> letters;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (IsInsideWord(text, i)) {
            letters.push_back(i);
        }
    }
    return letters;
}

// A letter inside a word, found by chance; nothing in a text that has few of them.
std::optional<std::size_t> SomeLetter(std::string_view text, Random& random) {
    for (int tries = 0; tries < TriesAtALetter; ++tries) {
        if (const std::size_t position = 1 + random.Below(text.size() - 1); IsInsideWord(text, position)) {
            return position;
        }
    }
    return std::nullopt;
}

std::string WithHyphens(std::string text) {
    if (text.find(' ') == None) {
        return text + 'e';
    }
    std::replace(text.begin(), text.end(), ' ', '-');
    return text;
}

// A slip of the pen at a letter; `slip` chooses it.
std::string WithWrongLetter(std::string text, std::size_t at, int slip, Random& random) {
    constexpr int omitted = 22;
    constexpr int wrongVowel = 45;
    constexpr int doubled = 58;
    constexpr int swapped = 68;
    constexpr int inserted = 82;
    if (slip < omitted) {
        text.erase(at, 1);
    } else if (slip < wrongVowel) {
        text[at] = random.OneOf(Vowels);
    } else if (slip < doubled) {
        text.insert(at, 1, Small(text[at - 1]));
    } else if (slip < swapped && at + 1 < text.size() && IsSmall(text[at + 1])) {
        std::swap(text[at], text[at + 1]);
    } else if (slip < inserted) {
        text.insert(at, 1, random.OneOf(Letters));
    } else {
        text[at] = random.OneOf(Letters);
    }
    return text;
}

// Marks the letter as one that could not be read.
void BlotOut(std::string& text, std::size_t at, Random& random) {
    constexpr int asLine = 45;
    constexpr int asStar = 80;
    constexpr int inBrackets = 90;
    const int kind = random.Between(0, 99);
    if (kind < asLine) {
        text[at] = '_';
    } else if (kind < asStar) {
        text[at] = '*';
    } else {
        const std::string_view group = kind < inBrackets ? "[]" : "{}";
        text.insert(at + 1, 1, group[1]);
        text.insert(at, 1, group[0]);
    }
}

// Gives the first letter that can have one an accent, or adds a letter that has.
void AddAccent(std::string& text, Random& random) {
    for (std::size_t i = 1; i < text.size(); ++i) {
        const auto letter = std::find_if(AccentedLetters.begin(), AccentedLetters.end(),
                                         [&](const AccentedLetter& entry) { return entry.plain == text[i]; });
        if (letter != AccentedLetters.end() && IsInsideWord(text, i)) {
            text[i] = random.OneOf(letter->accented);
            return;
        }
    }
    text += '\xE9';
}

void SpoilCapitals(std::string& text, Random& random) {
    constexpr int all = 40;
    constexpr int first = 70;
    const int kind = random.Between(0, 99);
    const std::vector<std::size_t> letters = LettersInsideWords(text);
    if (kind < all || letters.empty()) {
        text = InCapitals(text);
    } else if (kind < first && std::min(text.find_first_of(" -"), text.size()) >= LongWord) {
        text[0] = Small(text[0]);
    } else {
        text[letters.back()] = InCapitals(text.substr(letters.back(), 1))[0];
    }
}

// The variation with markers, as often as data files have them.
Variation Marked(Variation variation, Random& random) {
    constexpr int shriek = 300;
    constexpr int date = 330;
    constexpr int both = 340;
    constexpr int volume = 380;
    constexpr int shriekAndVolume = 385;
    constexpr int dateAndVolume = 388;
    const int kind = random.Between(0, 999);
    if (kind < both) {
        variation.prefix = kind < shriek ? "!" : kind < date ? "%" : "!%";
    } else if (kind < dateAndVolume) {
        variation.prefix = kind < volume ? "" : kind < shriekAndVolume ? "!" : "%";
        variation.suffix = "%" + Volume(random);
    }
    return variation;
}

} // namespace

Spellings::Spellings(const std::string& name, const std::string& county)
    : m_name(name), m_county(county), m_letters(LettersInsideWords(name)), m_taken{InCapitals(name)} {}

bool Spellings::Take(std::string_view spelling) {
    return m_taken.insert(InCapitals(spelling)).second;
}

// The name with one more slip. Later slips are made to a text that has some already.
std::string Spellings::Misspelt(const std::string& spelling, bool isFirst, Random& random) const {
    constexpr int wrongLetter = 82;
    constexpr int addition = 90;
    constexpr int abbreviation = 94;
    constexpr int hyphens = 97;
    const auto letter = isFirst && !m_letters.empty() ? std::optional(m_letters[random.Below(m_letters.size())])
                                                      : SomeLetter(spelling, random);
    if (!letter) {
        return spelling + ' ' + std::string(random.OneOf(Words::Additions));
    }
    const int slip = random.Between(0, 99);
    if (slip < wrongLetter || slip >= hyphens) {
        return WithWrongLetter(spelling, *letter, slip, random);
    }
    if (slip < addition) {
        return spelling + ' ' + (random.Happens(HalfTheTime) ? std::string(random.OneOf(Words::Additions)) : m_county);
    }
    if (slip < abbreviation) {
        return std::string(random.OneOf(Words::Abbreviations)) + ' ' + spelling;
    }
    return WithHyphens(spelling);
}

std::string Spellings::NewSpelling(Random& random) {
    std::string spelling = m_name;
    for (int tries = 0; tries < TriesAtASpelling; ++tries) {
        spelling = Misspelt(spelling, tries == 0, random);
        if (Take(spelling)) {
            return spelling;
        }
    }
    spelling.append(" ").append(random.OneOf(Words::NameBeginnings)).append(random.OneOf(Words::NameEnds));
    for (int number = 1; !Take(spelling); ++number) {
        spelling.append(" No ").append(std::to_string(number));
    }
    return spelling;
}

Variation Spellings::Ordinary(Random& random) {
    return Marked({.base = NewSpelling(random)}, random);
}

Variation Spellings::Unreadable(Random& random) {
    for (;;) {
        std::string spelling = NewSpelling(random);
        const auto letter = SomeLetter(spelling, random);
        if (!letter) {
            continue;
        }
        BlotOut(spelling, *letter, random);
        if (Take(spelling)) {
            return {.base = std::move(spelling), .isUnreadable = true};
        }
    }
}

Variation Spellings::Accented(Random& random) {
    for (;;) {
        std::string spelling = NewSpelling(random);
        AddAccent(spelling, random);
        if (Take(spelling)) {
            return Marked({.base = std::move(spelling), .isAccented = true}, random);
        }
    }
}

Variation Spellings::UnusualCapitals(Random& random) {
    std::string spelling = NewSpelling(random);
    SpoilCapitals(spelling, random);
    return Marked({.base = std::move(spelling), .hasUnusualCapitals = true}, random);
}

Variation Spellings::OtherName(std::string_view name, Random& random) {
    if (!Take(name)) {
        return Ordinary(random);
    }
    return {.base = std::string(name), .isOtherName = true};
}

Variation Spellings::Duplicate(const std::vector<Variation>& earlier, Random& random) {
    Variation variation = earlier[random.Below(earlier.size())];
    variation.isOtherName = false;
    const bool hasDateMark = variation.prefix.ends_with('%');
    if (!hasDateMark && random.Happens(HalfTheTime)) {
        variation.prefix = variation.prefix.empty() ? "!" : "";
    }
    return variation;
}

} // namespace BenchData
