// What is said about proposals that have been applied.

#include "ApplyTest.h"
#include "rules/Duplicates.h"

using namespace CommonRoutines;

namespace {

constexpr const char* OwnHeading = "The following duplicates already existed in this district";

class AppliedReportTest : public ApplyTest {
protected:
    // Expects the box and, where there are lines, the report with the details.
    void ExpectReport(const std::string& box, const Texts& details = {}) {
        desktop.ExpectBox(box, BoxIcon::Information);
        if (!details.empty()) {
            desktop.ExpectReport("Details of Duplicates", details, true);
        }
    }
};

} // namespace

TEST_F(AppliedReportTest, OnlyTheAddedVariationsAreSaid) {
    ExpectReport("0 New variations added.");
    ReportAppliedProposals({}, desktop);
    ExpectReport("12 New variations added.");
    ReportAppliedProposals({12, 0, 0}, desktop);
}

TEST_F(AppliedReportTest, InvalidRowsAreSaidInALineOfTheirOwn) {
    ExpectReport("3 New variations added.\r\n2 invalid variations were ignored");
    ReportAppliedProposals({3, 2, 0}, desktop);
}

TEST_F(AppliedReportTest, IgnoredProposalsAreSaidAndListed) {
    EmptyDupePairs();
    AddDupePair("elm", "Elm");
    AddDupePair("OAK", "!Oak");
    ExpectReport("1 New variations added.\r\n2 lines ignored which duplicate existing variations.",
                 {"Variation elm duplicates Elm", "Variation OAK duplicates !Oak"});
    ReportAppliedProposals({1, 0, 2}, desktop);
}

TEST_F(AppliedReportTest, DuplicatesAndInvalidRowsAreSaidInThisOrder) {
    EmptyDupePairs();
    AddDupePair("elm", "Elm");
    ExpectReport("0 New variations added.\r\n1 lines ignored which duplicate existing variations."
                 "\r\n4 invalid variations were ignored",
                 {"Variation elm duplicates Elm"});
    ReportAppliedProposals({0, 4, 1}, desktop);
}

TEST_F(AppliedReportTest, TheHeadingStandsBeforeEveryPairThatWasThereBefore) {
    EmptyDupePairs();
    AddDupePair("elm", "Elm");
    AddDupePair("ASH", "Ash");
    AddDupePair("Oak", "OAK");
    ExpectReport("2 New variations added.\r\n3 lines ignored which duplicate existing variations.",
                 {"Variation elm duplicates Elm", OwnHeading, "Variation ASH duplicates Ash", OwnHeading,
                  "Variation Oak duplicates OAK"});
    ReportAppliedProposals({2, 0, 1}, desktop);
}

TEST_F(AppliedReportTest, WithoutIgnoredProposalsTheHeadingComesFirst) {
    EmptyDupePairs();
    AddDupePair("Oak", "OAK");
    ExpectReport("2 New variations added.\r\n1 lines ignored which duplicate existing variations.",
                 {OwnHeading, "Variation Oak duplicates OAK"});
    ReportAppliedProposals({2, 0, 0}, desktop);
}

TEST_F(AppliedReportTest, OneIgnoredProposalAndOneOwnPairAreTwoLines) {
    Choose("Alpha", {"Elm", "ELM", "Oak"});
    const AppliedProposals applied = Apply({Valid("oak")});
    ExpectReport("0 New variations added.\r\n2 lines ignored which duplicate existing variations.",
                 {"Variation oak duplicates Oak", OwnHeading, "Variation ELM duplicates Elm"});
    ReportAppliedProposals(applied, desktop);
}

TEST_F(AppliedReportTest, AnIgnoredNameIsListedWithTheName) {
    Choose("Alpha", {});
    const AppliedProposals applied = Apply({Valid("!alpha"), Invalid("!")});
    ExpectReport("0 New variations added.\r\n1 lines ignored which duplicate existing variations."
                 "\r\n1 invalid variations were ignored",
                 {"Variation !alpha duplicates Alpha"});
    ReportAppliedProposals(applied, desktop);
}

TEST_F(AppliedReportTest, ALineNamesTheVariationThatIsRepeatedAndAHeadingNone) {
    Choose("Alpha", {"Elm", "ELM", "Oak"});
    desktop.recordReports = true;
    const AppliedProposals applied = Apply({Valid("oak"), Valid("!alpha")});
    desktop.ExpectBox("0 New variations added.\r\n3 lines ignored which duplicate existing variations.",
                      BoxIcon::Information);
    ReportAppliedProposals(applied, desktop);
    ASSERT_EQ(desktop.reports.size(), 1U);
    const Report& report = desktop.reports.front();
    ASSERT_EQ(report.items.All(), (Texts{"Variation oak duplicates Oak", "Variation !alpha duplicates Alpha",
                                         OwnHeading, "Variation ELM duplicates Elm"}));
    EXPECT_EQ(report.PlaceOf(0), (ReportPlace{lCurrentDistrict, 3}));
    EXPECT_EQ(report.PlaceOf(1), (ReportPlace{lCurrentDistrict, 0}));
    EXPECT_FALSE(report.PlaceOf(2).IsThere());
    EXPECT_EQ(report.PlaceOf(3), (ReportPlace{lCurrentDistrict, 1}));
}
