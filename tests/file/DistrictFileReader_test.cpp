#include "file/DistrictFileReader.h"

#include "file/CommentTypes.h"
#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class ReadLinesTest : public StateTest {
protected:
    void Read(std::string content) { ReadText(m_desktop, std::move(content)); }

    // What a retained line must look like.
    static void ExpectRetained(std::int32_t line, const std::string& text) {
        EXPECT_TRUE(DistrictAt(line).bRetained) << line;
        EXPECT_EQ(DistrictAt(line).Name(), text);
        EXPECT_EQ(DistrictAt(line).HeaderText(), text);
        EXPECT_EQ(DistrictAt(line).lVariationCount, 0);
    }

    void ExpectIncomplete(int line, const std::string& text) {
        m_desktop.ExpectBox("Line " + std::to_string(line) +
                                " is incomplete but has been retained in the file.  It will not be available for "
                                "editing.\r\n" +
                                text,
                            BoxIcon::Exclamation);
    }

    void ExpectNoVariations(int line, const std::string& text) {
        m_desktop.ExpectBox("Entry found with no variations at line " + std::to_string(line) + "\r\n" + text,
                            BoxIcon::Exclamation);
    }

    ScriptedDesktop m_desktop;
};

constexpr const char* NotEditable =
    "The line is incomplete but has been retained in the file.  It will not be available for editing.";

} // namespace

TEST_F(ReadLinesTest, TheDesktopIsBusyMeanwhileAndToldHowFarItIs) {
    Read("# one\r\n# two\r\n# three");
    EXPECT_EQ(m_desktop.tasks, std::vector<std::string>{"Checking the lines of the file"});
    EXPECT_EQ(m_desktop.part, 1);
    EXPECT_FALSE(m_desktop.busy);
}

TEST_F(ReadLinesTest, ADistrictFillsItsRecord) {
    Read(" Ash + 12 + Shire +1837+3+1900+4+a+b+c|Elm|!Oak%12 \r\n");
    ASSERT_EQ(lLineCount, 1);
    const DistrictRecord& ash = DistrictAt(1);
    EXPECT_FALSE(ash.bRetained);
    EXPECT_EQ(ash.Name(), "Ash");
    EXPECT_EQ(ash.HeaderText(), "Ash + 12 + Shire +1837+3+1900+4+a+b+c");
    EXPECT_EQ(ash.Volume(), "12");
    EXPECT_EQ(ash.County(), " Shire ");
    EXPECT_EQ(ash.Abolished, 1900);
    EXPECT_EQ(ash.Extra(3), "c");
    EXPECT_EQ(ash.lVariationCount, 2);
    ASSERT_EQ(ash.Variations.size(), 3U);
    EXPECT_EQ(ash.Variations[1].Text, "Elm");
    EXPECT_EQ(ash.Variations[2].Text, "!Oak%12");
    EXPECT_EQ(lDistrictTotal, 1);
}

TEST_F(ReadLinesTest, VariationsAreNotTrimmed) {
    Read(HeaderOf("Ash") + "| Elm |Oak");
    EXPECT_EQ(VariationAt(1, 1).Text, " Elm ");
    EXPECT_EQ(VariationAt(1, 2).Text, "Oak");
}

TEST_F(ReadLinesTest, BlankAndCommentLinesOnlyAreRetainedWithoutAReport) {
    Read("# one\r\n\r\n   \r\n  # two  \r\n");
    EXPECT_EQ(lLineCount, 4);
    ExpectRetained(1, "# one");
    ExpectRetained(2, "");
    ExpectRetained(3, "");
    ExpectRetained(4, "# two");
    EXPECT_EQ(lDistrictTotal, 0);
    EXPECT_EQ(iRepairAction, NoRepair);
}

TEST_F(ReadLinesTest, OnlyLinesThatBeginWithTheMarkerNameACommentType) {
    CommentTypes.Reset();
    Read("#QX_Seat of a court\n  #qx_seat again\n#qX_Area\n# see #QX_Map\n#QX\n#QX_\n");
    ASSERT_EQ(CommentTypes.Items().size(), 3U);
    EXPECT_EQ(CommentTypes.Items()[1].type, "Seat");
    EXPECT_EQ(CommentTypes.Items()[2].type, "Area");
    ExpectRetained(1, "#QX_Seat of a court");
    CommentTypes.Reset();
}

