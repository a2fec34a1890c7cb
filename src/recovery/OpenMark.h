#pragma once

#include <string>
#include <string_view>

namespace CommonRoutines {

class Desktop;

// The mark by which other editors of the same user know that this one has a data file open.
class OpenMark {
public:
    // Marks this file instead of the one marked before. True when another editor has it open, too.
    [[nodiscard]] bool Set(Desktop& desktop, const std::string& path);
    void Clear(Desktop& desktop);

    // Whether a name in the state folder is that of a mark of this file, whose path has no links.
    [[nodiscard]] static bool IsOf(std::string_view name, std::string_view truePath);

private:
    std::string m_name; // of the lock that is the mark
};

} // namespace CommonRoutines
