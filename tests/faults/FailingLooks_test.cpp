// Looks at the disk that fail, each in its turn, while a file is saved.

#include "FaultTest.h"

#include <sys/stat.h>

#include <cerrno>
#include <functional>

namespace {

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
                GoOn(session);
                EXPECT_TRUE(session.Calls().at(static_cast<std::size_t>(look) - 1).failed);
                EXPECT_TRUE(session.Finished()) << session.Said();
                judge(session);
            }
        }
    }
    // The old or the new file, and nothing beside it; no edit is lost.
    void ExpectOldOrNewAtEveryLook(const std::function<void()>& makeIt) {
        const auto prepare = [&] {
            PrepareDisk();
            makeIt();
        };
        FailEveryLook(prepare, {"save", place.file}, [&](const Session& session) {
            ExpectOldOrNew(session, place.file, OldContent(), ContentAfter(Edits));
            EXPECT_EQ(session.Said().find("could not be written as a whole"), std::string::npos) << session.Said();
            ExpectRecovered(Edits);
        });
    }

    const std::filesystem::path otherName = folder.Path() / "other name";

private:
    static void GoOn(Session& session) {
        EXPECT_TRUE(session.WaitForStop());
        session.Continue();
        session.Finish();
    }
    // Those that are made when none fails; without further steps, those before a save.
    [[nodiscard]] std::vector<Call> LooksOf(const Steps& behindTheEdits) const {
        Session session(place, EditAndPause() + behindTheEdits, {"", 0, 0, false, true});
        if (behindTheEdits.empty()) {
            EXPECT_TRUE(session.WaitForStop());
        } else {
            GoOn(session);
        }
        return session.Calls();
    }

    static constexpr int FewestLooks = 8;
    mode_t m_mask;
};

} // namespace

TEST_F(FailingLooksTest, LeaveTheOldOrTheNewFileAndEveryEdit) {
    ExpectOldOrNewAtEveryLook([] {});
}

TEST_F(FailingLooksTest, LeaveAFileWithTwoNamesWholeAndEveryEdit) {
    ExpectOldOrNewAtEveryLook([&] {
        std::filesystem::remove(otherName);
        std::filesystem::create_hard_link(place.file, otherName);
    });
}
