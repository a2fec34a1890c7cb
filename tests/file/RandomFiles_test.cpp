#include "file/CommentTypes.h"
#include "file/DistrictFileWriter.h"
#include "support/Reading.h"
#include "support/Table.h"

#include <algorithm>
#include <random>

using namespace CommonRoutines;

namespace {

// A user who answers anything to everything, and is asked nothing in vain.
class RandomUser : public ScriptedDesktop {
public:
    explicit RandomUser(std::uint32_t seed) : m_random(seed) { recordReports = true; }

    BoxAnswer MsgBox(const Wording& text, BoxIcon, BoxButtons) override {
        EXPECT_FALSE(text.Utf8().empty());
        return BoxAnswer::Ok;
    }

    std::string MyMsgBox(const std::string&, std::int32_t, const std::string&,
                         std::span<const std::string> captions) override {
        ++repairs;
        EXPECT_TRUE(captions.size() >= 3 && captions.size() <= 4) << "joining with the previous is never valid";
        const auto choice = m_random() % 60;
        if (choice == 0) {
            return "Quit";
        }
        if (choice == 1) {
            return "";
        }
        return captions[choice % (captions.size() - 1)]; // any but Quit, which comes last
    }

    std::optional<std::string> InputBox(std::string_view) override {
        static const std::vector<std::string> answers{"", "  ", "%", "Elm", " !Oak%12 ", "a|b", "Caf\xE9", "x\ty"};
        const auto choice = m_random() % (answers.size() + 1);
        return choice == answers.size() ? std::nullopt
                                        : std::optional(Recoded(answers[choice], Encoding::Windows1252, eFileEncoding));
    }

    int repairs = 0;

private:
    std::mt19937 m_random;
};

class FileMaker {
public:
    explicit FileMaker(std::uint32_t seed) : m_utf8(seed % 2 == 0), m_random(seed) {}

    std::string Make() {
        std::string content;
        for (auto pieces = UpTo(40); pieces > 0; --pieces) {
            content += Piece();
        }
        return m_utf8 ? InUtf8(content) : content;
    }

private:
    std::size_t UpTo(std::size_t most) { return m_random() % (most + 1); }

    // Some with a mark in front, all with letters of two and four bytes.
    std::string InUtf8(const std::string& content) {
        std::string utf8 = UpTo(3) == 0 ? "\xEF\xBB\xBF" : "";
        for (const char c : content) {
            utf8 += c != '\xE9' ? std::string(1, c) : UpTo(3) == 0 ? "\xF0\x9F\x98\x80" : "\xC5\xB5";
        }
        return utf8;
    }

    std::string Noise() {
        using namespace std::string_view_literals;
        constexpr auto alphabet = "|||++##!!%%  \r\n\0QX_0189?aB\t\xE9["sv;
        std::string noise;
        for (auto length = UpTo(12); length > 0; --length) {
            noise += alphabet[UpTo(alphabet.size() - 1)];
        }
        return noise;
    }

    std::string Piece() {
        static const std::vector<std::string> ends{"\r\n", "\n", "\r\r\n", " \r\n"};
        static const std::vector<std::string> fields{"!", "%", "!%", "", "  ", "Elm%", "Elm", "ELM", " Oak ", "12"};
        switch (UpTo(4)) {
        case 0:
            return Noise();
        case 1:
            return "#QX_" + Noise() + ends[UpTo(3)];
        default:
            break;
        }
        std::string line = UpTo(5) == 0 ? "|" : "";
        line += "A+1+B+" + std::to_string(1830 + UpTo(80)) + "+" + std::to_string(UpTo(9)) + "+9999+" +
                std::to_string(UpTo(9)) + "+x+y" + (UpTo(3) == 0 ? " " : "");
        for (auto count = UpTo(6); count > 0; --count) {
            line += '|' + (UpTo(3) == 0 ? Noise() : fields[UpTo(fields.size() - 1)]);
        }
        return line + ends[UpTo(3)];
    }

    bool m_utf8; // all of its files
    std::mt19937 m_random;
};

std::string ReadAndSave(RandomUser& user, std::string content) {
    ResetEverything();
    ReadText(user, std::move(content));
    if (iRepairAction == Quit) {
        lLineCount = 0; // as opening a file does
    }
    return DistrictFileContent();
}

class RandomFilesTest : public testing::TestWithParam<std::uint32_t> {
protected:
    ~RandomFilesTest() override { CommentTypes.Reset(); }
};

} // namespace

// A blank variation at the end of a line may have hidden blanks before it, which the next reading trims.
TEST_P(RandomFilesTest, WhatWasSavedNeedsNoRepairAndIsSavedTheSameAgain) {
    FileMaker maker(GetParam());
    int repairs = 0;
    for (std::uint32_t round = 0; round < 250; ++round) {
        const std::string content = maker.Make();
        RandomUser user(GetParam() * 1000 + round);
        const std::string saved = ReadAndSave(user, content);
        repairs += user.repairs;
        RandomUser second(round);
        ASSERT_EQ(ReadAndSave(second, saved), TrimLines(saved)) << "seed " << GetParam() << ", round " << round;
        ASSERT_EQ(second.repairs, 0) << "seed " << GetParam() << ", round " << round;
        RandomUser third(round);
        ASSERT_EQ(ReadAndSave(third, TrimLines(saved)), TrimLines(saved));
    }
    EXPECT_GT(repairs, 100) << "the files no longer hold what is to be repaired";
}

TEST_P(RandomFilesTest, TheCountsOfEveryDistrictAreWithinItsVariations) {
    FileMaker maker(GetParam());
    for (std::uint32_t round = 0; round < 100; ++round) {
        RandomUser user(round);
        ReadAndSave(user, maker.Make());
        ASSERT_LT(lLineCount, std::ssize(Districts));
        std::int64_t invalid = 0;
        for (std::int32_t i = 1; i <= lLineCount; ++i) {
            const DistrictRecord& record = DistrictAt(i);
            invalid += record.lInvalidCount;
            ASSERT_EQ(record.bRetained, record.Variations.empty());
            ASSERT_TRUE(record.bRetained || std::ssize(record.Variations) == std::max(record.lVariationCount, 1) + 1);
            ASSERT_LE(record.lInvalidCount, record.lVariationCount);
            ASSERT_LE(record.lWarningCount, record.lVariationCount);
            ASSERT_LE(record.iQuestionCount, record.lVariationCount);
            ASSERT_LE(record.iDuplicateCount, std::max(record.lVariationCount - 1, 0));
        }
        ASSERT_LE(invalid, lInvalidTotal);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomFilesTest, testing::Values(1U, 2U, 3U, 4U));
