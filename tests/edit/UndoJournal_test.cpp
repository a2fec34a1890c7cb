#include "edit/UndoJournal.h"

#include "edit/EditPanel.h"
#include "edit/EditTest.h"

using namespace CommonRoutines;

namespace {

class UndoJournalTest : public EditTest {
protected:
    UndoJournalTest() {
        AddDistrict("North");
        AddDistrict("South");
    }

    // Records an add made to a district.
    void Record(std::int32_t district, const std::string& text) {
        lCurrentDistrict = district;
        RecordUndoItem(district, UndoAdd, text, "", m_desktop);
    }

    // Records one add a step, changing between the two districts: "Text 1" to "Text n".
    void RecordSteps(int count) {
        for (int i = 1; i <= count; ++i) {
            Record(i % 2 + 1, "Text " + std::to_string(i));
        }
    }

    // Takes the last change off as an undo does, returning its text, and what the label then shows.
    static std::pair<std::string, std::string> Undo() {
        const std::string text = CurrentUndoStep().LastItem().item.sNewName;
        return {text, DescribeNextUndo()};
    }

    static int StepsWithItems() {
        int steps = 0;
        for (const UndoClass& step : UndoRing) {
            steps += step.Count() > 0 ? 1 : 0;
        }
        return steps;
    }
};

} // namespace

// Recording

TEST_F(UndoJournalTest, TheRingHasTwentySteps) {
    EXPECT_EQ(UndoStepCount, 20);
    EXPECT_EQ(UndoRing.size(), 21U);
}

TEST_F(UndoJournalTest, TheFirstChangeStartsAStep) {
    Record(2, "Yew");
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(&CurrentUndoStep(), &UndoRing[2]);
    EXPECT_EQ(UndoRing[2].Count(), 1);
    EXPECT_EQ(UndoRing[2].DistrictNo(), 2);
}

TEST_F(UndoJournalTest, ChangesOfOneDistrictAreOneStep) {
    Record(1, "Yew");
    Record(1, "Fir");
    Record(1, "Larch");
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(CurrentUndoStep().Count(), 3);
    EXPECT_EQ(StepsWithItems(), 1);
}

TEST_F(UndoJournalTest, AChangeOfADistrictThenOfAnotherThenOfTheFirstAreThreeSteps) {
    Record(1, "Yew");
    Record(2, "Fir");
    Record(1, "Larch");
    EXPECT_EQ(iUndoStep, 4);
    EXPECT_EQ(StepsWithItems(), 3);
    EXPECT_EQ(UndoRing[2].WhatAmI(), "Add Yew to North");
    EXPECT_EQ(UndoRing[3].WhatAmI(), "Add Fir to South");
    EXPECT_EQ(UndoRing[4].WhatAmI(), "Add Larch to North");
}

TEST_F(UndoJournalTest, TheWholeChangeIsRecorded) {
    lCurrentDistrict = 1;
    RecordUndoItem(2, UndoChange, "Fir", "Yew", m_desktop);
    EXPECT_EQ(TakeItem(), "2 [Fir] [Yew] in 2");
}

TEST_F(UndoJournalTest, StartingAStepOfTheSameDistrictKeepsTheCurrentOne) {
    Record(1, "Yew");
    StartUndoStep(1);
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(CurrentUndoStep().Count(), 1);
}

TEST_F(UndoJournalTest, StartingAStepOfAnotherDistrictGoesOnToAnEmptyOne) {
    Record(1, "Yew");
    StartUndoStep(2);
    EXPECT_EQ(iUndoStep, 3);
    EXPECT_EQ(CurrentUndoStep().Count(), 0);
    EXPECT_EQ(CurrentUndoStep().DistrictNo(), 0);
}

TEST_F(UndoJournalTest, TheStepAfterTheTwentiethIsTheFirst) {
    iUndoStep = 20;
    StartUndoStep(1);
    EXPECT_EQ(iUndoStep, 1);
}

TEST_F(UndoJournalTest, StepZeroIsNeverUsed) {
    RecordSteps(100);
    EXPECT_EQ(UndoRing[0].Count(), 0);
    EXPECT_EQ(StepsWithItems(), 20);
}

TEST_F(UndoJournalTest, AStepThatIsUsedAgainForgetsItsOldChanges) {
    for (int i = 1; i <= 3; ++i) {
        Record(1, "old " + std::to_string(i));
    }
    for (int i = 0; i < 19; ++i) {
        Record(i % 2 == 0 ? 2 : 1, "between");
    }
    EXPECT_EQ(StepsWithItems(), 20);
    Record(1, "new");
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(CurrentUndoStep().Count(), 1);
    EXPECT_EQ(CurrentUndoStep().WhatAmI(), "Add new to North");
}

