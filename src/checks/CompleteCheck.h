#pragma once

#include "core/Report.h"

namespace CommonRoutines {

class Desktop;

// Looks through the whole table for spellings that are used twice: within a district, by two
// districts, or as a variation and as a district's name. Every match of neighbours in sorted order is
// a line, so three equal spellings make two lines; without any match one line says so. The desktop is
// busy meanwhile and told how far the check has come.
[[nodiscard]] Report CompleteVariationCheck(Desktop& desktop);

} // namespace CommonRoutines
