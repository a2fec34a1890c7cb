#include "file/FileKind.h"

#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

std::string Repeated(int count, const std::string& line) {
    std::string lines;
    for (int i = 0; i < count; ++i) {
        lines += line + "\r\n";
    }
    return lines;
}

class FileKindTest : public StateTest {
protected:
    // Reads twenty lines that are no districts.
    void ReadForeignFile(BoxAnswer answer) {
        desktop.ExpectBox("This is hardly a data file: none of its lines is a district.\r\n" + DataFilePath +
                              "\r\nDo you want to open it all the same?",
                          BoxIcon::Question, BoxButtons::YesNoDefaultNo, answer);
        for (int line = 1; line <= 20 && answer == BoxAnswer::Yes; ++line) {
            desktop.ExpectBox("Line " + std::to_string(line) +
                                  " is incomplete but has been retained in the file.  It will not be available for "
                                  "editing.\r\nx",
                              BoxIcon::Exclamation);
        }
        ReadText(desktop, Repeated(20, "x"));
    }

    ScriptedDesktop desktop;
};

} // namespace

TEST_F(FileKindTest, TwentyLinesWithoutADistrictAreHardlyADataFile) {
    EXPECT_FALSE(IsHardlyADataFile(Repeated(19, "x")));
    EXPECT_TRUE(IsHardlyADataFile(Repeated(20, "x")));
    EXPECT_TRUE(IsHardlyADataFile(Repeated(20, "|x")));
    EXPECT_TRUE(IsHardlyADataFile(Repeated(20, "A+1+B+year+1+9999+0+x+y|Foo")));
}

TEST_F(FileKindTest, BlankLinesAndCommentsDoNotCount) {
    const std::string others = Repeated(30, "  ") + Repeated(30, " # note") + Repeated(30, "#QX_NOTE");
    EXPECT_FALSE(IsHardlyADataFile(others));
    EXPECT_FALSE(IsHardlyADataFile(others + Repeated(19, "x")));
    EXPECT_TRUE(IsHardlyADataFile(others + Repeated(20, "x")));
    EXPECT_FALSE(IsHardlyADataFile(""));
}

TEST_F(FileKindTest, OneDistrictAnywhereIsEnough) {
    EXPECT_FALSE(IsHardlyADataFile(Repeated(20, "x") + " " + HeaderOf("Alpha") + "|Alfa"));
    EXPECT_FALSE(IsHardlyADataFile(Repeated(20, "x") + "|" + HeaderOf("Alpha") + "\r\n"));
    EXPECT_FALSE(IsHardlyADataFile(HeaderOf("Alpha") + "\n" + Repeated(1000, "x")));
}

TEST_F(FileKindTest, WhatIsHardlyADataFileIsReadWhenThatIsWanted) {
    ReadForeignFile(BoxAnswer::Yes);
    EXPECT_EQ(lLineCount, 20);
    EXPECT_EQ(sDataFileName, DataFilePath);
}

TEST_F(FileKindTest, OtherwiseNothingIsOpen) {
    ReadForeignFile(BoxAnswer::No);
    EXPECT_EQ(lLineCount, 0);
    EXPECT_EQ(sDataFileName, "");
    EXPECT_FALSE(desktop.busy);
    EXPECT_TRUE(desktop.state.Names().empty());
}
