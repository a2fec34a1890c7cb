#include "recovery/Fingerprint.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace CommonRoutines;

TEST(Fingerprint, TellsBytesFromOthers) {
    const Fingerprint ash = FingerprintOf("Ash");
    EXPECT_EQ(ash.size, 3U);
    EXPECT_EQ(ash.digest.size(), 32U);
    EXPECT_EQ(ash, FingerprintOf("Ash"));
    EXPECT_NE(ash, FingerprintOf("Asp"));
    EXPECT_NE(ash, FingerprintOf("Ash "));
    EXPECT_NE(ash, FingerprintOf(""));
}

// The published value of the empty text: xxHash, XXH3_128bits with seed 0.
TEST(Fingerprint, HasTheDigestThatOtherProgramsCompute) {
    EXPECT_EQ(FingerprintOf("").digest, "99aa06d3014798d86001c324468d497f");
    EXPECT_EQ(GrowingFingerprint().OfAll(), FingerprintOf(""));
}

TEST(Fingerprint, IsTheSameForBytesThatComeInPieces) {
    std::mt19937 random(16);
    for (int round = 0; round < 200; ++round) {
        GrowingFingerprint growing;
        std::string all;
        for (auto pieces = random() % 20; pieces > 0; --pieces) {
            std::string piece(random() % (round % 2 == 0 ? 10 : 3000), '\0');
            for (char& byte : piece) {
                byte = static_cast<char>(random());
            }
            growing.Add(piece);
            all += piece;
            EXPECT_EQ(growing.OfAll(), FingerprintOf(all)) << all.size();
        }
    }
}
