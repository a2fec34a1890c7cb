#include "changes/ChangeFile.h"

#include "core/Ansi.h"
#include "core/LetterPairs.h"
#include "core/Lines.h"
#include "core/State.h"
#include "core/Utf8.h"
#include "rules/Validation.h"

#include <algorithm>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr auto None = std::string_view::npos;
constexpr std::string_view HeadingRow = "<TR><TD>";

// The tags are ASCII, and so are all letters whose capitals are.
bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != None;
}

// The place before so many more characters.
std::size_t StepBack(std::string_view utf8, std::size_t place, std::size_t characters) {
    for (; characters > 0 && place > 0; --characters) {
        do {
            --place;
        } while (place > 0 && Utf8::IsContinuation(utf8[place]));
    }
    return place;
}

// The place in a line with as many characters before it as there are in the trimmed line before `place`.
std::size_t PlaceInLine(std::string_view line, std::size_t place) {
    const std::string_view trimmed = Ansi::TrimLeft(line);
    const std::size_t blanks = line.size() - trimmed.size();
    const std::size_t before = StepBack(trimmed, std::min(place, trimmed.size()), blanks);
    return before == 0 ? Utf8::CharacterCount(trimmed.substr(0, place)) : blanks + before;
}

void Check(Proposal& proposal) {
    const Verdict verdict = CheckVariation(Ansi::Trim(proposal.text));
    proposal.tag = verdict.IsValid() ? Proposal::Valid : Proposal::Invalid;
    proposal.warns = verdict.Warns();
}

// The text as the open file can have it. What a text that lacks characters was made of is kept beside it.
void SetText(Proposal& proposal, std::string text, Encoding from, Encoding to) {
    proposal.text = Recoded(text, from, to);
    const bool isWhole = from == to || Recoded(proposal.text, to, from) == text;
    proposal.utf8 = isWhole ? std::string() : std::move(text);
}

} // namespace

// A place that was looked for, but not found, cuts nothing.
std::string ChangeLineParser::Cut(std::string_view line, std::size_t from, std::size_t to) const {
    if (to == None) {
        return {};
    }
    if (m_utf8) {
        from = PlaceInLine(line, from);
        to = PlaceInLine(line, to);
    }
    return std::string(Ansi::Trim(line.substr(from, to - from)));
}

std::string ChangeLineParser::FirstCell(std::string_view line, std::string_view upper) const {
    const std::size_t behindRow = m_utf8 ? Utf8::FirstCharacters(upper, HeadingRow.size()).size() : HeadingRow.size();
    const auto tagEnd = upper.find('>', behindRow);
    if (tagEnd == None) {
        return {};
    }
    return Cut(line, tagEnd + 1, upper.find('<', tagEnd + 1));
}

std::string ChangeLineParser::ParseChangeLine(std::string_view line) {
    const std::string upperLine = Ansi::UpperAscii(line);
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

Proposal RecodedProposal(const Proposal& proposal, Encoding from, Encoding to) {
    Proposal recoded = proposal;
    const bool hasOriginal = !proposal.utf8.empty();
    SetText(recoded, hasOriginal ? proposal.utf8 : proposal.text, hasOriginal ? Encoding::Utf8 : from, to);
    if (recoded.tag != Proposal::Heading) {
        Check(recoded);
        recoded.ticked = recoded.ticked && recoded.tag == Proposal::Valid;
    }
    return recoded;
}

ProposalList ReadProposals(std::string content) {
    const Encoding encoding = EncodingOf(content);
    content = Decoded(std::move(content), encoding);
    ProposalList list;
    ChangeLineParser parser(encoding != Encoding::Windows1252);
    Lines lines(content);
    while (const auto line = lines.Next()) {
        std::string text = parser.ParseChangeLine(*line);
        if (text.empty()) {
            continue;
        }
        Proposal& proposal = list.proposals.emplace_back();
        SetText(proposal, std::move(text), encoding, eFileEncoding);
        if (parser.IsHeading()) {
            proposal.text = Ansi::Upper(proposal.text);
            proposal.utf8 = LetterPairs::Upper(proposal.utf8);
            proposal.tag = Proposal::Heading;
            continue;
        }
        Check(proposal);
        list.invalidCount += proposal.tag == Proposal::Invalid ? 1 : 0;
        list.warningCount += proposal.warns ? 1 : 0;
    }
    return list;
}

} // namespace CommonRoutines
