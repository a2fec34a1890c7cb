#include "ui/lists/DistrictColumns.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "core/Utf8.h"
#include "ui/Text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

namespace Ui {

using namespace CommonRoutines;

namespace {

// The characters that need no shaping: all of Windows-1252, and the Latin letters of Unicode. A text with any other
// is measured as a whole.
constexpr std::size_t CodePageSize = 0x100;
constexpr std::size_t LatinSize = 0x250;

constexpr std::size_t NumberCount = 65536;
constexpr std::string_view HeadingPadding = "WW";

// Advances are added up as whole numbers, which is fast; a single one that is not measured yet makes the
// sum too large to be one.
constexpr double PartsOfAPixel = 64;
constexpr std::uint32_t NotMeasured = 1U << 31U;

// Hands over the codes of the characters of a text, each with the one before it.
template <typename Take>
void ForEachPair(std::string_view text, Take take) {
    char32_t before = U' ';
    if (Ansi::IsBytewise(text)) {
        for (const char c : text) {
            take(before, static_cast<unsigned char>(c));
            before = static_cast<unsigned char>(c);
        }
        return;
    }
    while (!text.empty()) {
        const char32_t code = Utf8::TakeCodePoint(text);
        take(before, code);
        before = code;
    }
}

std::string TextOf(char32_t code) {
    std::string text;
    if (TextsAreUtf8()) {
        Utf8::Append(text, code);
    } else {
        text = static_cast<char>(code);
    }
    return text;
}

// Shaping may round differently within a text than in its pairs.
constexpr double Slack = 2;

} // namespace

DistrictColumns::DistrictColumns(const QFont& font)
    : m_metrics(font), m_characterCount(TextsAreUtf8() ? LatinSize : CodePageSize),
      m_pairAdvances(m_characterCount * m_characterCount, NotMeasured) {
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        m_widths[column] = MeasureTextWidth(std::string(HeadingPadding).append(DistrictColumnTable[column].heading), 0);
        m_paddingBounds[column] = UpperBound(DistrictColumnTable[column].padding);
    }
}

int DistrictColumns::MeasureTextWidth(std::string_view text, int minimum) const {
    return std::max(minimum, qRound(m_metrics.horizontalAdvance(Text::ForList(text))));
}

void DistrictColumns::AddDistrictRow(const DistrictRecord& record) {
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        std::visit([&](auto field) { Widen(column, std::invoke(field, record)); }, DistrictColumnTable[column].field);
    }
}

void DistrictColumns::Widen(std::size_t column, std::int16_t number) {
    std::vector<bool>& seen = m_seenNumbers[column];
    seen.resize(NumberCount);
    const auto place = static_cast<std::uint16_t>(number);
    if (!seen[place]) {
        seen[place] = true;
        Widen(column, std::to_string(number));
    }
}

void DistrictColumns::Widen(std::size_t column, std::string_view text) {
    const std::string_view padding = DistrictColumnTable[column].padding;
    text = Ansi::FirstCharacters(text, Text::LongestShown + 1); // enough to be cut off like the whole
    // Measuring a text is a hundred times as dear as adding up its letters, and hardly ever needed.
    if (UpperBound(text) + m_paddingBounds[column] + Slack > m_widths[column] &&
        m_measuredTexts[column].insert(std::string(text)).second) {
        m_widths[column] = MeasureTextWidth(std::string(text) + std::string(padding), m_widths[column]);
    }
}

double DistrictColumns::UpperBound(std::string_view text) {
    std::uint64_t sum = SumOfAdvances(text);
    if (sum >= NotMeasured) {
        MeasurePairs(text);
        sum = SumOfAdvances(text);
    }
    return static_cast<double>(sum) / PartsOfAPixel;
}

std::uint64_t DistrictColumns::SumOfAdvances(std::string_view text) const {
    std::uint64_t sum = 0;
    if (Ansi::IsBytewise(text)) { // all of which may add up, as the most characters of a file do
        std::size_t before = ' ';
        for (const char c : text) {
            const std::size_t code = static_cast<unsigned char>(c);
            sum += m_pairAdvances[before * m_characterCount + code];
            before = code;
        }
        return sum;
    }
    ForEachPair(text, [&](char32_t before, char32_t code) {
        sum += MayAddUp(before, code) ? m_pairAdvances[PlaceOf(before, code)] : NotMeasured;
    });
    return sum;
}

void DistrictColumns::MeasurePairs(std::string_view text) {
    ForEachPair(text, [&](char32_t before, char32_t code) {
        if (!MayAddUp(before, code)) {
            return;
        }
        std::uint32_t& advance = m_pairAdvances[PlaceOf(before, code)];
        if (advance == NotMeasured) {
            const double pair = m_metrics.horizontalAdvance(Text::ForList(TextOf(before) + TextOf(code)));
            const double first = m_metrics.horizontalAdvance(Text::ForList(TextOf(before)));
            advance = static_cast<std::uint32_t>(std::ceil(std::max(0.0, pair - first) * PartsOfAPixel));
        }
    });
}

} // namespace Ui
