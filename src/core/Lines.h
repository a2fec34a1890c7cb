#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace CommonRoutines {

// Walks through the lines of a text in memory. A line ends at LF, with or without a CR before it; the
// last line needs no end. A CR anywhere else is a character of its line. The lines are parts of the text.
class Lines {
public:
    explicit Lines(std::string_view text) : m_rest(text) {}

    // The next line without its end; nothing after the last.
    std::optional<std::string_view> Next() {
        if (m_rest.empty()) {
            return std::nullopt;
        }
        const auto end = m_rest.find('\n');
        std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
        if (end != std::string_view::npos && line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        return line;
    }

private:
    std::string_view m_rest;
};

// How many lines a text has, or one more.
[[nodiscard]] inline std::size_t CountLines(std::string_view text) {
    std::size_t count = 1;
    for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n', end + 1)) {
        ++count;
    }
    return count;
}

} // namespace CommonRoutines
