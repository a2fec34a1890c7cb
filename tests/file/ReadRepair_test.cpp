#include "file/DistrictFileWriter.h"
#include "recovery/RecoveryFile.h"
#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using Captions = std::vector<std::string>;

const std::string TypeAndQuit = "Type = Type a complete replacement for this variation\r\n"
                                "Quit = Stop processing this file\r\n";

std::string Opening(const std::string& current, int index) {
    return "District Ash has a null variation.\r\nThe invalid dependency is " + current + " and it is variation #" +
           std::to_string(index) + "\r\n";
}

class ReadRepairTest : public StateTest {
protected:
    // Reads a file of one district with these variations and a line behind it. Whatever has been repaired
    // must then be in the recovery file.
    void Read(const std::string& variations) {
        ReadText(m_desktop, HeaderOf("Ash") + variations + "\r\n# end\r\n");
        if (iRepairAction != Quit) {
            EXPECT_EQ(Slots(), SlotsByRecoveryFile(variations));
        }
    }

    static std::vector<std::string> Slots() {
        std::vector<std::string> slots;
        for (std::int32_t i = 1; i <= DistrictAt(1).lVariationCount; ++i) {
            slots.push_back(VariationAt(1, i).Text);
        }
        return slots;
    }

    // The fields as they stand in the file, with the changes of the recovery file.
    std::vector<std::string> SlotsByRecoveryFile(const std::string& variations) {
        std::vector<std::string> slots;
        for (const std::string_view field : Ansi::Split(variations, '|')) {
            slots.emplace_back(Ansi::Trim(field).empty() ? DeletedText : field);
        }
        slots.erase(slots.begin());
        const std::vector<std::string> names = m_desktop.state.Kept();
        EXPECT_EQ(names.empty(), !bChanged);
        if (!names.empty()) {
            const auto file = ParseRecoveryFile(*m_desktop.state.Read(names.back()));
            for (const SlotChange& change : file->changes) {
                EXPECT_EQ(change.line, 1);
                slots.at(static_cast<std::size_t>(change.slot) - 1) = change.text;
            }
        }
        return slots;
    }

    static void ExpectSaved(const std::string& variations) {
        EXPECT_EQ(DistrictFileContent(), HeaderOf("Ash") + variations + "\r\n# end\r\n");
    }

    void ExpectOnly(const std::string& answer) {
        m_desktop.ExpectChoice(Opening("%", 1) +
                                   " As it is the only variation it can only be removed or replaced.\r\nRemove\r\n" +
                                   TypeAndQuit + "\r\n",
                               {"Remove", "Type", "Quit"}, answer);
    }

    void ExpectFirst(const std::string& current, const std::string& next, const std::string& answer) {
        m_desktop.ExpectChoice(Opening(current, 1) +
                                   "It is the first variation and can only be combined with the next or removed.\r\n"
                                   "The next variation is " +
                                   next + "\r\nCombine Next = " + current + next + "\r\nRemove " + next + "\r\n" +
                                   TypeAndQuit + "\r\n",
                               {"Combine Next", "Remove", "Type", "Quit"}, answer);
    }

    void ExpectMiddle(const std::string& previous, const std::string& current, const std::string& next, int index,
                      const std::string& answer) {
        m_desktop.ExpectChoice(
            Opening(current, index) + "With the preceding and following variations the string is...\r\n" + previous +
                "|" + current + "|" + next +
                "\r\n\r\nCombined with the previous gives an invalid variation\r\n\r\n"
                "Combine Next = " +
                previous + "|" + current + next + "\r\nRemove = " + previous + "|" + next + "\r\n" + TypeAndQuit,
            {"Combine Next", "Remove", "Type", "Quit"}, answer);
    }

    void ExpectLastAfterRemoved(const std::string& current, int index, const std::string& answer) {
        m_desktop.ExpectChoice(Opening(current, index) +
                                   "It is the last variation and the previous has been deleted and so it can only be "
                                   "removed\r\n\r\nRemove = \r\n" +
                                   TypeAndQuit + "\r\n",
                               {"Remove", "Type", "Quit"}, answer);
    }

    ScriptedDesktop m_desktop;
};

} // namespace

TEST_F(ReadRepairTest, ARemovedVariationLeavesADeletedSlot) {
    ExpectOnly("Remove");
    Read("|%");
    EXPECT_EQ(VariationAt(1, 1).Text, "\t");
    EXPECT_FALSE(VariationAt(1, 1).bUnusualCaps);
    EXPECT_EQ(DistrictAt(1).lVariationCount, 1);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 0);
    EXPECT_EQ(lInvalidTotal, 1);
    EXPECT_EQ(lCapsOkTotal, 1);
    EXPECT_EQ(iRepairAction, 3);
    EXPECT_TRUE(bChanged);
    ExpectSaved("");
}

