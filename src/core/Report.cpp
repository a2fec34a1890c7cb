#include "core/Report.h"

#include <memory>
#include <utility>

namespace CommonRoutines {

ReportItems::ReportItems(std::vector<std::string> texts) : m_count(texts.size()) {
    const auto kept = std::make_shared<const std::vector<std::string>>(std::move(texts));
    m_make = [kept](std::size_t place) { return (*kept)[place]; };
}

std::vector<std::string> ReportItems::All() const {
    std::vector<std::string> texts;
    texts.reserve(m_count);
    for (std::size_t place = 0; place < m_count; ++place) {
        texts.push_back(m_make(place));
    }
    return texts;
}

} // namespace CommonRoutines
