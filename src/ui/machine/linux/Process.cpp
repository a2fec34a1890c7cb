#include "ui/machine/Process.h"

#include <csignal>

namespace Process {

// A write beyond the largest size that a file may have.
void LetCallsFail() {
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace Process
