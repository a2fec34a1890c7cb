#include "recovery/OpenFile.h"

#include "core/Desktop.h"
#include "recovery/UnsavedChanges.h"

#include <utility>

namespace CommonRoutines {

OpenFile TheOpenFile;

bool OpenFile::IsAt(Desktop& desktop, const std::string& path) {
    return desktop.TruePath(path) == Unsaved.File().path;
}

bool OpenFile::WasChangedAt(Desktop& desktop, const std::string& path) const {
    const std::string stamp = desktop.StampOf(path);
    const bool isThis = path == m_path || IsAt(desktop, path);
    if (!isThis || stamp.empty() || stamp == m_stamp) {
        return false;
    }
    const auto bytes = desktop.ReadFile(path);
    return !bytes || FingerprintOf(*bytes) != Unsaved.File().bytes;
}

void OpenFile::Close(Desktop& desktop) {
    m_path.clear();
    m_stamp.clear();
    m_mark.Clear(desktop);
    Unsaved.Release(desktop);
}

void OpenFile::BeginReading(Desktop& desktop, const std::string& path, std::string_view bytes, std::string stamp) {
    m_path = path;
    m_stamp = std::move(stamp);
    Unsaved.Begin(desktop, path, FingerprintOf(bytes), Numbering::AsRead);
}

bool OpenFile::MoveTo(Desktop& desktop, const std::string& path, const Fingerprint& bytes) {
    const bool isAnother = !IsAt(desktop, path);
    m_path = path;
    m_stamp = desktop.StampOf(path);
    Unsaved.Remove(desktop);
    Unsaved.Begin(desktop, path, bytes, Numbering::AsSaved);
    return isAnother && m_mark.Set(desktop, path);
}

void TellOfAnotherEditor(Desktop& desktop) {
    desktop.MsgBox("Another editor has this file open.  What is saved last replaces what was saved before.",
                   BoxIcon::Exclamation);
}

} // namespace CommonRoutines
