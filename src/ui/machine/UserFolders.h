#pragma once

#include <QString>

// Where each system lets a program keep what is the user's.
namespace UserFolders {

// For what has to outlive the program when it stops unexpectedly.
[[nodiscard]] QString State();
// For what is temporary and too large for memory.
[[nodiscard]] QString Large();

// Closes a folder to others. One behind a link is somebody's own arrangement.
void CloseToOthers(const QString& folder);

} // namespace UserFolders
