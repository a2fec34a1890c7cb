#pragma once

#include "file/DistrictList.h"

#include <QFontMetricsF>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Ui {

// The widths of the columns of the districts list, in pixels of a font: every column as wide as its
// widest text, or its heading, plus a padding. The columns are those of DistrictColumnTable.
class DistrictColumns {
public:
    explicit DistrictColumns(const QFont& font);

    // Widens the columns for a district's row.
    void AddDistrictRow(const CommonRoutines::DistrictRecord& record);

    [[nodiscard]] int Width(std::size_t column) const { return m_widths[column]; }

    // The larger of a minimum and the width of a text, rounded to a whole number.
    [[nodiscard]] int MeasureTextWidth(std::string_view text, int minimum) const;

private:
    static constexpr std::size_t ColumnCount = CommonRoutines::DistrictColumnTable.size();

    void Widen(std::size_t column, std::string_view text);
    void Widen(std::size_t column, std::int16_t number);
    [[nodiscard]] double UpperBound(std::string_view text);
    [[nodiscard]] std::uint64_t SumOfAdvances(std::string_view text) const;
    void MeasurePairs(std::string_view text);
    [[nodiscard]] bool MayAddUp(char32_t first, char32_t second) const {
        return first < m_characterCount && second < m_characterCount;
    }
    [[nodiscard]] std::size_t PlaceOf(char32_t first, char32_t second) const {
        return first * m_characterCount + second;
    }

    QFontMetricsF m_metrics;
    std::size_t m_characterCount; // those whose advances are added up
    std::array<int, ColumnCount> m_widths{};
    std::array<double, ColumnCount> m_paddingBounds{};
    std::vector<std::uint32_t> m_pairAdvances; // in parts of a pixel, by first and second character
    // What need not be looked at again: numbers, by their unsigned form, and the texts that were wide enough
    // to be measured.
    std::array<std::vector<bool>, ColumnCount> m_seenNumbers;
    std::array<std::set<std::string, std::less<>>, ColumnCount> m_measuredTexts;
};

} // namespace Ui
