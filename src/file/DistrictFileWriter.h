#pragma once

#include <string>

namespace CommonRoutines {

class Desktop;

// The table as a data file: every line's header text, a district's surviving variations behind it,
// each line ended by CR LF.
[[nodiscard]] std::string DistrictFileContent();

// Asks for a file name, the open file's being proposed unless reading it was quit, writes the table there and says
// so. That file is the open one from then on. There is a question before an empty table empties a file, and where
// the next reading takes it for another encoding than the last one. What is cancelled, a No and a failed write end
// silently, with the file as it was. Writes eEncodingOnDisk.
void SaveDistrictFile(Desktop& desktop);

} // namespace CommonRoutines
