#pragma once

#include "recovery/RecoveryFile.h"
#include "recovery/SlotNumbers.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace CommonRoutines {

class Desktop;
class StateFolder;

// How the slots of the table stand in the file from which it would be read again.
enum class Numbering { AsRead, AsSaved };

// The changes of the table that no data file holds yet, written to a recovery file before the user
// can do anything else. The file is made when there is a first change. It is locked as long as its
// editor lives, so that one without a living editor is known as left over.
class UnsavedChanges {
public:
    // The table is, or is about to become, what is read from these bytes. Nothing is removed: what has
    // not been saved so far stays left over.
    void Begin(Desktop& desktop, const std::string& path, const Fingerprint& bytes, Numbering numbering);

    // To be called before a slot of the table gets another text.
    void Note(std::int32_t line, std::int32_t slot, std::string_view text);

    // Notes the changes of a line that has been restored, and under which numbers its slots are noted from now on.
    void NoteRestored(std::int32_t line, std::span<const SlotChange> changes, SlotNumbers numbers);

    // The texts, ASCII so far, are in another encoding from now on. To be called before anything is taken over.
    void TakeUpEncoding();

    // Puts what has been noted on the disk. To be called before the user can do anything else. When it
    // fails, the user is told, once for every outage, and the next call tries again.
    void Write(Desktop& desktop);
    // The same, and puts them there anew where the recovery file has been removed from under the program.
    void WriteAndLook(Desktop& desktop);

    // The table is about to be saved as these bytes, under any name. Should the editor be stopped between that and
    // Remove, the changes are then known to be in the file. False when others have changes that would not fit the file
    // any more, since the save could not be kept for them.
    [[nodiscard]] bool NoteSaving(Desktop& desktop, const std::string& path, const Fingerprint& bytes);

    // What is noted and not yet written holds what this left-over file does. Its lock is taken over; the
    // file goes, or is set aside, when it is not needed any more.
    enum class Then { Goes, IsSetAside };
    void TakeOver(const std::string& leftOver, Then then = Then::Goes);

    // These left-over files belong to other paths, but have changes to what the table was read from: they may be made
    // to this file later.
    void KeepSavesFor(std::vector<std::string> leftOvers) { m_putOff = std::move(leftOvers); }
    [[nodiscard]] const std::vector<std::string>& PutOff() const { return m_putOff; }

    // The fields of a line that is being repaired, as they stand in the file, and those of any line: empty
    // unless it has been repaired.
    void KeepFields(std::int32_t line, const std::vector<std::string>& fields) { m_fields[line] = fields; }
    [[nodiscard]] std::vector<std::string> FieldsAsRead(std::int32_t line) const;

    // True while there are changes that no data file holds.
    [[nodiscard]] bool HasChanges() const { return m_records.has_value(); }

    // True while there are changes that could not be written.
    [[nodiscard]] bool AreUnwritten() const { return m_records && m_onDisk != m_records->Content().size(); }

    // The changes are in a data file, or not wanted any more. Those to come are not noted until the
    // next Begin.
    void Remove(Desktop& desktop);

    // Leaves the recovery file, if there is one, to whoever opens the data file next.
    void Release(Desktop& desktop);

    // The name of the recovery file; empty while there is none.
    [[nodiscard]] const std::string& Name() const { return m_name; }

    // The data file to which the changes belong.
    [[nodiscard]] const FileIdentity& File() const { return m_file; }

private:
    struct TakenOver {
        std::string name;
        Then then = Then::Goes;
    };

    enum class Written { Yes, Anew, No };

    [[nodiscard]] RecoveryRecords& Records();
    [[nodiscard]] SlotNumbers NumbersOf(std::int32_t line) const;
    [[nodiscard]] std::optional<LineNumbers> NumbersNow(std::int32_t line) const;
    [[nodiscard]] RecoveryRecords RecordsOfSave(const FileIdentity& saved) const;
    [[nodiscard]] Written TryToWrite(StateFolder& folder);
    [[nodiscard]] bool HasName(StateFolder& folder);
    void WriteAll(Desktop& desktop);
    void LeaveTakenOver(StateFolder& folder);
    void TellOfOutage(Desktop& desktop);

    bool m_following = false;
    Numbering m_numbering = Numbering::AsRead;
    std::unordered_map<std::int32_t, SlotNumbers> m_numbers; // of the lines that have been changed
    FileIdentity m_file;
    std::optional<RecoveryRecords> m_records; // of the whole file; nothing until there is a change
    std::size_t m_onDisk = 0;
    std::string m_name;                 // of the recovery file, which is locked; empty until there is one
    std::vector<TakenOver> m_takenOver; // left-over files, which are locked
    std::vector<std::string> m_putOff;  // see KeepSavesFor
    std::unordered_map<std::int32_t, std::vector<std::string>> m_fields;
    bool m_hasTold = false; // of this outage
};

extern UnsavedChanges Unsaved;

} // namespace CommonRoutines
