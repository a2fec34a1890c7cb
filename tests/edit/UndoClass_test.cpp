#include "edit/UndoClass.h"

#include "edit/EditTest.h"

using namespace CommonRoutines;

namespace {

class UndoClassTest : public EditTest {
protected:
    UndoClassTest() {
        AddDistrict("North");
        AddDistrict("South");
    }

    void New(std::int16_t type, const std::string& newName, const std::string& oldName, std::int32_t district = 2) {
        m_step.NewItem({newName, type, oldName}, district, m_desktop);
    }

    void ExpectLast(std::int16_t type, const std::string& newName, const std::string& oldName, std::int32_t district) {
        const UndoneItem last = m_step.LastItem();
        EXPECT_EQ(last.item.iUndoType, type);
        EXPECT_EQ(last.item.sNewName, newName);
        EXPECT_EQ(last.item.sOldName, oldName);
        EXPECT_EQ(last.lDistrict, district);
    }

    UndoClass m_step;
};

} // namespace

// Descriptions

TEST_F(UndoClassTest, AnAddIsDescribedWithItsDistrict) {
    New(UndoAdd, "!Yew", "");
    EXPECT_EQ(m_step.WhatAmI(), "Add !Yew to South");
}

TEST_F(UndoClassTest, AChangeIsDescribedWithBothTexts) {
    New(UndoChange, "%Yew", "Yew");
    EXPECT_EQ(m_step.WhatAmI(), "Change Yew to %Yew");
}

TEST_F(UndoClassTest, ADeleteIsDescribedWithItsDistrict) {
    New(UndoDelete, "Yew%12", "");
    EXPECT_EQ(m_step.WhatAmI(), "Delete Yew%12 from South");
}

TEST_F(UndoClassTest, AnEmptyStepHasNoDescription) {
    EXPECT_EQ(m_step.WhatAmI(), "");
}

TEST_F(UndoClassTest, AnItemOfAnUnknownTypeHasNoDescription) {
    for (const auto type : std::to_array<std::int16_t>({0, 4, -1})) {
        New(type, "Yew", "Fir");
        EXPECT_EQ(m_step.WhatAmI(), "") << type;
    }
    EXPECT_EQ(m_step.Count(), 3);
}

TEST_F(UndoClassTest, TheLastItemIsTheOneDescribed) {
    New(UndoAdd, "Yew", "");
    New(UndoDelete, "Fir", "");
    EXPECT_EQ(m_step.WhatAmI(), "Delete Fir from South");
    m_step.LastItem();
    EXPECT_EQ(m_step.WhatAmI(), "Add Yew to South");
    m_step.LastItem();
    EXPECT_EQ(m_step.WhatAmI(), "");
}

// Recording and taking off

TEST_F(UndoClassTest, AFreshStepIsEmptyAndBelongsToNoDistrict) {
    EXPECT_EQ(m_step.Count(), 0);
    EXPECT_EQ(m_step.DistrictNo(), 0);
}

TEST_F(UndoClassTest, TheFirstItemGivesTheStepItsDistrict) {
    New(UndoAdd, "Yew", "", 2);
    EXPECT_EQ(m_step.Count(), 1);
    EXPECT_EQ(m_step.DistrictNo(), 2);
}

TEST_F(UndoClassTest, ItemsComeOffLastFirstWithTheDistrictOfTheStep) {
    New(UndoAdd, "Yew", "");
    New(UndoChange, "Fir", "Yew");
    New(UndoDelete, "Larch", "");
    ExpectLast(UndoDelete, "Larch", "", 2);
    EXPECT_EQ(m_step.Count(), 2);
    ExpectLast(UndoChange, "Fir", "Yew", 2);
    ExpectLast(UndoAdd, "Yew", "", 2);
    EXPECT_EQ(m_step.Count(), 0);
}

