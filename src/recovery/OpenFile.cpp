#include "recovery/OpenFile.h"

#include "core/Desktop.h"
#include "recovery/UnsavedChanges.h"

namespace CommonRoutines {

OpenFile TheOpenFile;

bool OpenFile::IsAt(Desktop& desktop, const std::string& path) {
    return desktop.TruePath(path) == Unsaved.File().path;
}

void OpenFile::Close(Desktop& desktop) {
    m_path.clear();
    m_mark.Clear(desktop);
    Unsaved.Release(desktop);
}

void OpenFile::BeginReading(Desktop& desktop, const std::string& path, std::string_view bytes) {
    m_path = path;
    Unsaved.Begin(desktop, path, bytes, Numbering::AsRead);
}

bool OpenFile::MoveTo(Desktop& desktop, const std::string& path, std::string_view bytes) {
    const bool isAnother = !IsAt(desktop, path);
    m_path = path;
    Unsaved.Remove(desktop);
    Unsaved.Begin(desktop, path, bytes, Numbering::AsSaved);
    return isAnother && m_mark.Set(desktop, path);
}

void TellOfAnotherEditor(Desktop& desktop) {
    desktop.MsgBox("Another editor has this file open.  What is saved last replaces what was saved before.",
                   BoxIcon::Exclamation);
}

} // namespace CommonRoutines
