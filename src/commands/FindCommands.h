#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace Commands {

struct Session;

// Opens the find bar, or leads to it, and closes it again; what was typed stays for the next time.
void OpenFind(Session& session);
void CloseFind(Session& session);

// Another text is sought, or the same one otherwise: whole spellings, or any part of a text.
void TypeSought(Session& session, std::string text);
void FindWholeSpellings(Session& session, bool whole);

// Goes on with a search that is not at its end. A search works for a few milliseconds at a time, so that it never
// keeps a key waiting.
void ContinueFinding(Session& session);

// Goes to the hit in a row; to the one behind the hit that was gone to last, or before it, round and round. Where the
// bar is closed it is opened.
void GoToHit(Session& session, std::size_t row);
void FindNext(Session& session);
void FindPrevious(Session& session);

// Goes to a district, and to the variation in a slot of it unless that is 0, as by choosing them by hand: first the
// district, then the variation. All districts are listed again where the chosen type of comment hides this one. Nothing
// happens where there is no such district.
void GoTo(Session& session, std::int32_t district, std::int32_t slot);

// Begins the search again where the table is not the one that was searched, and tells how many hits there are.
void FollowTable(Session& session);

// The table goes, and what was found in it.
void ForgetHits(Session& session);

} // namespace Commands
