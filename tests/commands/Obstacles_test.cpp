// What would enable a disabled control.

#include "commands/GuidanceTest.h"

using namespace CommonRoutines;
using namespace Commands;

namespace {

using ObstaclesTest = GuidanceTest;

} // namespace

TEST_F(ObstaclesTest, EveryDisabledControlSaysWhatWouldEnableIt) {
    ExpectAnObstacleWhereverDisabled();
    OpenTwo();
    ExpectAnObstacleWhereverDisabled();
    player.ChooseDistrict(2);
    ExpectAnObstacleWhereverDisabled();
    for (const std::vector<int>& rows : {std::vector<int>{0}, {0, 1}, {}}) {
        player.Select(rows);
        ExpectAnObstacleWhereverDisabled();
    }
    player.ChooseDistrict(2);
    for (const char* text : {"", "!", "Gamma", "Alfa"}) {
        player.Press(Control::cbAdd);
        player.Enter(text);
        ExpectAnObstacleWhereverDisabled();
        player.Press(Control::cbCancel);
    }
    CancelOpening();
    ExpectAnObstacleWhereverDisabled();
}

TEST_F(ObstaclesTest, WithoutAFileOneIsToBeOpened) {
    EXPECT_EQ(ObstacleTo(Control::cbAdd), "open a file first");
    EXPECT_EQ(ObstacleTo(Control::cbSave), "open a file first");
}

TEST_F(ObstaclesTest, WithoutADistrictOneIsToBeChosen) {
    OpenTwo();
    EXPECT_EQ(ObstacleTo(Control::cbAdd), "choose a district first");
    EXPECT_EQ(ObstacleTo(Control::btnProcess), "choose a district first");
    EXPECT_EQ(ObstacleTo(Control::cbApplyAll), "choose a district first");
    EXPECT_EQ(ObstacleTo(Control::cbSave), "change something first");
}

TEST_F(ObstaclesTest, InAnIdleDistrictVariationsAreToBeChosen) {
    ChooseAlpha();
    EXPECT_EQ(ObstacleTo(Control::cbDelete), "choose variations first");
    EXPECT_EQ(ObstacleTo(Control::cbShriek), "choose variations first");
    EXPECT_EQ(ObstacleTo(Control::cbSave), "change something first");
    EXPECT_EQ(ObstacleTo(Control::cbApplyAll), "first Process File");
    EXPECT_EQ(ObstacleTo(Control::cbOk), "first add a variation or choose one");
}

TEST_F(ObstaclesTest, WhatIsBeingAddedIsToBeFinished) {
    ChooseAlpha();
    player.Press(Control::cbAdd);
    EXPECT_EQ(ObstacleTo(Control::cbOpen), "finish adding first: Ok (Enter) or Cancel (Esc)");
    EXPECT_EQ(ObstacleTo(Control::cbOk), "type a variation first");
    player.Enter("Alfas");
    EXPECT_EQ(ObstacleTo(Control::cbOpen), "finish adding first: Ok (Enter) or Cancel (Esc)");
    EXPECT_EQ(ObstacleTo(Control::cbOk), "");
}

TEST_F(ObstaclesTest, AChoiceOfVariationsIsToBeGivenUp) {
    ChooseAlpha();
    player.Select({0});
    EXPECT_EQ(ObstacleTo(Control::cbOpen), "first Cancel (Esc)");
    EXPECT_EQ(ObstacleTo(Control::cbOk), "change the text first");
    player.Enter("Alfas");
    EXPECT_EQ(ObstacleTo(Control::cbOpen), "first Ok (Enter) or Cancel (Esc)");
    player.Press(Control::cbCancel);
    player.Select({0, 1});
    EXPECT_EQ(ObstacleTo(Control::cbOpen), "first Esc in the list of variations");
    EXPECT_EQ(ObstacleTo(Control::tbEdit), "choose a single variation");
    EXPECT_EQ(ObstacleTo(Control::cbCancel), "choose a single variation");
    EXPECT_EQ(ObstacleTo(Control::cbSave), "change something first");
    player.Press(Control::cbShriek);
    EXPECT_EQ(ObstacleTo(Control::cbDate), "first Space in the list, which takes the marked rows up");
}