TEST_F(ReadRepairTest, ATypedReplacementTakesTheVariationsPlaceAndItsCapitalsAreChecked) {
    ExpectOnly("Type");
    m_desktop.ExpectInput("Please enter a replacement for the variation %", " ELM ");
    ExpectReadReport(m_desktop, {"1 variations with capitalisation problems"});
    Read("|%");
    EXPECT_EQ(VariationAt(1, 1).Text, "ELM");
    EXPECT_TRUE(VariationAt(1, 1).bUnusualCaps);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 0);
    EXPECT_EQ(lInvalidTotal, 1);
    EXPECT_EQ(lCapsOkTotal, 0);
    EXPECT_EQ(iRepairAction, 4);
    ExpectSaved("|ELM");
}

TEST_F(ReadRepairTest, AWarningAboutATypedReplacementIsCounted) {
    ExpectOnly("Type");
    m_desktop.ExpectInput("Please enter a replacement for the variation %", "Caf\xE9");
    Read("|%");
    EXPECT_EQ(DistrictAt(1).lWarningCount, 1);
}

TEST_F(ReadRepairTest, CombiningWithTheNextReadsTheJoinAsTheNextVariation) {
    ExpectFirst("!", "Elm", "Combine Next");
    Read("|!|Elm|Oak");
    EXPECT_EQ(VariationAt(1, 1).Text, "\t");
    EXPECT_EQ(VariationAt(1, 2).Text, "!Elm");
    EXPECT_EQ(VariationAt(1, 3).Text, "Oak");
    EXPECT_EQ(DistrictAt(1).lVariationCount, 3);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 0);
    EXPECT_EQ(lCapsOkTotal, 3);
    EXPECT_EQ(iRepairAction, 2);
    EXPECT_TRUE(bChanged);
    ExpectSaved("|!Elm|Oak");
}

TEST_F(ReadRepairTest, TheJoinOfACombinationIsCheckedLikeAnyVariation) {
    ExpectFirst("!", "elm", "Combine Next");
    ExpectReadReport(m_desktop, {"1 variations with capitalisation problems"});
    Read("|!|elm|Oak");
    EXPECT_TRUE(VariationAt(1, 2).bUnusualCaps);
    EXPECT_EQ(lCapsOkTotal, 2);
}

TEST_F(ReadRepairTest, AMiddleVariationIsCombinedWithTheNext) {
    ExpectMiddle("Elm", "%", "Oak", 2, "Combine Next");
    Read("|Elm|%|Oak");
    ExpectSaved("|Elm|%Oak");
}

// Nothing that ends in its marker makes a valid join with the text before it, so the button is not
// there; this is what the reader would do with it.
TEST_F(ReadRepairTest, CombiningWithThePreviousPutsTheJoinIntoThePreviousSlot) {
    ExpectMiddle("Elm", "%", "Oak", 2, "Combine Previous");
    Read("|Elm|%|Oak");
    EXPECT_EQ(VariationAt(1, 1).Text, "Elm%");
    EXPECT_EQ(VariationAt(1, 2).Text, "\t");
    EXPECT_EQ(iRepairAction, 1);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 0);
    EXPECT_TRUE(bChanged);
    ExpectSaved("|Elm%|Oak");
}

TEST_F(ReadRepairTest, EveryRepairIsNotedSlotBySlot) {
    ExpectFirst("!", "Elm", "Combine Next");
    ExpectMiddle("!Elm", "%", "Oak", 3, "Combine Previous");
    ExpectMiddle("Oak", "%", "Fir", 5, "Remove");
    ExpectLastAfterRemoved("!", 8, "Type");
    m_desktop.ExpectInput("Please enter a replacement for the variation !", "Yew");
    ExpectReadReport(m_desktop, {"There were 1 blank variations in District Ash.  They have been removed.\r\n",
                                 "There were 1 blank variations in District # end.  They have been removed.\r\n",
                                 "0 variations with capitalisation problems"});
    Read("|!|Elm|%|Oak|%|Fir||!");
    const auto file = ParseRecoveryFile(*m_desktop.state.Read(m_desktop.state.Kept().back()));
    const std::vector<SlotChange> expected{{1, 2, "!Elm", {}}, {1, 1, "\t", {}}, {1, 2, "!Elm%", {}},
                                           {1, 3, "\t", {}},   {1, 5, "\t", {}}, {1, 8, "Yew", {}}};
    EXPECT_EQ(file->changes, expected);
}

TEST_F(ReadRepairTest, ARemovedVariationIsNoNeighbourOfTheNext) {
    m_desktop.ExpectChoice(Opening("!", 1) +
                               "It is the first variation and can only be combined with the next or removed.\r\n"
                               "The next variation is !\r\n"
                               "Combining with next gives an invalid variation\r\n\r\n"
                               "Remove = !\r\n" +
                               TypeAndQuit + "\r\n",
                           {"Remove", "Type", "Quit"}, "Remove");
    ExpectLastAfterRemoved("!", 2, "Remove");
    Read("|!|!");
    ExpectSaved("");
}

TEST_F(ReadRepairTest, ABlankPreviousVariationIsNoNeighbour) {
    ExpectLastAfterRemoved("!", 2, "Remove");
    ExpectReadReport(m_desktop, {"There were 1 blank variations in District Ash.  They have been removed.\r\n",
                                 "There were 1 blank variations in District # end.  They have been removed.\r\n",
                                 "0 variations with capitalisation problems"});
    Read("||!");
    ExpectSaved("");
}

