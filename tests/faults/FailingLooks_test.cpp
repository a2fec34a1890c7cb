// Looks at the disk that fail, each in its turn, while a file is saved. What they would have told must not be taken for
// given: what has the file to itself, who may read it, and whether it is still what was opened.

#include "FaultTest.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <functional>

namespace {

constexpr const char* Rights = "system.posix_acl_access";
constexpr const char* RightsOfNewFiles = "system.posix_acl_default";
constexpr uid_t SomebodyElse = 1234;

std::string AttributeOf(const std::filesystem::path& file, const char* name) {
    std::array<char, 256> value{};
    const ssize_t size = getxattr(file.c_str(), name, value.data(), value.size());
    return size < 0 ? std::string() : std::string(value.data(), static_cast<std::size_t>(size));
}

// Lets somebody else read, as the system stores that.
bool LetSomebodyRead(const std::filesystem::path& path, const char* attribute) {
    struct Entry {
        std::uint16_t kind;
        std::uint16_t rights;
        std::uint32_t user;
    };
    struct {
        std::uint32_t version = 2;
        std::array<Entry, 5> entries{
            {{1, 6, UINT32_MAX}, {2, 4, SomebodyElse}, {4, 4, UINT32_MAX}, {16, 4, UINT32_MAX}, {32, 0, UINT32_MAX}}};
    } const list;
    return setxattr(path.c_str(), attribute, &list, sizeof list, 0) == 0;
}

// What a save must leave as it is.
std::string TraitsOf(const std::filesystem::path& file) {
    struct stat link {};
    struct stat status {};
    if (lstat(file.c_str(), &link) != 0 || stat(file.c_str(), &status) != 0) {
        return "no file";
    }
    std::string traits = S_ISLNK(link.st_mode) ? "link" : "file";
    for (const std::uint64_t trait : {std::uint64_t{status.st_mode}, std::uint64_t{status.st_uid},
                                      std::uint64_t{status.st_gid}, std::uint64_t{status.st_nlink}}) {
        traits += ' ' + std::to_string(trait);
    }
    return traits + ' ' + AttributeOf(file, Rights);
}

class FailingLooksTest : public FaultTest {
protected:
    FailingLooksTest() : m_mask(umask(S_IWGRP | S_IWOTH)) { place.watched = {disk, state}; }
    ~FailingLooksTest() override { umask(m_mask); }

    // Saves of a file that is prepared. Each look behind the edits fails in its turn: on a disk that fails, and one
    // that tells what a file is also since that has gone stale.
    void FailEveryLook(const std::function<void()>& prepare, const Steps& behindTheEdits,
                       const std::function<void(Session&)>& judge) {
        prepare();
        const int before = static_cast<int>(LooksOf({}).size());
        for (const int error : {EIO, ESTALE}) {
            prepare();
            const std::vector<Call> looks = LooksOf(behindTheEdits);
            EXPECT_GT(static_cast<int>(looks.size()), before + FewestLooks);
            for (int look = before + 1; look <= static_cast<int>(looks.size()); ++look) {
                const Call& call = looks[static_cast<std::size_t>(look) - 1];
                if (error == ESTALE && call.kind != "stat") {
                    continue;
                }
                const Fault fault{"fail", look, error, false, true};
                SCOPED_TRACE(fault.Description() + ", " + call.kind + ' ' + call.path);
                prepare();
                Session session(place, EditAndPause() + behindTheEdits, fault);
                LetOthersWrite(session);
                EXPECT_TRUE(session.Calls().at(static_cast<std::size_t>(look) - 1).failed);
                EXPECT_TRUE(session.Finished()) << session.Said();
                judge(session);
            }
        }
    }
    // The old or the new file, with all that it was before and nothing beside it; no edit is lost.
    void ExpectTheSameFileAtEveryLook(const std::function<void()>& makeIt) {
        const auto prepare = [&] {
            PrepareDisk();
            makeIt();
        };
        prepare();
        const std::string traits = TraitsOf(place.file);
        FailEveryLook(prepare, {"save", place.file}, [&](const Session& session) {
            ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
            EXPECT_EQ(TraitsOf(place.file), traits) << session.Said();
            EXPECT_EQ(session.Said().find("could not be written as a whole"), std::string::npos) << session.Said();
            ExpectRecovered(Edits);
        });
    }
    void ExpectBytesOfOthersAreKeptAtEveryLook(const std::function<void()>& makeIt) {
        std::string others = OldContent();
        others.back() = 'x';
        meanwhile = [&] { WriteContent(place.file, others); };
        const auto prepare = [&] {
            PrepareDisk();
            makeIt();
        };
        FailEveryLook(prepare, {"defaults", "save", place.file, "close"}, [&](const Session& session) {
            ExpectContent(place.file, others);
            EXPECT_FALSE(session.Reached("saved")) << session.Said();
            EXPECT_TRUE(session.Said().ends_with("\nbox This will loose your changes.\nstill open\nfinished\n"))
                << session.Said();
        });
    }

