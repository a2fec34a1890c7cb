// Hints of empty lists, what would enable a disabled control, and what the panel says it is used for.

#include "commands/EditingPlayer.h"
#include "commands/ProposalCommands.h"
#include "commands/Wandering.h"

#include <map>

using namespace CommonRoutines;
using namespace Commands;

namespace {

class GuidanceTest : public StateTest {
protected:
    void OpenTwo() {
        player.Open("#QX_NOTE about Alpha\r\n" + HeaderOf("Alpha") + "|Alfa|Betta\r\n#QX_ODD\r\n" + HeaderOf("Beta") +
                        "\r\n",
                    {});
    }
    void ChooseAlpha() {
        OpenTwo();
        player.ChooseDistrict(2);
    }
    void Filter(int type) {
        player.Do([=](Session& session) { ChooseCommentType(session, {type}); });
    }
    void CancelOpening() {
        player.desktop.ExpectOpen(std::nullopt);
        player.Press(Control::cbOpen);
    }
    void Process(const std::string& content) {
        player.desktop.files["/changes/new.txt"] = content;
        player.desktop.ExpectOpen("/changes/new.txt");
        player.Press(Control::btnProcess);
    }
    [[nodiscard]] const HintsView& Hints() const { return player.View().hints; }
    [[nodiscard]] std::string_view ObstacleTo(Control control) const {
        EXPECT_EQ(player.IsEnabled(control), player.View().ObstacleTo(control).empty());
        return player.View().ObstacleTo(control);
    }
    // Every disabled control says something, and no enabled one does.
    void ExpectAnObstacleWhereverDisabled() const {
        for (const Command& command : AllCommands()) {
            EXPECT_EQ(player.IsEnabled(command.control), player.View().ObstacleTo(command.control).empty())
                << command.name << " in mode " << iEditMode;
        }
    }

    CommandPlayer player;
};

} // namespace

TEST_F(GuidanceTest, BeforeAFileIsOpenedTheHintsLeadToOne) {
    EXPECT_EQ(Hints().districts, "Open a file, or drop one here, to see its districts");
    EXPECT_EQ(Hints().variations, "The variations of a district are shown here");
    EXPECT_EQ(Hints().comments, "The comments of a district are shown here");
    EXPECT_EQ(Hints().proposals, "The proposals of a change file are shown here");
}

TEST_F(GuidanceTest, InAnOpenFileTheHintsLeadToADistrict) {
    OpenTwo();
    EXPECT_EQ(Hints().variations, "Choose a district to see its variations");
    EXPECT_EQ(Hints().comments, "Choose a district to see its comments");
    EXPECT_EQ(Hints().proposals, "Choose a district, then Process File shows proposals here");
}

TEST_F(GuidanceTest, TheHintsOfADistrictAreThoseOfTheRowChosen) {
    OpenTwo();
    player.ChooseDistrict(4);
    EXPECT_EQ(Hints().variations, "This district has no variations: press Add to enter one");
    EXPECT_EQ(Hints().comments, "This district has no comments");
    EXPECT_EQ(Hints().proposals, "Process File shows proposals here");
    player.Press(Control::cbAdd);
    EXPECT_EQ(Hints().variations, "This district has no variations");
    EXPECT_EQ(Hints().proposals, "The proposals of a change file are shown here");
}

TEST_F(GuidanceTest, BehindAFilterNothingIsSaidOfTheDistrictThatIsHidden) {
    ChooseAlpha();
    Filter(2);
    ASSERT_EQ(lCurrentDistrict, 2);
    ASSERT_TRUE(player.View().variations.IsEmpty());
    EXPECT_EQ(Hints().variations, "Choose a district to see its variations");
    EXPECT_EQ(Hints().comments, "Choose a district to see its comments");
    EXPECT_EQ(Hints().proposals, "Choose a district, then Process File shows proposals here");
}

TEST_F(GuidanceTest, AFilterThatHidesAllDistrictsSaysSo) {
    player.Open("#QX_NOTE of no district\r\n\r\n" + HeaderOf("Beta") + "\r\n#QX_END\r\n", {});
    Filter(2);
    ASSERT_TRUE(player.View().districts.IsEmpty());
    EXPECT_EQ(Hints().districts, "No district has a comment of this type: choose another one below");
}

TEST_F(GuidanceTest, AfterACancelledOpeningTheHintSaysHowToSeeTheDistrictsAgain) {
    ChooseAlpha();
    CancelOpening();
    EXPECT_EQ(Hints().districts, "The file is still open: choose \" All\" below to see its districts");
    EXPECT_EQ(Hints().variations, "The variations of a district are shown here");
    ASSERT_TRUE(player.IsEnabled(Control::lbComments));
    Filter(0);
    EXPECT_EQ(player.View().districts.rows->size(), 2u);
    EXPECT_EQ(Hints().variations, "Choose a district to see its variations");
}

