#pragma once

#include "core/Desktop.h"

namespace Printing {

// Prints lines on the default printer, page by page, so that only one of them is in memory. False when there is no
// printer or it did not take the job.
[[nodiscard]] bool Print(const CommonRoutines::LineSource& lines);

} // namespace Printing