    // The file goes to another folder, and a link to it stays.
    void PutBehindLink() {
        std::filesystem::create_directory(linked);
        place.watched = {disk, state, linked};
        std::filesystem::rename(place.file, linked / "target.txt");
        std::filesystem::create_symlink(linked / "target.txt", place.file);
    }

    // Whether the state folder has a copy from which the file can be mended.
    [[nodiscard]] bool HasCopy() const {
        const auto entries = std::filesystem::directory_iterator(state);
        return std::any_of(begin(entries), end(entries),
                           [](const auto& entry) { return entry.path().extension() == ".copy"; });
    }

    std::function<void()> meanwhile = [] {}; // between the edits and the save
    const std::filesystem::path otherName = folder.Path() / "other name";
    const std::filesystem::path linked = folder.Path() / "linked";

private:
    void LetOthersWrite(Session& session) const {
        EXPECT_TRUE(session.WaitForStop());
        meanwhile();
        session.Continue();
        session.Finish();
    }
    // Those that are made when none fails; without further steps, those before a save.
    [[nodiscard]] std::vector<Call> LooksOf(const Steps& behindTheEdits) const {
        Session session(place, EditAndPause() + behindTheEdits, {"", 0, 0, false, true});
        if (behindTheEdits.empty()) {
            EXPECT_TRUE(session.WaitForStop());
        } else {
            LetOthersWrite(session);
        }
        return session.Calls();
    }

    static constexpr int FewestLooks = 8;
    mode_t m_mask;
};

} // namespace

TEST_F(FailingLooksTest, LeaveTheOldOrTheNewFileAndEveryEdit) {
    ExpectTheSameFileAtEveryLook([] {});
}

TEST_F(FailingLooksTest, AFileForItsUserAloneStaysThat) {
    ExpectTheSameFileAtEveryLook([&] { ASSERT_EQ(chmod(place.file.c_str(), S_IRUSR | S_IWUSR), 0); });
}

TEST_F(FailingLooksTest, LeaveAFileWithTwoNamesWholeAndOneFileAndEveryEdit) {
    ExpectTheSameFileAtEveryLook([&] {
        std::filesystem::remove(otherName);
        std::filesystem::create_hard_link(place.file, otherName);
    });
}

TEST_F(FailingLooksTest, AFileOfSomebodyElseStaysTheirs) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "left out: only root may give a file away";
    }
    ExpectTheSameFileAtEveryLook([&] { ASSERT_EQ(chown(place.file.c_str(), SomebodyElse, SomebodyElse), 0); });
}

TEST_F(FailingLooksTest, AFileWithRightsForOthersKeepsThem) {
    if (!LetSomebodyRead(disk, Rights)) {
        GTEST_SKIP() << "left out: this file system knows no access control lists";
    }
    ExpectTheSameFileAtEveryLook([&] { ASSERT_TRUE(LetSomebodyRead(place.file, Rights)); });
}

TEST_F(FailingLooksTest, AFileGetsNoRightsOfItsFolder) {
    if (!LetSomebodyRead(disk, RightsOfNewFiles)) {
        GTEST_SKIP() << "left out: this file system knows no access control lists";
    }
    ExpectTheSameFileAtEveryLook([&] {
        ASSERT_EQ(removexattr(place.file.c_str(), Rights), 0);
        ASSERT_EQ(chmod(place.file.c_str(), S_IRUSR | S_IWUSR | S_IRGRP), 0);
    });
}

TEST_F(FailingLooksTest, ALinkStaysALink) {
    ExpectTheSameFileAtEveryLook([&] { PutBehindLink(); });
}

// The disk is just as large as the file, which cannot grow, and so is to be put back.
TEST_F(FailingLooksTest, AFileWithTwoNamesThatHasNoRoomIsPutBackAndStaysOneFile) {
    if (!MayMount()) {
        GTEST_SKIP() << "left out: only root may mount file systems";
    }
    const std::size_t page = TmpfsMount::PageSize;
    const std::size_t missing = page - OldContent().size() % page + page;
    const std::string content = OldContent() + '#' + std::string(missing - 3, 'x') + "\r\n";
    const TmpfsMount full(disk, content.size() / page);
    const auto prepare = [&] {
        PrepareDisk(content);
        std::filesystem::create_hard_link(place.file, disk / "other name");
    };
    prepare();
    const std::string traits = TraitsOf(place.file);
    FailEveryLook(prepare, {"save", place.file}, [&](const Session& session) {
        // Where the old content could not be had, the new one is kept, and the user is told where.
        if (!session.Reached("box This file could not be written as a whole:") || !HasCopy()) {
            ExpectContent(place.file, content);
        }
        EXPECT_EQ(TraitsOf(place.file), traits);
        EXPECT_FALSE(session.Reached("saved"));
    });
}

TEST_F(FailingLooksTest, WhatAnotherProgramHasWrittenIsKept) {
    ExpectBytesOfOthersAreKeptAtEveryLook([] {});
}

TEST_F(FailingLooksTest, WhatAnotherProgramHasWrittenBehindALinkIsKept) {
    ExpectBytesOfOthersAreKeptAtEveryLook([&] { PutBehindLink(); });
}
