#include "edit/MarkerCommands.h"

#include "edit/EditTest.h"

using namespace CommonRoutines;

namespace {

using enum MarkerCommand;

class MarkerCommandsTest : public EditTest {
protected:
    // A command on all rows of a district of these variations, in list order; the table afterwards.
    Texts After(MarkerCommand command, const Texts& variations) {
        Show("North", variations);
        ChangeMarkers(command, AllRows(), m_desktop);
        return Slots();
    }

    // What one text becomes in the table; it must be what the command says on its own.
    std::string Changed(MarkerCommand command, const std::string& text) {
        const std::string inTable = After(command, {text}).front();
        EXPECT_EQ(WithMarker(command, text), inTable);
        return inTable;
    }
};

} // namespace

// Captions

TEST_F(MarkerCommandsTest, TheCaptionDecidesBetweenAddingAndRemovingTheShriek) {
    EXPECT_EQ(ShriekCommand("Add !"), AddShriek);
    EXPECT_EQ(ShriekCommand("Remove !"), RemoveShriek);
}

TEST_F(MarkerCommandsTest, TheCaptionDecidesBetweenAddingAndRemovingTheDate) {
    EXPECT_EQ(DateCommand("Add Date%"), AddDate);
    EXPECT_EQ(DateCommand("Remove Date%"), RemoveDate);
}

TEST_F(MarkerCommandsTest, TheCaptionMayBeWrittenInAnyCase) {
    for (const char* caption : {"ADD !", "add !", "aDd !", "Add", "Address"}) {
        EXPECT_EQ(ShriekCommand(caption), AddShriek) << caption;
        EXPECT_EQ(DateCommand(caption), AddDate) << caption;
    }
}

TEST_F(MarkerCommandsTest, EveryCaptionThatDoesNotBeginWithAddRemoves) {
    for (const char* caption : {"", "Ad", "A dd", " Add !", "REMOVE !", "Readd"}) {
        EXPECT_EQ(ShriekCommand(caption), RemoveShriek) << caption;
        EXPECT_EQ(DateCommand(caption), RemoveDate) << caption;
    }
}

// Texts

TEST_F(MarkerCommandsTest, AddingTheShriekPutsItFirstUnlessItIsThere) {
    EXPECT_EQ(Changed(AddShriek, "Ash"), "!Ash");
    EXPECT_EQ(Changed(AddShriek, "!Ash"), "!Ash");
    EXPECT_EQ(Changed(AddShriek, "%Ash"), "!%Ash");
    EXPECT_EQ(Changed(AddShriek, "!%Ash"), "!%Ash");
    EXPECT_EQ(Changed(AddShriek, "%!Ash"), "!%!Ash");
    EXPECT_EQ(Changed(AddShriek, "!!Ash"), "!!Ash");
}

TEST_F(MarkerCommandsTest, RemovingTheShriekTakesTheFirstCharacterWhereItIsOne) {
    EXPECT_EQ(Changed(RemoveShriek, "Ash"), "Ash");
    EXPECT_EQ(Changed(RemoveShriek, "!Ash"), "Ash");
    EXPECT_EQ(Changed(RemoveShriek, "%Ash"), "%Ash");
    EXPECT_EQ(Changed(RemoveShriek, "!%Ash"), "%Ash");
    EXPECT_EQ(Changed(RemoveShriek, "%!Ash"), "%!Ash");
    EXPECT_EQ(Changed(RemoveShriek, "!!Ash"), "!Ash");
}

TEST_F(MarkerCommandsTest, AddingTheDatePutsItFirstOrBehindTheShriekUnlessItIsThere) {
    EXPECT_EQ(Changed(AddDate, "Ash"), "%Ash");
    EXPECT_EQ(Changed(AddDate, "!Ash"), "!%Ash");
    EXPECT_EQ(Changed(AddDate, "%Ash"), "%Ash");
    EXPECT_EQ(Changed(AddDate, "!%Ash"), "!%Ash");
    EXPECT_EQ(Changed(AddDate, "%!Ash"), "%!Ash");
    EXPECT_EQ(Changed(AddDate, "!!Ash"), "!%!Ash");
}

TEST_F(MarkerCommandsTest, RemovingTheDateLeavesALeadingShriek) {
    EXPECT_EQ(Changed(RemoveDate, "Ash"), "Ash");
    EXPECT_EQ(Changed(RemoveDate, "!Ash"), "!Ash");
    EXPECT_EQ(Changed(RemoveDate, "%Ash"), "Ash");
    EXPECT_EQ(Changed(RemoveDate, "!%Ash"), "!Ash");
    EXPECT_EQ(Changed(RemoveDate, "%!Ash"), "!Ash");
    EXPECT_EQ(Changed(RemoveDate, "!!Ash"), "!!Ash");
}

TEST_F(MarkerCommandsTest, OnlyOneMarkerIsRemovedAtATime) {
    EXPECT_EQ(Changed(RemoveDate, "%%Ash"), "%Ash");
    EXPECT_EQ(Changed(RemoveDate, "!%%Ash"), "!%Ash");
}

