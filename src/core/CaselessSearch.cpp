#include "core/CaselessSearch.h"

#include "core/Ansi.h"
#include "core/LetterPairs.h"
#include "core/State.h"
#include "core/Utf8.h"

#include <algorithm>
#include <string>

namespace Ansi {

namespace {

constexpr std::size_t BlockSize = 64; // places that are looked at together, for which a compiler has instructions

} // namespace

CaselessSearch::CaselessSearch(std::string_view sought) {
    std::size_t place = 0;
    bool isCertain = true; // where a letter stands
    while (!sought.empty()) {
        const Letter& letter = m_letters.emplace_back(LetterFrom(sought));
        const auto last = letter.upperSize - 1;
        if (m_letters.size() == 1) {
            m_first = m_last = {0, letter.upper.front(), letter.lower.front()};
        }
        isCertain = isCertain && letter.upperSize == letter.lowerSize;
        if (isCertain) {
            m_last = {place + last, letter.upper[last], letter.lower[last]};
        }
        place += letter.upperSize;
    }
    m_isOfTwoBytes = isCertain && place == m_letters.size() && place <= 2;
}

CaselessSearch::Letter CaselessSearch::LetterFrom(std::string_view& sought) {
    Letter letter;
    if (!CommonRoutines::TextsAreUtf8()) {
        letter.upper.front() = Upper(sought.front());
        letter.lower.front() = Lower(letter.upper.front());
        letter.upperSize = letter.lowerSize = 1;
        sought.remove_prefix(1);
        return letter;
    }
    const char32_t capital = LetterPairs::TakeUpper(sought);
    std::string text;
    Utf8::Append(text, capital);
    letter.upperSize = text.copy(letter.upper.data(), letter.upper.size());
    text.clear();
    Utf8::Append(text, LetterPairs::Lower(capital));
    letter.lowerSize = text.copy(letter.lower.data(), letter.lower.size());
    return letter;
}

std::optional<std::string_view> CaselessSearch::FindIn(std::string_view text, std::size_t from) const {
    const std::size_t end = text.size() - std::min(text.size(), m_last.place); // of the places where it may begin
    // Behind one that was found the next one is often near.
    std::size_t at = from;
    std::size_t places = from > 0 ? BlockSize / 4 : 0;
    while (at < end) {
        if (places == 0) {
            places = BlockSize;
            if (at + BlockSize <= end && !MayBeginAmong(text.data() + at)) {
                at += BlockSize;
                places = 0;
                continue;
            }
        }
        for (const std::size_t stop = std::min(at + places, end); at < stop; ++at) {
            if (m_first.IsAt(text.data() + at) && m_last.IsAt(text.data() + at)) {
                // Of two bytes both have been compared.
                const std::size_t length = m_isOfTwoBytes ? m_last.place + 1 : LengthAt(text.substr(at));
                if (length > 0) {
                    return text.substr(at, length);
                }
            }
        }
        places = 0;
    }
    return std::nullopt;
}

// Without a branch, so that many places are looked at by one instruction.
bool CaselessSearch::MayBeginAmong(const char* places) const {
    const char* const lasts = places + m_last.place;
    unsigned char any = 0;
    for (std::size_t i = 0; i < BlockSize; ++i) {
        const auto isFirst = static_cast<unsigned char>(places[i] == m_first.upper) |
                             static_cast<unsigned char>(places[i] == m_first.lower);
        const auto isLast =
            static_cast<unsigned char>(lasts[i] == m_last.upper) | static_cast<unsigned char>(lasts[i] == m_last.lower);
        any |= static_cast<unsigned char>(isFirst & isLast);
    }
    return any != 0;
}

std::size_t CaselessSearch::LengthAt(std::string_view text) const {
    const std::size_t size = text.size();
    for (const Letter& letter : m_letters) {
        const std::string_view upper(letter.upper.data(), letter.upperSize);
        const std::string_view lower(letter.lower.data(), letter.lowerSize);
        if (text.starts_with(upper)) {
            text.remove_prefix(upper.size());
        } else if (text.starts_with(lower)) {
            text.remove_prefix(lower.size());
        } else {
            return 0;
        }
    }
    return size - text.size();
}

} // namespace Ansi
