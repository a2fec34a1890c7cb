#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

// Files that survive faults: of the disk, of the program, of the power.
namespace DurableFile {

// Positions in a file are 32-bit numbers.
inline constexpr qint64 LargestFile = std::numeric_limits<std::int32_t>::max();

// Is told, now and then, which part (0 to 1) of a file has been read or is on the disk.
using Listener = std::function<void(double part)>;

// The whole content of a regular file of up to 2 GiB; nothing when it cannot be read.
[[nodiscard]] std::optional<std::string> Read(const QString& path, const Listener& listener = {});

// Replaces a file as a whole. True when the new content is on the disk under the file's name. Where
// anything fails before that, the file is as it was, or as it is to be: never a part of either.
//
// A symbolic link stays one, and the file that it leads to is replaced, keeping its permissions. Only
// regular files are replaced, and only in folders that may be written to.
[[nodiscard]] bool Replace(const QString& path, std::string_view content, const Listener& listener = {});

// Writes over a file where it is, so that it stays the same file to everybody, or makes it. True when that is on
// the disk. Where it fails, a part may have been written; a file that was made is removed.
[[nodiscard]] bool Overwrite(const QString& path, std::string_view content, const Listener& listener = {});

// Lets a file go on with `added` behind its first `kept` bytes, which it must have. True when that is on
// the disk. Where it fails, a part of what was to be added may follow the bytes that were kept.
[[nodiscard]] bool Extend(const QString& path, std::size_t kept, std::string_view added);

} // namespace DurableFile
