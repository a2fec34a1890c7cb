// Takes the place of the hash that differs from run to run: what is found must be found again.

#include "core/SeededHash.h"

#include <xxhash.h>

std::size_t CommonRoutines::SeededHash::operator()(std::string_view text) const {
    return XXH3_64bits_withSeed(text.data(), text.size(), 1);
}
