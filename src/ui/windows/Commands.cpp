#include "ui/windows/Commands.h"

#include "core/Desktop.h"
#include "recovery/UnsavedChanges.h"
#include "ui/windows/LongWork.h"

#include <new>

namespace Commands {

void Run(CommonRoutines::Desktop& desktop, const std::function<void()>& command) {
    if (!Ui::LongWork::IsPainting()) {
        Show(desktop, command);
    }
}

void Show(CommonRoutines::Desktop& desktop, const std::function<void()>& update) {
    try {
        update();
    } catch (const std::bad_alloc&) {
        CommonRoutines::Unsaved.Write(desktop); // whatever a command has changed before
        desktop.ShowBusy(false);
        desktop.MsgBox("There is not enough memory for that.", CommonRoutines::BoxIcon::Critical);
    }
}

} // namespace Commands
