#include "changes/ChangeFile.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class ChangeFileTest : public StateTest {
protected:
    ChangeFileTest() {
        lCurrentDistrict = AddDistrict("Alpha");
        iEditMode = DistrictIdle;
    }

    // The rows as texts: the tag, "w" for a warning and the proposal.
    static std::vector<std::string> RowsOf(std::string_view content) {
        std::vector<std::string> rows;
        for (const Proposal& proposal : ReadProposals(std::string(content)).proposals) {
            EXPECT_FALSE(proposal.ticked) << proposal.text;
            rows.push_back(std::to_string(proposal.tag) + (proposal.warns ? "w " : " ") + proposal.text);
        }
        return rows;
    }
    using Rows = std::vector<std::string>;
};

} // namespace

TEST_F(ChangeFileTest, EveryLineOfAPlainTextIsAProposal) {
    EXPECT_EQ(RowsOf("Smyth\r\nSmithe\r\n"), (Rows{"0 Smyth", "0 Smithe"}));
}

TEST_F(ChangeFileTest, LinesMayEndInAnyWay) {
    const Rows both{"0 Smyth", "0 Smithe"};
    EXPECT_EQ(RowsOf("Smyth\nSmithe\n"), both);
    EXPECT_EQ(RowsOf("Smyth\nSmithe"), both);
    EXPECT_EQ(RowsOf("\r\n\r\nSmyth\n\nSmithe\r\n\r\n"), both);
}

TEST_F(ChangeFileTest, AnEmptyFileHasNoRowsAndNothingToSay) {
    const ProposalList list = ReadProposals("");
    EXPECT_TRUE(list.proposals.empty());
    EXPECT_EQ(list.Summary(), "");
}

TEST_F(ChangeFileTest, TheCheckIsOfTheTrimmedTextAndTheRowKeepsItsBlanks) {
    EXPECT_EQ(RowsOf("  Smyth "), Rows{"0   Smyth "});
    EXPECT_EQ(RowsOf("   "), Rows{"0    "});
}

TEST_F(ChangeFileTest, AnInvalidProposalIsMarkedAndCounted) {
    const ProposalList list = ReadProposals("Smi?th\nSmyth\nSm|th\n!\n");
    EXPECT_EQ(list.invalidCount, 3);
    EXPECT_EQ(list.warningCount, 0);
    EXPECT_EQ(RowsOf("Smi?th\nSmyth\nSm|th\n!\n"), (Rows{"-1 Smi?th", "0 Smyth", "-1 Sm|th", "-1 !"}));
}

TEST_F(ChangeFileTest, AWarningIsMarkedAndCountedOnValidAndInvalidRows) {
    const ProposalList list = ReadProposals("Sm_th\nCaf\xE9\n Smi?_th\nSmyth\n");
    EXPECT_EQ(list.invalidCount, 1);
    EXPECT_EQ(list.warningCount, 3);
    EXPECT_EQ(RowsOf("Sm_th\nCaf\xE9\n Smi?_th\nSmyth\n"), (Rows{"0w Sm_th", "0w Caf\xE9", "-1w  Smi?_th", "0 Smyth"}));
}

TEST_F(ChangeFileTest, ARefusalDoesNotInheritTheWarningOfTheRowBefore) {
    EXPECT_EQ(RowsOf("Sm_th\nSm|th\n%\n"), (Rows{"0w Sm_th", "-1 Sm|th", "-1 %"}));
}

TEST_F(ChangeFileTest, AWarningFromBeforeTheFileDoesNotCount) {
    bWarning = true;
    EXPECT_EQ(RowsOf("Sm|th\n"), Rows{"-1 Sm|th"});
}

TEST_F(ChangeFileTest, AHeadingIsUpperCasedAndNotChecked) {
    sInvalidReason = "untouched";
    EXPECT_EQ(RowsOf("<TR><TD>Name | r\xE9gion_?</TD></TR>\n"), Rows{"1 NAME | R\xC9GION_?"});
    EXPECT_EQ(sInvalidReason, "untouched");
    const ProposalList list = ReadProposals("<TR><TD>N_me|</TD></TR>\n");
    EXPECT_EQ(list.invalidCount, 0);
    EXPECT_EQ(list.warningCount, 0);
}

TEST_F(ChangeFileTest, LinesBehindAHeadingRowAreHeadingsWithoutAHead) {
    EXPECT_EQ(RowsOf("Elm\n<TR><TD>Name</TD></TR>\nOak\n<TR><TD x>Ash</TD></TR>\nYew\n"),
              (Rows{"0 Elm", "1 NAME", "1 OAK", "0 Ash", "0 Yew"}));
}

TEST_F(ChangeFileTest, AHeadingThatCannotBeCutMakesHeadingsOfTheLinesBehindIt) {
    EXPECT_EQ(RowsOf("<TR><TD>Name\nOak\n"), Rows{"1 OAK"});
}

TEST_F(ChangeFileTest, APageYieldsItsRowsOnly) {
    EXPECT_EQ(RowsOf("<!DOCTYPE html>\n<html>\n<head>\n<title>Names</title>\n</head>\n<body>\nSome text\n"
                     "<table border=1>\n<TR><TD>Name</TD><TD>No</TD></TR>\n<TR><TD class=n>Elm</TD><TD>1</TD></TR>\n"
                     "between\n<TR><TD class=n>Sm?th</TD></TR>\n</table>\n</body></html>\n"),
              (Rows{"1 NAME", "0 Elm", "-1 Sm?th"}));
}

TEST_F(ChangeFileTest, LinesAboveTheHeadAreProposalsUnlessTheyOpenThePage) {
    EXPECT_EQ(RowsOf("<!DOCTYPE html>\n<!-- saved -->\n<html>\n<head>\nElm\n"), Rows{"0 <!-- saved -->"});
}

TEST_F(ChangeFileTest, EveryFileStartsAfresh) {
    EXPECT_EQ(RowsOf("<head>\n<TR><TD>Name</TD>\n"), Rows{"1 NAME"});
    EXPECT_EQ(RowsOf("Elm\n"), Rows{"0 Elm"});
}

TEST_F(ChangeFileTest, CharacterReferencesStayAsTheyAreWritten) {
    EXPECT_EQ(RowsOf("<TR><TD x>Elm &amp; Oak&nbsp;</TD>\n&eacute;\n"), (Rows{"0 Elm &amp; Oak&nbsp;", "0 &eacute;"}));
}

TEST_F(ChangeFileTest, TheSummaryHasAPhraseForEachKindOfProblemThatThereIs) {
    EXPECT_EQ(ReadProposals("Smyth\n").Summary(), "");
    EXPECT_EQ(ReadProposals("Smi?th\n").Summary(), "1 invalid variations (red). ");
    EXPECT_EQ(ReadProposals("Sm_th\n").Summary(), "1 warnings (Brown).");
    EXPECT_EQ(ReadProposals("a?b\na|b\n!\nSm_th\nx*\n").Summary(), "3 invalid variations (red). 2 warnings (Brown).");
}

TEST_F(ChangeFileTest, ReadingChangesNothingInTheTable) {
    const std::size_t slots = DistrictAt(1).Variations.size();
    EXPECT_EQ(ReadProposals("Smyth\nSm?th\n").proposals.size(), 2U);
    EXPECT_EQ(DistrictAt(1).lVariationCount, 0);
    EXPECT_EQ(DistrictAt(1).Variations.size(), slots);
    EXPECT_FALSE(bChanged);
}
