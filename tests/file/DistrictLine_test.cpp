#include "file/DistrictLine.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t Most = 13;

// The extra parts, with the unused one in front.
Texts ExtraOf(const DistrictRecord& record) {
    Texts texts;
    for (std::size_t part = 0; part <= 6; ++part) {
        texts.emplace_back(record.Extra(part));
    }
    return texts;
}

HeaderResult Fill(std::string_view header) {
    DistrictRecord record;
    return FillHeader(record, header, Most);
}

// A header whose four numbers are all this text.
HeaderResult FillNumbers(const std::string& number) {
    return Fill("A+1+B+" + number + "+" + number + "+" + number + "+" + number + "+x+y");
}

Texts Complaints(std::int16_t founded, std::int16_t quarterFounded, std::int16_t abolished,
                 std::int16_t quarterAbolished) {
    DistrictRecord record;
    record.Line = "Ash";
    record.Founded = founded;
    record.QtrF = quarterFounded;
    record.Abolished = abolished;
    record.QtrA = quarterAbolished;
    return QuarterComplaints(record);
}

} // namespace

TEST(FillHeader, TakesEveryPartToItsField) {
    DistrictRecord record;
    ASSERT_EQ(FillHeader(record, " Ash + 12 + Shire +1837+3+1900+4+a+ b +c++e+f", Most), HeaderResult::Filled);
    EXPECT_EQ(record.Name(), "Ash");
    EXPECT_EQ(record.Volume(), "12");
    EXPECT_EQ(record.County(), " Shire ");
    EXPECT_EQ(record.Founded, 1837);
    EXPECT_EQ(record.QtrF, 3);
    EXPECT_EQ(record.Abolished, 1900);
    EXPECT_EQ(record.QtrA, 4);
    EXPECT_EQ(ExtraOf(record), (Texts{"", "a", " b ", "c", "", "e", "f"}));
    EXPECT_EQ(record.HeaderText(), " Ash + 12 + Shire +1837+3+1900+4+a+ b +c++e+f");
    EXPECT_FALSE(record.bRetained);
}

TEST(FillHeader, MissingExtraPartsAreEmpty) {
    DistrictRecord record;
    ASSERT_EQ(FillHeader(record, "Ash+1+Shire+1837+3+1900+4+a+b", Most), HeaderResult::Filled);
    EXPECT_EQ(ExtraOf(record), (Texts{"", "a", "b", "", "", "", ""}));
}

TEST(FillHeader, NeedsNineParts) {
    EXPECT_EQ(Fill("A+1+B+1900+1+9999+0+x"), HeaderResult::WrongPartCount);
    EXPECT_EQ(Fill("A+1+B+1900+1+9999+0+x+y"), HeaderResult::Filled);
    EXPECT_EQ(Fill(""), HeaderResult::WrongPartCount);
}

TEST(FillHeader, TakesAsManyPartsAsItIsGiven) {
    EXPECT_EQ(Fill("A+1+B+1900+1+9999+0+1+2+3+4+5+6"), HeaderResult::Filled);
    EXPECT_EQ(Fill("A+1+B+1900+1+9999+0+1+2+3+4+5+6+7"), HeaderResult::WrongPartCount);
    DistrictRecord record;
    EXPECT_EQ(FillHeader(record, "A+1+B+1900+1+9999+0+1+2+3+4", 11), HeaderResult::Filled);
    EXPECT_EQ(FillHeader(record, "A+1+B+1900+1+9999+0+1+2+3+4+5", 11), HeaderResult::WrongPartCount);
}

TEST(FillHeader, NumbersMayHaveASignAndBlanksAround) {
    for (const std::string number : {"0", "7", " 7", "7 ", "  7  ", "-7", "007", "32767", "-32768", "-0"}) {
        EXPECT_EQ(FillNumbers(number), HeaderResult::Filled) << number;
    }
    DistrictRecord record;
    ASSERT_EQ(FillHeader(record, "A+1+B+ -5 +-32768+ 32767+0012+x+y", Most), HeaderResult::Filled);
    EXPECT_EQ(record.Founded, -5);
    EXPECT_EQ(record.QtrF, -32768);
    EXPECT_EQ(record.Abolished, 32767);
    EXPECT_EQ(record.QtrA, 12);
}