TEST_F(MarkerCommandsTest, ATrailingMarkerIsNotTouched) {
    EXPECT_EQ(Changed(RemoveShriek, "Ash!"), "Ash!");
    EXPECT_EQ(Changed(AddShriek, "Ash%12"), "!Ash%12");
    EXPECT_EQ(Changed(AddDate, "Ash%12"), "%Ash%12");
    EXPECT_EQ(Changed(RemoveDate, "Ash%12"), "Ash%12");
    EXPECT_EQ(Changed(RemoveDate, "%Ash%12"), "Ash%12");
    EXPECT_EQ(Changed(RemoveDate, "A%sh"), "A%sh");
}

TEST_F(MarkerCommandsTest, AMarkerBehindABlankIsNoneInFront) {
    EXPECT_EQ(Changed(AddShriek, " !Ash"), "! !Ash");
    EXPECT_EQ(Changed(RemoveShriek, " !Ash"), " !Ash");
    EXPECT_EQ(Changed(AddDate, "! %Ash"), "!% %Ash");
    EXPECT_EQ(Changed(RemoveDate, " %Ash"), " %Ash");
}

TEST_F(MarkerCommandsTest, MarkersAloneAndAnEmptyTextAreTextsLikeOthers) {
    EXPECT_EQ(Changed(AddShriek, ""), "!");
    EXPECT_EQ(Changed(AddDate, ""), "%");
    EXPECT_EQ(Changed(AddDate, "!"), "!%");
    EXPECT_EQ(Changed(RemoveDate, "!%"), "!");
    EXPECT_EQ(Changed(RemoveDate, "%"), "");
    EXPECT_EQ(Changed(RemoveShriek, "!"), "");
    EXPECT_EQ(Changed(RemoveShriek, ""), "");
    EXPECT_EQ(Changed(RemoveDate, ""), "");
}

// Rows

TEST_F(MarkerCommandsTest, OnlyTheRowsGivenAreChanged) {
    Show("North", {"Ash", "Elm", "Oak", "\t", "Yew"});
    AddDistrict("South", {"Ash", "Elm", "Oak"});
    ChangeMarkers(AddShriek, RowsOf({5, 2}), m_desktop);
    EXPECT_EQ(Slots(), (Texts{"Ash", "!Elm", "Oak", "\t", "!Yew"}));
    EXPECT_EQ(SlotsOf(2), (Texts{"Ash", "Elm", "Oak"}));
}

TEST_F(MarkerCommandsTest, EveryRowIsRecordedInListOrder) {
    Show("North", {"Ash", "Elm", "!Oak"});
    ChangeMarkers(AddDate, RowsOf({3, 1}), m_desktop);
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Change Ash to %Ash");
    EXPECT_EQ(TakeItem(), "2 [%Ash] [Ash] in 1");
    EXPECT_EQ(TakeItem(), "2 [!%Oak] [!Oak] in 1");
    EXPECT_EQ(CurrentUndoStep().Count(), 0);
}

TEST_F(MarkerCommandsTest, ARowThatStaysAsItIsIsRecordedWithEqualTexts) {
    EXPECT_EQ(After(AddShriek, {"!Ash", "Elm"}), (Texts{"!Ash", "!Elm"}));
    EXPECT_EQ(CurrentUndoStep().Count(), 2);
    EXPECT_EQ(TakeItem(), "2 [!Elm] [Elm] in 1");
    EXPECT_EQ(TakeItem(), "2 [!Ash] [!Ash] in 1");
}

TEST_F(MarkerCommandsTest, EveryCommandRecordsRowsThatStayAsTheyAre) {
    struct Case {
        MarkerCommand command;
        std::string text;
    };
    for (const Case& c :
         {Case{AddShriek, "!Ash"}, Case{RemoveShriek, "Ash"}, Case{AddDate, "!%Ash"}, Case{RemoveDate, "!Ash"}}) {
        After(c.command, {c.text});
        EXPECT_EQ(TakeItem(), "2 [" + c.text + "] [" + c.text + "] in " + std::to_string(lCurrentDistrict));
        EXPECT_TRUE(bChanged);
    }
}

TEST_F(MarkerCommandsTest, TheTableKeepsBlanksAtTheEndsButTheRecordedNewTextDoesNot) {
    EXPECT_EQ(After(AddShriek, {" Ash "}), Texts{"! Ash "});
    EXPECT_EQ(TakeItem(), "2 [! Ash] [ Ash ] in 1");
    EXPECT_EQ(After(RemoveShriek, {"! Ash "}), Texts{" Ash "});
    EXPECT_EQ(TakeItem(), "2 [Ash] [! Ash ] in 2");
}

TEST_F(MarkerCommandsTest, AChangeMarksTheFileAsChanged) {
    After(AddShriek, {"Ash"});
    EXPECT_TRUE(bChanged);
}

TEST_F(MarkerCommandsTest, WithoutARowNothingHappens) {
    Show("North", {"Ash"});
    for (const MarkerCommand command : {AddShriek, RemoveShriek, AddDate, RemoveDate}) {
        ChangeMarkers(command, {}, m_desktop);
    }
    EXPECT_EQ(Slots(), Texts{"Ash"});
    EXPECT_FALSE(bChanged);
    ExpectNothingRecorded();
}

TEST_F(MarkerCommandsTest, TheModeAndTheEditedVariationStayForTheCallerToSet) {
    Show("North", {"Ash"});
    iEditMode = OneSelected;
    lEditIndex = 1;
    ChangeMarkers(AddShriek, AllRows(), m_desktop);
    EXPECT_EQ(iEditMode, OneSelected);
    EXPECT_EQ(lEditIndex, 1);
}
