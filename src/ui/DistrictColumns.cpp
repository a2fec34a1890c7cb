#include "ui/DistrictColumns.h"

#include "file/DistrictList.h"
#include "ui/Text.h"

#include <string>

using namespace CommonRoutines;

namespace {

constexpr std::size_t CharacterCount = 256;
constexpr std::size_t NumberCount = 65536;

// Shaping may round differently within a text than in its pairs.
constexpr double Slack = 2;

} // namespace

DistrictColumns::DistrictColumns(const QFont& font)
    : m_metrics(font), m_pairAdvances(CharacterCount * CharacterCount, -1) {
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        m_widths[column] = MeasureTextWidth("WW" + std::string(DistrictHeadings[column]), 0);
    }
}

int DistrictColumns::MeasureTextWidth(std::string_view text, int minimum) const {
    return std::max(minimum, qRound(m_metrics.horizontalAdvance(Text::ForList(text))));
}

void DistrictColumns::AddDistrictRow(const DistrictRecord& record) {
    Widen(0, record.Name, "W");
    Widen(1, record.Volume, "WW");
    Widen(2, record.County, "WW");
    WidenForNumber(3, record.Founded);
    WidenForNumber(4, record.QtrF);
    WidenForNumber(5, record.Abolished);
    WidenForNumber(6, record.QtrA);
}

void DistrictColumns::WidenForNumber(std::size_t column, std::int16_t number) {
    std::vector<bool>& seen = m_seenNumbers[column];
    seen.resize(NumberCount);
    const auto place = static_cast<std::uint16_t>(number);
    if (!seen[place]) {
        seen[place] = true;
        Widen(column, std::to_string(number), "WW");
    }
}

void DistrictColumns::Widen(std::size_t column, std::string_view text, std::string_view padding) {
    // Measuring a text is a hundred times as dear as adding up its letters, and hardly ever needed.
    if (UpperBound(text) + UpperBound(padding) + Slack > m_widths[column] &&
        m_measuredTexts[column].insert(std::string(text)).second) {
        m_widths[column] = MeasureTextWidth(std::string(text) + std::string(padding), m_widths[column]);
    }
}

double DistrictColumns::UpperBound(std::string_view text) {
    double width = 0;
    char before = ' ';
    for (const char c : text) {
        width += PairAdvance(before, c);
        before = c;
    }
    return width;
}

double DistrictColumns::PairAdvance(char first, char second) {
    const std::size_t place = static_cast<unsigned char>(first) * CharacterCount + static_cast<unsigned char>(second);
    float& advance = m_pairAdvances[place];
    if (advance < 0) {
        const double pair = m_metrics.horizontalAdvance(Text::ForList(std::string{first, second}));
        advance =
            static_cast<float>(std::max(0.0, pair - m_metrics.horizontalAdvance(Text::ForList(std::string{first}))));
    }
    return advance;
}
