#include "commands/Session.h"

#include "commands/EditingPlayer.h"
#include "commands/WindowMode.h"
#include "edit/Variations.h"
#include "recovery/UnsavedChanges.h"

#include <new>

using namespace CommonRoutines;
using namespace Commands;

namespace {

// Sees what stands behind a box, and what a kill would leave, at the moment when it comes up.
class WatchingDesktop : public ScriptedDesktop {
public:
    BoxAnswer MsgBox(const Wording& text, BoxIcon /*icon*/, BoxButtons /*buttons*/) override {
        boxes.push_back(text.Utf8());
        statusBehind = screen.shown.status;
        changesOnDisk = state.Kept(".changes").size();
        return BoxAnswer::Ok;
    }

    QuietScreen screen;
    std::vector<std::string> boxes;
    std::string statusBehind;
    std::size_t changesOnDisk = 0;
};

class SessionTest : public StateTest {
protected:
    SessionTest() {
        lCurrentDistrict = AddDistrict("Alpha", {"Alfa"});
        Unsaved.Begin(desktop, DataFilePath, FingerprintOf(""), Numbering::AsRead);
    }

    static void Change(Session& session) {
        StoreText(lCurrentDistrict, 1, "Changed");
        session.view.status = "changed";
    }

    WatchingDesktop desktop;
    Session session{desktop, desktop.screen};
};

} // namespace

TEST_F(SessionTest, ACommandEndsWithItsChangesOnTheDiskAndShown) {
    session.Run(Change);
    EXPECT_EQ(desktop.state.Kept(".changes").size(), 1u);
    EXPECT_EQ(desktop.screen.shown.status, "changed");
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(SessionTest, BeforeAnythingIsSaidTheChangesAreOnTheDiskAndShown) {
    session.Run([](Session& now) {
        Change(now);
        now.desktop.MsgBox("Said", BoxIcon::Information);
    });
    EXPECT_EQ(desktop.boxes, std::vector<std::string>{"Said"});
    EXPECT_EQ(desktop.changesOnDisk, 1u);
    EXPECT_EQ(desktop.statusBehind, "changed");
}

TEST_F(SessionTest, BeforeLongWorkTheWindowShowsWhatIsSo) {
    session.Run([this](Session& now) {
        Change(now);
        now.desktop.ShowBusy(true);
        EXPECT_EQ(desktop.screen.shown.status, "changed");
        now.desktop.ShowBusy(false);
    });
}

TEST_F(SessionTest, ACommandWithoutMemoryEndsWithAMessageBehindWhatItHasDone) {
    session.Run([](Session& now) {
        Change(now);
        now.desktop.ShowBusy(true);
        throw std::bad_alloc();
    });
    EXPECT_EQ(desktop.boxes, std::vector<std::string>{"There is not enough memory for that."});
    EXPECT_EQ(desktop.changesOnDisk, 1u);
    EXPECT_EQ(desktop.statusBehind, "changed");
    EXPECT_FALSE(desktop.busy);
}

TEST_F(SessionTest, WhatCannotBeWrittenIsSaidBeforeAWindowThatShowsIt) {
    desktop.state.canWrite = false;
    session.Run(Change);
    ASSERT_EQ(desktop.boxes.size(), 1u);
    EXPECT_TRUE(desktop.boxes[0].starts_with("Your changes cannot be written")) << desktop.boxes[0];
    EXPECT_EQ(desktop.statusBehind, "changed");
}

TEST_F(SessionTest, AModeThatIsNoneChangesNoControlAndNoLabel) {
    session.Run([](Session& now) {
        EnterMode(now, AddingUnacceptable);
        now.view.status = "status";
        now.view.applyTo = 1;
    });
    const WindowView before = desktop.screen.shown;
    for (const std::int16_t mode : std::initializer_list<std::int16_t>{0, 11, -1}) {
        session.Run([=](Session& now) { EnterMode(now, mode); });
        EXPECT_EQ(desktop.screen.shown.enabled, before.enabled) << mode;
        EXPECT_EQ(desktop.screen.shown.status, "status") << mode;
        EXPECT_EQ(desktop.screen.shown.applyTo, 1) << mode;
    }
}

TEST_F(SessionTest, TheFocusIsLedOnce) {
    session.Run([](Session& now) { now.view.focus = Focus::EditBox; });
    EXPECT_EQ(desktop.screen.shown.focus, Focus::EditBox);
    session.Run([](Session&) {});
    EXPECT_EQ(desktop.screen.shown.focus, Focus::Stays);
}

TEST_F(SessionTest, TheModeIsThatOfTheProgram) {
    session.Run([](Session& now) { EnterMode(now, DistrictIdle); });
    EXPECT_EQ(desktop.screen.shown.mode, 4);
}

TEST_F(SessionTest, WhenACommandIsOverItGoesWhereTheUserWantsToFromItsReport) {
    const std::int32_t beta = AddDistrict("Beta", {"Zeta", "Elm"});
    desktop.recordReports = true;
    desktop.lineToGoTo = 0;
    session.Run([=](Session& now) {
        now.desktop.ShowReport({"Findings", {"line"}, true, [=](std::size_t /*line*/) {
                                    return ReportPlace{beta, 1};
                                }});
        EXPECT_NE(lCurrentDistrict, beta);
        now.districtsByName = {1, beta};
        now.view.districts.Fill(now.districtsByName);
    });
    const WindowView& shown = desktop.screen.shown;
    EXPECT_EQ(lCurrentDistrict, beta);
    EXPECT_EQ(shown.variationsOf, beta);
    EXPECT_EQ(shown.variations.selected, std::vector<int>{1});
    EXPECT_EQ(shown.focus, Focus::Variations);
    EXPECT_EQ(shown.edit.text, "Zeta");
    const std::int32_t arrivals = shown.arrivals;
    session.Run([](Session&) {});
    EXPECT_EQ(desktop.screen.shown.arrivals, arrivals);
}

TEST_F(SessionTest, ACommandWithoutMemoryGoesNowhere) {
    const std::int32_t beta = AddDistrict("Beta", {"Zeta"});
    desktop.recordReports = true;
    desktop.lineToGoTo = 0;
    session.Run([=](Session& now) {
        now.districtsByName = {1, beta};
        now.view.districts.Fill(now.districtsByName);
        now.desktop.ShowReport({"Findings", {"line"}, true, [=](std::size_t) { return ReportPlace{beta, 0}; }});
        throw std::bad_alloc();
    });
    EXPECT_NE(lCurrentDistrict, beta);
    session.Run([](Session&) {});
    EXPECT_NE(lCurrentDistrict, beta);
}