TEST_F(ReadLinesTest, ADistrictWithoutVariationsHasAnEmptyFirstSlot) {
    Read(HeaderOf("Ash"));
    EXPECT_FALSE(DistrictAt(1).bRetained);
    EXPECT_EQ(DistrictAt(1).lVariationCount, 0);
    ASSERT_EQ(DistrictAt(1).Variations.size(), 2U);
    EXPECT_EQ(VariationAt(1, 1).Text, "");
    EXPECT_FALSE(VariationAt(1, 1).bDuplicate);
    EXPECT_FALSE(VariationAt(1, 1).bUnusualCaps);
    EXPECT_EQ(lDistrictTotal, 1);
}

TEST_F(ReadLinesTest, AHeaderOfEightPartsIsAnIncompleteLine) {
    ExpectIncomplete(2, "A+1+B+1900+1+9999+0+x|Foo");
    Read("\nA+1+B+1900+1+9999+0+x|Foo\n");
    ExpectRetained(2, "A+1+B+1900+1+9999+0+x|Foo");
    EXPECT_EQ(lDistrictTotal, 0);
}

TEST_F(ReadLinesTest, AHeaderOfFourteenPartsIsAnIncompleteLine) {
    Read("A+1+B+1900+1+9999+0+1+2+3+4+5+6|Foo");
    EXPECT_EQ(lDistrictTotal, 1);
    ExpectIncomplete(1, "A+1+B+1900+1+9999+0+1+2+3+4+5+6+7|Foo");
    Read("A+1+B+1900+1+9999+0+1+2+3+4+5+6+7|Foo");
    ExpectRetained(1, "A+1+B+1900+1+9999+0+1+2+3+4+5+6+7|Foo");
    EXPECT_EQ(lDistrictTotal, 0);
}

TEST_F(ReadLinesTest, AYearThatIsNoNumberMakesAnIncompleteLine) {
    ExpectIncomplete(1, "A+1+B+about 1900+1+9999+0+x+y|Foo");
    ExpectIncomplete(2, "A+1+B+1900+1+99999+0+x+y");
    Read("  A+1+B+about 1900+1+9999+0+x+y|Foo  \nA+1+B+1900+1+99999+0+x+y\n");
    ExpectRetained(1, "A+1+B+about 1900+1+9999+0+x+y|Foo");
    ExpectRetained(2, "A+1+B+1900+1+99999+0+x+y");
    EXPECT_EQ(lDistrictTotal, 0);
}

TEST_F(ReadLinesTest, AnyOtherTextIsAnIncompleteLine) {
    ExpectIncomplete(1, "hello");
    ExpectIncomplete(2, "\t");
    Read("hello\n\t\n");
    ExpectRetained(1, "hello");
    ExpectRetained(2, "\t");
}

TEST_F(ReadLinesTest, ALineThatBeginsWithABarBecomesADistrictWithTheBarInItsName) {
    ExpectNoVariations(2, "|A+1+B+1900+1+9999+0+x+y");
    m_desktop.ExpectBox("The line will be available for editing.", BoxIcon::Information);
    Read("\n|A+1+B+1900+1+9999+0+x+y\n");
    const DistrictRecord& record = DistrictAt(2);
    EXPECT_FALSE(record.bRetained);
    EXPECT_EQ(record.Name(), "|A");
    EXPECT_EQ(record.HeaderText(), "|A+1+B+1900+1+9999+0+x+y");
    EXPECT_EQ(record.Founded, 1900);
    EXPECT_EQ(record.lVariationCount, 0);
    ASSERT_EQ(record.Variations.size(), 2U);
    EXPECT_EQ(record.Variations[1].Text, "");
    EXPECT_EQ(lDistrictTotal, 0);
}

