#include "ui/machine/Process.h"

#include <windows.h>

namespace Process {

// A drive without its disk.
void LetCallsFail() {
    SetErrorMode(SEM_FAILCRITICALERRORS);
}

} // namespace Process
