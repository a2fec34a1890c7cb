#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace CommonRoutines {

// Texts in their order, from 0 on. Where many of them repeat a long text, each is made only when it is asked for:
// all together may be larger than any memory.
class ReportItems {
public:
    using Maker = std::function<std::string(std::size_t)>;

    ReportItems() = default;
    // `make` is called as long as the items live.
    ReportItems(std::size_t count, Maker make) : m_count(count), m_make(std::move(make)) {}
    ReportItems(std::vector<std::string> texts);
    ReportItems(std::initializer_list<std::string> texts) : ReportItems(std::vector<std::string>(texts)) {}

    [[nodiscard]] std::size_t size() const { return m_count; }
    [[nodiscard]] bool empty() const { return m_count == 0; }
    [[nodiscard]] std::string operator[](std::size_t place) const { return m_make(place); }
    [[nodiscard]] std::vector<std::string> All() const;

private:
    std::size_t m_count = 0;
    Maker m_make;
};

// The place in the table that a line of a report names.
struct ReportPlace {
    std::int32_t district = 0; // 0 for none
    std::int32_t slot = 0;     // of its variation, 0 for the district itself

    [[nodiscard]] bool IsThere() const { return district > 0; }
    bool operator==(const ReportPlace&) const = default;
};

// What a report window shows: lines of text under a caption. A line may itself hold line breaks.
struct Report {
    std::string caption = "Duplicate Check";
    ReportItems items;
    bool canPrintAndSave = true;
    std::function<ReportPlace(std::size_t)> placeOf = {}; // empty where no line names one

    [[nodiscard]] ReportPlace PlaceOf(std::size_t line) const { return placeOf ? placeOf(line) : ReportPlace{}; }
};

} // namespace CommonRoutines