TEST_F(ObstaclesTest, TicksDecideAboutProposals) {
    ChooseAlpha();
    Process("Elm\r\nOak\r\n");
    EXPECT_EQ(ObstacleTo(Control::cbApplySelected), "tick proposals first");
    EXPECT_EQ(ObstacleTo(Control::cbClearSel), "tick proposals first");
    EXPECT_EQ(ObstacleTo(Control::cbEditSel), "tick a single proposal first");
    for (const int row : {0, 1}) {
        player.Do([=](Session& session) { TickProposal(session, row, true); });
    }
    EXPECT_EQ(ObstacleTo(Control::cbApplyAll), "first Clear, since some proposals are ticked");
    EXPECT_EQ(ObstacleTo(Control::cbEditSel), "tick a single proposal first");
    player.desktop.ExpectBox("2 New variations added.", BoxIcon::Information);
    player.Press(Control::cbApplySelected);
    ASSERT_EQ(iEditMode, ChangesApplied);
    EXPECT_EQ(ObstacleTo(Control::cbApplyAll), "choose the district again");
    EXPECT_EQ(ObstacleTo(Control::tbEdit), "choose the district again");
}

TEST_F(ObstaclesTest, EditWhoseTickIsOlderThanTheModeSaysToTickAgain) {
    ChooseAlpha();
    Process("Elm\r\n");
    player.Do([](Session& session) { ClickProposal(session, 0); });
    player.Press(Control::cbCancel);
    EXPECT_EQ(ObstacleTo(Control::cbEditSel), "untick the proposal and tick it again");
    for (const bool ticked : {false, true}) {
        player.Do([=](Session& session) { TickProposal(session, 0, ticked); });
    }
    EXPECT_TRUE(player.IsEnabled(Control::cbEditSel));
}

// A cancelled opening leaves the commands of the file that is open, but no district.
TEST_F(ObstaclesTest, WhateverFollowsACancelledOpeningTheWayBackIsSaid) {
    for (const Control next : {Control::cbAdd, Control::btnProcess}) {
        player.desktop.recordReports = true;
        ChooseAlpha();
        CancelOpening();
        if (next == Control::btnProcess) {
            Process("Elm\r\n");
            ASSERT_EQ(iEditMode, DistrictIdle);
            EXPECT_EQ(ObstacleTo(Control::cbApplyAll), "first choose \" All\" among the comment types");
            EXPECT_EQ(ObstacleTo(Control::cbEditSel), "first choose \" All\" among the comment types");
        } else {
            player.Press(next);
            player.Enter("Elm");
            EXPECT_EQ(ObstacleTo(Control::cbOk), "first choose \" All\" among the comment types");
            EXPECT_EQ(Hints().districts,
                      "The file is still open: first Cancel, then choose \" All\" below to see its districts");
            player.Press(Control::cbCancel);
        }
        EXPECT_EQ(Hints().districts, "The file is still open: choose \" All\" below to see its districts");
        Filter(0);
        EXPECT_EQ(ObstacleTo(Control::cbDelete), "choose a district first");
        EXPECT_EQ(Hints().variations, "Choose a district to see its variations");
    }
}

TEST_F(ObstaclesTest, TheReasonOfATextGoesWithTheMode) {
    ChooseAlpha();
    player.Press(Control::cbAdd);
    player.Enter("Gamma");
    player.Press(Control::cbOk);
    player.Press(Control::cbAdd);
    player.Enter("Elm%");
    player.Press(Control::cbUndo);
    ASSERT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(ObstacleTo(Control::cbOk), "go on typing first");
}

TEST_F(ObstaclesTest, AGreyOkSaysWhy) {
    ChooseAlpha();
    player.Press(Control::cbAdd);
    const std::pair<const char*, const char*> reasons[] = {
        {"!", "a marker alone is no variation"},
        {"", "type a variation first"},
        {"%", "a marker alone is no variation"},
        {"Elm%", "a variation cannot end in \"%\""},
        {"alfa", "Duplicates Alfa"},
        {"Elm ", "Trailing space"},
        {"%Elm", ""},
        {"! Elm", "Space after !"},
        {"!%", "a marker alone is no variation"},
        {"Smi?h", "Question Mark"},
        {"Elm", ""},
    };
    for (const auto& [text, reason] : reasons) {
        player.Enter(text);
        EXPECT_EQ(ObstacleTo(Control::cbOk), reason) << text;
    }
    player.Enter("Elm%");
    player.Press(Control::cbCancel);
    EXPECT_EQ(ObstacleTo(Control::cbOk), "first add a variation or choose one");
}

TEST_F(ObstaclesTest, AProposalThatCannotBeAddedSaysWhyAtOnce) {
    ChooseAlpha();
    Process("Smi?h\r\n");
    player.Do([](Session& session) { ClickProposal(session, 0); });
    EXPECT_EQ(ObstacleTo(Control::cbOk), "Question Mark");
}
