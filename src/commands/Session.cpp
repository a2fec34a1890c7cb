#include "commands/Session.h"

#include "commands/FindCommands.h"
#include "commands/Guidance.h"
#include "commands/WindowMode.h"
#include "core/State.h"
#include "recovery/OpenFile.h"
#include "recovery/UnsavedChanges.h"

#include <new>

using namespace CommonRoutines;

namespace Commands {

namespace {

bool HasMemoryFor(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void TellOfMissingMemory(Desktop& desktop) {
    desktop.ShowBusy(false);
    desktop.MsgBox("There is not enough memory for that.", BoxIcon::Critical);
}

} // namespace

void WithinMemory(Desktop& desktop, const std::function<void()>& work) {
    if (!HasMemoryFor(work)) {
        TellOfMissingMemory(desktop);
    }
}

Session::Session(Desktop& machine, Screen& window)
    : desktop(m_presenting), screen(window), m_machine(machine), m_presenting(machine, [this] { Present(); }),
      m_showing(machine, [this] { screen.Show(view); }) {}

void Session::Run(const std::function<void(Session&)>& command) {
    view.edit.keyRefusal.clear();
    const bool isDone = HasMemoryFor([&] { command(*this); });
    isOpening = false; // also where there was not enough memory
    const bool isThere = GoToWantedPlace(isDone);
    const bool isShown = HasMemoryFor([this] { Present(); }); // also what a command did that has failed
    if (!isDone || !isThere || !isShown) {
        TellOfMissingMemory(m_machine);
    }
}

// Only now, since a report may be shown long before its command is over.
bool Session::GoToWantedPlace(bool mayGo) {
    const auto place = m_presenting.TakeWantedPlace();
    return !place || !mayGo || HasMemoryFor([&] { GoTo(*this, place->district, place->slot); });
}

void Session::Present() {
    view.mode = iEditMode;
    view.openFile = TheOpenFile.Path();
    WithholdFromNoDistrict(view);
    ShowGuidance(*this);
    FollowTable(*this);
    if (view.edit.isPending) { // a key needs no look at the disk
        Unsaved.Write(m_showing);
    } else {
        Unsaved.WriteAndLook(m_showing);
    }
    screen.Show(view);
    view.focus = Focus::Stays;
}

} // namespace Commands
