#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <functional>

#if __has_include(<sys/resource.h>)
#include <sys/resource.h>
#endif

// Does this in a process of its own, which may take so many bytes. The sanitizer would end a program that is refused
// memory, and not every system has such a limit.
inline void DoWithin([[maybe_unused]] std::size_t bytes, [[maybe_unused]] const std::function<void()>& work) {
#if __has_include(<sys/resource.h>) && !defined(__SANITIZE_ADDRESS__)
    const auto run = [&] {
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_AS, &limit);
        work();
        std::exit(testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
#else
    GTEST_SKIP() << "left out: memory cannot be limited here";
#endif
}
