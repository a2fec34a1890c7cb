#pragma once

#include <string>
#include <string_view>

namespace Commands {

struct Session;

// The per-user settings of the program.
struct Settings {
    static constexpr std::string_view Section = "Paths";
    static constexpr std::string_view DataFolder = "InFile";
    static constexpr std::string_view ChangeFolder = "ProcessFile";
};

// What happens once before the window is used: the word list is read, all is set for "no file".
void Start(Session& session);

// Offers to finish what an editor was stopped at while it overwrote files. To be called once the window is shown.
void MendFiles(Session& session);

// Asks for a data file and opens it, unless what no file holds, a text in the edit box included, is to be kept.
// Cancelled, it leaves an emptied window and the old table.
void Open(Session& session);

// The same for a file that is known already.
void OpenPath(Session& session, const std::string& path);

// Asks for a name and writes the table there. bChanged is cleared whatever came of it.
void Save(Session& session);

// Asks, where something is in no file, whether the window may be closed. It is given up then.
[[nodiscard]] bool ConfirmClose(Session& session);

// Keeps the folder of a chosen file for the next dialogue.
void RememberFolder(Session& session, const std::string& path, std::string_view key);

} // namespace Commands
