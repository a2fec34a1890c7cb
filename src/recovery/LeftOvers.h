#pragma once

#include "recovery/RecoveryFile.h"

#include <optional>
#include <string>
#include <vector>

namespace CommonRoutines {

class StateFolder;

// The recovery files of the state folder. One is left over when no living editor has its lock: its
// editor was stopped, or its changes were neither saved nor given up.

namespace RecoveryNames {

[[nodiscard]] std::string New(StateFolder& folder);
[[nodiscard]] std::string LockOf(const std::string& name);

} // namespace RecoveryNames

struct LeftOver {
    std::string name;
    std::optional<RecoveryFile> file; // nothing when it is damaged
};

// All left-over files, the latest first. Each is locked, so that no other editor takes it, until it is
// given back, dropped or set aside.
[[nodiscard]] std::vector<LeftOver> TakeLeftOvers(StateFolder& folder);

void GiveBack(StateFolder& folder, const LeftOver& leftOver);
void Drop(StateFolder& folder, const LeftOver& leftOver);

// Keeps a left-over file where it is not offered any more, and no more than the last three of such.
// Returns the path where it is kept, for a message.
std::string SetAside(StateFolder& folder, const LeftOver& leftOver);

} // namespace CommonRoutines
