#include "commands/VariationCommands.h"

#include "commands/EditingPlayer.h"

using namespace CommonRoutines;
using namespace Commands;

namespace {

class VariationCommandsTest : public StateTest {
protected:
    void OpenDistrict(const std::string& variations) {
        player.Open(HeaderOf("Alpha") + variations + "\r\n", {});
        player.ChooseDistrict(1);
    }
    void Add(const std::string& text) {
        player.Press(Control::cbAdd);
        player.Enter(text);
        player.Press(Control::cbOk);
    }

    CommandPlayer player;
};

} // namespace

TEST_F(VariationCommandsTest, WhereNoVariationIsLeftTheModeIsNotChanged) {
    OpenDistrict("");
    Add("Gamma");
    player.Press(Control::cbAdd);
    player.Enter("Delta");
    ASSERT_EQ(iEditMode, AddingAcceptable);
    player.Press(Control::cbUndo);
    EXPECT_TRUE(player.View().variations.IsEmpty());
    EXPECT_EQ(iEditMode, AddingAcceptable);
    EXPECT_TRUE(player.IsEnabled(Control::cbOk));
    EXPECT_EQ(player.View().edit.text, "Delta");
}

TEST_F(VariationCommandsTest, WhereNoVariationIsLeftNoneIsSelectedAnyMore) {
    OpenDistrict("");
    Add("Gamma");
    player.Select({0});
    ASSERT_EQ(iEditMode, OneSelected);
    player.Press(Control::cbUndo);
    EXPECT_EQ(iEditMode, DistrictIdle);
    EXPECT_EQ(player.View().edit.text, "");
}

TEST_F(VariationCommandsTest, AListWithoutProblemsLeavesTheLabelAsItIs) {
    OpenDistrict("|Alfa|Betta");
    Add("Gamma");
    EXPECT_EQ(player.View().variations.rows->size(), 3u);
    EXPECT_EQ(player.View().whyError.text, "");
    Add("Sm_th");
    EXPECT_EQ(player.View().whyError.text, "1 warnings (Brown).");
    EXPECT_TRUE(player.View().whyError.warns);
}
