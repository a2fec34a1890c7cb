#pragma once

// Writing files. One that has to stay where it is cannot be replaced at once: it is overwritten, behind a copy of
// what it is to hold. The copy is whole on the disk in the state folder before the file is touched, and goes when
// the file is whole. So whatever stops the program in between, the file can be mended.

#include <string>
#include <string_view>

namespace CommonRoutines {

class Desktop;

// Replaces a file, or overwrites it behind a copy. True when the new content is on the disk. False when the file is
// as it was; where that could not be brought about, the copy stays, and a message says so.
[[nodiscard]] bool WriteFile(Desktop& desktop, const std::string& path, std::string_view content);

// Asks, about each file whose overwriting was stopped, whether it is to be finished. A No keeps the copy aside with
// a message; so is a copy that is damaged. A file that is whole already is not asked about. Copies of files that
// living editors are writing are left alone.
void MendFiles(Desktop& desktop);
// The same for one file, which is about to be read.
void MendFile(Desktop& desktop, const std::string& path);

} // namespace CommonRoutines
