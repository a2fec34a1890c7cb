#include "file/DistrictFileWriter.h"
#include "rules/Capitals.h"
#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

const std::string Mark = "\xEF\xBB\xBF";
const std::string Dwr = "D\xC5\xB5r"; // Welsh: water
const std::string Ty = "T\xC5\xB7";   // Welsh: house

const std::string BecomesUtf8 =
    "What is left in the file will be taken for UTF-8, no longer for Windows-1252, and some of its characters will be "
    "others.  It is opened anew as it will be read then.\r\nOK saves it like that.";
const std::string BecomesPlain =
    "Nothing in the file shows any more that it is UTF-8.  The next time it is opened it will be taken for "
    "Windows-1252, which has fewer characters.\r\nOK saves it like that.";
const std::string BecomesMarked =
    "The file begins with what will be taken for a byte order mark, and its first name goes without it.  It is opened "
    "anew as it will be read then.\r\nOK saves it like that.";

class FileEncodingTest : public StateTest {
protected:
    void Read(const std::string& bytes) {
        m_desktop.recordReports = true;
        ReadText(m_desktop, bytes);
    }
    // Saves the table under the same name.
    std::string Save() {
        m_desktop.ExpectSave(DataFilePath);
        m_desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
        SaveDistrictFile(m_desktop);
        m_desktop.CheckDone();
        return m_desktop.files[DataFilePath];
    }
    // The same where a question comes first.
    std::string SaveWhenAsked(const std::string& question, BoxAnswer answer) {
        m_desktop.ExpectSave(DataFilePath);
        m_desktop.ExpectBox(question, BoxIcon::Exclamation, BoxButtons::OkCancel, answer);
        if (answer == BoxAnswer::Ok) {
            m_desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
        }
        SaveDistrictFile(m_desktop);
        m_desktop.CheckDone();
        return m_desktop.files[DataFilePath];
    }
    std::string ReadAndSave(const std::string& bytes) {
        Read(bytes);
        return Save();
    }

    ScriptedDesktop m_desktop;
};

} // namespace

TEST_F(FileEncodingTest, AUtf8FileIsInMemoryAsOnTheDisk) {
    const std::string bytes = HeaderOf("Caf\xC3\xA9") + "|" + Dwr + "|!Elm\r\n# \xC3\x89lan \xF0\x9F\x98\x80\r\n";
    EXPECT_EQ(ReadAndSave(bytes), bytes);
    EXPECT_EQ(DistrictAt(1).Name(), "Caf\xC3\xA9");
    EXPECT_EQ(VariationAt(1, 1).Text, Dwr);
    EXPECT_TRUE(TextsAreUtf8());
}

TEST_F(FileEncodingTest, TheByteOrderMarkIsNoPartOfTheFirstNameAndComesBack) {
    const std::string bytes = Mark + HeaderOf("Ash") + "|Elm\r\n";
    EXPECT_EQ(ReadAndSave(bytes), bytes);
    EXPECT_EQ(DistrictAt(1).Name(), "Ash");
}

TEST_F(FileEncodingTest, AWindows1252FileHasAByteForACharacter) {
    const std::string bytes = HeaderOf("Caf\xE9") + "|\xC5\xB5\x80\r\n";
    EXPECT_EQ(ReadAndSave(bytes), bytes);
    EXPECT_FALSE(TextsAreUtf8());
    EXPECT_EQ(Ansi::CharacterCount(VariationAt(1, 1).Text), 3U);
}

TEST_F(FileEncodingTest, EveryFileHasAnEncodingOfItsOwn) {
    const std::string utf8 = HeaderOf(Ty) + "\r\n";
    const std::string windows1252 = HeaderOf("Caf\xE9") + "\r\n";
    const std::string plain = HeaderOf("Cafe") + "\r\n";
    for (const std::string& bytes : {utf8, windows1252, Mark + plain, plain, Mark + utf8, utf8}) {
        EXPECT_EQ(ReadAndSave(bytes), bytes);
    }
}

TEST_F(FileEncodingTest, AMarkWithoutALineStaysOne) {
    EXPECT_EQ(ReadAndSave(Mark), Mark);
    EXPECT_EQ(lLineCount, 0);
}

// Overlong, surrogates, beyond the last code point, cut off: none of them makes a file UTF-8.
TEST_F(FileEncodingTest, HostileSequencesComeBackByteForByte) {
    for (const char* hostile : {"\xC0\xAF", "\xE0\x80\xAF", "\xF0\x80\x80\xAF", "\xED\xA0\x80", "\xED\xB0\x80",
                                "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFE\xFF", "\xC5", "\xE1\xBA", "\x80"}) {
        const std::string bytes = HeaderOf(Dwr) + "|" + hostile + "|Caf\xC3\xA9\r\n";
        EXPECT_EQ(ReadAndSave(bytes), bytes);
        EXPECT_FALSE(TextsAreUtf8()) << hostile;
        EXPECT_EQ(VariationAt(1, 1).Text, hostile);
    }
}

