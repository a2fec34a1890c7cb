#include "recovery/RecoveryFile.h"

#include "support/RecoveryText.h"

#include <gtest/gtest.h>

#include <random>

using namespace CommonRoutines;

namespace {

using Changes = std::vector<SlotChange>;

const FileIdentity File{"/data/d\xC4\x85ta file.txt", {1234, "0123456789abcdef0123456789ABCDEF"}};

std::string Written(const Changes& changes, const FileIdentity& file = File) {
    RecoveryFile recovery;
    recovery.file = file;
    recovery.changes = changes;
    return RecoveryText(recovery);
}

const Changes Several = {{1, 1, "Ash", {}},
                         {2147483647, 2147483647, "!%Elm%12", {}},
                         {7, 3, "\t", {}},
                         {7, 4, "a b  c ", 0},
                         {7, 5, "", 2147483647}};

// So many of the changes.
Changes First(std::size_t count) {
    return {Several.begin(), Several.begin() + static_cast<std::ptrdiff_t>(count)};
}

} // namespace

TEST(RecoveryFile, HoldsTheFileAndItsChangesInOrder) {
    const auto read = ParseRecoveryFile(Written(Several));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->file, File);
    EXPECT_EQ(read->changes, Several);
}

TEST(RecoveryFile, MayHaveNoChangesYet) {
    const auto read = ParseRecoveryFile(Written({}));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->file, File);
    EXPECT_EQ(read->changes, Changes());
}

TEST(RecoveryFile, SaysAsWhatAllOfItsChangesWereToBeSaved) {
    const FileIdentity first{"/data/first.txt", {5, "00112233445566778899aabbccddeeff"}};
    const FileIdentity last{"/data/last\n.txt", {6, "00112233445566778899aabbccddeefe"}};
    RecoveryRecords records(File, Encoding::Windows1252);
    records.AddChange(Several.front());
    records.AddSaving(first);
    records.AddSaving(last);
    auto read = ParseRecoveryFile(records.Content());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->changes, First(1));
    EXPECT_EQ(read->savedAs, last);
    records.AddChange(Several.back());
    read = ParseRecoveryFile(records.Content());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->changes.size(), 2U);
    EXPECT_EQ(read->savedAs, std::nullopt);
}

TEST(RecoveryFile, NamesTheEncodingOfItsTexts) {
    for (const Encoding encoding : {Encoding::Windows1252, Encoding::Utf8, Encoding::Utf8WithMark}) {
        RecoveryFile file;
        file.file = File;
        file.encoding = encoding;
        const auto read = ParseRecoveryFile(RecoveryText(file));
        ASSERT_TRUE(read);
        EXPECT_EQ(read->encoding, encoding);
    }
}

TEST(RecoveryFile, NamesWhatElseItHolds) {
    RecoveryFile file;
    file.file = File;
    file.holds = {"1-a.changes", "odd \n\\ name"};
    file.numbers = {{1, 2, {1, 0, 2}}, {5, 0, {}}, {6, 3, {}}};
    const auto read = ParseRecoveryFile(RecoveryText(file));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->holds, file.holds);
    EXPECT_EQ(read->numbers, file.numbers);
}

// As they were written before lines were chained, each with a checksum of its own.
TEST(RecoveryFile, OfTheFirstVersionIsReadAsWell) {
    const std::string content = "Quexal Editor, unsaved changes, version 1\n"
                                "7a00487418d99d91 5 00112233445566778899aabbccddeeff /data/a.txt\n"
                                "06a312cc8a84a3c3 3 2 7 Elm Fir\n";
    const auto read = ParseRecoveryFile(content);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->file.path, "/data/a.txt");
    EXPECT_EQ(read->encoding, Encoding::Windows1252);
    EXPECT_EQ(read->changes, (Changes{{3, 2, "Elm Fir", {}}}));
    EXPECT_FALSE(read->isDamaged);
}

TEST(RecoveryFile, OfANewerVersionIsKnownAsSuch) {
    std::string content = Written(Several);
    EXPECT_FALSE(IsOfNewerVersion(content));
    content.replace(content.find("version 2"), 9, "version 3");
    EXPECT_TRUE(IsOfNewerVersion(content));
    EXPECT_FALSE(ParseRecoveryFile(content));
    EXPECT_FALSE(IsOfNewerVersion("any text\n"));
    EXPECT_FALSE(IsOfNewerVersion(""));
}

