// Hints of empty lists, and what the panel says it is used for.

#include "commands/GuidanceTest.h"
#include "commands/Wandering.h"

#include <map>

using namespace CommonRoutines;
using namespace Commands;

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
