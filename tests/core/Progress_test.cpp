#include "core/Progress.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

// Counts what it is told.
class CountingDesktop : public ScriptedDesktop {
public:
    CountingDesktop() { busy = true; }

    void ShowProgress(std::string_view doing, double newPart) override {
        ++tellings;
        ScriptedDesktop::ShowProgress(doing, newPart);
    }

    int tellings = 0;
};

} // namespace

TEST(Progress, TheBeginningIsTold) {
    CountingDesktop desktop;
    const Progress progress(desktop, "Counting", 10);
    EXPECT_EQ(desktop.tasks, std::vector<std::string>{"Counting"});
    EXPECT_EQ(desktop.part, 0);
}

TEST(Progress, EveryStepOfAFewIsTold) {
    CountingDesktop desktop;
    Progress progress(desktop, "Counting", 4);
    progress.Advance(1);
    EXPECT_EQ(desktop.part, 0.25);
    progress.Advance(3);
    EXPECT_EQ(desktop.part, 1);
    EXPECT_EQ(desktop.tellings, 3);
}

TEST(Progress, OfAMillionStepsAboutAThousandAreTold) {
    CountingDesktop desktop;
    Progress progress(desktop, "Counting", 1'000'000);
    for (int i = 0; i < 1'000'000; ++i) {
        progress.Advance(1);
    }
    EXPECT_EQ(desktop.tellings, 1001);
    EXPECT_EQ(desktop.part, 1);
}

TEST(Progress, NothingToDoIsDone) {
    CountingDesktop desktop;
    const Progress progress(desktop, "Counting", 0);
    EXPECT_EQ(desktop.part, 1);
}

TEST(Progress, WithoutADesktopNobodyIsTold) {
    Progress progress;
    progress.Advance(1'000'000);
}
