#include "commands/Session.h"

#include "recovery/UnsavedChanges.h"

#include <new>
#include <utility>

using namespace CommonRoutines;

namespace Commands {

void WithinMemory(Desktop& desktop, const std::function<void()>& work) {
    try {
        work();
    } catch (const std::bad_alloc&) {
        Unsaved.Write(desktop); // whatever has been changed before
        desktop.ShowBusy(false);
        desktop.MsgBox("There is not enough memory for that.", BoxIcon::Critical);
    }
}

Session::Session(Desktop& machine, Screen& window)
    : desktop(m_presenting), screen(window), m_machine(machine), m_presenting(machine, [this] { Present(); }) {}

void Session::Run(const std::function<void(Session&)>& command) {
    WithinMemory(m_machine, [&] { command(*this); });
    WithinMemory(m_machine, [this] { Present(); });
}

void Session::Present() {
    Unsaved.Write(m_machine);
    view.mode = iEditMode;
    screen.Show(view);
    view.focus = Focus::Stays;
}

} // namespace Commands
