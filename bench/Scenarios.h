#pragma once

// What a user does with the window, each measured in a process of its own, and printed as lines of a
// name and a value: times in milliseconds ("_ms"), memory in bytes ("_bytes"), or counts.

#include <string>

namespace Bench {

// Bring up the window, and an empty one of the toolkit, until they are painted.
void ShowWindow();
void ShowEmptyWindow();
// Opens the file.
void MeasureOpening(const std::string& file);
// Opens the file, runs the complete check, marks a variation and saves to "<file>.saved".
void MeasureSession(const std::string& file);
// Types into the edit box, for an add to the biggest district, and into a bare line edit in turns.
void MeasureTyping(const std::string& file);
// Adds, edits, deletes, marks and takes back in the biggest district.
void MeasureEditing(const std::string& file);
// Applies all proposals to the biggest district.
void MeasureApplying(const std::string& file, const std::string& proposals);
// Chooses districts and filters them.
void MeasureLists(const std::string& file);
// Finds a text that is hardly anywhere, a usual one, a whole spelling, and a letter that is nearly everywhere.
void MeasureFinding(const std::string& file);

} // namespace Bench
