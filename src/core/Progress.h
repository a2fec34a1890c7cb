#pragma once

#include <cstddef>
#include <limits>
#include <string_view>

namespace CommonRoutines {

class Desktop;

// How far a long piece of work has come. The desktop is told at its start, and then about a thousand times, so
// that a loop may count every step.
class Progress {
public:
    // Tells nobody.
    Progress() = default;
    // `doing` says what is done, in the words of the user, and must outlive this; `all` is how many steps it takes.
    Progress(Desktop& desktop, std::string_view doing, std::size_t all);

    // So many more steps are done.
    void Advance(std::size_t steps) {
        m_done += steps;
        if (m_done >= m_next) {
            Tell();
        }
    }

private:
    void Tell();

    Desktop* m_desktop = nullptr;
    std::string_view m_doing;
    std::size_t m_all = 0;
    std::size_t m_done = 0;
    std::size_t m_next = std::numeric_limits<std::size_t>::max(); // when it is told again
};

} // namespace CommonRoutines
