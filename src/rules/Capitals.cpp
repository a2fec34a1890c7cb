#include "rules/Capitals.h"

#include "core/Ansi.h"
#include "core/Desktop.h"
#include "core/Lines.h"
#include "core/State.h"
#include "rules/Markers.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

constexpr std::int32_t WordListStep = 10;

void AddLowerCaseWord(std::string_view word) {
    ++lLowerCaseWordCount;
    if (lLowerCaseWordCount >= std::ssize(LowerCaseWords)) {
        LowerCaseWords.resize(static_cast<std::size_t>(lLowerCaseWordCount) + WordListStep + 1);
    }
    LowerCaseWords[static_cast<std::size_t>(lLowerCaseWordCount)] = Ansi::Lower(word);
}

// A closing parenthesis is no separator: it stays at the end of its word, where it does no harm.
bool IsSeparator(char c) {
    return std::string_view("\t -.,(/'").find(c) != std::string_view::npos;
}

// How many characters at the front of a word are expected in capitals: the first one, or a whole
// group in square brackets.
std::size_t ExpectedCapitals(std::string_view word) {
    return word.starts_with('[') ? std::min(word.find(']'), word.size() - 1) + 1 : 1;
}

bool IsExpectedForm(std::string_view word) {
    const auto split = word.begin() + static_cast<std::ptrdiff_t>(ExpectedCapitals(word));
    return std::all_of(word.begin(), split, [](char c) { return Ansi::Upper(c) == c; }) &&
           std::all_of(split, word.end(), [](char c) { return Ansi::Lower(c) == c; });
}

bool IsLowerCaseWord(std::string_view word) {
    if (lLowerCaseWordCount == 0) {
        return false;
    }
    const auto first = LowerCaseWords.begin() + 1;
    const auto end = first + lLowerCaseWordCount;
    return std::find(first, end, Ansi::Lower(word)) != end;
}

} // namespace

void LoadLowerCaseWords(Desktop& desktop) {
    desktop.EnterProgramFolder();
    LowerCaseWords.clear();
    lLowerCaseWordCount = 0;
    const auto content = desktop.ReadFile(desktop.ProgramFolder() + "/qx_lower.txt");
    if (!content) {
        desktop.MsgBox("No lowercase file found - no words will be ignored", BoxIcon::Information);
        return;
    }
    LowerCaseWords.resize(WordListStep + 1);
    Lines lines(*content);
    while (const auto line = lines.Next()) {
        for (const std::string_view item : Ansi::Split(*line, ',')) {
            const std::string_view word = Ansi::Trim(item);
            if (!word.empty()) {
                AddLowerCaseWord(word);
            }
        }
    }
}

bool HasUnusualCapitals(std::string_view variation) {
    std::string_view name = Ansi::Trim(StripMarkers(variation));
    name.remove_prefix(std::min(name.find_first_not_of("!%"), name.size()));
    for (auto from = name.begin(); from != name.end();) {
        const auto to = std::find_if(from, name.end(), IsSeparator);
        const std::string_view word(from, to);
        if (!word.empty() && !IsExpectedForm(word) && !IsLowerCaseWord(word)) {
            return true;
        }
        from = to == name.end() ? to : to + 1;
    }
    return false;
}

} // namespace CommonRoutines
