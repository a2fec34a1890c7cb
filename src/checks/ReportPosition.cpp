#include "checks/ReportPosition.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

constexpr std::size_t FarthestLine = 2000;            // before or behind
constexpr std::size_t MostBytes = 64UL * 1024 * 1024; // of texts that are made

} // namespace

std::optional<std::size_t> LineLeft(const ReportPosition& position, const ReportItems& items) {
    if (items.empty()) {
        return std::nullopt;
    }
    const std::size_t place = std::min(position.line, items.size() - 1);
    std::size_t bytes = 0;
    const auto isThere = [&](std::size_t line) {
        const std::string text = items[line];
        bytes += text.size();
        return text == position.text;
    };
    if (isThere(place)) {
        return place;
    }
    for (std::size_t step = 1; step <= FarthestLine && bytes < MostBytes; ++step) {
        if (step <= place && isThere(place - step)) {
            return place - step;
        }
        if (place + step < items.size() && isThere(place + step)) {
            return place + step;
        }
    }
    return place;
}

} // namespace CommonRoutines
