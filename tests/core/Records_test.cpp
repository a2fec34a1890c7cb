#include "core/Records.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

TEST(VariationRecord, IsDeletedWhenItsTextIsATabAlone) {
    VariationRecord variation;
    variation.Text = "\t";
    EXPECT_TRUE(variation.IsDeleted());
}

TEST(VariationRecord, AnyOtherTextIsNotDeleted) {
    for (const char* text : {"", " ", "\t\t", " \t", "\t ", "!\t", "%\t", "Smithton", "\n"}) {
        VariationRecord variation;
        variation.Text = text;
        EXPECT_FALSE(variation.IsDeleted()) << '[' << text << ']';
    }
}

TEST(VariationRecord, StartsWithoutFindings) {
    const VariationRecord variation;
    EXPECT_EQ(variation.Text, "");
    EXPECT_FALSE(variation.bDuplicate);
    EXPECT_EQ(variation.lDuplicateOf, 0);
    EXPECT_FALSE(variation.bUnusualCaps);
}

TEST(DistrictRecord, StartsAsAnEmptyDistrict) {
    const DistrictRecord district;
    EXPECT_FALSE(district.bRetained);
    EXPECT_EQ(district.HeaderText(), "");
    EXPECT_EQ(district.Name(), "");
    EXPECT_EQ(district.Volume(), "");
    EXPECT_EQ(district.County(), "");
    EXPECT_EQ(district.Founded, 0);
    EXPECT_EQ(district.QtrF, 0);
    EXPECT_EQ(district.Abolished, 0);
    EXPECT_EQ(district.QtrA, 0);
    EXPECT_EQ(district.iQuestionCount, 0);
    EXPECT_EQ(district.iDuplicateCount, 0);
    EXPECT_EQ(district.lInvalidCount, 0);
    EXPECT_EQ(district.lWarningCount, 0);
    EXPECT_EQ(district.lVariationCount, 0);
}

TEST(DistrictRecord, TakesItsExtraPartsFromTheHeader) {
    DistrictRecord district;
    EXPECT_EQ(district.Extra(1), "");
    district.Line = "Ash+1+Shire+1837+3+1900+4+a+ b ++d+e+f";
    EXPECT_EQ(district.Extra(0), "");
    EXPECT_EQ(district.Extra(1), "a");
    EXPECT_EQ(district.Extra(2), " b ");
    EXPECT_EQ(district.Extra(3), "");
    EXPECT_EQ(district.Extra(6), "f");
    EXPECT_EQ(district.Extra(7), "");
    district.bRetained = true;
    EXPECT_EQ(district.Extra(1), "");
}

TEST(DistrictRecord, IsCopiedWithItsTexts) {
    DistrictRecord original;
    original.Line = "Smithton";
    original.Variations.Grow(2);
    original.Variations[1].Text = "Smithtown";
    DistrictRecord copy = original;
    copy.Line = "Other";
    copy.Variations[1].Text = "Other";
    EXPECT_EQ(original.Name(), "Smithton");
    EXPECT_EQ(original.Variations[1].Text, "Smithtown");
}

TEST(NoYear, IsTheNumberThatTheFilesUse) {
    EXPECT_EQ(NoYear, 9999);
}

} // namespace
