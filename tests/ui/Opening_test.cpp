#include "FormTest.h"

TEST_F(FormTest, OpeningListsTheDistrictsByName) {
    OpenContent("Beta+2+Kent+1840+1+9999+0+A+B|Betta\r\nAlpha+1+Kent+1837+3+9999+0+A+B|Alfa\r\n");
    EXPECT_EQ(Column("lvAlpha"), (QStringList{QStringLiteral("Alpha"), QStringLiteral("Beta")}));
    EXPECT_EQ(CommonRoutines::iEditMode, CommonRoutines::FileOpen);
}
