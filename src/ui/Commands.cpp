#include "ui/Commands.h"

#include "core/Desktop.h"
#include "recovery/UnsavedChanges.h"
#include "ui/LongWork.h"

#include <new>

namespace Commands {

void Run(Desktop& desktop, const std::function<void()>& command) {
    if (LongWork::IsPainting()) {
        return;
    }
    try {
        command();
    } catch (const std::bad_alloc&) {
        CommonRoutines::Unsaved.Write(desktop); // whatever the command has changed before
        desktop.ShowBusy(false);
        desktop.MsgBox("There is not enough memory for that.", BoxIcon::Critical);
    }
}

} // namespace Commands
