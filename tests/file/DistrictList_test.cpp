#include "file/DistrictList.h"

#include "core/UpperCase.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using Indices = std::vector<std::int32_t>;

class DistrictListTest : public StateTest {
protected:
    void Report() { ReportDuplicatedDistricts(DistrictsByName(), m_desktop); }

    void ExpectDuplicated(const std::string& name, BoxAnswer answer) {
        m_desktop.ExpectBox("District " + name + " is duplicated in that file", BoxIcon::Critical, BoxButtons::OkCancel,
                            answer);
    }

    ScriptedDesktop m_desktop;
};

} // namespace

TEST_F(DistrictListTest, TheColumnsShowTheHeaderInItsOwnNumbers) {
    DistrictRecord record;
    record.Line = "Ash+12+ Shire +";
    record.Founded = 1837;
    record.QtrF = -3;
    record.Abolished = 9999;
    record.QtrA = 0;
    std::string row;
    for (std::size_t column = 0; column < DistrictColumnTable.size(); ++column) {
        row += std::string(DistrictColumnTable[column].heading) + "=" + DistrictCell(record, column) + ";";
    }
    EXPECT_EQ(row, "Name=Ash;Volume=12;County= Shire ;Founded=1837;QtrF=-3;Abolished=9999;QtrA=0;");
}

TEST_F(DistrictListTest, OfALongTextOnlyTheBeginningThatIsAskedForIsCopied) {
    DistrictRecord record;
    record.Line = "Ashton-under-Lyne";
    record.Founded = 1837;
    EXPECT_EQ(DistrictCell(record, 0, 6), "Ashton");
    EXPECT_EQ(DistrictCell(record, 0, 17), "Ashton-under-Lyne");
    EXPECT_EQ(DistrictCell(record, 3, 2), "1837");
}

TEST_F(DistrictListTest, DistrictsAreSortedByUpperCasedNameAndCharacterCode) {
    AddRetained("# note");
    AddDistrict("oak");      // 2
    AddDistrict("Ash");      // 3
    AddDistrict("\xC9lm");   // 4, behind Z
    AddDistrict("Zelkova");  // 5
    AddDistrict("ash tree"); // 6
    AddDistrict("ASH-TREE"); // 7
    AddDistrict("\xE9lm");   // 8, the same name as 4
    AddDistrict("!Yew");     // 9, markers count here
    AddDistrict("A_");       // 10, "_" is behind the capitals
    EXPECT_EQ(LinesOf(DistrictsByName()), (Indices{9, 3, 6, 7, 10, 2, 5, 4, 8}));
}

TEST_F(DistrictListTest, EqualNamesKeepTheirOrderInTheFile) {
    for (int i = 0; i < 40; ++i) {
        AddDistrict(i % 2 == 0 ? "Ash" : "ASH");
    }
    Indices inOrder;
    for (std::int32_t i = 1; i <= 40; ++i) {
        inOrder.push_back(i);
    }
    EXPECT_EQ(LinesOf(DistrictsByName()), inOrder);
}

TEST_F(DistrictListTest, EachLineIsVisitedOnceInTheOrderOfTheFile) {
    AddDistrict("Yew");
    AddRetained("# note");
    AddDistrict("Ash");
    Indices visited;
    EXPECT_EQ(LinesOf(DistrictsByName([&](std::int32_t line) { visited.push_back(line); })), (Indices{3, 1}));
    EXPECT_EQ(visited, (Indices{1, 2, 3}));
}

TEST_F(DistrictListTest, RetainedLinesAreNotListed) {
    AddRetained("# note");
    EXPECT_EQ(LinesOf(DistrictsByName()), Indices{});
}

TEST_F(DistrictListTest, ATypeChoosesTheDistrictsThatHaveAComment) {
    AddRetained("#QX_Seat of a court");
    AddDistrict("Ash"); // 2
    AddDistrict("Elm"); // 3
    AddRetained("#qx_SEAT too");
    AddDistrict("Oak"); // 5
    const Indices all{5, 2, 3};
    EXPECT_EQ(DistrictsOfType(all, "seat"), (Indices{5, 2}));
    EXPECT_EQ(DistrictsOfType(all, "Area"), Indices{});
}

TEST_F(DistrictListTest, AllStandsForEveryDistrict) {
    AddDistrict("Ash");
    AddDistrict("Elm");
    const Indices all{2, 1};
    for (const std::string type : {" All", "All", "ALL", "  all  "}) {
        EXPECT_EQ(DistrictsOfType(all, type), all) << type;
    }
    EXPECT_EQ(DistrictsOfType(all, "Alle"), Indices{});
    EXPECT_EQ(DistrictsOfType(all, ""), Indices{});
}

TEST_F(DistrictListTest, AnyCountOfProblemsMarksADistrict) {
    EXPECT_FALSE(DistrictHasProblem({}));
    for (auto count : {&DistrictRecord::iQuestionCount, &DistrictRecord::iDuplicateCount,
                       &DistrictRecord::lInvalidCount, &DistrictRecord::lWarningCount}) {
        DistrictRecord record;
        record.*count = 1;
        EXPECT_TRUE(DistrictHasProblem(record));
    }
    DistrictRecord many;
    many.lVariationCount = 3;
    EXPECT_FALSE(DistrictHasProblem(many));
}

TEST_F(DistrictListTest, NeighboursWhoseNamesDifferOnlyInCaseAreReported) {
    AddDistrict("Caf\xC9");
    AddDistrict("Elm");
    AddDistrict("Caf\xE9");
    ExpectDuplicated("Caf\xC9", BoxAnswer::Ok);
    Report();
}

TEST_F(DistrictListTest, NamesAreComparedWithoutTheirMarkers) {
    AddDistrict("!Ash");
    AddDistrict("!ASH %12");
    ExpectDuplicated("Ash", BoxAnswer::Ok);
    Report();
}

TEST_F(DistrictListTest, OnlyNeighboursInTheListAreCompared) {
    AddDistrict("!Ash");
    AddDistrict("Ab");
    AddDistrict("Ash");
    Report();
}

TEST_F(DistrictListTest, NamesThatOnlyShareAHashAreNotDuplicated) {
    ASSERT_EQ(Ansi::HashUpper("ABERYSTWYTHWALES"), Ansi::HashUpper("AMSLKBCKVIBFFHUQ"));
    AddDistrict("Aberystwythwales");
    AddDistrict("Shqbrtxowufoolex");
    Report();
}

TEST_F(DistrictListTest, OkGoesOnWithTheNextPair) {
    AddDistrict("Ash");
    AddDistrict("ash");
    AddDistrict("ASH");
    AddDistrict("Elm");
    AddDistrict("Elm");
    ExpectDuplicated("Ash", BoxAnswer::Ok);
    ExpectDuplicated("ash", BoxAnswer::Ok);
    ExpectDuplicated("Elm", BoxAnswer::Ok);
    Report();
}

TEST_F(DistrictListTest, CancelSuppressesAllFurtherReports) {
    AddDistrict("Ash");
    AddDistrict("ash");
    AddDistrict("Elm");
    AddDistrict("Elm");
    ExpectDuplicated("Ash", BoxAnswer::Cancel);
    Report();
}

TEST_F(DistrictListTest, AListOfOneOrNoneHasNoDuplicates) {
    Report();
    AddDistrict("Ash");
    Report();
}
