#pragma once

#include "core/Records.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

enum class HeaderResult { Filled, WrongPartCount, NotANumber };

// Makes a record a district with a "+"-separated header. That must have 9 to `maxParts` parts. Its years and quarters
// must be numbers of 16 bits: decimal digits, perhaps behind a minus sign, with blanks around them or not. Otherwise
// nothing is filled.
[[nodiscard]] HeaderResult FillHeader(DistrictRecord& record, Ansi::String header, std::size_t maxParts);

// The most parts of the header of a district, and of one in a line that begins with "|".
inline constexpr std::size_t MaxDistrictParts = 13;
inline constexpr std::size_t MaxPartsWithoutVariations = 11;

// Whether a trimmed line is read as a district.
[[nodiscard]] bool IsDistrictLine(std::string_view line);

// The complaints about the quarters of a district, in the order in which they are shown. The third
// one names the abolished year and quarter although it is about the founded ones; its readers know it so.
[[nodiscard]] std::vector<std::string> QuarterComplaints(const DistrictRecord& record);

// Makes a record a line that is only kept.
void Retain(DistrictRecord& record, Ansi::String line);

} // namespace CommonRoutines