TEST_F(FileEncodingTest, RulesCountCharactersOfAUtf8File) {
    Read(HeaderOf(Dwr) + "|Caf\xC3\xA9|CAF\xC3\x89|\xC5\xB4" + "ye|\xC5\xB5ye|%\xC5\xB7%1\r\n");
    EXPECT_TRUE(VariationAt(1, 1).bDuplicate);
    EXPECT_TRUE(VariationAt(1, 2).bDuplicate);
    EXPECT_FALSE(VariationAt(1, 1).bUnusualCaps);
    EXPECT_TRUE(VariationAt(1, 2).bUnusualCaps);
    EXPECT_FALSE(VariationAt(1, 3).bUnusualCaps);
    EXPECT_TRUE(VariationAt(1, 4).bUnusualCaps);
    EXPECT_EQ(DistrictAt(1).lInvalidCount, 1); // the second "%" is the third character
    EXPECT_EQ(sWarningReason, "Unusual char at position 1 (Char=373)");
}

TEST_F(FileEncodingTest, TheUserIsAskedBeforeTheRestOfAFileIsTakenForUtf8) {
    const std::string bytes = HeaderOf("Ash") + "|\xC3\xA9|Caf\xE9\r\n";
    Read(bytes);
    VariationAt(1, 2).Text = DeletedText;
    EXPECT_EQ(SaveWhenAsked(BecomesUtf8, BoxAnswer::Cancel), bytes);
    EXPECT_EQ(eEncodingOnDisk, Encoding::Windows1252);
    EXPECT_EQ(SaveWhenAsked(BecomesUtf8, BoxAnswer::Ok), HeaderOf("Ash") + "|\xC3\xA9\r\n");
    EXPECT_EQ(eEncodingOnDisk, Encoding::Utf8);
}

TEST_F(FileEncodingTest, SoItIsWhenARefusedLineThatComesBackEmptyWasTheOnlyOther) {
    m_desktop.confirmsBoxes = true;
    Read("|caf\xE9\r\n" + HeaderOf(Dwr) + "\r\n");
    m_desktop.confirmsBoxes = false;
    EXPECT_FALSE(TextsAreUtf8());
    EXPECT_EQ(SaveWhenAsked(BecomesUtf8, BoxAnswer::Ok), "\r\n" + HeaderOf(Dwr) + "\r\n");
}

TEST_F(FileEncodingTest, SoItIsWhenABlankInFrontOfTheBytesOfAMarkIsDropped) {
    Read(" " + Mark + HeaderOf("Ash") + "\r\n");
    EXPECT_EQ(eFileEncoding, Encoding::Utf8);
    EXPECT_EQ(SaveWhenAsked(BecomesMarked, BoxAnswer::Cancel), " " + Mark + HeaderOf("Ash") + "\r\n");
    EXPECT_EQ(SaveWhenAsked(BecomesMarked, BoxAnswer::Ok), Mark + HeaderOf("Ash") + "\r\n");
    EXPECT_EQ(eEncodingOnDisk, Encoding::Utf8WithMark);
}

TEST_F(FileEncodingTest, TheUserIsToldOnceThatNothingShowsUtf8AnyMore) {
    Read(HeaderOf("Ash") + "|" + Dwr + "\r\n");
    VariationAt(1, 1).Text = "Dur";
    EXPECT_EQ(SaveWhenAsked(BecomesPlain, BoxAnswer::Ok), HeaderOf("Ash") + "|Dur\r\n");
    EXPECT_TRUE(TextsAreUtf8()) << "what was deleted can still be brought back";
    EXPECT_EQ(Save(), HeaderOf("Ash") + "|Dur\r\n");
    VariationAt(1, 1).Text = Ty;
    EXPECT_EQ(Save(), HeaderOf("Ash") + "|" + Ty + "\r\n");
}

TEST_F(FileEncodingTest, ASaveThatFailsChangesNoEncoding) {
    Read(HeaderOf("Ash") + "|\xC3\xA9|Caf\xE9\r\n");
    VariationAt(1, 2).Text = DeletedText;
    m_desktop.canWrite = false;
    m_desktop.ExpectSave(DataFilePath);
    m_desktop.ExpectBox(BecomesUtf8, BoxIcon::Exclamation, BoxButtons::OkCancel, BoxAnswer::Ok);
    SaveDistrictFile(m_desktop);
    EXPECT_EQ(eEncodingOnDisk, Encoding::Windows1252);
}

TEST_F(FileEncodingTest, WhatAFileIsTakenForIsToldBeforeAnythingOfItIsInTheTable) {
    m_desktop.recordReports = true;
    sDataFileName = DataFilePath;
    m_desktop.files[DataFilePath] = HeaderOf(Dwr) + "\r\n";
    std::int32_t lines = -1;
    ReadDistrictFile(m_desktop, [&] { lines = TextsAreUtf8() ? lLineCount : -1; });
    EXPECT_EQ(lines, 0);
    EXPECT_EQ(lLineCount, 1);
}
