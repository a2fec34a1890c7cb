#include "recovery/SavesForOthers.h"

#include "core/StateFolder.h"
#include "recovery/LeftOvers.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace CommonRoutines {

namespace {

// The slots of one line that a save has numbered anew.
class CarriedLine {
public:
    explicit CarriedLine(const LineNumbers& numbers) : m_now(numbers.now), m_count(numbers.countNow) {
        std::int32_t alive = 0;
        for (const std::int32_t number : m_now) {
            alive = number == 0 ? alive : number;
            m_aliveUpTo.push_back(alive);
        }
    }

    [[nodiscard]] bool Knows(std::int32_t slot) const { return slot <= std::ssize(m_now); }
    // The number of a slot; 0 when it has gone. One that the save does not know is new, and gets the next number.
    std::int32_t NumberOf(std::int32_t slot) {
        if (Knows(slot)) {
            return m_now[static_cast<std::size_t>(slot) - 1];
        }
        const auto [added, isFirst] = m_added.try_emplace(slot, m_count + 1);
        m_count += isFirst ? 1 : 0;
        return added->second;
    }
    // The number of the slot behind which another one comes that followed this one.
    std::int32_t NumberBefore(std::int32_t slot) {
        if (slot == 0) {
            return 0;
        }
        return Knows(slot) ? m_aliveUpTo[static_cast<std::size_t>(slot) - 1] : NumberOf(slot);
    }

private:
    const std::vector<std::int32_t>& m_now;
    std::vector<std::int32_t> m_aliveUpTo;
    std::int32_t m_count;
    std::map<std::int32_t, std::int32_t> m_added;
};

void Carry(RecoveryFile& changes, const RecoveryFile& save) {
    std::map<std::int32_t, CarriedLine> lines;
    for (const LineNumbers& numbers : save.numbers) {
        lines.try_emplace(numbers.line, numbers);
    }
    std::set<std::pair<std::int32_t, std::int32_t>> changedLater;
    for (const SlotChange& change : save.changes) {
        changedLater.emplace(change.line, change.slot);
    }
    std::vector<SlotChange> carried;
    for (SlotChange& change : changes.changes) {
        const auto line = lines.find(change.line);
        const bool isRenumbered = line != lines.end();
        const bool isOld = !isRenumbered || line->second.Knows(change.slot);
        if (isOld && changedLater.contains({change.line, change.slot})) {
            ++changes.overtaken;
            continue;
        }
        if (isRenumbered) {
            change.slot = line->second.NumberOf(change.slot);
            change.after = change.after ? std::optional(line->second.NumberBefore(*change.after)) : std::nullopt;
        }
        if (change.slot > 0) {
            carried.push_back(std::move(change));
        } else {
            ++changes.overtaken;
        }
    }
    changes.changes = std::move(carried);
    changes.file = {changes.file.path, save.savedAs->bytes};
}

} // namespace

bool SavesForOthers::AreWanted(const std::string& own, std::span<const std::string> putOff) {
    return AreOthersAt(m_folder, m_path, own) ||
           std::any_of(putOff.begin(), putOff.end(), [&](const std::string& name) { return !m_folder.IsGone(name); });
}

bool SavesForOthers::Keep(const RecoveryRecords& save) {
    return m_folder.Replace(RecoveryNames::OfSave(m_folder, m_path), save.Content());
}

void SavesForOthers::RemoveUnlessWanted(const std::string& own, std::span<const std::string> putOff) {
    const std::vector<std::string> names = SavesOf(m_folder, m_path);
    if (!names.empty() && !AreWanted(own, putOff)) {
        for (const std::string& name : names) {
            m_folder.Remove(name);
        }
    }
}

const std::vector<RecoveryFile>& SavesForOthers::All() {
    if (!m_all) {
        m_all.emplace();
        const std::vector<std::string> names = SavesOf(m_folder, m_path);
        NoteProblem();
        for (const std::string& name : names) {
            const auto content = m_folder.Read(name);
            NoteProblem();
            auto save = content ? ParseRecoveryFile(*content) : std::nullopt;
            if (save && save->savedAs && !save->isDamaged) {
                m_held.insert(save->holds.begin(), save->holds.end());
                m_all->push_back(std::move(*save));
            }
        }
    }
    return *m_all;
}

void SavesForOthers::NoteProblem() {
    if (m_problem.empty()) {
        m_problem = m_folder.Problem();
    }
}

std::vector<const RecoveryFile*> SavesForOthers::Between(const Fingerprint& before, const Fingerprint& now) {
    std::vector<const RecoveryFile*> saves;
    Fingerprint state = now;
    for (const RecoveryFile& save : All()) { // the latest first
        if (state == before) {
            break;
        }
        if (save.savedAs->bytes == state) {
            saves.insert(saves.begin(), &save);
            state = save.file.bytes;
        }
    }
    return state == before ? saves : std::vector<const RecoveryFile*>();
}

bool SavesForOthers::Hold(const std::string& leftOver) {
    static_cast<void>(All());
    return m_held.contains(leftOver);
}

bool SavesForOthers::CarryTo(const Fingerprint& now, RecoveryFile& changes) {
    if (changes.file.bytes == now) {
        return true;
    }
    for (const RecoveryFile* save : Between(changes.file.bytes, now)) {
        Carry(changes, *save);
    }
    return changes.file.bytes == now;
}

} // namespace CommonRoutines
