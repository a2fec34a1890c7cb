#include "support/LittleMemory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/resource.h>

void DoWithin([[maybe_unused]] std::size_t bytes, [[maybe_unused]] const std::function<void()>& work) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer ends a program that is refused memory";
#else
    const auto run = [&] {
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_AS, &limit);
        work();
        std::exit(testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
#endif
}