TEST_F(ReadRepairTest, TheNeighboursAreTheFieldsOfTheLineWithTheirBlanks) {
    m_desktop.ExpectChoice(Opening(" !% ", 2) +
                               "With the preceding and following variations the string is...\r\n"
                               " | !% |Oak\r\n\r\n"
                               "Combined with the previous gives an invalid variation\r\n\r\n"
                               "Combined with the next gives an invalid variation\r\n"
                               "Remove =  |Oak\r\n" +
                               TypeAndQuit,
                           {"Remove", "Type", "Quit"}, "Remove");
    ExpectReadReport(m_desktop, {"There were 1 blank variations in District Ash.  They have been removed.\r\n",
                                 "There were 1 blank variations in District # end.  They have been removed.\r\n",
                                 "0 variations with capitalisation problems"});
    Read("| | !% |Oak");
    ExpectSaved("|Oak");
}

TEST_F(ReadRepairTest, ANameWithAnEmptyDependencyIsRepairedToo) {
    ExpectFirst("Elm%", "12", "Combine Next");
    Read("|Elm%|12");
    ExpectSaved("|Elm%12");
}

TEST_F(ReadRepairTest, SeveralNullVariationsAreRepairedOneAfterTheOther) {
    ExpectFirst("!", "Elm", "Remove");
    ExpectMiddle("Elm", "%", "Oak", 3, "Combine Next");
    m_desktop.ExpectChoice(Opening("!", 5) +
                               "It is the last variation and can only be combined with the previous or removed.\r\n"
                               "Combine Previous = %Oak!\r\n"
                               "Combining with Previous gives an invalid variation\r\n\r\n"
                               "Remove = \r\n" +
                               TypeAndQuit + "\r\n",
                           {"Remove", "Type", "Quit"}, "Type");
    m_desktop.ExpectInput("Please enter a replacement for the variation !", "Yew");
    Read("|!|Elm|%|Oak|!");
    EXPECT_EQ(lInvalidTotal, 3);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 0);
    EXPECT_EQ(iRepairAction, 4);
    ExpectSaved("|Elm|%Oak|Yew");
}

TEST_F(ReadRepairTest, TheDuplicatesAreThoseAfterTheRepair) {
    ExpectFirst("!", "Elm", "Combine Next");
    ExpectReadReport(m_desktop,
                     {"District Ash has duplicate variations.", "0 variations with capitalisation problems"});
    Read("|!|Elm|Elm");
    EXPECT_TRUE(VariationAt(1, 2).bDuplicate);
    EXPECT_TRUE(VariationAt(1, 3).bDuplicate);
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 1);
}

TEST_F(ReadRepairTest, QuitEndsTheReadingWithoutAReport) {
    m_desktop.ExpectChoice(Opening("!", 2) +
                               "It is the last variation and can only be combined with the previous or removed.\r\n"
                               "Combine Previous = ELM!\r\n"
                               "Combining with Previous gives an invalid variation\r\n\r\n"
                               "Remove = \r\n" +
                               TypeAndQuit + "\r\n",
                           {"Remove", "Type", "Quit"}, "Quit");
    ReadText(m_desktop, HeaderOf("Yew") + "|ELM|elm|\r\n" + HeaderOf("Ash") + "|ELM|!\r\n# end\r\nodd\r\n");
    EXPECT_EQ(iRepairAction, 5);
    EXPECT_EQ(lLineCount, 2);
    EXPECT_EQ(DistrictAt(2).Name(), "Ash");
    EXPECT_EQ(DistrictAt(2).lInvalidCount, 1);
    EXPECT_EQ(lDistrictTotal, 2);
    EXPECT_EQ(lInvalidTotal, 1);
    EXPECT_FALSE(bChanged);
    EXPECT_FALSE(m_desktop.busy);
}

TEST_F(ReadRepairTest, TheDuplicatesOfALineThatWasQuitAreNotLookedFor) {
    m_desktop.ExpectChoice(Opening("%", 3) +
                               "It is the last variation and can only be combined with the previous or removed.\r\n"
                               "Combine Previous = Elm%\r\n"
                               "Combining with Previous gives an invalid variation\r\n\r\n"
                               "Remove = \r\n" +
                               TypeAndQuit + "\r\n",
                           {"Remove", "Type", "Quit"}, "Quit");
    Read("|Elm|Elm|%");
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, 0);
    EXPECT_FALSE(VariationAt(1, 1).bDuplicate);
    EXPECT_EQ(lDupePairCount, 0);
}

TEST_F(ReadRepairTest, AVariationThatIsNoNullDistrictIsNotAskedAbout) {
    Read("|Elm%1%2|! Oak| Yew");
    EXPECT_EQ(lInvalidTotal, 3);
    EXPECT_EQ(iRepairAction, NoRepair);
    ExpectSaved("|Elm%1%2|! Oak| Yew");
}
