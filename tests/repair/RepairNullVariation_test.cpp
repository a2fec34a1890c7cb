#include "repair/RepairNullVariation.h"

#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using Fields = std::vector<std::string>;

const std::string OnlyPrompt = "District Ash has a null variation.\r\n"
                               "The invalid dependency is % and it is variation #1\r\n"
                               " As it is the only variation it can only be removed or replaced.\r\n"
                               "Remove\r\n"
                               "Type = Type a complete replacement for this variation\r\n"
                               "Quit = Stop processing this file\r\n\r\n";
const std::string Replacement = "Please enter a replacement for the variation %";

class RepairNullVariationTest : public StateTest {
protected:
    // Repairs one of the fields, the first of which stands for the header.
    bool Repair(Fields fields, std::int32_t index) {
        DistrictRecord district;
        district.Line = "Ash";
        district.lVariationCount = static_cast<std::int32_t>(std::ssize(fields)) - 1;
        m_fields = std::move(fields);
        return RepairNullVariation(district, m_fields, index, 7, m_desktop);
    }

    void ExpectOnlyPrompt(const std::string& answer) {
        m_desktop.ExpectChoice(OnlyPrompt, {"Remove", "Type", "Quit"}, answer);
    }

    Fields m_fields;
    ScriptedDesktop m_desktop;
};

} // namespace

TEST_F(RepairNullVariationTest, RemoveLeavesADeletedEntry) {
    ExpectOnlyPrompt("Remove");
    EXPECT_TRUE(Repair({"header", "%"}, 1));
    EXPECT_EQ(m_fields, (Fields{"header", "\t"}));
    EXPECT_EQ(iRepairAction, 3);
    EXPECT_TRUE(bChanged);
}

TEST_F(RepairNullVariationTest, QuitChangesNothing) {
    ExpectOnlyPrompt("Quit");
    EXPECT_FALSE(Repair({"header", "%"}, 1));
    EXPECT_EQ(m_fields, (Fields{"header", "%"}));
    EXPECT_EQ(iRepairAction, 5);
    EXPECT_FALSE(bChanged);
}

TEST_F(RepairNullVariationTest, QuitKeepsWhatEarlierRepairsHaveChanged) {
    bChanged = true;
    ExpectOnlyPrompt("Quit");
    EXPECT_FALSE(Repair({"header", "%"}, 1));
    EXPECT_TRUE(bChanged);
}

TEST_F(RepairNullVariationTest, ATypedReplacementIsTrimmedAndTaken) {
    ExpectOnlyPrompt("Type");
    m_desktop.ExpectInput(Replacement, "  Elm ");
    EXPECT_TRUE(Repair({"header", "%"}, 1));
    EXPECT_EQ(m_fields, (Fields{"header", "Elm"}));
    EXPECT_EQ(iRepairAction, 4);
    EXPECT_TRUE(bChanged);
}

TEST_F(RepairNullVariationTest, TypingOnlyBlanksAsksAgainWithoutAMessage) {
    ExpectOnlyPrompt("Type");
    m_desktop.ExpectInput(Replacement, "   ");
    ExpectOnlyPrompt("Type");
    m_desktop.ExpectInput(Replacement, "");
    ExpectOnlyPrompt("Remove");
    EXPECT_TRUE(Repair({"header", "%"}, 1));
    EXPECT_EQ(iRepairAction, 3);
}

TEST_F(RepairNullVariationTest, ACancelledInputAsksAgainWithoutAMessage) {
    ExpectOnlyPrompt("Type");
    m_desktop.ExpectInput(Replacement, std::nullopt);
    ExpectOnlyPrompt("Quit");
    EXPECT_FALSE(Repair({"header", "%"}, 1));
}

TEST_F(RepairNullVariationTest, AnInvalidReplacementIsRefusedWithAMessage) {
    for (const std::string typed : {"Smith|ton", "! Elm", "Elm\tOak", "Smit?on"}) {
        ExpectOnlyPrompt("Type");
        m_desktop.ExpectInput(Replacement, typed);
        m_desktop.ExpectBox("Sorry but that is not a valid variation", BoxIcon::Critical);
    }
    ExpectOnlyPrompt("Type");
    m_desktop.ExpectInput(Replacement, "Smithton");
    EXPECT_TRUE(Repair({"header", "%"}, 1));
    EXPECT_EQ(m_fields, (Fields{"header", "Smithton"}));
}

TEST_F(RepairNullVariationTest, ANullVariationIsRefusedAsAReplacementWhateverTheModeIs) {
    for (const std::int16_t mode : {NothingOpen, DistrictIdle}) {
        iEditMode = mode;
        ExpectOnlyPrompt("Type");
        m_desktop.ExpectInput(Replacement, "!%");
        m_desktop.ExpectBox("Sorry but that is not a valid variation", BoxIcon::Critical);
        ExpectOnlyPrompt("Remove");
        EXPECT_TRUE(Repair({"header", "%"}, 1));
        m_desktop.CheckDone();
    }
}

TEST_F(RepairNullVariationTest, ABoxLeftWithoutAChoiceComesBack) {
    ExpectOnlyPrompt("");
    ExpectOnlyPrompt("remove"); // no caption of the box either
    ExpectOnlyPrompt("Remove");
    EXPECT_TRUE(Repair({"header", "%"}, 1));
    EXPECT_EQ(m_fields, (Fields{"header", "\t"}));
}

