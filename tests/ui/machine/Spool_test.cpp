#include "ui/machine/Spool.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace CommonRoutines;

namespace {

constexpr std::size_t PieceSize = std::size_t{1} << 20;

// So many pieces, each of one letter.
PieceSource Pieces(std::size_t count) {
    return [count, next = std::size_t{0}]() mutable -> std::optional<std::string> {
        return next < count ? std::optional(std::string(PieceSize, static_cast<char>('a' + next++ % 26)))
                            : std::nullopt;
    };
}

bool HasPieces(std::string_view content, std::size_t count) {
    PieceSource pieces = Pieces(count);
    for (auto piece = pieces(); piece; piece = pieces()) {
        if (!content.starts_with(*piece)) {
            return false;
        }
        content.remove_prefix(piece->size());
    }
    return content.empty();
}

} // namespace

TEST(SpoolTest, ContentsOfAllSizesArePutTogether) {
    for (const std::size_t count : {0U, 1U, 31U, 32U, 33U, 34U, 100U}) {
        bool isWhole = false;
        EXPECT_TRUE(Spool::Use(Pieces(count), [&](std::string_view content) {
            isWhole = HasPieces(content, count);
            return true;
        })) << count;
        EXPECT_TRUE(isWhole) << count;
    }
}

TEST(SpoolTest, WhatIsDoneWithThemDecides) {
    for (const std::size_t count : {1U, 40U}) {
        EXPECT_FALSE(Spool::Use(Pieces(count), [](std::string_view) { return false; }));
    }
}

TEST(SpoolTest, ALargeContentTakesNoMemory) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer ends a program that is refused memory";
#else
    constexpr std::size_t count = 512;
    const auto run = [] {
        constexpr rlim_t megabytes400 = 400UL << 20U;
        const rlimit limit{megabytes400, megabytes400};
        setrlimit(RLIMIT_DATA, &limit);
        std::exit(Spool::Use(Pieces(count), [](std::string_view content) { return HasPieces(content, count); }) ? 0
                                                                                                                : 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
#endif
}

TEST(SpoolTest, WhatThereIsNoRoomForIsNotHandedOver) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{PieceSize, before.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_FALSE(Spool::Use(Pieces(40), [](std::string_view) { return true; }));
    setrlimit(RLIMIT_FSIZE, &before);
}
