#pragma once

#include "core/CaselessSearch.h"
#include "find/Hits.h"
#include "rules/Spelling.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

struct DistrictRecord;

// What counts as a hit, whatever the case: a text that holds the sought one; or one that is the same spelling, by the
// rule of the complete check for the spellings of two districts.
enum class FindBy { Part, WholeSpelling };

// Goes through the table for a text, as far as it is asked to: the districts by name, volume and county; the variations
// that are not deleted; and, by parts, the comments that a district has. The table must not change meanwhile.
class Finder {
public:
    // Without a text nothing is found.
    Finder(std::string_view sought, FindBy by);
    Finder(const Finder&) = delete; // its spelling is a part of its text
    Finder& operator=(const Finder&) = delete;
    ~Finder() = default;

    // Goes on by about so many variations. True when the end of the table is reached.
    bool Step(std::size_t variations);

    [[nodiscard]] bool IsAtEnd() const { return m_isAtEnd; }
    // Those found so far, which become more with every step.
    [[nodiscard]] std::shared_ptr<const Hits> Found() const { return m_hits; }

private:
    // Variations whose texts stand one behind the other in the content of the file, which is nearly all of a district;
    // or a single one.
    struct Run {
        std::int32_t first = 0; // slot
        std::int32_t last = 0;
        std::string_view text; // with a separator between two
    };

    void BeginLine();
    [[nodiscard]] bool NameMatches(const DistrictRecord& record) const;
    void NoteComment(std::string_view line);
    [[nodiscard]] Run RunFrom(std::int32_t slot, std::int32_t last) const;
    void SearchRun(const Run& run);
    void AddVariation(std::int32_t slot);

    std::string m_text;
    FindBy m_by;
    std::optional<Spelling> m_spelling;           // by whole spellings
    std::optional<Ansi::CaselessSearch> m_search; // for what every hit holds; nothing where that is no text
    std::shared_ptr<Hits> m_hits = std::make_shared<Hits>();
    std::vector<std::int32_t> m_comments; // lines that are found if a district follows
    std::int32_t m_line = 0;              // being searched
    std::int32_t m_slot = 1;              // the next one of it
    bool m_isAtEnd = false;
};

} // namespace CommonRoutines
