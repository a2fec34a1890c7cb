#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace CommonRoutines {

// What tells bytes from others: their number, and XXH3 of 128 bits, which tells versions of a file apart at the speed
// of memory; it does not protect from somebody who forges one.
struct Fingerprint {
    std::size_t size = 0;
    std::string digest; // 32 hexadecimal digits

    bool operator==(const Fingerprint&) const = default;
};

[[nodiscard]] Fingerprint FingerprintOf(std::string_view bytes);

// The same for bytes that come one piece after the other.
class GrowingFingerprint {
public:
    GrowingFingerprint();
    GrowingFingerprint(const GrowingFingerprint&) = delete;
    GrowingFingerprint& operator=(const GrowingFingerprint&) = delete;
    ~GrowingFingerprint();

    void Add(std::string_view piece);
    [[nodiscard]] Fingerprint OfAll() const; // that was added so far

private:
    struct State;
    std::unique_ptr<State> m_state;
    std::size_t m_size = 0;
};

} // namespace CommonRoutines