TEST(RecoveryFile, KeepsEveryByteOfATextAndOfAPath) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const std::string texts[] = {"", "\n", "\\", "\\n", "\n\n", "\r\n", " ", std::string(3, '\0'), all, all + all};
    Changes changes;
    for (const std::string& text : texts) {
        changes.push_back({1, static_cast<std::int32_t>(changes.size()) + 1, text, {}});
    }
    const FileIdentity odd{"/data\n/\\n\\" + all, {0, File.bytes.digest}};
    const auto read = ParseRecoveryFile(Written(changes, odd));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->file, odd);
    EXPECT_EQ(read->changes, changes);
}

TEST(RecoveryFile, ThatWasCutOffHasTheChangesThatWereWrittenWhole) {
    const std::string content = Written(Several);
    std::size_t whole = 0;
    for (std::size_t length = Written({}).size(); length < content.size(); ++length) {
        whole += Written(First(whole + 1)).size() <= length ? 1U : 0U;
        for (const std::size_t zeros : {std::size_t{0}, std::size_t{5000}}) {
            const auto read = ParseRecoveryFile(content.substr(0, length) + std::string(zeros, '\0'));
            ASSERT_TRUE(read) << length;
            EXPECT_EQ(read->changes, First(whole)) << length;
            EXPECT_FALSE(read->isDamaged) << length;
        }
    }
}

TEST(RecoveryFile, WithoutAWholeHeaderIsNone) {
    const std::string header = Written({});
    for (std::size_t length = 0; length < header.size(); ++length) {
        EXPECT_FALSE(ParseRecoveryFile(header.substr(0, length))) << length;
    }
    EXPECT_FALSE(ParseRecoveryFile("Ashby+1+Kent+1837+3+9999+0+A+B|Ash\r\n"));
    EXPECT_FALSE(ParseRecoveryFile(std::string(100, '\0')));
    EXPECT_FALSE(ParseRecoveryFile(header.substr(header.find('\n') + 1)));
}

// What stands before the flipped bit can be trusted, and nothing behind it.
TEST(RecoveryFile, HasTheChangesBeforeAFlippedBit) {
    const std::string content = Written(Several);
    for (std::size_t i = 0; i + 1 < content.size(); ++i) {
        std::size_t before = 0;
        while (Written(First(before + 1)).size() <= i) {
            ++before;
        }
        for (unsigned bit = 1; bit < 256; bit *= 2) {
            std::string damaged = content;
            damaged[i] = static_cast<char>(static_cast<unsigned char>(damaged[i]) ^ bit);
            const auto read = ParseRecoveryFile(damaged);
            ASSERT_EQ(read.has_value(), i >= Written({}).size()) << "byte " << i << ", bit " << bit;
            if (read) {
                EXPECT_TRUE(read->isDamaged) << "byte " << i << ", bit " << bit;
                EXPECT_EQ(read->changes, First(before)) << "byte " << i << ", bit " << bit;
            }
        }
    }
}

TEST(RecoveryFile, ShowsThatALineIsMissingOrInAnotherPlace) {
    const std::string content = Written(Several);
    const auto line = [&](std::size_t n) {
        const std::size_t start = Written(First(n)).size();
        return content.substr(start, Written(First(n + 1)).size() - start);
    };
    const std::string header = Written({});
    const auto expectTrusted = [](const std::string& text, std::size_t count) {
        const auto read = ParseRecoveryFile(text);
        ASSERT_TRUE(read);
        EXPECT_TRUE(read->isDamaged);
        EXPECT_EQ(read->changes, First(count));
    };
    expectTrusted(header + line(1) + line(2), 0);
    expectTrusted(header + line(0) + line(2), 1);
    expectTrusted(header + line(0) + line(2) + line(1), 1);
    expectTrusted(header + line(0) + line(0) + line(1), 1);
    expectTrusted(header + line(0) + "\n" + line(1), 1);
    expectTrusted(header + line(0).substr(1) + line(1), 0);
}

TEST(RecoveryFile, WithNumbersThatNoTableHasIsDamaged) {
    const Changes odd = {{0, 1, "Ash", {}}, {1, 0, "Ash", {}}, {-1, 1, "Ash", {}}, {1, -1, "Ash", {}}, {1, 1, "", -1}};
    for (const SlotChange& change : odd) {
        const auto read = ParseRecoveryFile(Written({change}));
        ASSERT_TRUE(read);
        EXPECT_TRUE(read->isDamaged) << change.line << ' ' << change.slot;
        EXPECT_TRUE(read->changes.empty());
    }
}