TEST_F(ReadLinesTest, TheQuartersOfALineThatBeginsWithABarAreNotChecked) {
    ExpectNoVariations(1, "|A+1+B+1900+9+9999+5+1+2+3+4|Foo");
    m_desktop.ExpectBox("The line will be available for editing.", BoxIcon::Information);
    Read("|A+1+B+1900+9+9999+5+1+2+3+4|Foo");
    EXPECT_EQ(DistrictAt(1).Extra(4), "4|Foo");
    EXPECT_EQ(DistrictAt(1).lVariationCount, 0);
}

TEST_F(ReadLinesTest, ARefusedLineThatBeginsWithABarLosesItsHeader) {
    for (const std::string line : {"|", "|Foo", "|A+1+B+1900+1+9999+0+x", "|A+1+B+1900+1+9999+0+1+2+3+4+5"}) {
        ExpectNoVariations(1, line);
        m_desktop.ExpectBox(NotEditable, BoxIcon::Exclamation);
        Read(line);
        EXPECT_TRUE(DistrictAt(1).bRetained);
        EXPECT_EQ(DistrictAt(1).Name(), line);
        EXPECT_EQ(DistrictAt(1).HeaderText(), "");
        m_desktop.CheckDone();
    }
}

TEST_F(ReadLinesTest, ALineThatBeginsWithABarAndHasAnOddYearIsKeptWhole) {
    ExpectNoVariations(1, "|A+1+B+19OO+1+9999+0+x+y");
    m_desktop.ExpectBox(NotEditable, BoxIcon::Exclamation);
    Read("|A+1+B+19OO+1+9999+0+x+y");
    ExpectRetained(1, "|A+1+B+19OO+1+9999+0+x+y");
}

TEST_F(ReadLinesTest, QuarterProblemsAreShownInOrderAndChangeNothing) {
    m_desktop.ExpectBox("District A has a abandoned Quarter of 5 with a non-abandoned year", BoxIcon::Exclamation);
    m_desktop.ExpectBox("District B has an abandoned year of 1900 with an invalid quarter=8", BoxIcon::Exclamation);
    m_desktop.ExpectBox("District B has a founded year of 1900 with an invalid quarter=8", BoxIcon::Exclamation);
    Read("A+1+B+9999+0+9999+5+x+y|Foo\n B +1+B+1837+9+1900+8+x+y|Foo\n");
    EXPECT_EQ(lDistrictTotal, 2);
    EXPECT_EQ(DistrictAt(1).QtrA, 5);
    EXPECT_EQ(DistrictAt(2).HeaderText(), "B +1+B+1837+9+1900+8+x+y");
}

TEST_F(ReadLinesTest, TheTableGrowsByTenBeyondTheLineThatDoesNotFit) {
    Read("");
    EXPECT_EQ(lLineCount, 0);
    EXPECT_EQ(Districts.size(), 21U);
    std::string lines;
    for (int i = 1; i <= 20; ++i) {
        lines += "# " + std::to_string(i) + "\n";
    }
    Read(lines);
    EXPECT_EQ(lLineCount, 20);
    EXPECT_EQ(Districts.size(), 21U);
    Read(lines + "# 21");
    EXPECT_EQ(lLineCount, 21);
    EXPECT_EQ(Districts.size(), 32U);
    ExpectRetained(1, "# 1");
    ExpectRetained(20, "# 20");
    ExpectRetained(21, "# 21");
    EXPECT_EQ(DistrictAt(22).Name(), "");
}

TEST_F(ReadLinesTest, ASecondReadStartsAfresh) {
    m_desktop.recordReports = true;
    Read(HeaderOf("Ash") + "|ELM|! Fir|Oak\n# note\n");
    bChanged = true;
    iRepairAction = Remove;
    Read("# only\n");
    EXPECT_EQ(lLineCount, 1);
    EXPECT_EQ(Districts.size(), 21U);
    EXPECT_EQ(DistrictAt(2).Name(), "");
    EXPECT_FALSE(bChanged);
    EXPECT_EQ(iRepairAction, NoRepair);
    EXPECT_EQ(lDistrictTotal, 0);
    EXPECT_EQ(lInvalidTotal, 0);
    EXPECT_EQ(lCapsOkTotal, 0);
}

