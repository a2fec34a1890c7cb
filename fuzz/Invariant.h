#pragma once

#include <cstdlib>

// Stops the fuzzer, which keeps the input, when something does not hold that must always hold.
inline void Demand(bool holds) {
    if (!holds) {
        std::abort();
    }
}
