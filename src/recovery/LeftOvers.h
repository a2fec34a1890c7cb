#pragma once

#include "recovery/RecoveryFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

class StateFolder;

// The recovery files of the state folder. One is left over when no living editor has its lock: its
// editor was stopped, or its changes were neither saved nor given up.

// A name begins with a number, by which the later of two is known, and ends with what is made from the path of
// the data file, so that it is known whose changes are in a file that cannot be read.
namespace RecoveryNames {

[[nodiscard]] std::string New(StateFolder& folder, std::string_view dataFile);
[[nodiscard]] std::string LockOf(const std::string& name);
// Of a save that is kept (recovery/SavesForOthers).
[[nodiscard]] std::string OfSave(StateFolder& folder, std::string_view dataFile);
// False when the name says that the changes belong to a file at another path.
[[nodiscard]] bool MayBelongTo(std::string_view name, std::string_view dataFile);

} // namespace RecoveryNames

struct LeftOver {
    std::string name;
    std::optional<RecoveryFile> file; // nothing when it is none, or cannot be read
    bool isOfNewerVersion = false;
    std::string problem; // why it cannot be had now; it is not locked then
};

// The names of all recovery files, those of living editors among them, the latest first.
[[nodiscard]] std::vector<std::string> RecoveryFiles(StateFolder& folder);

// Removes the locks without a file, which are from editors that were stopped between the two.
void RemoveDeadLocks(StateFolder& folder);

// Whether others have, or may come to have, changes to a data file: in a recovery file, which may be set aside, or
// since they have it open. True as well where that cannot be told. `own` is the name of the recovery file that is none
// of theirs.
[[nodiscard]] bool AreOthersAt(StateFolder& folder, std::string_view dataFile, const std::string& own);

// The names of the saves of a data file that are kept, the latest first.
[[nodiscard]] std::vector<std::string> SavesOf(StateFolder& folder, std::string_view dataFile);

// Locks a left-over file, so that no other editor takes it until it is given back, dropped or set aside, and reads
// it. Nothing when a living editor has it, or when it has gone.
[[nodiscard]] std::optional<LeftOver> TakeLeftOver(StateFolder& folder, const std::string& name);

// What may become of a file of the state folder that is locked: another editor may have it, it goes, or it is kept
// where it is not offered any more, until the user deletes it. That is under its name with an ending more; without
// that it is offered again. Returns the path where it is kept, for a message.
void GiveBack(StateFolder& folder, const std::string& name);
void Drop(StateFolder& folder, const std::string& name);
std::string SetAside(StateFolder& folder, const std::string& name);

} // namespace CommonRoutines
