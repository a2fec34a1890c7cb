#pragma once

#include "recovery/RecoveryFile.h"

#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace CommonRoutines {

class StateFolder;

// A save may pass by changes that somebody else has made to the same file: another editor that is still open, or
// one whose recovery file could not be read or was not wanted yet. Such a save is kept, with what has become of the
// slots. So those changes can still be had back, and do not belong to an earlier state for ever.
class SavesForOthers {
public:
    // Those of the file at this path.
    SavesForOthers(StateFolder& folder, std::string path) : m_folder(folder), m_path(std::move(path)) {}

    // Whether there are changes of others, in recovery files that were put off among them; `own` is the name of the
    // one that is none of theirs.
    [[nodiscard]] bool AreWanted(const std::string& own, std::span<const std::string> putOff);
    // True when the save is on the disk.
    [[nodiscard]] bool Keep(const RecoveryRecords& save);
    // Removes all, once there are no changes of others any more.
    void RemoveUnlessWanted(const std::string& own, std::span<const std::string> putOff);

    // Whether saves have led from an earlier state of the file to its present one.
    [[nodiscard]] bool Lead(const Fingerprint& before, const Fingerprint& now) { return !Between(before, now).empty(); }
    // Whether a left-over file was taken over by an editor that has saved its changes since.
    [[nodiscard]] bool Hold(const std::string& leftOver);
    // Makes changes to an earlier state of the file changes to its present one. Of a variation that the save has
    // changed, too, that counts. False when it is not known how the one state became the other.
    [[nodiscard]] bool CarryTo(const Fingerprint& now, RecoveryFile& changes);
    // Why that may be known another time; empty when all has been read.
    [[nodiscard]] const std::string& Problem() const { return m_problem; }

private:
    [[nodiscard]] const std::vector<RecoveryFile>& All();
    void NoteProblem();
    [[nodiscard]] std::vector<const RecoveryFile*> Between(const Fingerprint& before, const Fingerprint& now);

    StateFolder& m_folder;
    std::string m_path;
    std::optional<std::vector<RecoveryFile>> m_all; // once they have been read, the latest first
    std::set<std::string> m_held;                   // by any of them
    std::string m_problem;
};

} // namespace CommonRoutines
