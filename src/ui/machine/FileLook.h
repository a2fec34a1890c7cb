#pragma once

#include <QString>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

// Looks at the disk, by calls that tell why they fail: a look that fails must not pass for a file that is not there.
// Names may be of any length that the system knows.
namespace FileLook {

// What a name leads to. It is found, or certainly not there, or of no type where the look fails.
[[nodiscard]] std::filesystem::file_status StatusOf(const QString& path);

// The name, without links in it, of a file that is there.
[[nodiscard]] std::optional<QString> WithoutLinks(const QString& path);

[[nodiscard]] std::uintmax_t SizeOf(const QString& path, std::error_code& error);

// There is no such file, nor can there be one. Any other error may go by.
[[nodiscard]] bool IsMissing(const std::error_code& error);

// When the file was last changed, and its rights and its name; for comparing.
[[nodiscard]] std::string TimesOf(const QString& path);

// Whether two names are those of one file that is there.
[[nodiscard]] bool AreOne(const QString& a, const QString& b);

// True when there is certainly nothing with this name, not even a link that leads nowhere.
[[nodiscard]] bool IsGone(const QString& path);

// The names of the files in a folder. Those that were found before an error.
[[nodiscard]] std::vector<std::string> NamesIn(const QString& folder, std::error_code& error);
// Of an error of these functions, as the system says it.
[[nodiscard]] QString Message(const std::error_code& error);

// Whether what is there may be written, and whether files may be made in a folder.
[[nodiscard]] bool MayWrite(const QString& path);
[[nodiscard]] bool MayMakeFilesIn(const QString& folder);

// Whether a file can have this name, which would otherwise be taken for something else: a device, or a part of another
// file.
[[nodiscard]] bool MayBeNamed(const QString& path);

// The folder that is left when the last part of a path is cut off, with its separator.
[[nodiscard]] QString FolderLeft(const QString& beginning);

} // namespace FileLook
