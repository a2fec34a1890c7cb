#pragma once

#include <span>
#include <string>

namespace CommonRoutines {

class Desktop;

// Asks for a file name, writes the variations there, a line each and in the encoding of the open file, and says
// how many they are. A cancelled dialogue ends silently.
void SaveSelectedVariations(std::span<const std::string> variations, Desktop& desktop);

} // namespace CommonRoutines
