#pragma once

#include "Random.h"

#include <string>
#include <string_view>
#include <vector>

namespace BenchData {

// The text in capitals, as far as generated texts go: ASCII and the accented letters of Windows-1252.
[[nodiscard]] std::string InCapitals(std::string_view text);

// A volume: a number, perhaps with a letter, or a Roman number.
[[nodiscard]] std::string Volume(Random& random);

// So many names of districts, no two of them alike in capitals.
[[nodiscard]] std::vector<std::string> DistrictNames(Random& random, std::size_t count);

} // namespace BenchData