TEST(FillHeader, RefusesWhatIsNoNumberOfSixteenBits) {
    for (const std::string number : {"", " ", "x", "18x7", "x1837", "1 837", "- 7", "--7", "-", "32768", "-32769",
                                     "99999999999999999999", "1837.0", "1e3", "0x10", "\t7", "7\r", "7\xA0"}) {
        EXPECT_EQ(FillNumbers(number), HeaderResult::NotANumber) << number;
    }
}

TEST(FillHeader, EachOfTheFourNumbersIsLookedAt) {
    EXPECT_EQ(Fill("A+1+B+x+1+2+3+x+y"), HeaderResult::NotANumber);
    EXPECT_EQ(Fill("A+1+B+1+x+2+3+x+y"), HeaderResult::NotANumber);
    EXPECT_EQ(Fill("A+1+B+1+2+x+3+x+y"), HeaderResult::NotANumber);
    EXPECT_EQ(Fill("A+1+B+1+2+3+x+x+y"), HeaderResult::NotANumber);
    EXPECT_EQ(Fill("A+no+number+1+2+3+4+x+y"), HeaderResult::Filled);
}

TEST(FillHeader, ARefusedHeaderFillsNothing) {
    DistrictRecord record;
    record.Line = "before";
    EXPECT_EQ(FillHeader(record, "A+1+B+1+2+3+x+x+y", Most), HeaderResult::NotANumber);
    EXPECT_EQ(FillHeader(record, "A+1+B", Most), HeaderResult::WrongPartCount);
    EXPECT_EQ(record.HeaderText(), "before");
    EXPECT_EQ(record.Founded, 0);
}

TEST(QuarterComplaints, OrdinaryQuartersAreFine) {
    EXPECT_EQ(Complaints(1837, 3, 9999, 0), Texts{});
    EXPECT_EQ(Complaints(9999, 9, 9999, 9), Texts{});
    EXPECT_EQ(Complaints(9999, 8, 9999, 8), Texts{});
    EXPECT_EQ(Complaints(1837, 5, 1900, 5), Texts{});
    EXPECT_EQ(Complaints(1837, 7, 1900, 10), Texts{});
}

TEST(QuarterComplaints, AnAbandonedQuarterNeedsAYear) {
    EXPECT_EQ(Complaints(1837, 3, 9999, 5),
              Texts{"District Ash has a abandoned Quarter of 5 with a non-abandoned year"});
}

TEST(QuarterComplaints, ASpecialQuarterDoesNotGoWithAnAbolishedYear) {
    EXPECT_EQ(Complaints(1837, 3, 1900, 8),
              Texts{"District Ash has an abandoned year of 1900 with an invalid quarter=8"});
    EXPECT_EQ(Complaints(1837, 3, -12, 9),
              Texts{"District Ash has an abandoned year of -12 with an invalid quarter=9"});
}

TEST(QuarterComplaints, ASpecialQuarterDoesNotGoWithAFoundedYearButTheTextNamesTheAbolishedOne) {
    EXPECT_EQ(Complaints(1837, 8, 1900, 4), Texts{"District Ash has a founded year of 1900 with an invalid quarter=4"});
    EXPECT_EQ(Complaints(1837, 9, 9999, 0), Texts{"District Ash has a founded year of 9999 with an invalid quarter=0"});
}

TEST(QuarterComplaints, SeveralComplaintsComeInOrder) {
    EXPECT_EQ(Complaints(1837, 9, 1900, 8),
              (Texts{"District Ash has an abandoned year of 1900 with an invalid quarter=8",
                     "District Ash has a founded year of 1900 with an invalid quarter=8"}));
    EXPECT_EQ(Complaints(1837, 8, 9999, 5),
              (Texts{"District Ash has a abandoned Quarter of 5 with a non-abandoned year",
                     "District Ash has a founded year of 9999 with an invalid quarter=5"}));
}

TEST(Retain, KeepsTheLineAsItsNameAndItsHeader) {
    DistrictRecord record;
    Retain(record, "# a note|with a bar");
    EXPECT_TRUE(record.bRetained);
    EXPECT_EQ(record.Name(), "# a note|with a bar");
    EXPECT_EQ(record.HeaderText(), "# a note|with a bar");
    EXPECT_EQ(record.lVariationCount, 0);
}
