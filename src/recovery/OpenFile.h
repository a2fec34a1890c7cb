#pragma once

#include "recovery/Fingerprint.h"
#include "recovery/OpenMark.h"

#include <string>
#include <string_view>

namespace CommonRoutines {

class Desktop;

// The data file that is open: the one last read or, once the table has been saved, last saved to. What
// belongs to it follows it: the unsaved changes, the mark for other editors, and the name that Save proposes.
class OpenFile {
public:
    // As the user chose it, in the machine's own encoding; empty while no file is open.
    [[nodiscard]] const std::string& Path() const { return m_path; }
    // Whether that file is at this path, whatever links lead there.
    [[nodiscard]] static bool IsAt(Desktop& desktop, const std::string& path);
    // Whether it is at this path and holds anything but what was read or last saved. A file that has vanished does not.
    [[nodiscard]] bool WasChangedAt(Desktop& desktop, const std::string& path) const;

    // No file is open from now on. What has not been saved stays left over.
    void Close(Desktop& desktop);
    // The table is about to be read from these bytes. The stamp is what the file had before they were read.
    void BeginReading(Desktop& desktop, const std::string& path, std::string_view bytes, std::string stamp);
    // The file that was read is shown from now on. True when another editor has it open, too.
    [[nodiscard]] bool Mark(Desktop& desktop) { return m_mark.Set(desktop, m_path); }
    // The table has been saved as these bytes. True when this is another file, and another editor has it open.
    [[nodiscard]] bool MoveTo(Desktop& desktop, const std::string& path, const Fingerprint& bytes);

private:
    std::string m_path;
    std::string m_stamp; // of what was read or last saved
    OpenMark m_mark;
};

extern OpenFile TheOpenFile;

// What is said when another editor has the file open.
void TellOfAnotherEditor(Desktop& desktop);

} // namespace CommonRoutines
