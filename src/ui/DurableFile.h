#pragma once

#include <QString>

#include <string_view>

// Files that survive faults: of the disk, of the program, of the power.
namespace DurableFile {

// Replaces a file as a whole. True when the new content is on the disk under the file's name. Where
// anything fails before that, the file is as it was, or as it is to be: never a part of either.
//
// A symbolic link stays one, and the file that it leads to is replaced, keeping its permissions. Only
// regular files are replaced, and only in folders that may be written to.
[[nodiscard]] bool Replace(const QString& path, std::string_view content);

} // namespace DurableFile
