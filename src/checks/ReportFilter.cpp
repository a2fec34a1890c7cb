#include "checks/ReportFilter.h"

#include <algorithm>
#include <string>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::string_view LineBreak = "\r\n";

// As it is shown.
std::string OnOneLine(std::string text) {
    auto from = text.find(LineBreak);
    if (from == std::string::npos) {
        return text;
    }
    std::string line;
    line.reserve(text.size());
    std::size_t copied = 0;
    for (; from != std::string::npos; from = text.find(LineBreak, copied)) {
        line.append(text, copied, from - copied) += ' ';
        copied = from + LineBreak.size();
    }
    return line.append(text, copied);
}

} // namespace

ReportFilter::ReportFilter(ReportItems items, std::string_view sought) : m_items(std::move(items)) {
    if (!sought.empty()) {
        m_search.emplace(sought);
    }
}

std::vector<std::size_t> ReportFilter::LookOn(std::size_t lines) {
    const std::size_t end = m_next + std::min(lines, m_items.size() - m_next);
    std::vector<std::size_t> found;
    for (; m_next < end; ++m_next) {
        if (Holds(m_next)) {
            found.push_back(m_next);
        }
    }
    return found;
}

bool ReportFilter::Holds(std::size_t place) const {
    return !m_search || m_search->FindIn(OnOneLine(m_items[place])).has_value();
}

} // namespace CommonRoutines
