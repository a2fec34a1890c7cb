#include "edit/UndoJournal.h"

#include "edit/EditTest.h"
#include "edit/MarkerCommands.h"

using namespace CommonRoutines;

namespace {

class TakeBackTest : public EditTest {
protected:
    // Takes a change of the current district back while all its variations are listed. Whether the
    // table changed must be what the file's own flag says.
    bool Back(std::int16_t type, const std::string& newName, const std::string& oldName = "") {
        bChanged = false;
        const bool changed = TakeBack({newName, type, oldName}, AllRows());
        EXPECT_EQ(bChanged, changed);
        return changed;
    }

    ScriptedDesktop desktop;
};

} // namespace

// Adds

TEST_F(TakeBackTest, AnUndoneAddFreesItsSlot) {
    Show("North", {"Ash", "Yew"});
    EXPECT_TRUE(Back(UndoAdd, "Yew"));
    EXPECT_EQ(Slots(), (Texts{"Ash", "\t"}));
}

TEST_F(TakeBackTest, AnUndoneAddFreesEverySlotWithItsText) {
    Show("North", {"Yew", "Ash", "Yew", "Elm", "Yew"});
    EXPECT_TRUE(Back(UndoAdd, "Yew"));
    EXPECT_EQ(Slots(), (Texts{"\t", "Ash", "\t", "Elm", "\t"}));
}

TEST_F(TakeBackTest, AnUndoneAddLeavesTextsThatAreOnlyTheSameSpelling) {
    Show("North", {"yew", "!Yew", "Yew ", "Yew%12"});
    EXPECT_FALSE(Back(UndoAdd, "Yew"));
    EXPECT_EQ(Slots(), (Texts{"yew", "!Yew", "Yew ", "Yew%12"}));
}

TEST_F(TakeBackTest, AnUndoneAddDoesNotNeedARow) {
    Show("North", {"Yew"});
    EXPECT_TRUE(TakeBack({"Yew", UndoAdd, ""}, {}));
    EXPECT_EQ(Slots(), Texts{"\t"});
}

// Changes

TEST_F(TakeBackTest, AnUndoneChangeGivesTheOldTextBack) {
    Show("North", {"Ash", "!Yew", "Elm"});
    EXPECT_TRUE(Back(UndoChange, "!Yew", "Yew "));
    EXPECT_EQ(Slots(), (Texts{"Ash", "Yew ", "Elm"}));
}

TEST_F(TakeBackTest, OfEqualTextsAnUndoneChangeTakesTheFirst) {
    Show("North", {"Ash", "Yew", "Yew"});
    EXPECT_TRUE(Back(UndoChange, "Yew", "Fir"));
    EXPECT_EQ(Slots(), (Texts{"Ash", "Fir", "Yew"}));
}

TEST_F(TakeBackTest, AnUndoneChangeOfATextThatIsGoneIsDropped) {
    Show("North", {"Ash", "yew"});
    EXPECT_FALSE(Back(UndoChange, "Yew", "Fir"));
    EXPECT_EQ(Slots(), (Texts{"Ash", "yew"}));
}

TEST_F(TakeBackTest, AnUndoneChangeOfATextThatIsNotListedIsDropped) {
    Show("North", {"Ash", "Yew"});
    EXPECT_FALSE(TakeBack({"Yew", UndoChange, "Fir"}, RowsOf({1})));
    EXPECT_FALSE(TakeBack({"Yew", UndoChange, "Fir"}, {}));
    EXPECT_EQ(Slots(), (Texts{"Ash", "Yew"}));
    EXPECT_FALSE(bChanged);
}

TEST_F(TakeBackTest, AnyListedRowWithTheTextIsEnough) {
    Show("North", {"Ash", "Yew", "Elm", "Yew"});
    EXPECT_TRUE(TakeBack({"Yew", UndoChange, "Fir"}, RowsOf({1, 3, 4})));
    EXPECT_EQ(Slots(), (Texts{"Ash", "Fir", "Elm", "Yew"}));
}

TEST_F(TakeBackTest, AnUndoneChangeToAFreeSlotIsDroppedSinceItIsNotListed) {
    Show("North", {"Ash", "\t"});
    EXPECT_FALSE(Back(UndoChange, "\t", "Yew"));
    EXPECT_EQ(Slots(), (Texts{"Ash", "\t"}));
}

TEST_F(TakeBackTest, AnUndoneChangeOfEqualTextsChangesNothing) {
    Show("North", {"Ash", "!Yew"});
    EXPECT_FALSE(Back(UndoChange, "!Yew", "!Yew"));
    EXPECT_EQ(Slots(), (Texts{"Ash", "!Yew"}));
}

