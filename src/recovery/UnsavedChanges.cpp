#include "recovery/UnsavedChanges.h"

#include "core/Desktop.h"
#include "core/State.h"
#include "recovery/LeftOvers.h"

namespace CommonRoutines {

UnsavedChanges Unsaved;

namespace {

void Unlock(StateFolder& folder, std::string& name) {
    if (!name.empty()) {
        folder.Unlock(RecoveryNames::LockOf(name));
        name.clear();
    }
}

void RemoveFile(StateFolder& folder, std::string& name) {
    if (!name.empty()) {
        folder.Remove(name);
        Unlock(folder, name);
    }
}

void RemoveFiles(StateFolder& folder, std::vector<std::string>& names) {
    for (std::string& name : names) {
        RemoveFile(folder, name);
    }
    names.clear();
}

} // namespace

void UnsavedChanges::Begin(Desktop& desktop, const std::string& path, std::string_view bytes, Numbering numbering) {
    Release(desktop);
    m_following = true;
    m_numbering = numbering;
    m_file = IdentityOf(desktop.TruePath(path), bytes);
    m_hasTold = m_hasTold && numbering == Numbering::AsSaved;
}

void UnsavedChanges::Note(std::int32_t line, std::int32_t slot, std::string_view text) {
    if (!m_following) {
        return;
    }
    if (m_numbering == Numbering::AsRead) {
        NoteInFile(line, slot, text);
        return;
    }
    SlotNumbers& numbers = m_numbers.try_emplace(line, RecordOf(line)).first->second;
    const SlotNumbers::Place place = numbers.TakePlace(slot);
    NoteInFile(line, place.first, text);
    for (std::int32_t i = 1; i < place.count; ++i) {
        NoteInFile(line, place.first + i, DeletedText);
    }
}

void UnsavedChanges::NoteInFile(std::int32_t line, std::int32_t slot, std::string_view text) {
    if (m_content.empty()) {
        m_content = RecoveryHeader(m_file);
    }
    m_content += RecoveryRecord(line, slot, text);
}

void UnsavedChanges::NoteSaving(Desktop& desktop, const std::string& path, std::string_view bytes) {
    if (!m_content.empty()) {
        m_content += SavingRecord(IdentityOf(desktop.TruePath(path), bytes));
        Write(desktop);
    }
}

std::vector<std::string> UnsavedChanges::FieldsAsRead(std::int32_t line) const {
    const auto fields = m_fields.find(line);
    return fields == m_fields.end() ? std::vector<std::string>() : fields->second;
}

void UnsavedChanges::Write(Desktop& desktop) {
    if (!AreUnwritten()) {
        return;
    }
    if (TryToWrite(desktop.State())) {
        RemoveFiles(desktop.State(), m_takenOver);
        return;
    }
    if (m_hasTold) {
        return;
    }
    m_hasTold = true;
    desktop.MsgBox(
        "Your changes cannot be written to the recovery file.  They are only safe once the file is saved.\r\n" +
            Wording::OfPath(desktop.State().PathOf(m_name)),
        BoxIcon::Exclamation);
}

bool UnsavedChanges::TryToWrite(StateFolder& folder) {
    if (m_name.empty()) {
        const std::string name = RecoveryNames::New(folder);
        if (folder.Lock(RecoveryNames::LockOf(name)) != LockResult::Taken) {
            return false;
        }
        m_name = name;
    }
    const std::string_view content = m_content;
    // Where the file has gone, it is written anew.
    const bool written =
        (m_onDisk > 0 && folder.Extend(m_name, m_onDisk, content.substr(m_onDisk))) || folder.Replace(m_name, content);
    if (written) {
        m_onDisk = m_content.size();
    }
    return written;
}

void UnsavedChanges::Remove(Desktop& desktop) {
    RemoveFile(desktop.State(), m_name);
    RemoveFiles(desktop.State(), m_takenOver);
    Release(desktop);
}

void UnsavedChanges::Release(Desktop& desktop) {
    Unlock(desktop.State(), m_name);
    for (std::string& name : m_takenOver) {
        Unlock(desktop.State(), name);
    }
    const bool hasTold = m_hasTold;
    *this = {};
    m_hasTold = hasTold;
}

} // namespace CommonRoutines
