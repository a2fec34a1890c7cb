#include "recovery/UnsavedChanges.h"

#include "core/Desktop.h"
#include "core/State.h"
#include "recovery/LeftOvers.h"
#include "recovery/SavesForOthers.h"

namespace CommonRoutines {

UnsavedChanges Unsaved;

void UnsavedChanges::Begin(Desktop& desktop, const std::string& path, const Fingerprint& bytes, Numbering numbering) {
    Release(desktop);
    m_following = true;
    m_numbering = numbering;
    m_file = {desktop.TruePath(path), bytes};
    if (numbering == Numbering::AsRead) { // another file
        m_hasTold = false;
        m_putOff.clear();
    }
}

void UnsavedChanges::Note(std::int32_t line, std::int32_t slot, std::string_view text) {
    if (!m_following) {
        return;
    }
    auto numbers = m_numbers.find(line);
    if (numbers == m_numbers.end()) {
        numbers = m_numbers.emplace(line, NumbersOf(line)).first;
    }
    const SlotNumbers::Place place = numbers->second.TakePlace(slot);
    Records().AddChange({line, place.first, std::string(text), place.after});
    for (std::int32_t i = 1; i < place.count; ++i) {
        Records().AddChange({line, place.first + i, std::string(DeletedText), std::nullopt});
    }
}

SlotNumbers UnsavedChanges::NumbersOf(std::int32_t line) const {
    const auto numbers = m_numbers.find(line);
    if (numbers != m_numbers.end()) {
        return numbers->second;
    }
    const DistrictRecord& record = RecordOf(line);
    return m_numbering == Numbering::AsSaved ? SlotNumbers(record) : SlotNumbers::AsRead(record.lVariationCount);
}

void UnsavedChanges::NoteRestored(std::int32_t line, std::span<const SlotChange> changes, SlotNumbers numbers) {
    for (const SlotChange& change : changes) {
        Records().AddChange(change);
    }
    m_numbers.insert_or_assign(line, std::move(numbers));
}

void UnsavedChanges::TakeUpEncoding() {
    const auto file = m_records ? ParseRecoveryFile(m_records->Content()) : std::nullopt;
    if (!file) {
        return;
    }
    m_records.emplace(m_file, eFileEncoding);
    for (const SlotChange& change : file->changes) {
        m_records->AddChange(change);
    }
    m_onDisk = 0; // not so much as the first line
}

// The encoding is that of the table, which has been read by the time of the first change.
RecoveryRecords& UnsavedChanges::Records() {
    if (!m_records) {
        m_records.emplace(m_file, eFileEncoding);
    }
    return *m_records;
}

bool UnsavedChanges::NoteSaving(Desktop& desktop, const std::string& path, const Fingerprint& bytes) {
    const FileIdentity saved{desktop.TruePath(path), bytes};
    if (m_records) {
        m_records->AddSaving(saved);
        Write(desktop);
    }
    SavesForOthers saves(desktop.State(), m_file.path);
    if (saved == m_file || saved.path != m_file.path || !saves.AreWanted(m_name, m_putOff)) {
        return true;
    }
    const RecoveryRecords records = RecordsOfSave(saved);
    return saves.Keep(records) || saves.Keep(records); // a call may fail once
}

// What this editor has changed, and where the slots are numbered anew.
RecoveryRecords UnsavedChanges::RecordsOfSave(const FileIdentity& saved) const {
    RecoveryRecords records = m_records ? *m_records : RecoveryRecords(m_file, eFileEncoding);
    for (std::int32_t line = 1; line <= lLineCount; ++line) {
        const bool isAsSaved = m_numbering == Numbering::AsSaved && !m_numbers.contains(line);
        const auto numbers = isAsSaved ? std::nullopt : NumbersNow(line);
        if (numbers) {
            records.AddNumbers(*numbers);
        }
    }
    records.AddSaving(saved);
    return records;
}

// The slots of a line as they will be numbered once it is saved; nothing when that is as before. A line that was
// changed says so all the same: it may have had slots in between that others have numbered alike.
std::optional<LineNumbers> UnsavedChanges::NumbersNow(std::int32_t line) const {
    if (!IsDistrict(line)) {
        return std::nullopt;
    }
    const SlotNumbers before = NumbersOf(line);
    const SlotNumbers after(RecordOf(line));
    LineNumbers numbers{line, after.FirstCount(), {}};
    numbers.now.resize(static_cast<std::size_t>(before.FirstCount()));
    for (std::int32_t slot = 1; slot <= RecordOf(line).lVariationCount; ++slot) {
        const std::int32_t number = before.NumberOf(slot);
        if (number > 0 && number <= before.FirstCount()) {
            numbers.now[static_cast<std::size_t>(number) - 1] = after.NumberOf(slot);
        }
    }
    bool isAsBefore = !m_numbers.contains(line) && before.FirstCount() == after.FirstCount();
    for (std::size_t i = 0; isAsBefore && i < numbers.now.size(); ++i) {
        isAsBefore = numbers.now[i] == static_cast<std::int32_t>(i) + 1;
    }
    return isAsBefore ? std::nullopt : std::optional(std::move(numbers));
}

void UnsavedChanges::TakeOver(const std::string& leftOver, Then then) {
    m_takenOver.push_back({leftOver, then});
    if (m_records) {
        m_records->AddHeld(leftOver);
    }
}

std::vector<std::string> UnsavedChanges::FieldsAsRead(std::int32_t line) const {
    const auto fields = m_fields.find(line);
    return fields == m_fields.end() ? std::vector<std::string>() : fields->second;
}

void UnsavedChanges::WriteAndLook(Desktop& desktop) {
    if (m_records && (AreUnwritten() || desktop.State().IsGone(m_name))) {
        WriteAll(desktop);
    }
}

void UnsavedChanges::Write(Desktop& desktop) {
    if (AreUnwritten()) {
        WriteAll(desktop);
    }
}

void UnsavedChanges::WriteAll(Desktop& desktop) {
    const Written written = TryToWrite(desktop.State());
    if (written == Written::No) {
        TellOfOutage(desktop);
        return;
    }
    m_hasTold = false;
    LeaveTakenOver(desktop.State());
    if (written == Written::Anew) {
        desktop.MsgBox("The recovery file of your changes had been removed.  It has been written anew.\r\n" +
                           Wording::OfPath(desktop.State().PathOf(m_name)),
                       BoxIcon::Exclamation);
    }
}

UnsavedChanges::Written UnsavedChanges::TryToWrite(StateFolder& folder) {
    const std::string_view content = m_records->Content();
    const std::string_view added = content.substr(m_onDisk);
    // What is taken over goes there as a whole, so that it is never found in two files in part.
    bool isWritten = !added.empty() && m_onDisk > 0 && m_takenOver.empty() && folder.Extend(m_name, m_onDisk, added);
    const bool isGone = !isWritten && m_onDisk > 0 && folder.IsGone(m_name);
    if (isGone) {
        GiveBack(folder, std::exchange(m_name, {})); // its lock may have gone, too, and be another editor's
        m_onDisk = 0;
    }
    isWritten = isWritten || (HasName(folder) && folder.Replace(m_name, content));
    if (isWritten) {
        m_onDisk = content.size();
    }
    return !isWritten ? Written::No : isGone ? Written::Anew : Written::Yes;
}

// A name of its own, which is locked.
bool UnsavedChanges::HasName(StateFolder& folder) {
    if (m_name.empty()) {
        const std::string name = RecoveryNames::New(folder, m_file.path);
        if (folder.Lock(RecoveryNames::LockOf(name)) == LockResult::Taken) {
            m_name = name;
        }
    }
    return !m_name.empty();
}

void UnsavedChanges::TellOfOutage(Desktop& desktop) {
    if (m_hasTold) {
        return;
    }
    m_hasTold = true;
    desktop.MsgBox(
        "Your changes cannot be written to the recovery file.  They are only safe once the file is saved.\r\n" +
            Wording::OfPath(desktop.State().PathOf(m_name)),
        BoxIcon::Exclamation);
}

void UnsavedChanges::LeaveTakenOver(StateFolder& folder) {
    for (const TakenOver& leftOver : m_takenOver) {
        if (leftOver.then == Then::IsSetAside) {
            SetAside(folder, leftOver.name);
        } else {
            Drop(folder, leftOver.name);
        }
    }
    m_takenOver.clear();
}

void UnsavedChanges::Remove(Desktop& desktop) {
    if (!m_name.empty()) {
        Drop(desktop.State(), std::exchange(m_name, {}));
    }
    LeaveTakenOver(desktop.State());
    Release(desktop);
}

void UnsavedChanges::Release(Desktop& desktop) {
    if (!m_name.empty()) {
        GiveBack(desktop.State(), m_name);
    }
    for (const TakenOver& leftOver : m_takenOver) {
        GiveBack(desktop.State(), leftOver.name);
    }
    UnsavedChanges none;
    none.m_hasTold = m_hasTold;
    none.m_putOff = std::move(m_putOff);
    *this = std::move(none);
}

} // namespace CommonRoutines