TEST_F(UndoClassTest, AnEmptyStepGivesAnItemOfNothing) {
    ExpectLast(UndoNothing, "", "", -1);
    EXPECT_EQ(m_step.Count(), 0);
    New(UndoAdd, "Yew", "");
    m_step.LastItem();
    ExpectLast(UndoNothing, "", "", -1);
    EXPECT_EQ(m_step.Count(), 0);
}

TEST_F(UndoClassTest, AnEmptiedStepMayBelongToAnotherDistrictNext) {
    New(UndoAdd, "Yew", "", 2);
    New(UndoAdd, "Fir", "", 2);
    m_step.LastItem();
    EXPECT_EQ(m_step.DistrictNo(), 2);
    m_step.LastItem();
    EXPECT_EQ(m_step.DistrictNo(), 0);
    New(UndoAdd, "Yew", "", 1);
    ExpectLast(UndoAdd, "Yew", "", 1);
}

TEST_F(UndoClassTest, ClearingDiscardsItemsAndDistrict) {
    New(UndoAdd, "Yew", "");
    m_step.Clear();
    EXPECT_EQ(m_step.Count(), 0);
    EXPECT_EQ(m_step.DistrictNo(), 0);
    EXPECT_EQ(m_step.WhatAmI(), "");
    ExpectLast(UndoNothing, "", "", -1);
}

TEST_F(UndoClassTest, AStepHoldsFarMoreThanAHundredItems) {
    for (int i = 1; i <= 1000; ++i) {
        New(UndoChange, "new " + std::to_string(i), "old " + std::to_string(i));
        ASSERT_EQ(m_step.Count(), i);
    }
    for (int i = 1000; i >= 1; --i) {
        ExpectLast(UndoChange, "new " + std::to_string(i), "old " + std::to_string(i), 2);
    }
    EXPECT_EQ(m_step.Count(), 0);
}

TEST_F(UndoClassTest, ItemsAndDistrictsAreCountedBeyondSixteenBits) {
    constexpr std::int32_t many = 70000;
    for (std::int32_t i = 1; i <= many; ++i) {
        New(UndoDelete, "", "", many);
    }
    EXPECT_EQ(m_step.Count(), many);
    EXPECT_EQ(m_step.DistrictNo(), many);
    EXPECT_EQ(m_step.LastItem().lDistrict, many);
}

// Errors of the program

TEST_F(UndoClassTest, AnItemOfAnotherDistrictIsReportedTwiceAndNotRecorded) {
    New(UndoAdd, "Yew", "", 2);
    m_desktop.ExpectBox("Undo Crash - District Error, Was 2 Now 1", BoxIcon::Critical);
    m_desktop.ExpectBox("You should Save your work and exit", BoxIcon::Critical);
    New(UndoAdd, "Fir", "", 1);
    m_desktop.CheckDone();
    EXPECT_EQ(m_step.Count(), 1);
    EXPECT_EQ(m_step.DistrictNo(), 2);
    ExpectLast(UndoAdd, "Yew", "", 2);
}

TEST_F(UndoClassTest, AfterSuchAnErrorTheStepGoesOnRecording) {
    New(UndoAdd, "Yew", "", 12);
    m_desktop.ExpectBox("Undo Crash - District Error, Was 12 Now -1", BoxIcon::Critical);
    m_desktop.ExpectBox("You should Save your work and exit", BoxIcon::Critical);
    New(UndoAdd, "Fir", "", -1);
    New(UndoAdd, "Larch", "", 12);
    EXPECT_EQ(m_step.Count(), 2);
    ExpectLast(UndoAdd, "Larch", "", 12);
}

TEST_F(UndoClassTest, AnItemOfADistrictThatIsNoneIsDescribedWithoutAName) {
    AddRetained("# note");
    New(UndoAdd, "Yew", "", 3);
    EXPECT_EQ(m_step.WhatAmI(), "Add Yew to ");
    m_step.Clear();
    New(UndoDelete, "Yew", "", 9);
    EXPECT_EQ(m_step.WhatAmI(), "Delete Yew from ");
}