TEST_F(RepairNullVariationTest, CombiningWithTheNextOneJoinsThemInItsOwnPlaceOnly) {
    m_desktop.ExpectChoice("District Ash has a null variation.\r\n"
                           "The invalid dependency is ! and it is variation #1\r\n"
                           "It is the first variation and can only be combined with the next or removed.\r\n"
                           "The next variation is Elm\r\n"
                           "Combine Next = !Elm\r\n"
                           "Remove Elm\r\n"
                           "Type = Type a complete replacement for this variation\r\n"
                           "Quit = Stop processing this file\r\n\r\n",
                           {"Combine Next", "Remove", "Type", "Quit"}, "Combine Next");
    EXPECT_TRUE(Repair({"header", "!", "Elm"}, 1));
    EXPECT_EQ(m_fields, (Fields{"header", "!Elm", "Elm"}));
    EXPECT_EQ(iRepairAction, 2);
    EXPECT_TRUE(bChanged);
}

// A text that ends in its marker never makes a valid join with the one before it, so only a call
// with a whole dependency gets to see this repair.
TEST_F(RepairNullVariationTest, CombiningWithThePreviousOneJoinsThemInItsOwnPlaceOnly) {
    m_desktop.ExpectChoice("District Ash has a null variation.\r\n"
                           "The invalid dependency is %12 and it is variation #2\r\n"
                           "It is the last variation and can only be combined with the previous or removed.\r\n"
                           "Combine Previous = Smith%12\r\n"
                           "Combine Previous = Smith%12\r\n"
                           "Remove Smith\r\n"
                           "Type = Type a complete replacement for this variation\r\n"
                           "Quit = Stop processing this file\r\n\r\n",
                           {"Combine Previous", "Remove", "Type", "Quit"}, "Combine Previous");
    EXPECT_TRUE(Repair({"header", "Smith", "%12"}, 2));
    EXPECT_EQ(m_fields, (Fields{"header", "Smith", "Smith%12"}));
    EXPECT_EQ(iRepairAction, 1);
    EXPECT_TRUE(bChanged);
}

TEST_F(RepairNullVariationTest, AMiddleDependencyMayFitBothNeighboursOrThePreviousOneOnly) {
    m_desktop.ExpectChoice("District Ash has a null variation.\r\n"
                           "The invalid dependency is %12 and it is variation #2\r\n"
                           "With the preceding and following variations the string is...\r\n"
                           "Smith|%12| Oak\r\n\r\n"
                           "Combine Previous = Smith%12| Oak\r\n"
                           "Combine Next = Smith|%12 Oak\r\n"
                           "Remove = Smith| Oak\r\n"
                           "Type = Type a complete replacement for this variation\r\n"
                           "Quit = Stop processing this file\r\n",
                           {"Combine Previous", "Combine Next", "Remove", "Type", "Quit"}, "Combine Next");
    EXPECT_TRUE(Repair({"header", "Smith", "%12", " Oak", "Fir"}, 2));
    m_desktop.ExpectChoice("District Ash has a null variation.\r\n"
                           "The invalid dependency is %12 and it is variation #2\r\n"
                           "With the preceding and following variations the string is...\r\n"
                           "Smith|%12|%Oak%\r\n\r\n"
                           "Combine Previous = Smith%12|%Oak%\r\n"
                           "Combined with the next gives an invalid variation\r\n"
                           "Remove = Smith|%Oak%\r\n"
                           "Type = Type a complete replacement for this variation\r\n"
                           "Quit = Stop processing this file\r\n",
                           {"Combine Previous", "Remove", "Type", "Quit"}, "Remove");
    EXPECT_TRUE(Repair({"header", "Smith", "%12", "%Oak%", "Fir"}, 2));
    EXPECT_EQ(m_fields, (Fields{"header", "Smith", "\t", "%Oak%", "Fir"}));
}

TEST_F(RepairNullVariationTest, ARemovedPreviousEntryIsNoNeighbour) {
    m_desktop.ExpectChoice("District Ash has a null variation.\r\n"
                           "The invalid dependency is % and it is variation #2\r\n"
                           "The preceding variation has been deleted.\r\n"
                           "Combine Next = |%Oak\r\n"
                           "Remove = |Oak\r\n"
                           "Type = Type a complete replacement for this variation\r\n"
                           "Quit = Stop processing this file\r\n",
                           {"Combine Next", "Remove", "Type", "Quit"}, "Remove");
    EXPECT_TRUE(Repair({"header", "\t", "%", "Oak"}, 2));
}

// Only the last entry that the district itself counts has no next one; the place is told by the fields.
TEST_F(RepairNullVariationTest, TheNextEntryIsBoundedByTheDistrictsOwnCount) {
    DistrictRecord district;
    district.Line = "Ash";
    district.lVariationCount = 1;
    Fields fields{"header", "!", "Elm"};
    m_desktop.ExpectChoice("District Ash has a null variation.\r\n"
                           "The invalid dependency is ! and it is variation #1\r\n"
                           "It is the first variation and can only be combined with the next or removed.\r\n"
                           "The next variation is \r\n"
                           "Combining with next gives an invalid variation\r\n\r\n"
                           "Remove = \r\n"
                           "Type = Type a complete replacement for this variation\r\n"
                           "Quit = Stop processing this file\r\n\r\n",
                           {"Remove", "Type", "Quit"}, "Remove");
    EXPECT_TRUE(RepairNullVariation(district, fields, 1, 7, m_desktop));
}
