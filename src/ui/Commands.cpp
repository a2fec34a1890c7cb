#include "ui/Commands.h"

#include "core/Desktop.h"
#include "recovery/UnsavedChanges.h"
#include "ui/LongWork.h"

#include <new>

namespace Commands {

void Run(Desktop& desktop, const std::function<void()>& command) {
    if (!LongWork::IsPainting()) {
        Show(desktop, command);
    }
}

void Show(Desktop& desktop, const std::function<void()>& update) {
    try {
        update();
    } catch (const std::bad_alloc&) {
        CommonRoutines::Unsaved.Write(desktop); // whatever a command has changed before
        desktop.ShowBusy(false);
        desktop.MsgBox("There is not enough memory for that.", BoxIcon::Critical);
    }
}

} // namespace Commands