TEST_F(UndoJournalTest, ClearingEmptiesEveryStepAndLeavesTheCurrentOneCurrent) {
    RecordSteps(25);
    const std::int16_t before = iUndoStep;
    ClearUndoRing();
    EXPECT_EQ(iUndoStep, before);
    EXPECT_EQ(StepsWithItems(), 0);
    EXPECT_EQ(DescribeNextUndo(), "");
}

// Going back

TEST_F(UndoJournalTest, WhileTheStepHasItemsItIsDescribedAndKept) {
    Record(1, "Yew");
    Record(1, "Fir");
    EXPECT_EQ(DescribeNextUndo(), "Add Fir to North");
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(Undo(), (std::pair<std::string, std::string>("Fir", "Add Yew to North")));
    EXPECT_EQ(iUndoStep, 2);
}

TEST_F(UndoJournalTest, AnEmptiedStepGivesWayToTheOneBefore) {
    Record(1, "Yew");
    Record(2, "Fir");
    EXPECT_EQ(Undo(), (std::pair<std::string, std::string>("Fir", "Add Yew to North")));
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(Undo(), (std::pair<std::string, std::string>("Yew", "")));
    EXPECT_EQ(iUndoStep, 1);
}

TEST_F(UndoJournalTest, BeforeTheFirstStepComesTheTwentieth) {
    iUndoStep = 1;
    EXPECT_EQ(DescribeNextUndo(), "");
    EXPECT_EQ(iUndoStep, 20);
    RecordSteps(5);
    ASSERT_EQ(iUndoStep, 5);
    for (int i = 5; i >= 2; --i) {
        EXPECT_EQ(Undo().first, "Text " + std::to_string(i));
    }
    EXPECT_EQ(iUndoStep, 1);
    EXPECT_EQ(Undo(), (std::pair<std::string, std::string>("Text 1", "")));
    EXPECT_EQ(iUndoStep, 20);
}

TEST_F(UndoJournalTest, AfterTwentyOneStepsTheFirstIsGone) {
    RecordSteps(21);
    for (int i = 21; i >= 2; --i) {
        const auto [text, next] = Undo();
        EXPECT_EQ(text, "Text " + std::to_string(i));
        const std::string district = (i - 1) % 2 == 0 ? "North" : "South";
        EXPECT_EQ(next, i == 2 ? "" : "Add Text " + std::to_string(i - 1) + " to " + district);
    }
    EXPECT_EQ(CurrentUndoStep().Count(), 0);
    EXPECT_EQ(StepsWithItems(), 0);
}

TEST_F(UndoJournalTest, AfterTwentyStepsTheFirstIsStillThere) {
    RecordSteps(20);
    for (int i = 20; i >= 1; --i) {
        EXPECT_EQ(Undo().first, "Text " + std::to_string(i));
    }
    EXPECT_EQ(StepsWithItems(), 0);
}

TEST_F(UndoJournalTest, AChangeAfterAnUndoJoinsTheStepGoneBackToWhenItsDistrictIsTheSame) {
    Record(1, "Yew");
    Record(2, "Fir");
    Undo();
    Record(1, "Larch");
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(CurrentUndoStep().Count(), 2);
}

TEST_F(UndoJournalTest, AChangeOfTheDistrictJustEmptiedStartsAStepAgain) {
    Record(1, "Yew");
    Record(1, "Fir");
    Undo();
    Undo();
    ASSERT_EQ(iUndoStep, 1);
    Record(1, "Larch");
    EXPECT_EQ(iUndoStep, 2);
    EXPECT_EQ(CurrentUndoStep().Count(), 1);
}

TEST_F(UndoJournalTest, ThreeDeletesAndAnAddAreOneStepTakenBackInReverseOrder) {
    Show("West", {"Ash", "Elm", "Oak"});
    DeleteVariations(RowsOf({1, 2, 3}), m_desktop);
    iEditMode = AddingAcceptable;
    CommitText("Yew", m_desktop);
    ASSERT_EQ(CurrentUndoStep().Count(), 4);
    ASSERT_EQ(StepsWithItems(), 1);
    const std::string next[] = {"Delete Oak from West", "Delete Elm from West", "Delete Ash from West", ""};
    const Texts tables[] = {
        {"\t", "\t", "\t", "\t"}, {"Oak", "\t", "\t", "\t"}, {"Oak", "Elm", "\t", "\t"}, {"Oak", "Elm", "Ash", "\t"}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_TRUE(TakeBack(CurrentUndoStep().LastItem().item, AllRows()));
        EXPECT_EQ(DescribeNextUndo(), next[i]);
        EXPECT_EQ(Slots(), tables[i]);
    }
    EXPECT_EQ(StepsWithItems(), 0);
}