TEST_F(GuidanceTest, AFileWithoutDistrictsInvitesToNothingThatItCannotTake) {
    for (const char* content : {"", "# only a comment\r\n"}) {
        player.Open(content, {});
        EXPECT_EQ(Hints().districts, "This file has no districts: open another one") << content;
        EXPECT_EQ(Hints().variations, "The variations of a district are shown here") << content;
        EXPECT_EQ(Hints().proposals, "The proposals of a change file are shown here") << content;
    }
}

TEST_F(GuidanceTest, AfterQuitTheHintSaysThatReadingWasStopped) {
    player.desktop.recordReports = true;
    player.desktop.files[DataFilePath] = HeaderOf("Alpha") + "|%\r\n" + HeaderOf("Beta") + "\r\n";
    player.desktop.ExpectOpen(DataFilePath);
    player.desktop.ExpectChoice("District Alpha has a null variation.\r\n"
                                "The invalid dependency is % and it is variation #1\r\n"
                                " As it is the only variation it can only be removed or replaced.\r\nRemove\r\n"
                                "Type = Type a complete replacement for this variation\r\n"
                                "Quit = Stop processing this file\r\n\r\n",
                                {"Remove", "Type", "Quit"}, "Quit");
    player.Press(Control::cbOpen);
    EXPECT_EQ(Hints().districts, "Reading was stopped: open a file to see its districts");
}

TEST_F(GuidanceTest, AFileThatCannotBeReadLeavesNoneOpen) {
    player.desktop.ExpectOpen("/data/none.txt");
    player.desktop.ExpectBox("The file cannot be read:\r\n/data/none.txt", BoxIcon::Exclamation);
    player.Press(Control::cbOpen);
    EXPECT_EQ(Hints().districts, "Open a file, or drop one here, to see its districts");
}

