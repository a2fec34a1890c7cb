#include "recovery/RecoveryFile.h"

#include <gtest/gtest.h>

#include <random>

using namespace CommonRoutines;

namespace {

using Changes = std::vector<SlotChange>;

const FileIdentity File{"/data/d\xC4\x85ta file.txt", 1234, "0123456789abcdef0123456789ABCDEF"};

std::string Written(const Changes& changes, const FileIdentity& file = File) {
    std::string content = RecoveryHeader(file);
    for (const SlotChange& change : changes) {
        content += RecoveryRecord(change.line, change.slot, change.text);
    }
    return content;
}

const Changes Several = {{1, 1, "Ash"}, {2147483647, 2147483647, "!%Elm%12"}, {7, 3, "\t"}, {7, 4, "a b  c "}};

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
    const FileIdentity first{"/data/first.txt", 5, "00112233445566778899aabbccddeeff"};
    const FileIdentity last{"/data/last\n.txt", 6, "00112233445566778899aabbccddeefe"};
    const std::string saving = Written(Several) + SavingRecord(first) + SavingRecord(last);
    const auto read = ParseRecoveryFile(saving);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->changes, Several);
    EXPECT_EQ(read->savedAs, last);
    const auto changedAgain = ParseRecoveryFile(saving + RecoveryRecord(1, 1, "Yew"));
    ASSERT_TRUE(changedAgain);
    EXPECT_EQ(changedAgain->changes.size(), Several.size() + 1);
    EXPECT_EQ(changedAgain->savedAs, std::nullopt);
}

TEST(RecoveryFile, KeepsEveryByteOfATextAndOfAPath) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const std::string texts[] = {"", "\n", "\\", "\\n", "\n\n", "\r\n", " ", std::string(3, '\0'), all, all + all};
    Changes changes;
    for (const std::string& text : texts) {
        changes.push_back({1, static_cast<std::int32_t>(changes.size()) + 1, text});
    }
    const FileIdentity odd{"/data\n/\\n\\" + all, 0, File.digest};
    const auto read = ParseRecoveryFile(Written(changes, odd));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->file, odd);
    EXPECT_EQ(read->changes, changes);
}

TEST(RecoveryFile, ThatWasCutOffHasTheChangesThatWereWrittenWhole) {
    const std::string content = Written(Several);
    const std::size_t header = Written({}).size();
    for (std::size_t length = header; length < content.size(); ++length) {
        Changes whole;
        while (Written(whole).size() +
                   RecoveryRecord(Several[whole.size()].line, Several[whole.size()].slot, Several[whole.size()].text)
                       .size() <=
               length) {
            whole.push_back(Several[whole.size()]);
        }
        const auto read = ParseRecoveryFile(content.substr(0, length));
        ASSERT_TRUE(read) << length;
        EXPECT_EQ(read->changes, whole) << length;
        const auto padded = ParseRecoveryFile(content.substr(0, length) + std::string(5000, '\0'));
        ASSERT_TRUE(padded) << length;
        EXPECT_EQ(padded->changes, whole) << length;
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

// Only in the last line's end could a flipped bit be taken for a line that was not written whole.
TEST(RecoveryFile, IsDamagedWhereverABitHasFlipped) {
    const std::string content = Written(Several);
    for (std::size_t i = 0; i + 1 < content.size(); ++i) {
        for (unsigned bit = 1; bit < 256; bit *= 2) {
            std::string damaged = content;
            damaged[i] = static_cast<char>(static_cast<unsigned char>(damaged[i]) ^ bit);
            EXPECT_FALSE(ParseRecoveryFile(damaged)) << "byte " << i << ", bit " << bit;
        }
    }
}

TEST(RecoveryFile, WithALineMissingItsBeginningIsDamaged) {
    const std::string record = RecoveryRecord(1, 1, "Ash");
    for (std::size_t lost = 1; lost < record.size(); ++lost) {
        EXPECT_FALSE(ParseRecoveryFile(Written({}) + record.substr(lost) + record)) << lost;
    }
    EXPECT_FALSE(ParseRecoveryFile(Written({}) + "\n" + record));
}

TEST(RecoveryFile, WithNumbersThatNoTableHasIsDamaged) {
    for (const SlotChange& change : Changes{{0, 1, "Ash"}, {1, 0, "Ash"}, {-1, 1, "Ash"}, {1, -1, "Ash"}}) {
        EXPECT_FALSE(ParseRecoveryFile(Written({change}))) << change.line << ' ' << change.slot;
    }
}

TEST(FileIdentity, IsThatOfTheBytes) {
    const FileIdentity identity = IdentityOf("/data/a", "Ash");
    EXPECT_EQ(identity.path, "/data/a");
    EXPECT_EQ(identity.size, 3U);
    EXPECT_EQ(identity.digest.size(), 32U);
    EXPECT_TRUE(identity.HasBytesOf(IdentityOf("/other", "Ash")));
    EXPECT_FALSE(identity.HasBytesOf(IdentityOf("/data/a", "Asp")));
    EXPECT_FALSE(identity.HasBytesOf(IdentityOf("/data/a", "Ash ")));
    EXPECT_FALSE(identity.HasBytesOf(IdentityOf("/data/a", "")));
}

// The published value of the empty text: xxHash, XXH3_128bits with seed 0.
TEST(FileIdentity, HasTheDigestThatOtherProgramsCompute) {
    EXPECT_EQ(IdentityOf("", "").digest, "99aa06d3014798d86001c324468d497f");
}
