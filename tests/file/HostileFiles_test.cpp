// Files that were made to hurt: the work must not grow faster than the file, and nothing may fall over.
// A hang shows as the time limit of the tests.

#include "file/CommentTypes.h"
#include "file/DistrictComments.h"
#include "file/DistrictFileWriter.h"
#include "file/DistrictList.h"
#include "support/Reading.h"
#include "support/Table.h"

#include <new>

using namespace CommonRoutines;

namespace {

constexpr std::size_t Million = 1'000'000;
// One test reads a line as long as documented. The others need no more than that the square of a length would
// take hours.
constexpr std::size_t HundredMegabytes = 100 * Million;
constexpr std::size_t TenMegabytes = 10 * Million;

std::string Repeated(std::string_view piece, std::size_t count) {
    std::string text;
    text.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

// A user who presses a button at every question and reads nothing.
class HastyUser : public ScriptedDesktop {
public:
    HastyUser() { recordReports = true; }

    BoxAnswer MsgBox(const Wording&, BoxIcon, BoxButtons) override {
        ++boxes;
        return BoxAnswer::Ok;
    }
    std::string MyMsgBox(const std::string& prompt, std::int32_t, const std::string&,
                         std::span<const std::string>) override {
        ++questions;
        longestPrompt = std::max(longestPrompt, prompt.size());
        return "Remove";
    }

    std::size_t boxes = 0;
    std::size_t questions = 0;
    std::size_t longestPrompt = 0;
};

class HostileFiles : public StateTest {
protected:
    HostileFiles() { CommentTypes.Reset(); }
    ~HostileFiles() override {
        ResetState(); // gives the memory back
        Districts.shrink_to_fit();
        CommentTypes.Reset();
    }

    // Reads a file and compares what would be saved, without showing all of it when it differs.
    void ExpectUnchanged(std::string content) {
        ReadText(user, content);
        const std::string saved = DistrictFileContent();
        EXPECT_EQ(saved.size(), content.size());
        EXPECT_TRUE(saved == content);
    }

    HastyUser user;
};

} // namespace

TEST_F(HostileFiles, ALineOfAHundredMegabytesIsRetained) {
    ExpectUnchanged(std::string(HundredMegabytes, 'x') + "\r\n");
    EXPECT_EQ(lDistrictTotal, 0);
    EXPECT_EQ(user.boxes, 1U);
}

TEST_F(HostileFiles, AVariationOfTenMegabytesIsKept) {
    ExpectUnchanged(HeaderOf("Alpha") + "|" + std::string(TenMegabytes, 'X') + "\r\n");
    EXPECT_EQ(lDistrictTotal, 1);
    EXPECT_TRUE(VariationAt(1, 1).bUnusualCaps);
}

TEST_F(HostileFiles, AVariationOfTenMegabytesOfUnusualCharactersDrawsOneWarning) {
    ExpectUnchanged(HeaderOf("Alpha") + "|" + std::string(TenMegabytes, '\xE9') + "\r\n");
    EXPECT_EQ(sWarningReason, "Unusual char at position 10000000 (Char=233)");
}

TEST_F(HostileFiles, ANameOfTenMegabytesIsKept) {
    ExpectUnchanged(HeaderOf(std::string(TenMegabytes, 'x')) + "|Alfa|Alfa\r\n");
    EXPECT_EQ(lDistrictTotal, 1);
    EXPECT_EQ(LinesOf(DistrictsByName()), std::vector<std::int32_t>{1});
}

TEST_F(HostileFiles, ALineOfTenMegabytesOfPlusSignsIsRetained) {
    ExpectUnchanged(std::string(TenMegabytes, '+') + "\r\n");
    EXPECT_EQ(lDistrictTotal, 0);
}

TEST_F(HostileFiles, AMillionEmptyFieldsInOneLineAreDropped) {
    ReadText(user, HeaderOf("Alpha") + std::string(Million, '|') + "\r\n");
    EXPECT_EQ(DistrictFileContent(), HeaderOf("Alpha") + "\r\n");
    ASSERT_EQ(user.reports.size(), 1U);
    EXPECT_EQ(user.reports[0].items[0],
              "There were 1000000 blank variations in District Alpha.  They have been removed.\r\n");
}

TEST_F(HostileFiles, AMillionEqualVariationsAreDuplicatesOfTheirNeighbours) {
    ExpectUnchanged(HeaderOf("Alpha") + Repeated("|Alfa", Million) + "\r\n");
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, static_cast<std::int32_t>(Million) - 1);
    EXPECT_EQ(lDupePairCount, static_cast<std::int32_t>(Million) - 1);
}

