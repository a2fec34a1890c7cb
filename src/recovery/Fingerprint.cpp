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

GrowingFingerprint::GrowingFingerprint() : m_state(XXH3_createState()) {
    if (!m_state) {
        throw std::bad_alloc();
    }
    XXH3_128bits_reset(m_state.get());
}

void GrowingFingerprint::Add(std::string_view piece) {
    XXH3_128bits_update(m_state.get(), piece.data(), piece.size());
    m_size += piece.size();
}

Fingerprint GrowingFingerprint::OfAll() const {
    return {m_size, Digits(XXH3_128bits_digest(m_state.get()))};
}

void GrowingFingerprint::Free::operator()(XXH3_state_s* state) const {
    XXH3_freeState(state);
}

} // namespace CommonRoutines
