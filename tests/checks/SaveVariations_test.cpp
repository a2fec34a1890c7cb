#include "checks/SaveVariations.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

class SaveVariationsTest : public StateTest {
protected:
    void Save(const std::vector<std::string>& variations) { SaveSelectedVariations(variations, desktop); }

    ScriptedDesktop desktop;
    const std::string path = "/data/chosen.txt";
};

} // namespace

TEST_F(SaveVariationsTest, EveryVariationIsALineInTheOrderGiven) {
    desktop.ExpectSave(path);
    desktop.ExpectBox("3 Variations Saved to /data/chosen.txt", BoxIcon::Information);
    Save({"Zeta", "!%Alfa%12", "Beta"});
    EXPECT_EQ(desktop.files[path], "Zeta\r\n!%Alfa%12\r\nBeta\r\n");
}

TEST_F(SaveVariationsTest, TextsAreWrittenAsTheyAre) {
    desktop.ExpectSave(path);
    desktop.ExpectBox("2 Variations Saved to /data/chosen.txt", BoxIcon::Information);
    Save({" blanks ", "caf\xE9\x80"});
    EXPECT_EQ(desktop.files[path], " blanks \r\ncaf\xE9\x80\r\n");
}

TEST_F(SaveVariationsTest, WithoutVariationsAnEmptyFileIsWritten) {
    desktop.files[path] = "old";
    desktop.ExpectSave(path);
    desktop.ExpectBox("0 Variations Saved to /data/chosen.txt", BoxIcon::Information);
    Save({});
    EXPECT_EQ(desktop.files[path], "");
}

TEST_F(SaveVariationsTest, TheDialogueProposesNoNameButAnExtension) {
    desktop.ExpectSave(std::nullopt);
    Save({"Elm"});
    EXPECT_EQ(desktop.lastRequest.title, "Open Variation Save File");
    EXPECT_EQ(desktop.lastRequest.fileName, "");
    EXPECT_EQ(desktop.lastRequest.defaultExtension, "txt");
}

TEST_F(SaveVariationsTest, ACancelledDialogueWritesAndSaysNothing) {
    desktop.ExpectSave(std::nullopt);
    Save({"Elm"});
    EXPECT_TRUE(desktop.files.empty());
}

TEST_F(SaveVariationsTest, AFileThatCannotBeWrittenIsNotSaidToBeSaved) {
    desktop.canWrite = false;
    desktop.ExpectSave(path);
    desktop.ExpectBox("The file cannot be written:\r\n/data/chosen.txt", BoxIcon::Exclamation);
    Save({"Elm"});
    EXPECT_TRUE(desktop.files.empty());
}

TEST_F(SaveVariationsTest, AFileThatStaysInItsPlaceIsOverwritten) {
    desktop.files[path] = "old";
    desktop.inPlace = {path};
    desktop.ExpectSave(path);
    desktop.ExpectBox("1 Variations Saved to /data/chosen.txt", BoxIcon::Information);
    Save({"Elm"});
    EXPECT_EQ(desktop.files[path], "Elm\r\n");
    EXPECT_TRUE(desktop.state.Names().empty());
}

TEST_F(SaveVariationsTest, AFileNameIsSaidAsItIs) {
    const std::string foreign = "/data/\xC3\xA9t\xC3\xA9-\xE2\x82\xAC-\xCE\xA9.txt";
    desktop.ExpectSave(foreign);
    desktop.ExpectBox("1 Variations Saved to " + Wording::OfPath(foreign), BoxIcon::Information);
    Save({"Elm"});
    EXPECT_EQ(desktop.files.count(foreign), 1U);
    desktop.canWrite = false;
    desktop.ExpectSave(foreign);
    desktop.ExpectBox("The file cannot be written:\r\n" + Wording::OfPath(foreign), BoxIcon::Exclamation);
    Save({"Elm"});
}

TEST_F(SaveVariationsTest, TheFileHasTheEncodingOfTheOpenOne) {
    for (const auto& [encoding, expected] :
         {std::pair{Encoding::Utf8, "D\xC5\xB5r\r\n"}, std::pair{Encoding::Utf8WithMark, "\xEF\xBB\xBF"
                                                                                         "D\xC5\xB5r\r\n"}}) {
        eFileEncoding = encoding;
        desktop.ExpectSave(path);
        desktop.ExpectBox("1 Variations Saved to /data/chosen.txt", BoxIcon::Information);
        Save({"D\xC5\xB5r"});
        EXPECT_EQ(desktop.files[path], expected);
    }
    desktop.ExpectSave(path);
    desktop.ExpectBox("0 Variations Saved to /data/chosen.txt", BoxIcon::Information);
    Save({});
    EXPECT_EQ(desktop.files[path], "") << "a mark alone would be something";
}