TEST_F(HostileFiles, LongEqualVariationsAreDuplicatesOfTheirNeighbours) {
    constexpr std::size_t count = 500;
    const std::string text = "|" + std::string(20'000, 'X');
    ExpectUnchanged(HeaderOf("Alpha") + Repeated(text, count) + "\r\n");
    EXPECT_EQ(DistrictAt(1).iDuplicateCount, static_cast<std::int32_t>(count) - 1);
}

TEST_F(HostileFiles, AMillionLinesOfOneCommentTypeEachMakeAMillionTypes) {
    std::string content;
    for (std::size_t i = 0; i < Million; ++i) {
        content += "#QX_T" + std::to_string(i) + "\r\n";
    }
    content += HeaderOf("Alpha") + "\r\n";
    ExpectUnchanged(content);
    EXPECT_EQ(CommentTypes.Items().size(), Million + 1);
    EXPECT_TRUE(DistrictHasCommentType(static_cast<std::int32_t>(Million) + 1, "t0"));
    EXPECT_FALSE(DistrictHasCommentType(static_cast<std::int32_t>(Million) + 1, "t"));
}

TEST_F(HostileFiles, AMillionEmptyLinesAreKept) {
    ExpectUnchanged(Repeated("\r\n", Million));
    EXPECT_EQ(lLineCount, static_cast<std::int32_t>(Million));
}

TEST_F(HostileFiles, EveryOneOfManyNullVariationsIsAskedFor) {
    constexpr std::size_t count = 200'000;
    ReadText(user, HeaderOf("Alpha") + Repeated("|%", count) + "\r\n");
    EXPECT_EQ(user.questions, count);
    EXPECT_EQ(DistrictFileContent(), HeaderOf("Alpha") + "\r\n");
    EXPECT_LT(user.longestPrompt, 1'000U);
}

TEST_F(HostileFiles, OnlyTheFirstTenThousandRowsOfCommentsAreWrapped) {
    int measured = 0;
    const auto measure = [&](std::string_view text) {
        ++measured;
        EXPECT_LE(text.size(), 2'000U);
        return static_cast<double>(text.size());
    };
    std::vector<CommentRow> rows{{"T", ""}};
    const std::string comment = Repeated("a ", TenMegabytes / 2) + "a";
    WrapComment(rows, comment, 80, measure);
    EXPECT_EQ(rows.size(), 10'001U);
    EXPECT_EQ(rows[0].comment, Repeated("a ", 39) + "a");
    EXPECT_EQ(rows.back().comment.size(), comment.size() - 10'000 * 80);
    EXPECT_LT(measured, 1'000'000);
}

TEST_F(HostileFiles, CharactersWithoutWidthFillARowAsWell) {
    int measured = 0;
    const auto measure = [&](std::string_view) {
        ++measured;
        return 0.0;
    };
    std::vector<CommentRow> rows{{"T", ""}};
    WrapComment(rows, Repeated("\xAD ", Million) + "x", 80, measure);
    EXPECT_EQ(rows[0].comment.size(), 1'999U);
    EXPECT_LT(measured, 2 * static_cast<int>(Million));
}
