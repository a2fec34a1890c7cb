#include "ui/machine/Memory.h"

namespace Memory {

// The system gives out no more than it has.
void LimitToWhatIsLeft() {}

} // namespace Memory
