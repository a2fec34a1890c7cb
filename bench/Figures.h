#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
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

// A line of what the system knows about this process, in bytes: "VmRSS" is the resident memory,
// "VmHWM" the most that it has ever been.
inline std::uint64_t Memory(std::string_view name) {
    constexpr std::uint64_t kilobyte = 1024;
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with(name)) {
            return std::stoull(line.substr(line.find_first_of("0123456789"))) * kilobyte;
        }
    }
    return 0;
}

template <typename Number>
void Print(const std::string& name, Number value) {
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
