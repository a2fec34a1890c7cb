#pragma once

#include "changes/Proposal.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// Takes the proposals out of the lines of a change file. That is plain text with a proposal on each line, or a
// web page whose table rows stand on a line each. Of a row the first cell counts.
class ChangeLineParser {
public:
    // For lines in UTF-8, or of one byte a character.
    explicit ChangeLineParser(bool utf8 = false) : m_utf8(utf8) {}

    // The text that a line contributes; empty when it has none. Positions are found in the trimmed
    // line but cut from the line as it is, so that leading blanks shift the cut. A row that cannot be
    // cut contributes nothing; character references stay as they are written.
    std::string ParseChangeLine(std::string_view line);

    // True when the last row line began exactly as a row of headings does.
    [[nodiscard]] bool IsHeading() const { return m_isHeading; }

private:
    // What is found between two places of the trimmed line, cut from the line as it is.
    [[nodiscard]] std::string Cut(std::string_view line, std::size_t from, std::size_t to) const;
    // The text of the first cell of a row whose tags carry attributes, in an upper-cased line.
    [[nodiscard]] std::string FirstCell(std::string_view line, std::string_view upper) const;

    bool m_utf8;
    bool m_isHeading = false; // the last row line began with "<TR><TD>"
    bool m_isInHead = false;  // a line with "<HEAD>" has been seen
};

// The proposals of a change file, and how many of them are bad.
struct ProposalList {
    std::vector<Proposal> proposals;
    std::int32_t invalidCount = 0;
    std::int32_t warningCount = 0;

    // The counts in words; empty when both are 0.
    [[nodiscard]] std::string Summary() const;
};

// Reads a change file, whose encoding is found out as that of a data file is, and checks every proposal.
[[nodiscard]] ProposalList ReadProposals(std::string content);

} // namespace CommonRoutines
