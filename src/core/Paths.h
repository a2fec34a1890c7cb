#pragma once

#include <string>
#include <string_view>

// Cutting paths. A folder ends at a "\" and at a "/" alike.
namespace Paths {

// The folder of a path, without the separator; empty when the last separator is missing or is the
// first character.
[[nodiscard]] std::string_view FolderOf(std::string_view path);

// The part after the last separator; the whole path when there is none.
[[nodiscard]] std::string_view NameOf(std::string_view path);

} // namespace Paths
