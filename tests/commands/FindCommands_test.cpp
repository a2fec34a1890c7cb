#include "commands/FindCommands.h"

#include "commands/EditingPlayer.h"
#include "find/PlainFind.h"

using namespace CommonRoutines;
using namespace Commands;

namespace {

class FindCommandsTest : public StateTest {
protected:
    void OpenTwo() {
        player.Open("#QX_NOTE the ash of Alpha\r\n" + HeaderOf("Alpha") + "|Ash|Elm|Mash\r\n#QX_ODD\r\n" +
                        HeaderOf("Ashby") + "|%Ash|Yew\r\n",
                    {});
    }
    void Seek(const std::string& text) {
        player.Press(Control::find);
        player.Do([&](Session& session) { TypeSought(session, text); });
    }
    void GoToRow(std::size_t row) {
        player.Do([=](Session& session) { GoToHit(session, row); });
    }
    [[nodiscard]] const FindView& Found() const { return player.View().find; }
    [[nodiscard]] std::vector<Hit> FoundHits() const { return PlainFind::AllOf(*Found().hits); }
    // The line of the chosen district and the slot of the selected variation.
    [[nodiscard]] std::pair<std::int32_t, std::int32_t> Chosen() const { return {lCurrentDistrict, lEditIndex}; }

    CommandPlayer player;
};

using Spot = std::pair<std::int32_t, std::int32_t>;

} // namespace

TEST_F(FindCommandsTest, TypingFindsAndTellsHowMuch) {
    OpenTwo();
    player.Press(Control::find);
    EXPECT_TRUE(Found().isOpen);
    EXPECT_EQ(Found().status, "");
    EXPECT_EQ(player.Shown().focus, "tbFind");
    Seek("ASH");
    EXPECT_EQ(Found().status, "1 district, 3 variations, 1 comment");
    EXPECT_EQ(FoundHits(), PlainFind::Find("ASH", FindBy::Part));
    player.Do([](Session& session) { FindWholeSpellings(session, true); });
    EXPECT_EQ(Found().status, "1 variation");
    Seek("nowhere");
    EXPECT_EQ(Found().status, "Nothing found");
}

TEST_F(FindCommandsTest, GoingToAHitIsChoosingByHand) {
    OpenTwo();
    player.ChooseDistrict(2);
    player.Select({2});
    const ShownWindow chosen = player.Shown();
    ASSERT_EQ(iEditMode, OneSelected);
    player.Press(Control::cbCancel);
    Seek("mash");
    GoToRow(0);
    ShownWindow gone = player.Shown();
    EXPECT_EQ(gone.focus, "lvVariations");
    gone.focus = chosen.focus;
    EXPECT_EQ(gone, chosen);
    EXPECT_EQ(iEditMode, OneSelected);
}

TEST_F(FindCommandsTest, ACommentLeadsToItsDistrict) {
    OpenTwo();
    Seek("odd");
    GoToRow(0);
    EXPECT_EQ(Chosen(), Spot(4, 0));
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(player.Shown().focus, "lvAlpha");
}

TEST_F(FindCommandsTest, KeysGoRoundThroughAllHits) {
    OpenTwo();
    Seek("ash");
    std::vector<Spot> places;
    for (int i = 0; i < 6; ++i) {
        player.Press(Control::findNext);
        places.push_back(Chosen());
    }
    EXPECT_EQ(places, (std::vector<Spot>{{4, 0}, {2, 1}, {2, 3}, {4, 1}, {2, 0}, {4, 0}}));
    player.Press(Control::findPrevious);
    EXPECT_EQ(Chosen(), Spot(2, 0)) << "the last one, the comment";
    player.Press(Control::findPrevious);
    EXPECT_EQ(Chosen(), Spot(4, 1));
}

TEST_F(FindCommandsTest, AHiddenDistrictIsListedAgain) {
    OpenTwo();
    player.ChooseType(1); // NOTE
    ASSERT_EQ(player.Shown().districts, (std::vector<std::string>{"Alpha"}));
    Seek("ashby");
    GoToRow(0);
    EXPECT_EQ(player.Shown().districts, (std::vector<std::string>{"Alpha", "Ashby"}));
    EXPECT_EQ(player.View().commentTypes.selected, std::vector<int>{0});
    EXPECT_EQ(Chosen(), Spot(4, 0));
}

TEST_F(FindCommandsTest, AListedDistrictLeavesTheFilterAsItIs) {
    OpenTwo();
    player.ChooseType(1);
    Seek("elm");
    GoToRow(0);
    EXPECT_EQ(player.Shown().districts, (std::vector<std::string>{"Alpha"}));
    EXPECT_EQ(Chosen(), Spot(2, 2));
}

