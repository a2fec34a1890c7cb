// Pipes, devices and links, and memory that there is not.

#include "ui/windows/RefusedFilesTest.h"

#include "ui/machine/Memory.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class SpecialFiles : public RefusedFiles {
protected:
    // A pipe, and a link to it, devices, and more bytes than any disk has.
    std::vector<std::string> Refused() const {
        EXPECT_EQ(mkfifo(Path("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
        EXPECT_EQ(symlink(Path("pipe").c_str(), Path("link").c_str()), 0);
        return {Path("pipe"), Path("link"), "/dev/zero", "/dev/tty", FileOfSize("larger", 1000 * TwoGigabytes)};
    }
};

} // namespace

TEST_F(SpecialFiles, CannotBeRead) {
    for (const std::string& path : Refused()) {
        ExpectRefusedAsDataFile(path);
        ExpectRefusedAsChangeFile(path);
    }
}

TEST_F(SpecialFiles, CannotBeTheWordList) {
    for (const std::string& path : Refused()) {
        unlink(Path(WordList).c_str());
        ASSERT_EQ(symlink(path.c_str(), Path(WordList).c_str()), 0);
        ExpectNoWordList();
    }
}

// In a process of its own, since the limit stays.
TEST_F(SpecialFiles, WhoeverAsksForMoreMemoryThanThereIsIsRefused) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer ends a program that is refused memory";
#else
    const auto ask = [] {
        Memory::LimitToWhatIsLeft();
        rlimit limit{};
        getrlimit(RLIMIT_DATA, &limit);
        std::vector<std::unique_ptr<std::string>> taken;
        try {
            // Each is little enough to be given out where more is given out than there is.
            for (rlim_t bytes = 0; bytes <= limit.rlim_cur; bytes += 1U << 28U) {
                taken.push_back(std::make_unique<std::string>());
                taken.back()->reserve(1U << 28U);
            }
        } catch (const std::bad_alloc&) {
            std::exit(limit.rlim_cur == RLIM_INFINITY ? 1 : 0);
        }
        std::exit(2);
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(0), "");
#endif
}
