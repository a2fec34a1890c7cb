#include "rules/Capitals.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/Encoding.h"
#include "core/LetterPairs.h"
#include "core/Lines.h"
#include "core/State.h"
#include "core/Utf8.h"
#include "rules/Markers.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::int32_t WordListStep = 10;

LowerCaseList List;

// The list outlives the open file, and so its words are in UTF-8 whatever the texts of the file are.
std::string LowerUtf8(std::string_view word, Encoding encoding) {
    if (Utf8::IsAscii(word)) {
        return Ansi::Lower(word);
    }
    return LetterPairs::Lower(Recoded(std::string(word), encoding, Encoding::Utf8));
}

void AddLowerCaseWord(std::string_view word, Encoding encoding) {
    if (word.empty()) {
        return;
    }
    ++List.count;
    if (List.count >= std::ssize(List.words)) {
        List.words.resize(static_cast<std::size_t>(List.count) + WordListStep + 1);
    }
    std::string& added = List.words[static_cast<std::size_t>(List.count)];
    added = LowerUtf8(word, encoding);
    List.lookup.insert(added);
}

// What a character means to the check.
enum CharacterKind : std::uint8_t {
    KindOther = 0,
    KindSeparator = 1,
    KindCapital = 2,
    KindSmall = 4,
};

constexpr std::array<std::uint8_t, 256> KindTable = [] {
    std::array<std::uint8_t, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code) {
        const char c = static_cast<char>(code);
        table[code] = Ansi::Lower(c) != c ? KindCapital : Ansi::Upper(c) != c ? KindSmall : KindOther;
    }
    for (const char c : WordSeparators) {
        table[static_cast<unsigned char>(c)] = KindSeparator;
    }
    return table;
}();

unsigned KindOf(char c) {
    return KindTable[static_cast<unsigned char>(c)];
}

// The kind of the first character, which is taken off.
unsigned TakeKind(std::string_view& utf8) {
    if (Utf8::IsAscii(utf8.front())) {
        const char c = utf8.front();
        utf8.remove_prefix(1);
        return KindOf(c);
    }
    const char32_t codePoint = Utf8::TakeCodePoint(utf8);
    return LetterPairs::Lower(codePoint) != codePoint   ? KindCapital
           : LetterPairs::Upper(codePoint) != codePoint ? KindSmall
                                                        : KindOther;
}

// Hands over the kinds of the characters of a text, one after the other.
template <typename Take>
void ForEachKind(std::string_view text, Take take) {
    if (TextsAreUtf8()) {
        while (!text.empty()) {
            take(TakeKind(text));
        }
        return;
    }
    for (const char c : text) {
        take(KindOf(c));
    }
}

bool Holds(std::string_view text, CharacterKind kind) {
    unsigned kinds = KindOther;
    ForEachKind(text, [&](unsigned found) { kinds |= found; });
    return (kinds & kind) != 0;
}

// How many bytes at the front of a word are expected in capitals: its first character, or a whole group in
// square brackets.
std::size_t ExpectedCapitals(std::string_view word) {
    return word.starts_with('[') ? std::min(word.find(']'), word.size() - 1) + 1
                                 : Ansi::FirstCharacters(word, 1).size();
}

bool IsExpectedForm(std::string_view word) {
    const std::size_t capitals = ExpectedCapitals(word);
    return !Holds(word.substr(0, capitals), KindSmall) && !Holds(word.substr(capitals), KindCapital);
}

bool IsLowerCaseWord(std::string_view word) {
    return !List.lookup.empty() && List.lookup.contains(LowerUtf8(word, eFileEncoding));
}

void AddLowerCaseWords(std::string bytes) {
    List.words.resize(WordListStep + 1);
    const Encoding encoding = EncodingOf(bytes);
    const std::string content = Decoded(std::move(bytes), encoding);
    Lines lines(content);
    while (const auto line = lines.Next()) {
        for (std::string_view rest = *line; !rest.empty();) {
            const auto comma = std::min(rest.find(','), rest.size());
            AddLowerCaseWord(Ansi::Trim(rest.substr(0, comma)), encoding);
            rest.remove_prefix(std::min(comma + 1, rest.size()));
        }
    }
}

bool BaseIsUnusual(std::string_view base) {
    std::string_view name = Ansi::Trim(base);
    while (name.starts_with('!') || name.starts_with('%')) {
        name.remove_prefix(1);
    }
    for (auto from = name.begin(); from != name.end();) {
        const auto to = std::find_if(from, name.end(), [](char c) { return KindOf(c) == KindSeparator; });
        const std::string_view word(from, to);
        if (!word.empty() && !IsExpectedForm(word) && !IsLowerCaseWord(word)) {
            return true;
        }
        from = to == name.end() ? to : to + 1;
    }
    return false;
}

} // namespace

void ForgetLowerCaseWords() {
    List.words = {};
    List.lookup.clear();
    List.count = 0;
}

const LowerCaseList& LowerCaseWords() {
    return List;
}

void LoadLowerCaseWords(Desktop& desktop) {
    desktop.EnterProgramFolder();
    ForgetLowerCaseWords();
    try {
        if (auto content = desktop.ReadFile(desktop.ProgramFolder() + "/qx_lower.txt")) {
            AddLowerCaseWords(std::move(*content));
            return;
        }
    } catch (const std::bad_alloc&) {
        ForgetLowerCaseWords();
        desktop.MsgBox("There is not enough memory for the lowercase file - no words will be ignored",
                       BoxIcon::Exclamation);
        return;
    }
    desktop.MsgBox("No lowercase file found - no words will be ignored", BoxIcon::Information);
}

bool CapitalsAreUnusual(std::string_view variation) {
    return BaseIsUnusual(SplitMarkers(variation).base);
}

bool HasUnusualCapitals(std::string_view variation) {
    return BaseIsUnusual(StripMarkers(variation));
}

} // namespace CommonRoutines
