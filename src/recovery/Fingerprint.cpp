#include "recovery/Fingerprint.h"

#include "recovery/Hex.h"

#include <new>

#include <xxhash.h>

namespace CommonRoutines {

namespace {

std::string Digits(const XXH128_hash_t& digest) {
    return Hex(digest.high64) + Hex(digest.low64);
}

} // namespace

Fingerprint FingerprintOf(std::string_view bytes) {
    return {bytes.size(), Digits(XXH3_128bits(bytes.data(), bytes.size()))};
}

struct GrowingFingerprint::State {
    State() : hash(XXH3_createState()) {
        if (hash == nullptr) {
            throw std::bad_alloc();
        }
        XXH3_128bits_reset(hash);
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() { XXH3_freeState(hash); }

    XXH3_state_t* hash;
};

GrowingFingerprint::GrowingFingerprint() : m_state(std::make_unique<State>()) {}

GrowingFingerprint::~GrowingFingerprint() = default;

void GrowingFingerprint::Add(std::string_view piece) {
    XXH3_128bits_update(m_state->hash, piece.data(), piece.size());
    m_size += piece.size();
}

Fingerprint GrowingFingerprint::OfAll() const {
    return {m_size, Digits(XXH3_128bits_digest(m_state->hash))};
}

} // namespace CommonRoutines
