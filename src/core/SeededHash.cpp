#include "core/SeededHash.h"

#include <random>

#include <xxhash.h>

namespace CommonRoutines {

std::size_t SeededHash::operator()(std::string_view text) const {
    static const XXH64_hash_t seed = [] {
        std::random_device random;
        return XXH64_hash_t{random()} << 32U | random();
    }();
    return XXH3_64bits_withSeed(text.data(), text.size(), seed);
}

} // namespace CommonRoutines