TEST_F(GuidanceTest, EveryDisabledControlSaysWhatWouldEnableIt) {
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

TEST_F(GuidanceTest, WithoutAFileOneIsToBeOpened) {
    EXPECT_EQ(ObstacleTo(Control::cbAdd), "open a file first");
    EXPECT_EQ(ObstacleTo(Control::cbSave), "open a file first");
}

TEST_F(GuidanceTest, WithoutADistrictOneIsToBeChosen) {
    OpenTwo();
    EXPECT_EQ(ObstacleTo(Control::cbAdd), "choose a district first");
    EXPECT_EQ(ObstacleTo(Control::btnProcess), "choose a district first");
    EXPECT_EQ(ObstacleTo(Control::cbApplyAll), "choose a district first");
    EXPECT_EQ(ObstacleTo(Control::cbSave), "change something first");
}

TEST_F(GuidanceTest, InAnIdleDistrictVariationsAreToBeChosen) {
    ChooseAlpha();
    EXPECT_EQ(ObstacleTo(Control::cbDelete), "choose variations first");
    EXPECT_EQ(ObstacleTo(Control::cbShriek), "choose variations first");
    EXPECT_EQ(ObstacleTo(Control::cbSave), "change something first");
    EXPECT_EQ(ObstacleTo(Control::cbApplyAll), "first Process File");
    EXPECT_EQ(ObstacleTo(Control::cbOk), "first add a variation or choose one");
}

TEST_F(GuidanceTest, AChoiceOfVariationsIsToBeGivenUp) {
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

TEST_F(GuidanceTest, TicksDecideAboutProposals) {
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

TEST_F(GuidanceTest, EditWhoseTickIsOlderThanTheModeSaysToTickAgain) {
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
TEST_F(GuidanceTest, WhateverFollowsACancelledOpeningTheWayBackIsSaid) {
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

TEST_F(GuidanceTest, ADistrictThatAFilterHidesIsNamedAndAnotherIsToBeChosen) {
    ChooseAlpha();
    Filter(2);
    EXPECT_EQ(player.View().doing, "Add goes to Alpha");
    EXPECT_EQ(ObstacleTo(Control::cbDelete), "choose a district first");
    player.ChooseDistrict(4);
    EXPECT_EQ(player.View().doing, "");
    EXPECT_EQ(ObstacleTo(Control::cbDelete), "add a variation first");
}

TEST_F(GuidanceTest, AFilterThatTakesSeveralChosenRowsAwayLeavesNoneToSpeakOf) {
    ChooseAlpha();
    player.Select({0, 1});
    Filter(2);
    ASSERT_EQ(iEditMode, SeveralSelected);
    EXPECT_EQ(player.View().doing, "");
    EXPECT_EQ(ObstacleTo(Control::tbEdit), "choose a district first");
}

TEST_F(GuidanceTest, TheReasonOfATextGoesWithTheMode) {
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

TEST_F(GuidanceTest, WhileAFileIsBeingOpenedTheHintSaysThat) {
    class Watching : public ScriptedDesktop {
    public:
        BoxAnswer MsgBox(const Wording& /*text*/, BoxIcon /*icon*/, BoxButtons /*buttons*/) override {
            hint = screen.shown.hints.districts;
            return BoxAnswer::Yes;
        }
        QuietScreen screen;
        std::string_view hint;
    };
    Watching desktop;
    desktop.files[DataFilePath] = HeaderOf("Alpha") + "|Alfa\r\n";
    Session session{desktop, desktop.screen};
    session.Run([&](Session& now) {
        now.isOpening = true;
        now.desktop.MsgBox("There are unsaved changes", BoxIcon::Question, BoxButtons::YesNo);
    });
    EXPECT_EQ(desktop.hint, "A file is being opened");
    EXPECT_FALSE(session.isOpening);
}

TEST_F(GuidanceTest, AGreyOkSaysWhy) {
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

TEST_F(GuidanceTest, AProposalThatCannotBeAddedSaysWhyAtOnce) {
    ChooseAlpha();
    Process("Smi?h\r\n");
    player.Do([](Session& session) { ClickProposal(session, 0); });
    EXPECT_EQ(ObstacleTo(Control::cbOk), "Question Mark");
}

TEST_F(GuidanceTest, ARefusedKeySaysWhyUntilTheNextEventWhereTheStatusIsFree) {
    ChooseAlpha();
    player.Press(Control::cbAdd);
    player.Do([](Session& session) { RefuseKey(session, "No."); });
    EXPECT_EQ(player.View().StatusLine(), "No.");
    EXPECT_EQ(player.desktop.beeps, 1);
    player.Enter("E");
    EXPECT_EQ(player.View().StatusLine(), "");
    player.Enter("Alfa");
    player.Do([](Session& session) { RefuseKey(session, "No."); });
    EXPECT_EQ(player.View().StatusLine(), "Duplicates Alfa");
}

TEST_F(GuidanceTest, ThePanelSaysWhatItIsUsedFor) {
    ChooseAlpha();
    EXPECT_EQ(player.View().doing, "");
    player.Press(Control::cbAdd);
    EXPECT_EQ(player.View().doing, "Adding to Alpha");
    player.Press(Control::cbCancel);
    player.Select({0});
    EXPECT_EQ(player.View().doing, "Editing Alfa");
    player.Press(Control::cbShriek);
    EXPECT_EQ(player.View().doing, "");
    EXPECT_FALSE(player.View().AreVariationsInHand());
    player.TakeUp();
    EXPECT_EQ(player.View().doing, "Editing !Alfa");
    EXPECT_TRUE(player.View().AreVariationsInHand());
    player.Select({0, 1});
    EXPECT_EQ(player.View().doing, "2 variations chosen");
}

TEST_F(GuidanceTest, ANameOfAnyLengthIsSaidByItsBeginning) {
    const std::string name(100'000, 'x');
    player.Open(HeaderOf(name) + "\r\n", {});
    player.ChooseDistrict(1);
    player.Press(Control::cbAdd);
    EXPECT_LT(player.View().doing.size(), 2100u);
}

TEST_F(GuidanceTest, WhereverOneWandersNothingIsInvitedToThatCannotBeDone) {
    constexpr std::uint32_t rounds = 200;
    constexpr int steps = 60;
    std::map<int, int> met;
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        ResetEverything();
        CommandPlayer wanderer;
        Wandering wandering(wanderer, seed);
        for (int i = 0; i < steps; ++i) {
            wandering.DoSomething();
            const WindowView& view = wanderer.View();
            ++met[view.mode];
            for (const Command& command : AllCommands()) {
                ASSERT_EQ(view.IsEnabled(command.control), view.ObstacleTo(command.control).empty())
                    << command.name << ", seed " << seed << ", step " << i;
            }
            const bool showsDistrict = IsDistrict(lCurrentDistrict) && view.variationsOf == lCurrentDistrict;
            if (view.hints.variations.find("press Add") != std::string_view::npos) {
                ASSERT_TRUE(showsDistrict && view.IsEnabled(Control::cbAdd)) << "seed " << seed << ", step " << i;
            }
            if (view.hints.proposals == "Process File shows proposals here") {
                ASSERT_TRUE(showsDistrict && view.IsEnabled(Control::btnProcess)) << "seed " << seed << ", step " << i;
            }
            if (!IsDistrict(lCurrentDistrict)) {
                ASSERT_FALSE(view.IsEnabled(Control::cbApplyAll)) << "seed " << seed << ", step " << i;
            }
        }
    }
    for (const int mode : {1, 2, 3, 4, 5, 6, 8, 9, 10}) {
        EXPECT_GT(met[mode], 0) << mode;
    }
}
