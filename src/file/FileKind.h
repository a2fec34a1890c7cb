#pragma once

#include <string_view>

namespace CommonRoutines {

// Whether a text is hardly a data file: it has at least 20 lines that are neither blank nor comments, and none of
// them is a district. Looks no further than the first district.
[[nodiscard]] bool IsHardlyADataFile(std::string_view content);

} // namespace CommonRoutines