TEST_F(ReadLinesTest, AFileThatCannotBeReadLeavesAnEmptyTableAndAMessage) {
    Read(HeaderOf("Ash") + "|Elm");
    bChanged = true;
    sDataFileName = "/data/caf\xC3\xA9 \xC4\x8D.txt";
    m_desktop.ExpectBox("The file cannot be read:\r\n" + Wording::OfPath("/data/caf\xC3\xA9 \xC4\x8D.txt"),
                        BoxIcon::Exclamation);
    ReadDistrictFile(m_desktop);
    EXPECT_EQ(lLineCount, 0);
    EXPECT_EQ(Districts.size(), 0U);
    EXPECT_EQ(lDistrictTotal, 0);
    EXPECT_EQ(lCapsOkTotal, 0);
    EXPECT_FALSE(bChanged);
    EXPECT_FALSE(m_desktop.busy);
}

TEST_F(ReadLinesTest, ReadingHappensInTheProgramsFolderAndEndsTheBusyCursor) {
    Read("# note");
    EXPECT_EQ(m_desktop.programFolderEntries, 1);
    EXPECT_FALSE(m_desktop.busy);
}

TEST_F(ReadLinesTest, TheBusyCursorShowsWhileQuestionsAreAskedAndIsGoneBeforeTheReport) {
    class Watching : public ScriptedDesktop {
    public:
        BoxAnswer MsgBox(const Wording&, BoxIcon, BoxButtons) override {
            busyAtBox = busy;
            return BoxAnswer::Ok;
        }
        std::optional<ReportPlace> ShowReport(const Report&) override {
            busyAtReport = busy;
            return std::nullopt;
        }
        bool busyAtBox = false;
        bool busyAtReport = true;
    };
    Watching desktop;
    ReadText(desktop, HeaderOf("Ash") + "|ELM\nincomplete\n");
    EXPECT_TRUE(desktop.busyAtBox);
    EXPECT_FALSE(desktop.busyAtReport);
}

TEST_F(ReadLinesTest, ALineEndsAtALineFeedWithOrWithoutACarriageReturn) {
    ExpectIncomplete(3, "c\rd");
    ExpectIncomplete(4, "e\r");
    Read("# a\r\n# b\nc\rd\r\ne\r\r\n# f\r");
    EXPECT_EQ(lLineCount, 5);
    ExpectRetained(1, "# a");
    ExpectRetained(2, "# b");
    ExpectRetained(3, "c\rd");
    ExpectRetained(4, "e\r");
    ExpectRetained(5, "# f\r");
}

TEST_F(ReadLinesTest, NulBytesAndMarksOfOtherEncodingsAreCharactersOfTheirLine) {
    const std::string first = "\xFF\xFE# a"; // the mark of UTF-16
    const std::string second = std::string("# \0b", 4);
    ExpectIncomplete(1, first);
    Read(first + "\n" + second);
    ExpectRetained(1, first);
    ExpectRetained(2, second);
}

TEST_F(ReadLinesTest, AMessageNamesItsDistrictAndACountNone) {
    m_desktop.recordReports = true;
    Read("# note\r\n" + HeaderOf("Ash") + "|ELM| \r\n# other note\r\n" + HeaderOf("Oak") + "|ELM|Elm|Ma_ge\r\n");
    ASSERT_EQ(m_desktop.reports.size(), 1U);
    const Report& report = m_desktop.reports.front();
    ASSERT_EQ(report.items.size(), 5U);
    EXPECT_EQ(report.PlaceOf(0), (ReportPlace{2, 0})) << report.items[0];
    EXPECT_FALSE(report.PlaceOf(1).IsThere()) << report.items[1]; // of a comment
    EXPECT_EQ(report.PlaceOf(2), (ReportPlace{4, 0})) << report.items[2];
    EXPECT_FALSE(report.PlaceOf(3).IsThere()) << report.items[3];
    EXPECT_FALSE(report.PlaceOf(4).IsThere()) << report.items[4];
}
