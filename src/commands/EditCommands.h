#pragma once

#include <string_view>

// The commands of the edit panel: the box, its options, "Ok" and "Cancel".
namespace Commands {

struct Session;

// "Add": the box is emptied for a new variation.
void StartAdding(Session& session);

// The user has typed: this is the text now.
void TypeText(Session& session, std::string_view text);

// A key was refused in the box, for this reason.
void RefuseKey(Session& session, std::string_view reason);

// "Ok": stores what is in the box as the mode says.
void Accept(Session& session);

// "Cancel": gives the text up.
void Cancel(Session& session);

// The focus goes into the box, where something may be typed.
void GoToEditBox(Session& session);

// The user has clicked on an option box, which is now ticked or not.
void ClickSpelling(Session& session, bool ticked);
void ClickVariation(Session& session, bool ticked);
void ClickValidInYears(Session& session, bool ticked);
void ClickVolume(Session& session, bool ticked);

// The program's own writing into the panel.
void PutIntoEditBox(Session& session, std::string_view text);
void ResetEditPanel(Session& session);

// Finds out what the text in the box is good for, and enters the mode that follows from it.
void FollowEditText(Session& session);

// Empties the panel and leads the focus to the districts.
void ReturnToIdle(Session& session);

} // namespace Commands
