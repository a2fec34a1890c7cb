#include "core/Progress.h"

#include "core/Desktop.h"

#include <algorithm>

namespace CommonRoutines {

Progress::Progress(Desktop& desktop, std::string_view doing, std::size_t all)
    : m_desktop(&desktop), m_doing(doing), m_all(all) {
    Tell();
}

void Progress::Tell() {
    constexpr std::size_t tellings = 1000;
    m_next = m_done + std::max<std::size_t>(m_all / tellings, 1);
    m_desktop->ShowProgress(m_doing, m_all == 0 ? 1.0 : static_cast<double>(m_done) / static_cast<double>(m_all));
}

} // namespace CommonRoutines
