#include "file/DistrictFileWriter.h"
#include "support/Reading.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

const std::string Mark = "\xEF\xBB\xBF";

class FileEncodingTest : public StateTest {
protected:
    // Reads the bytes as the open file and saves them at once under the same name.
    std::string ReadAndSave(const std::string& bytes) {
        m_desktop.recordReports = true;
        ReadText(m_desktop, bytes);
        m_desktop.ExpectSave(DataFilePath);
        m_desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
        SaveDistrictFile(m_desktop);
        return m_desktop.files[DataFilePath];
    }

    ScriptedDesktop m_desktop;
};

} // namespace

TEST_F(FileEncodingTest, AccentsOfAUtf8FileAreSingleCharactersAndComeBackAsTheyWere) {
    const std::string bytes = HeaderOf("Caf\xC3\xA9") + "|\xE2\x82\xAC|!Elm\r\n# \xC3\x89lan\r\n";
    EXPECT_EQ(ReadAndSave(bytes), bytes);
    EXPECT_EQ(DistrictAt(1).Name, "Caf\xE9");
    EXPECT_EQ(VariationAt(1, 1).Text, "\x80");
    EXPECT_EQ(DistrictAt(2).Name, "# \xC9lan");
}

TEST_F(FileEncodingTest, TheByteOrderMarkIsNoPartOfTheFirstNameAndComesBack) {
    const std::string bytes = Mark + HeaderOf("Ash") + "|Elm\r\n";
    EXPECT_EQ(ReadAndSave(bytes), bytes);
    EXPECT_EQ(DistrictAt(1).Name, "Ash");
}

TEST_F(FileEncodingTest, WhatIsAddedIsWrittenLikeTheRestOfTheFile) {
    const std::string bytes = HeaderOf("Caf\xC3\xA9") + "|Elm\r\n";
    m_desktop.recordReports = true;
    ReadText(m_desktop, bytes);
    VariationAt(1, 1).Text = "\xC9lm";
    m_desktop.ExpectSave(DataFilePath);
    m_desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    SaveDistrictFile(m_desktop);
    EXPECT_EQ(m_desktop.files[DataFilePath], HeaderOf("Caf\xC3\xA9") + "|\xC3\x89lm\r\n");
}

TEST_F(FileEncodingTest, Utf8ThatWindows1252CannotHoldStaysTheBytesItIs) {
    const std::string bytes = HeaderOf("Caf\xC3\xA9") + "|\xC4\x80\r\n";
    EXPECT_EQ(ReadAndSave(bytes), bytes);
    EXPECT_EQ(DistrictAt(1).Name, "Caf\xC3\xA9");
}

TEST_F(FileEncodingTest, EveryFileHasAnEncodingOfItsOwn) {
    const std::string utf8 = HeaderOf("Caf\xC3\xA9") + "\r\n";
    const std::string windows1252 = HeaderOf("Caf\xE9") + "\r\n";
    const std::string plain = HeaderOf("Cafe") + "\r\n";
    for (const std::string& bytes : {utf8, windows1252, Mark + plain, plain, utf8}) {
        EXPECT_EQ(ReadAndSave(bytes), bytes);
    }
}

TEST_F(FileEncodingTest, AMarkWithoutALineStaysOne) {
    EXPECT_EQ(ReadAndSave(Mark), Mark);
    EXPECT_EQ(lLineCount, 0);
}
