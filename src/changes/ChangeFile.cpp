#include "changes/ChangeFile.h"

#include "core/Ansi.h"
#include "core/Lines.h"
#include "rules/Validation.h"

namespace CommonRoutines {

namespace {

constexpr auto None = std::string_view::npos;
constexpr std::string_view HeadingRow = "<TR><TD>";

// The part of a line from a place to one that was looked for from there on; empty when it was not found.
std::string Cut(std::string_view line, std::size_t from, std::size_t to) {
    return to == None ? std::string() : std::string(Ansi::Trim(line.substr(from, to - from)));
}

// The text of the first cell of a row whose tags carry attributes, in an upper-cased line.
std::string FirstCell(std::string_view line, std::string_view upper) {
    const auto tagEnd = upper.find('>', HeadingRow.size());
    if (tagEnd == None) {
        return {};
    }
    return Cut(line, tagEnd + 1, upper.find('<', tagEnd + 1));
}

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != None;
}

Proposal CheckedProposal(std::string text) {
    Proposal proposal;
    const Verdict verdict = CheckVariation(Ansi::Trim(text));
    proposal.tag = verdict.IsValid() ? Proposal::Valid : Proposal::Invalid;
    proposal.warns = verdict.Warns();
    proposal.text = std::move(text);
    return proposal;
}

} // namespace

std::string ChangeLineParser::ParseChangeLine(std::string_view line) {
    const std::string upperLine = Ansi::Upper(line);
    const std::string_view upper = Ansi::Trim(upperLine);
    if (Contains(upper, "<HEAD>")) {
        m_isInHead = true;
        return {};
    }
    if (Contains(upper, "<TABLE")) {
        return {};
    }
    if (Contains(upper, "<TR>")) {
        m_isHeading = upper.starts_with(HeadingRow);
        return m_isHeading ? Cut(line, HeadingRow.size(), upper.find('<', HeadingRow.size())) : FirstCell(line, upper);
    }
    // What stands above the head of a page is no proposal.
    const bool aboveHead = upper.starts_with("<!DOCTYPE") || upper.starts_with("<HTML");
    return m_isInHead || aboveHead ? std::string() : std::string(line);
}

std::string ReasonOf(const Proposal& proposal) {
    const Verdict verdict = CheckVariation(Ansi::Trim(proposal.text));
    const std::string warning = verdict.warning.value_or("");
    return verdict.reason.empty() || warning.empty() ? verdict.reason + warning : verdict.reason + "; " + warning;
}

std::string ProposalList::Summary() const {
    std::string summary;
    if (invalidCount > 0) {
        summary += std::to_string(invalidCount) + " invalid variations (red). ";
    }
    if (warningCount > 0) {
        summary += std::to_string(warningCount) + " warnings (Brown).";
    }
    return summary;
}

ProposalList ReadProposals(std::string_view content) {
    ProposalList list;
    ChangeLineParser parser;
    Lines lines(content);
    while (const auto line = lines.Next()) {
        std::string text = parser.ParseChangeLine(*line);
        if (text.empty()) {
            continue;
        }
        if (parser.IsHeading()) {
            list.proposals.push_back({Ansi::Upper(text), Proposal::Heading, false, false});
            continue;
        }
        list.proposals.push_back(CheckedProposal(std::move(text)));
        list.invalidCount += list.proposals.back().tag == Proposal::Invalid ? 1 : 0;
        list.warningCount += list.proposals.back().warns ? 1 : 0;
    }
    return list;
}

} // namespace CommonRoutines
