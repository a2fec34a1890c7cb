#include "ui/lists/DistrictColumns.h"

#include "ui/Text.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace Ui {

using namespace CommonRoutines;

namespace {

constexpr std::size_t CharacterCount = 256;
constexpr std::size_t NumberCount = 65536;
constexpr std::string_view HeadingPadding = "WW";

// Advances are added up as whole numbers, which is fast; a single one that is not measured yet makes the
// sum too large to be one.
constexpr double PartsOfAPixel = 64;
constexpr std::uint32_t NotMeasured = 1U << 31U;

std::size_t PlaceOf(char first, char second) {
    return static_cast<unsigned char>(first) * CharacterCount + static_cast<unsigned char>(second);
}

// Shaping may round differently within a text than in its pairs.
constexpr double Slack = 2;

} // namespace

DistrictColumns::DistrictColumns(const QFont& font)
    : m_metrics(font), m_pairAdvances(CharacterCount * CharacterCount, NotMeasured) {
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        m_widths[column] = MeasureTextWidth(std::string(HeadingPadding).append(DistrictColumnTable[column].heading), 0);
    }
}

int DistrictColumns::MeasureTextWidth(std::string_view text, int minimum) const {
    return std::max(minimum, qRound(m_metrics.horizontalAdvance(Text::ForList(text))));
}

void DistrictColumns::AddDistrictRow(const DistrictRecord& record) {
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        std::visit([&](auto field) { Widen(column, record.*field); }, DistrictColumnTable[column].field);
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
    text = text.substr(0, Text::LongestShown + 1); // enough to be cut off like the whole
    // Measuring a text is a hundred times as dear as adding up its letters, and hardly ever needed.
    if (UpperBound(text) + UpperBound(padding) + Slack > m_widths[column] &&
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
    char before = ' ';
    for (const char c : text) {
        sum += m_pairAdvances[PlaceOf(before, c)];
        before = c;
    }
    return sum;
}

void DistrictColumns::MeasurePairs(std::string_view text) {
    char before = ' ';
    for (const char c : text) {
        std::uint32_t& advance = m_pairAdvances[PlaceOf(before, c)];
        if (advance == NotMeasured) {
            const double pair = m_metrics.horizontalAdvance(Text::ForList(std::string{before, c}));
            const double first = m_metrics.horizontalAdvance(Text::ForList(std::string{before}));
            advance = static_cast<std::uint32_t>(std::ceil(std::max(0.0, pair - first) * PartsOfAPixel));
        }
        before = c;
    }
}

} // namespace Ui
