#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <vector>

// Times of the same thing, and how a measurement prints what it found.
namespace Figures {

// The time that this share of the times is not above.
inline double Percentile(std::vector<double> times, std::size_t percent) {
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() * percent / 100, times.size() - 1)];
}

inline double Median(const std::vector<double>& times) {
    return Percentile(times, 50);
}

template <typename Number>
void Print(const char* name, Number value) {
    std::cout << name << ' ' << value << '\n';
}

// Ends the program when what was timed did not do what it is for.
inline void Require(bool done, const char* what) {
    if (!done) {
        std::cerr << "did not work: " << what << '\n';
        std::exit(EXIT_FAILURE);
    }
}

} // namespace Figures
