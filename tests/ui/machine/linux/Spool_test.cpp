// Large contents where there is little memory or little room.

#include "ui/machine/Spool.h"

#include "ui/machine/Pieces.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>

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
