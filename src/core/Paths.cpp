#include "core/Paths.h"

namespace Paths {

namespace {

constexpr std::string_view Separators = "\\/";

}

std::string_view FolderOf(std::string_view path) {
    const auto separator = path.find_last_of(Separators);
    return separator == std::string_view::npos ? std::string_view() : path.substr(0, separator);
}

std::string_view NameOf(std::string_view path) {
    const auto separator = path.find_last_of(Separators);
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

} // namespace Paths
