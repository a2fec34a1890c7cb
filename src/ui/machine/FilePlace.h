#pragma once

#include <QString>

// Whether a new file may take the place of another one.
namespace FilePlace {

// True for a file, or the name of one to be made, in whose place no new file can be put: its folder takes none, or
// does not let the old one go; the name leaves no room for a temporary one; something is mounted there. True as
// well for a file that a new one would not be the same as: it has another owner or group, an access control list or
// other attributes, or further names. False for what may not be written, or is no file.
[[nodiscard]] bool MustBeKept(const QString& path);

} // namespace FilePlace
