#include "file/DistrictComments.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "file/CommentTypes.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

constexpr auto None = std::string_view::npos;

// A break this close to the beginning of a row is none.
constexpr std::size_t EarliestBreak = 4;

// No row of a screen holds as many characters (some of which have no width).
constexpr std::size_t LongestRow = 2000;

// Beyond this many rows nothing is wrapped any more: a comment, or the rest of one, then is a row.
constexpr std::size_t MostWrappedRows = 10'000;

// The retained lines directly above a district are its comment lines: the index of the first of them.
std::int32_t FirstCommentLine(std::int32_t lDistrict) {
    std::int32_t line = lDistrict;
    while (line > 1 && RecordOf(line - 1).bRetained) {
        --line;
    }
    return line;
}

// Whether the width of the text passes a test that wider texts fail. Only as much of it is measured
// as could pass, so that a comment of any length costs what is shown of it.
template <typename Test>
bool WidthPasses(std::string_view text, const MeasureText& measure, Test test) {
    if (Ansi::FirstCharacters(text, LongestRow).size() < text.size()) {
        return false;
    }
    for (std::size_t length = 256; length < text.size(); length *= 2) {
        if (!test(measure(Ansi::Beginning(text, length)))) {
            return false;
        }
    }
    return test(measure(text));
}

// Position of the last blank that leaves the text before it narrower than the room.
std::size_t LastFittingBlank(std::string_view text, double room, const MeasureText& measure) {
    std::size_t fitting = None;
    text = Ansi::FirstCharacters(text, LongestRow);
    for (auto blank = text.find(' '); blank != None && measure(text.substr(0, blank)) < room;
         blank = text.find(' ', blank + 1)) {
        fitting = blank;
    }
    return fitting;
}

} // namespace

bool DistrictHasCommentType(std::int32_t lDistrict, std::string_view sType) {
    for (std::int32_t i = FirstCommentLine(lDistrict); i < lDistrict; ++i) {
        const std::string_view line = RecordOf(i).Name();
        if (!Ansi::EqualIgnoringCase(line.substr(0, CommentMarker.size()), CommentMarker)) {
            continue;
        }
        const std::string_view type = Ansi::FirstWord(line.substr(CommentMarker.size()));
        if (Ansi::EqualIgnoringCase(type, sType)) {
            return true;
        }
    }
    return false;
}

std::optional<std::string_view> CommentIn(std::string_view line) {
    // The marker is ASCII, and no letter beyond has its capital there.
    const auto sameLetter = [](char a, char b) { return Ansi::Upper(a) == b; };
    const auto found = std::search(line.begin(), line.end(), CommentMarker.begin(), CommentMarker.end(), sameLetter);
    if (found == line.end()) {
        return std::nullopt;
    }
    return line.substr(static_cast<std::size_t>(found - line.begin()) + CommentMarker.size());
}

std::vector<CommentRow> CommentRows(std::int32_t lDistrict, double available, const MeasureText& measure) {
    std::vector<CommentRow> rows;
    if (!IsDistrict(lDistrict)) {
        return rows;
    }
    for (std::int32_t i = FirstCommentLine(lDistrict); i < lDistrict; ++i) {
        const auto rest = CommentIn(RecordOf(i).Name());
        if (!rest) {
            continue;
        }
        const std::string_view type = Ansi::FirstWord(*rest);
        const std::string_view comment = rest->substr(std::min(type.size() + 1, rest->size()));
        rows.push_back({std::string(type), ""});
        // A comment that fills the room exactly still fits here; in a wrapped one it would not.
        if (rows.size() > MostWrappedRows ||
            WidthPasses(comment, measure, [=](double width) { return width <= available; })) {
            rows.back().comment = comment;
        } else {
            WrapComment(rows, comment, available, measure);
        }
    }
    return rows;
}

void WrapComment(std::vector<CommentRow>& rows, std::string_view sText, double available, const MeasureText& measure) {
    std::string_view text = Ansi::Trim(sText);
    while (!text.empty()) {
        const std::size_t blank = LastFittingBlank(text, available, measure);
        const bool breaks = blank != None && Ansi::CharacterCount(text.substr(0, blank)) + 1 >= EarliestBreak;
        const std::size_t length = breaks ? blank + 1 : text.size();
        rows.back().comment = Ansi::Trim(text.substr(0, length));
        if (length == text.size()) {
            return;
        }
        text = Ansi::Trim(text.substr(length - 1));
        if (text.empty()) {
            return;
        }
        rows.push_back({" ", ""});
        if (rows.size() > MostWrappedRows ||
            WidthPasses(text, measure, [=](double width) { return width < available; })) {
            rows.back().comment = text;
            return;
        }
    }
}

} // namespace CommonRoutines
