#include "commands/FindCommands.h"

#include "commands/DistrictCommands.h"
#include "commands/Guidance.h"
#include "commands/Session.h"
#include "commands/VariationCommands.h"
#include "core/State.h"
#include "find/FoundInWords.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

using namespace CommonRoutines;

namespace Commands {

namespace {

constexpr int AllTypes = 0; // the row of " All" among the comment types

// Hits that fill any screen. Until there are so many, those of the search before stay.
constexpr std::size_t Screenful = 200;

// The row of a slot among the listed variations; nothing for one that is not listed.
std::optional<int> RowOf(const WindowView& view, std::int32_t slot) {
    const auto& rows = *view.variations.rows;
    const auto found =
        std::find_if(rows.begin(), rows.end(), [=](const VariationRow& row) { return row.slot == slot; });
    return found == rows.end() ? std::nullopt : std::optional(static_cast<int>(found - rows.begin()));
}

bool MayFind(const WindowView& view) {
    return view.IsEnabled(Control::findNext);
}

// Nothing is listed behind an opening that was cancelled.
std::string_view ObstacleToFinding(const Session& session) {
    return MayFind(session.view) && iEditMode == NothingOpen ? WayToDistrict(session)
                                                             : session.view.ObstacleTo(Control::findNext);
}

bool IsUpToDate(const Session& session) {
    return session.search && session.search->IsUpToDate();
}

// Searches for a while, in steps that are short beside it; at first only until the list can be filled.
void Search(Session& session) {
    constexpr std::chrono::milliseconds spell(12);
    constexpr std::size_t step = 10'000; // variations
    FindView& find = session.view.find;
    Finder& finder = session.search->finder;
    const auto end = session.desktop.Uptime() + spell;
    const auto fillsScreen = [&] { return find.hits != finder.Found() && finder.Found()->Count() >= Screenful; };
    while (!finder.Step(step) && session.desktop.Uptime() < end && !fillsScreen()) {
    }
    find.isSearching = !finder.IsAtEnd();
    // What comes while the list is full of hits is shown at the end, so that it is not made again and again.
    if (finder.IsAtEnd() || fillsScreen()) {
        find.hits = finder.Found();
        ++find.touched;
    }
}

void BeginSearch(Session& session) {
    const FindView& find = session.view.find;
    session.search.emplace(find.text, find.by);
    Search(session);
}

// The hits that a key goes through, also where the bar was closed; never those of another text, which may still be
// shown.
const Hits& HitsToWalk(Session& session) {
    FindView& find = session.view.find;
    find.isOpen = true;
    if (!IsUpToDate(session)) {
        BeginSearch(session);
    }
    while (find.hits != session.search->finder.Found()) {
        Search(session);
    }
    return *find.hits;
}

// The row behind a hit, or before it, round and round. Without one a walk begins at the first row, or at the last.
std::size_t RowBehind(const Hits& hits, const std::optional<Hit>& hit) {
    const std::size_t row = hit ? hits.RowFrom(*hit) + (hits.RowOf(*hit) ? 1 : 0) : 0;
    return row < hits.Count() ? row : 0;
}
std::size_t RowBefore(const Hits& hits, const std::optional<Hit>& hit) {
    const std::size_t row = hit ? hits.RowFrom(*hit) : 0;
    return (row == 0 ? hits.Count() : row) - 1;
}

void Walk(Session& session, std::size_t (*next)(const Hits&, const std::optional<Hit>&)) {
    if (!MayFind(session.view)) {
        return;
    }
    const Hits& hits = HitsToWalk(session);
    if (hits.Count() == 0) {
        session.desktop.Beep();
    } else {
        GoToHit(session, next(hits, session.view.find.current));
    }
}

} // namespace

void OpenFind(Session& session) {
    session.view.find.isOpen = true;
    session.view.focus = Focus::FindBox;
}

void CloseFind(Session& session) {
    session.view.find.isOpen = false;
    ForgetHits(session);
}

void TypeSought(Session& session, std::string text) {
    session.view.find.text = std::move(text);
    session.view.find.current.reset();
    session.search.reset();
}

void FindWholeSpellings(Session& session, bool whole) {
    session.view.find.by = whole ? FindBy::WholeSpelling : FindBy::Part;
    session.view.find.current.reset();
    session.search.reset();
}

void ContinueFinding(Session& session) {
    if (session.view.find.isSearching && IsUpToDate(session)) {
        Search(session);
    }
}

void GoToHit(Session& session, std::size_t row) {
    const Hits& hits = *session.view.find.hits;
    if (!MayFind(session.view) || row >= hits.Count()) {
        return;
    }
    const Hit hit = hits.At(row);
    session.view.find.current = hit;
    GoTo(session, DistrictOf(hit), hit.kind == HitKind::Variation ? hit.slot : 0);
}

void FindNext(Session& session) {
    Walk(session, RowBehind);
}

void FindPrevious(Session& session) {
    Walk(session, RowBefore);
}

void GoTo(Session& session, std::int32_t district, std::int32_t slot) {
    if (!IsDistrict(district)) {
        return;
    }
    WindowView& view = session.view;
    if (!GoToDistrict(session, district)) {
        ChooseCommentType(session, {AllTypes});
        if (!GoToDistrict(session, district)) {
            return;
        }
    }
    ++view.arrivals;
    view.focus = Focus::Districts;
    if (const auto row = RowOf(view, slot)) {
        SelectVariations(session, {*row});
        view.focus = Focus::Variations;
    }
}

void FollowTable(Session& session) {
    FindView& find = session.view.find;
    if (!find.isOpen) {
        return;
    }
    if (iEditMode == NothingOpen) {
        ForgetHits(session);
    } else if (!IsUpToDate(session)) {
        BeginSearch(session);
    }
    if (const std::string_view obstacle = ObstacleToFinding(session); !obstacle.empty()) {
        find.status = "To find, " + std::string(obstacle);
        return;
    }
    // The list may still show what another text was found in.
    const Hits& found = session.search ? *session.search->finder.Found() : *find.hits;
    find.status = FoundInWords(found, find.isSearching, !find.text.empty());
}

void ForgetHits(Session& session) {
    session.search.reset();
    FindView& find = session.view.find;
    find.isSearching = false;
    find.current.reset();
    if (find.hits->Count() > 0) {
        find.hits = std::make_shared<Hits>();
        ++find.touched;
    }
}

} // namespace Commands
