#include "recovery/LeftOvers.h"

#include "core/StateFolder.h"
#include "recovery/OpenMark.h"

#include <algorithm>
#include <new>
#include <set>
#include <utility>

namespace CommonRoutines {

namespace {

constexpr std::string_view Ending = ".changes";
constexpr std::string_view LockEnding = ".changes.lock";
constexpr std::string_view SaveEnding = ".saved";
constexpr std::string_view AsideEnding = ".aside";

bool IsEarlier(const std::string& a, const std::string& b) {
    return std::pair<std::uint64_t, std::string_view>(StateFolder::NumberOf(a), a) <
           std::pair<std::uint64_t, std::string_view>(StateFolder::NumberOf(b), b);
}

std::vector<std::string> LatestFirst(std::vector<std::string> names, std::string_view ending) {
    std::erase_if(names, [&](const std::string& name) { return !name.ends_with(ending); });
    std::sort(names.begin(), names.end(), IsEarlier);
    std::reverse(names.begin(), names.end());
    return names;
}

// Reads a left-over file as far as that goes.
LeftOver ReadLeftOver(StateFolder& folder, const std::string& name) {
    LeftOver leftOver{name, std::nullopt, false, {}};
    try {
        const auto content = folder.Read(name);
        if (content) {
            leftOver.file = ParseRecoveryFile(*content);
            leftOver.isOfNewerVersion = IsOfNewerVersion(*content);
        } else {
            leftOver.problem = folder.Problem();
        }
    } catch (const std::bad_alloc&) {
        leftOver.problem = "There is not enough memory for it";
    }
    return leftOver;
}

} // namespace

std::string RecoveryNames::New(StateFolder& folder, std::string_view dataFile) {
    return folder.NewName() + '-' + FingerprintOf(dataFile).digest.append(Ending);
}

std::string RecoveryNames::OfSave(StateFolder& folder, std::string_view dataFile) {
    return folder.NewName() + '-' + FingerprintOf(dataFile).digest.append(SaveEnding);
}

std::string RecoveryNames::LockOf(const std::string& name) {
    return name + ".lock";
}

bool RecoveryNames::MayBelongTo(std::string_view name, std::string_view dataFile) {
    const std::string digest = FingerprintOf(dataFile).digest;
    name.remove_suffix(name.ends_with(Ending) ? Ending.size() : 0);
    const std::string_view last = name.substr(name.rfind('-') + 1); // all of a name without one
    return last.size() != digest.size() || last == digest;
}

std::vector<std::string> RecoveryFiles(StateFolder& folder) {
    return LatestFirst(folder.Names(), Ending);
}

void RemoveDeadLocks(StateFolder& folder) {
    const std::vector<std::string> names = folder.Names();
    const std::set<std::string_view> all(names.begin(), names.end());
    for (const std::string& name : names) {
        const bool isLock = name.ends_with(LockEnding);
        const std::string_view locked = std::string_view(name).substr(0, isLock ? name.rfind('.') : 0);
        if (isLock && !all.contains(locked) && folder.Lock(name) == LockResult::Taken) {
            folder.Unlock(name);
        }
    }
}

bool AreOthersAt(StateFolder& folder, std::string_view dataFile, const std::string& own) {
    const std::string aside = std::string(Ending).append(AsideEnding);
    int marks = 0;
    const std::vector<std::string> names = folder.Names();
    if (!folder.Problem().empty()) {
        return true; // there may be
    }
    for (const std::string& name : names) {
        const bool isAside = name.ends_with(aside);
        const std::string_view changes =
            std::string_view(name).substr(0, name.size() - (isAside ? AsideEnding.size() : 0));
        if (changes.ends_with(Ending) && changes != own && RecoveryNames::MayBelongTo(changes, dataFile)) {
            return true;
        }
        marks += OpenMark::IsOf(name, dataFile) ? 1 : 0;
    }
    return marks > 1; // one is this editor's own
}

std::vector<std::string> SavesOf(StateFolder& folder, std::string_view dataFile) {
    std::vector<std::string> names = LatestFirst(folder.Names(), SaveEnding);
    const std::string ending = FingerprintOf(dataFile).digest.append(SaveEnding);
    std::erase_if(names, [&](const std::string& name) { return !name.ends_with(ending); });
    return names;
}

std::optional<LeftOver> TakeLeftOver(StateFolder& folder, const std::string& name) {
    const LockResult lock = folder.Lock(RecoveryNames::LockOf(name));
    if (lock == LockResult::HeldByAnother) {
        return std::nullopt;
    }
    const std::string problem = folder.Problem();
    LeftOver leftOver = ReadLeftOver(folder, name);
    if (lock != LockResult::Taken) {
        leftOver.problem = problem; // whose it is may be known all the same
    }
    const bool isGone = folder.IsGone(name);
    if (lock == LockResult::Taken && (isGone || !leftOver.problem.empty())) {
        GiveBack(folder, name);
    }
    return isGone ? std::nullopt : std::optional(std::move(leftOver));
}

void GiveBack(StateFolder& folder, const std::string& name) {
    folder.Unlock(RecoveryNames::LockOf(name));
}

void Drop(StateFolder& folder, const std::string& name) {
    folder.Remove(name);
    GiveBack(folder, name);
}

std::string SetAside(StateFolder& folder, const std::string& name) {
    std::string aside = name + std::string(AsideEnding);
    if (!folder.IsGone(aside)) { // a copy of it has been put back
        const std::size_t behindNumbers = name.rfind('-');
        aside = folder.NewName() + '-' + aside.substr(behindNumbers == std::string::npos ? 0 : behindNumbers + 1);
    }
    const bool isRenamed = folder.Rename(name, aside);
    GiveBack(folder, name);
    return folder.PathOf(isRenamed ? aside : name);
}

} // namespace CommonRoutines
