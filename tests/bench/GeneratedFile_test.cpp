// The generated data files that measurements are made with: they must open without a question and
// hold what they are said to hold, or the measurements would be of something else.

#include "DistrictFile.h"
#include "file/CommentTypes.h"
#include "file/DistrictFileWriter.h"
#include "file/DistrictList.h"
#include "rules/Capitals.h"
#include "support/Reading.h"
#include "support/Table.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

using namespace BenchData;
using namespace CommonRoutines;

namespace {

constexpr std::size_t DistrictCount = 300;
constexpr std::uint64_t PinnedChecksum = 2585484201389113960U;

struct Generated {
    std::string content;
    WrittenFile file;
};

Generated Generate(const FilePlan& plan) {
    std::ostringstream out;
    WrittenFile file = WriteDistrictFile(plan, out);
    return {out.str(), std::move(file)};
}

// FNV-1a.
std::uint64_t Checksum(std::string_view text) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char c : text) {
        sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    }
    return sum;
}

class GeneratedFileTest : public StateTest {
protected:
    GeneratedFileTest() {
        CommentTypes.Reset();
        iEditMode = NothingOpen;
        m_plan.districts = DistrictCount;
        m_desktop.recordReports = true;
        std::ifstream words(QUEXAL_DATA_DIR "/qx_lower.txt", std::ios::binary);
        m_desktop.files["/program/qx_lower.txt"] = std::string(std::istreambuf_iterator<char>(words), {});
        LoadLowerCaseWords(m_desktop);
    }

    // Counts of the table that was read.
    template <typename Count>
    static std::uint64_t Sum(Count count) {
        std::uint64_t sum = 0;
        for (std::int32_t i = 1; i <= lLineCount; ++i) {
            sum += static_cast<std::uint64_t>(count(DistrictAt(i)));
        }
        return sum;
    }

    FilePlan m_plan;
    ScriptedDesktop m_desktop; // plays no box: one that opens fails the test
};

} // namespace

TEST_F(GeneratedFileTest, OpensWithoutAQuestionAndComesBackByteForByte) {
    const Generated generated = Generate(m_plan);
    ReadText(m_desktop, generated.content);
    ReportDuplicatedDistricts(DistrictsByName(), m_desktop);
    EXPECT_EQ(lInvalidTotal, 0);
    EXPECT_EQ(iRepairAction, NoRepair);
    EXPECT_FALSE(bChanged);
    EXPECT_TRUE(DistrictFileContent() == generated.content) << "the file came back different";
}

TEST_F(GeneratedFileTest, HoldsWhatItIsSaidToHold) {
    const Generated generated = Generate(m_plan);
    const FileCounts& counts = generated.file.counts;
    ReadText(m_desktop, generated.content);
    EXPECT_EQ(counts.districts, DistrictCount);
    EXPECT_EQ(counts.variations, DistrictCount * m_plan.mean);
    EXPECT_EQ(counts.bytes, generated.content.size());
    EXPECT_EQ(static_cast<std::uint64_t>(lLineCount), counts.lines);
    EXPECT_EQ(static_cast<std::uint64_t>(lDistrictTotal), counts.districts);
    EXPECT_EQ(counts.lines, counts.districts + counts.commentLines + counts.blankLines);
    EXPECT_EQ(Sum([](const DistrictRecord& record) { return record.lVariationCount; }), counts.variations);
    EXPECT_EQ(Sum([](const DistrictRecord& record) { return record.iDuplicateCount; }), counts.duplicates);
    EXPECT_EQ(Sum([](const DistrictRecord& record) { return record.lWarningCount; }), counts.warnings);
    EXPECT_EQ(counts.variations - static_cast<std::uint64_t>(lCapsOkTotal), counts.unusualCapitals);
    EXPECT_EQ(m_desktop.reports.size(), 1U);
}

TEST_F(GeneratedFileTest, EveryKindOfFindingIsThere) {
    const FileCounts counts = Generate(m_plan).file.counts;
    EXPECT_GT(counts.duplicates, 0U);
    EXPECT_GT(counts.warnings, 0U);
    EXPECT_GT(counts.unusualCapitals, 0U);
    EXPECT_GT(counts.otherNames, 0U);
    EXPECT_GT(counts.commentLines, 0U);
}

TEST_F(GeneratedFileTest, IsFreeOfFindingsWhenNoneArePlanned) {
    m_plan.duplicates = m_plan.unreadable = m_plan.accented = m_plan.unusualCapitals = Share();
    ReadText(m_desktop, Generate(m_plan).content);
    EXPECT_TRUE(m_desktop.reports.empty());
    EXPECT_EQ(Sum([](const DistrictRecord& record) { return record.lWarningCount; }), 0U);
}

TEST_F(GeneratedFileTest, IsTheSameOnEveryMachine) {
    const std::string content = Generate(m_plan).content;
    EXPECT_EQ(Checksum(content), PinnedChecksum);
    m_plan.seed = 2;
    EXPECT_NE(Generate(m_plan).content, content);
}

TEST_F(GeneratedFileTest, TheMiddleDistrictIsAsBigAsPlanned) {
    constexpr std::uint64_t big = 5'000;
    m_plan.big = big;
    const Generated generated = Generate(m_plan);
    ReadText(m_desktop, generated.content);
    EXPECT_EQ(lInvalidTotal, 0);
    std::int32_t most = 0;
    for (std::int32_t i = 1; i <= lLineCount; ++i) {
        most = std::max(most, DistrictAt(i).lVariationCount);
    }
    EXPECT_EQ(static_cast<std::uint64_t>(most), big);
    EXPECT_EQ(Sum([](const DistrictRecord& record) { return record.iDuplicateCount; }),
              generated.file.counts.duplicates);
}

TEST_F(GeneratedFileTest, ProposalsLeaveTheFileAsItIs) {
    const std::string content = Generate(m_plan).content;
    m_plan.proposals = 200;
    const Generated generated = Generate(m_plan);
    EXPECT_EQ(generated.file.proposals.size(), 200U);
    EXPECT_TRUE(generated.content == content);
}