TEST_F(TakeBackTest, AMarkerChangeOfATextWithABlankAtItsEndCannotBeFoundAgain) {
    Show("North", {"Yew "});
    ChangeMarkers(MarkerCommand::AddShriek, AllRows(), m_desktop);
    bChanged = false;
    EXPECT_FALSE(TakeBack(CurrentUndoStep().LastItem().item, AllRows()));
    EXPECT_EQ(Slots(), Texts{"!Yew "});
    EXPECT_FALSE(bChanged);
}

TEST_F(TakeBackTest, MarkerChangesOfSeveralRowsComeBackOneByOne) {
    Show("North", {"Ash", "%Elm", "!Oak"});
    ChangeMarkers(MarkerCommand::AddShriek, AllRows(), m_desktop);
    ASSERT_EQ(Slots(), (Texts{"!Ash", "!%Elm", "!Oak"}));
    int changes = 0;
    while (CurrentUndoStep().Count() > 0) {
        changes += TakeBack(CurrentUndoStep().LastItem().item, AllRows()) ? 1 : 0;
    }
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(Slots(), (Texts{"Ash", "%Elm", "!Oak"}));
}

// Deletes

TEST_F(TakeBackTest, AnUndoneDeleteTakesTheFirstFreeSlot) {
    Show("North", {"Ash", "\t", "Elm", "\t"});
    EXPECT_TRUE(Back(UndoDelete, "Yew"));
    EXPECT_EQ(Slots(), (Texts{"Ash", "Yew", "Elm", "\t"}));
}

TEST_F(TakeBackTest, WithoutAFreeSlotAnUndoneDeleteGetsANewOne) {
    Show("North", {"Ash", "Elm"});
    EXPECT_TRUE(Back(UndoDelete, "Yew"));
    EXPECT_EQ(Slots(), (Texts{"Ash", "Elm", "Yew"}));
    EXPECT_EQ(DistrictAt(1).lVariationCount, 3);
}

TEST_F(TakeBackTest, InADistrictWithoutVariationsAnUndoneDeleteGetsTheFirstSlot) {
    Show("North");
    EXPECT_TRUE(Back(UndoDelete, "Yew"));
    EXPECT_EQ(Slots(), Texts{"Yew"});
}

TEST_F(TakeBackTest, OnlyASlotThatIsASingleTabIsFree) {
    Show("North", {"\t\t", "", " "});
    EXPECT_TRUE(Back(UndoDelete, "Yew"));
    EXPECT_EQ(Slots(), (Texts{"\t\t", "", " ", "Yew"}));
}

TEST_F(TakeBackTest, AnUndoneDeleteComesBackWithItsBlanksAndAlsoBesideAnEqualText) {
    Show("North", {"Yew", "\t"});
    EXPECT_TRUE(Back(UndoDelete, " Yew "));
    EXPECT_EQ(Slots(), (Texts{"Yew", " Yew "}));
    EXPECT_TRUE(Back(UndoDelete, "Yew"));
    EXPECT_EQ(Slots(), (Texts{"Yew", " Yew ", "Yew"}));
}

// Of all types

TEST_F(TakeBackTest, AnItemOfAnUnknownTypeChangesNothing) {
    Show("North", {"Yew", "\t"});
    for (const auto type : std::to_array<std::int16_t>({0, 4, -1})) {
        EXPECT_FALSE(Back(type, "Yew", "Fir"));
        EXPECT_EQ(Slots(), (Texts{"Yew", "\t"}));
    }
}

TEST_F(TakeBackTest, OnlyTheCurrentDistrictChanges) {
    Show("North", {"Yew", "\t"});
    Show("South", {"Ash"});
    EXPECT_FALSE(Back(UndoAdd, "Yew"));
    EXPECT_FALSE(Back(UndoChange, "Yew", "Fir"));
    EXPECT_TRUE(Back(UndoDelete, "Elm"));
    EXPECT_EQ(SlotsOf(1), (Texts{"Yew", "\t"}));
    EXPECT_EQ(SlotsOf(2), (Texts{"Ash", "Elm"}));
}

TEST_F(TakeBackTest, UnsavedChangesStayUnsavedWhereNothingIsTakenBack) {
    Show("North", {"Ash"});
    bChanged = true;
    EXPECT_FALSE(TakeBack({"Yew", UndoAdd, ""}, AllRows()));
    EXPECT_TRUE(bChanged);
}

TEST_F(TakeBackTest, NothingIsRecorded) {
    Show("North", {"Ash", "Yew"});
    EXPECT_TRUE(Back(UndoAdd, "Yew"));
    EXPECT_TRUE(Back(UndoDelete, "Fir"));
    EXPECT_TRUE(Back(UndoChange, "Ash", "Elm"));
    ExpectNothingRecorded();
}