TEST_F(FindCommandsTest, HitsFollowEveryEditAndUndo) {
    OpenTwo();
    Seek("ash");
    player.ChooseDistrict(2);
    player.Press(Control::cbAdd);
    player.Enter("Ashes");
    EXPECT_EQ(Found().status, "To find, finish adding first: Ok (Enter) or Cancel (Esc)");
    player.Press(Control::cbOk);
    EXPECT_EQ(FoundHits(), PlainFind::Find("ash", FindBy::Part));
    EXPECT_EQ(Found().status, "1 district, 4 variations, 1 comment");
    player.Press(Control::cbUndo);
    EXPECT_EQ(Found().status, "1 district, 3 variations, 1 comment");
    player.Select({0});
    player.desktop.ExpectBox("Are you sure you want to delete variation Ash", BoxIcon::Question, BoxButtons::YesNo,
                             BoxAnswer::Yes);
    player.Press(Control::cbDelete);
    EXPECT_EQ(Found().status, "1 district, 2 variations, 1 comment");
    EXPECT_EQ(FoundHits(), PlainFind::Find("ash", FindBy::Part));
}

TEST_F(FindCommandsTest, AnotherFileIsSearchedAgain) {
    OpenTwo();
    Seek("elm");
    ASSERT_EQ(FoundHits().size(), 1U);
    player.Open(HeaderOf("Elmham") + "|Elm\r\n", {});
    EXPECT_EQ(Found().status, "1 district, 1 variation");
}

TEST_F(FindCommandsTest, NothingIsFoundOrGoneToWhileNoDistrictMayBeChosen) {
    player.Press(Control::find);
    EXPECT_TRUE(Found().isOpen);
    EXPECT_EQ(Found().status, "To find, open a file first");
    EXPECT_FALSE(player.IsEnabled(Control::findNext));
    OpenTwo();
    Seek("elm");
    player.ChooseDistrict(4);
    player.Press(Control::cbAdd);
    GoToRow(0);
    EXPECT_EQ(lCurrentDistrict, 4);
    EXPECT_EQ(iEditMode, AddingUnacceptable);
}

TEST_F(FindCommandsTest, ACancelledOpeningLeavesNothingToBeFoundUntilDistrictsAreListedAgain) {
    OpenTwo();
    Seek("elm");
    player.desktop.ExpectOpen(std::nullopt);
    player.Press(Control::cbOpen);
    EXPECT_EQ(FoundHits(), std::vector<Hit>());
    EXPECT_EQ(Found().status, "To find, first choose \" All\" among the comment types");
    player.ChooseType(0);
    EXPECT_EQ(Found().status, "To find, choose a district first");
    player.ChooseDistrict(2);
    EXPECT_EQ(Found().status, "1 variation");
}

TEST_F(FindCommandsTest, ClosingForgetsTheHitsAndAKeyFindsThemAgain) {
    OpenTwo();
    Seek("elm");
    player.Do(CloseFind);
    EXPECT_FALSE(Found().isOpen);
    EXPECT_EQ(FoundHits(), std::vector<Hit>());
    player.Press(Control::findNext);
    EXPECT_TRUE(Found().isOpen);
    EXPECT_EQ(Chosen(), Spot(2, 2));
}

TEST_F(FindCommandsTest, APlaceThatIsNotThereIsNotGoneTo) {
    OpenTwo();
    player.Do([](Session& session) { GoTo(session, 1, 0); }); // a comment
    player.Do([](Session& session) { GoTo(session, 99, 1); });
    EXPECT_EQ(lCurrentDistrict, 0);
    player.Do([](Session& session) { GoTo(session, 2, 77); });
    EXPECT_EQ(Chosen(), Spot(2, 0)) << "at least the district";
}

TEST_F(FindCommandsTest, ALongSearchGoesOnUntilItsEnd) {
    std::string file;
    for (int district = 0; district < 3'000; ++district) {
        file += HeaderOf("District " + std::to_string(district));
        for (int variation = 0; variation < 100; ++variation) {
            file += "|Name " + std::to_string(district) + " of " + std::to_string(variation);
        }
        file += "\r\n";
    }
    player.Open(file, {});
    Seek("name");
    int slices = 0;
    while (Found().isSearching) {
        EXPECT_TRUE(Found().status.ends_with(" so far"));
        player.Do(ContinueFinding);
        ++slices;
    }
    EXPECT_EQ(Found().status, "300,000 variations");
    EXPECT_GT(slices, 0) << "all was done at once";
    Seek("Name 2999 of 99");
    ASSERT_TRUE(Found().isSearching);
    EXPECT_EQ(Found().status, "Searching") << "what is listed was found for another text";
    player.Press(Control::findNext);
    EXPECT_EQ(Chosen(), Spot(3'000, 100)) << "gone to a place of another text";
    Seek("name 7 of 3");
    while (Found().isSearching) {
        player.Do(ContinueFinding);
    }
    EXPECT_EQ(FoundHits(), PlainFind::Find("name 7 of 3", FindBy::Part));
}
