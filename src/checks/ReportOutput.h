#pragma once

#include "core/Report.h"
#include "core/Wording.h"

#include <string>
#include <string_view>

namespace CommonRoutines {

class Desktop;

// The report as it is printed and saved: three heading lines with the data file's path and the
// present time, then the items, which must live meanwhile. A file of them has the encoding of the open file, and the
// path as near as that comes to it.
[[nodiscard]] LineSource ReportLines(const Report& report, std::string_view dataFile, Desktop& desktop);

// The name proposed for the saved report of a data file.
[[nodiscard]] std::string ReportFileName(std::string_view dataFile);

// Prints the report on the default printer; without one a message says so.
void PrintReport(const Report& report, const std::string& dataFile, Desktop& desktop);

// Asks for a file name and writes the report there. A cancelled dialogue or a failed write ends silently.
void SaveReport(const Report& report, const std::string& dataFile, Desktop& desktop);

} // namespace CommonRoutines
