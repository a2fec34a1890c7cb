#include "recovery/LeftOvers.h"

#include "core/StateFolder.h"

#include <algorithm>

namespace CommonRoutines {

namespace {

constexpr std::string_view Ending = ".changes";
constexpr std::string_view LockEnding = ".changes.lock";
constexpr std::string_view AsideEnding = ".aside";

constexpr std::size_t MostSetAside = 3;

std::vector<std::string> NamesWith(StateFolder& folder, std::string_view ending) {
    std::vector<std::string> names = folder.Names();
    std::erase_if(names, [&](const std::string& name) { return !name.ends_with(ending); });
    return names;
}

// A lock without its file is from an editor that was stopped between the two.
void RemoveDeadLocks(StateFolder& folder) {
    for (const std::string& name : NamesWith(folder, LockEnding)) {
        if (folder.Lock(name) == LockResult::Taken) {
            folder.Unlock(name);
        }
    }
}

} // namespace

std::string RecoveryNames::New(StateFolder& folder) {
    return folder.NewName().append(Ending);
}

std::string RecoveryNames::LockOf(const std::string& name) {
    return name + ".lock";
}

std::vector<LeftOver> TakeLeftOvers(StateFolder& folder) {
    RemoveDeadLocks(folder);
    std::vector<LeftOver> leftOvers;
    for (const std::string& name : NamesWith(folder, Ending)) {
        if (folder.Lock(RecoveryNames::LockOf(name)) != LockResult::Taken) {
            continue;
        }
        if (const auto content = folder.Read(name)) {
            leftOvers.push_back({name, ParseRecoveryFile(*content)});
        } else {
            folder.Unlock(RecoveryNames::LockOf(name));
        }
    }
    std::reverse(leftOvers.begin(), leftOvers.end());
    return leftOvers;
}

void GiveBack(StateFolder& folder, const LeftOver& leftOver) {
    folder.Unlock(RecoveryNames::LockOf(leftOver.name));
}

void Drop(StateFolder& folder, const LeftOver& leftOver) {
    folder.Remove(leftOver.name);
    GiveBack(folder, leftOver);
}

std::string SetAside(StateFolder& folder, const LeftOver& leftOver) {
    const std::string aside = folder.NewName().append(AsideEnding); // the last in the order of names
    const bool renamed = folder.Rename(leftOver.name, aside);
    GiveBack(folder, leftOver);
    std::vector<std::string> kept = NamesWith(folder, AsideEnding);
    for (std::size_t i = 0; i + MostSetAside < kept.size(); ++i) {
        folder.Remove(kept[i]);
    }
    return folder.PathOf(renamed ? aside : leftOver.name);
}

} // namespace CommonRoutines
