#include "ui/machine/Process.h"

#include <windows.h>

namespace Process {

// A drive without its disk, or a file that is not found, for which the system would show a box.
void LetCallsFail() {
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

} // namespace Process
