#include "find/Finder.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "file/DistrictComments.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

constexpr char Separator = '|'; // of variations

const VariationRecord& VariationAt(std::int32_t line, std::int32_t slot) {
    return RecordOf(line).Variations[static_cast<std::size_t>(slot)];
}

} // namespace

Finder::Finder(std::string_view sought, FindBy by) : m_text(sought), m_by(by), m_isAtEnd(sought.empty()) {
    std::string_view held = m_text;
    if (m_by == FindBy::WholeSpelling) {
        m_spelling.emplace(m_text);
        held = m_spelling->base;
    }
    if (!held.empty()) {
        m_search.emplace(held);
    }
}

bool Finder::Step(std::size_t variations) {
    // A line costs about as much as some variations.
    constexpr std::size_t costOfLine = 4;
    for (std::size_t done = 0; !m_isAtEnd && done < variations;) {
        if (m_line == 0 || m_slot > RecordOf(m_line).lVariationCount) {
            m_isAtEnd = ++m_line > lLineCount;
            m_slot = 1;
            done += costOfLine;
            if (!m_isAtEnd) {
                BeginLine();
            }
            continue;
        }
        const auto most =
            static_cast<std::int32_t>(std::min<std::size_t>(variations - done, VariationSlots::MostSlots));
        const Run run = RunFrom(m_slot, std::min(RecordOf(m_line).lVariationCount - m_slot, most) + m_slot);
        SearchRun(run);
        done += static_cast<std::size_t>(run.last - run.first) + 1;
        m_slot = run.last + 1;
    }
    return m_isAtEnd;
}

void Finder::BeginLine() {
    const DistrictRecord& record = RecordOf(m_line);
    if (record.bRetained) {
        NoteComment(record.Name());
        return;
    }
    if (NameMatches(record)) {
        m_hits->Add({HitKind::District, m_line, 0});
    }
    for (const std::int32_t comment : m_comments) {
        m_hits->Add({HitKind::Comment, comment, 0});
    }
    m_comments.clear();
}

// Those above a district are its comments.
void Finder::NoteComment(std::string_view line) {
    if (m_by == FindBy::Part) {
        const auto comment = CommentIn(line);
        if (comment && m_search->FindIn(*comment)) {
            m_comments.push_back(m_line);
        }
    }
}

bool Finder::NameMatches(const DistrictRecord& record) const {
    if (m_search && !m_search->FindIn(record.Line)) {
        return false; // nor does any part of it hold the text
    }
    if (m_spelling) {
        return SameSpellingElsewhere(Spelling(record.Name()), *m_spelling);
    }
    return m_search->FindIn(record.Name()) || m_search->FindIn(record.Volume()) || m_search->FindIn(record.County());
}

Finder::Run Finder::RunFrom(std::int32_t slot, std::int32_t last) const {
    const Ansi::String& first = VariationAt(m_line, slot).Text;
    Run run{slot, slot, first.View()};
    if (!first.IsPart() || first.empty()) {
        return run;
    }
    while (run.last < last) {
        const Ansi::String& next = VariationAt(m_line, run.last + 1).Text;
        const char* const end = run.text.data() + run.text.size();
        if (!next.IsPart() || next.View().data() != end + 1 || *end != Separator) {
            break;
        }
        run.text = {run.text.data(), run.text.size() + 1 + next.size()};
        ++run.last;
    }
    return run;
}

void Finder::SearchRun(const Run& run) {
    if (!m_search) { // nothing that a hit would have to hold
        for (std::int32_t slot = run.first; slot <= run.last; ++slot) {
            AddVariation(slot);
        }
        return;
    }
    const VariationSlots& variations = RecordOf(m_line).Variations;
    const auto endOf = [&](std::int32_t slot) {
        const std::string_view text = variations[static_cast<std::size_t>(slot)].Text;
        return text.data() + text.size();
    };
    std::int32_t slot = run.first;
    std::size_t from = 0;
    while (const auto found = m_search->FindIn(run.text, from)) {
        const char* end = endOf(slot);
        while (end < found->data()) {
            end = endOf(++slot);
        }
        const bool isWithin = found->data() + found->size() <= end;
        if (isWithin) {
            AddVariation(slot);
        }
        // One hit in a variation is enough; what goes beyond its end is none.
        const char* const next = isWithin ? end : found->data() + 1;
        from = static_cast<std::size_t>(next - run.text.data());
    }
}

void Finder::AddVariation(std::int32_t slot) {
    const VariationRecord& variation = VariationAt(m_line, slot);
    const bool isHit =
        !variation.IsDeleted() && (!m_spelling || SameSpellingElsewhere(Spelling(variation.Text), *m_spelling));
    if (isHit) {
        m_hits->Add({HitKind::Variation, m_line, slot});
    }
}

} // namespace CommonRoutines
