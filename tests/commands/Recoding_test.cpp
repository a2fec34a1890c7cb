// What outlives a file, or a save after which it is taken for another encoding.

#include "commands/EditingPlayer.h"
#include "core/Utf8.h"
#include "rules/Capitals.h"

using namespace CommonRoutines;
using Control = Commands::Control;

namespace {

const std::string Dwr = "D\xC5\xB5r"; // Welsh: water
const std::string ProposalsPath = "/data/proposals.txt";
const std::string BecomesUtf8 =
    "What is left in the file will be taken for UTF-8, no longer for Windows-1252, and some of its characters will be "
    "others.  It is opened anew as it will be read then.\r\nOK saves it like that.";
const std::string BecomesMarked =
    "The file begins with what will be taken for a byte order mark, and its first name goes without it.  It is opened "
    "anew as it will be read then.\r\nOK saves it like that.";

class RecodingTest : public StateTest {
protected:
    void Open(const std::string& content) { player.Open(content, {}); }
    void ProcessFile(const std::string& content) {
        player.desktop.files[ProposalsPath] = content;
        player.desktop.ExpectOpen(ProposalsPath);
        player.Press(Control::btnProcess);
    }
    // The only variation that shows that the file is Windows-1252 is deleted, and the file is saved.
    void SaveWithoutRow(int row, const std::string& question) {
        player.Select({row});
        player.desktop.ExpectBox("Are you sure you want to delete variation " +
                                     std::string(VariationAt(1, player.View().variations.At(row).slot).Text),
                                 BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::Yes);
        player.Press(Control::cbDelete);
        Save(question);
    }
    void Save(const std::string& question) {
        player.desktop.ExpectSave(DataFilePath);
        player.desktop.ExpectBox(question, BoxIcon::Exclamation, BoxButtons::OkCancel);
        player.desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
        player.Press(Control::cbSave);
        player.desktop.CheckDone();
    }
    [[nodiscard]] std::vector<std::string> Variations() const {
        std::vector<std::string> texts;
        for (const std::string& shown : player.Shown().variations) {
            texts.push_back(shown.substr(0, shown.rfind(' ')));
        }
        return texts;
    }
    using Texts = std::vector<std::string>;

    CommandPlayer player;
};

} // namespace

TEST_F(RecodingTest, AfterTheSaveTheFileIsShownAsItIsReadThen) {
    Open(HeaderOf("Ash") + "|\xC3\xA9lan|\xC3\x89LAN|!Caf\xE9\r\n");
    player.ChooseDistrict(1);
    SaveWithoutRow(0, BecomesUtf8);
    EXPECT_EQ(eFileEncoding, Encoding::Utf8);
    EXPECT_EQ(player.desktop.files[DataFilePath], HeaderOf("Ash") + "|\xC3\xA9lan|\xC3\x89LAN\r\n");
    EXPECT_EQ(Variations(), (Texts{"\xC3\xA9lan", "\xC3\x89LAN"}));
    EXPECT_EQ(lCurrentDistrict, 1) << "the district stays chosen";
    EXPECT_TRUE(VariationAt(1, 1).bDuplicate) << "as they are characters now";
    EXPECT_FALSE(bChanged);
}

TEST_F(RecodingTest, WhatWasDeletedBeforeTheSaveCanBeBroughtBack) {
    Open(HeaderOf("Ash") + "|\xC3\xA9lan|!Caf\xE9\r\n");
    player.ChooseDistrict(1);
    SaveWithoutRow(0, BecomesUtf8);
    EXPECT_EQ(player.View().nextUndo, "Delete !Caf\xC3\xA9 from Ash");
    player.Press(Control::cbUndo);
    EXPECT_EQ(Variations(), (Texts{"!Caf\xC3\xA9", "\xC3\xA9lan"}));
    EXPECT_TRUE(bChanged);
    player.desktop.ExpectSave(DataFilePath);
    player.desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    player.Press(Control::cbSave);
    EXPECT_EQ(player.desktop.files[DataFilePath], HeaderOf("Ash") + "|\xC3\xA9lan|!Caf\xC3\xA9\r\n");
}

// The added text is one of the table, which the file has as the bytes that they are.
TEST_F(RecodingTest, WhatWasAddedBeforeTheSaveCanBeTakenBack) {
    Open(HeaderOf("Ash") + "|Caf\xE9\r\n");
    player.ChooseDistrict(1);
    player.Enter("\xC5\xB5");
    player.Press(Control::cbOk);
    EXPECT_EQ(Variations(), (Texts{"Caf\xE9", "\xC5\xB5"}));
    SaveWithoutRow(0, BecomesUtf8);
    player.Press(Control::cbUndo);
    player.Press(Control::cbUndo);
    EXPECT_EQ(Variations(), Texts{"Caf\xC3\xA9"});
}

TEST_F(RecodingTest, ProposalsKeepTheirCharactersAndTicks) {
    Open(HeaderOf("Ash") + "|\xC3\xA9lan|Caf\xE9\r\n");
    player.ChooseDistrict(1);
    ProcessFile("Caf\xE9\r\nD\xC3\xA9\r\nSt?d\r\n");
    player.ClickTick(0);
    SaveWithoutRow(0, BecomesUtf8);
    EXPECT_EQ(player.Shown().proposals, (Texts{"Caf\xC3\xA9 ticked", "D\xC3\x83\xC2\xA9", "St?d"}));
    EXPECT_EQ(player.View().selectCount, "Selected=1");
}

TEST_F(RecodingTest, SoDoesATextThatIsStillInTheBox) {
    Open(HeaderOf("Ash") + "|Elm\r\n");
    player.ChooseDistrict(1);
    player.Enter("\xC3\xA9");
    player.Press(Control::cbOk);
    player.Enter("Fir");
    player.Press(Control::cbOk);
    player.Enter("No\xEBl");
    player.Press(Control::cbUndo); // lists the variations, and leaves the text in the box
    ASSERT_EQ(iEditMode, DistrictIdle);
    ASSERT_EQ(player.View().edit.text, "No\xEBl");
    Save(BecomesUtf8);
    EXPECT_EQ(player.View().edit.text, "No\xC3\xABl");
    EXPECT_TRUE(player.View().edit.isPending);
    player.Enter("No\xC3\xABl!");
    EXPECT_EQ(iEditMode, AddingUnacceptable);
}

TEST_F(RecodingTest, ANameThatBeginsWithTheBytesOfAMarkIsShownWithoutThem) {
    Open(" \xEF\xBB\xBF" + HeaderOf("Ash") + "|" + Dwr + "\r\n");
    EXPECT_EQ(DistrictAt(1).Name(), "\xEF\xBB\xBF"
                                    "Ash");
    Save(BecomesMarked);
    EXPECT_EQ(eFileEncoding, Encoding::Utf8WithMark);
    EXPECT_EQ(DistrictAt(1).Name(), "Ash");
    EXPECT_EQ(player.Shown().districts, Texts{"Ash"});
    EXPECT_EQ(lCurrentDistrict, 0);
}

TEST_F(RecodingTest, ACancelledSaveChangesNothing) {
    const std::string bytes = HeaderOf("Ash") + "|\xC3\xA9lan|Caf\xE9\r\n";
    Open(bytes);
    player.ChooseDistrict(1);
    player.Select({0});
    player.desktop.ExpectBox("Are you sure you want to delete variation Caf\xE9", BoxIcon::Question, BoxButtons::YesNo,
                             BoxAnswer::Yes);
    player.Press(Control::cbDelete);
    player.desktop.ExpectSave(DataFilePath);
    player.desktop.ExpectBox(BecomesUtf8, BoxIcon::Exclamation, BoxButtons::OkCancel, BoxAnswer::Cancel);
    player.Press(Control::cbSave);
    EXPECT_EQ(player.desktop.files[DataFilePath], bytes);
    EXPECT_EQ(eFileEncoding, Encoding::Windows1252);
    EXPECT_EQ(Variations(), Texts{"\xC3\xA9lan"});
}

TEST_F(RecodingTest, ProposalsFitWhicheverFileIsOpen) {
    Open(HeaderOf(Dwr) + "\r\n");
    player.ChooseDistrict(1);
    ProcessFile("\xEF\xBB\xBF" + Dwr + "w\r\nCaf\xC3\xA9\r\n");
    EXPECT_EQ(player.Shown().proposals, (Texts{Dwr + "w", "Caf\xC3\xA9"}));
    player.ClickTick(0);
    player.ClickTick(1);
    Open(HeaderOf("Caf\xE9") + "\r\n");
    EXPECT_EQ(player.Shown().proposals, (Texts{"D?rw", "Caf\xE9 ticked"})) << "no question mark may be in a name";
    EXPECT_EQ(player.View().proposals.At(0).tag, Proposal::Invalid);
    EXPECT_EQ(player.View().selectCount, "Selected=1");
    Open(HeaderOf("Caf\xC3\xA9") + "\r\n");
    EXPECT_EQ(player.Shown().proposals, (Texts{Dwr + "w", "Caf\xC3\xA9 ticked"})) << "nothing was lost meanwhile";
    EXPECT_EQ(player.View().proposals.At(0).tag, Proposal::Valid);
}

TEST_F(RecodingTest, AChangeFileOfEitherKindGoesIntoAFileOfEitherKind) {
    for (const std::string& proposals : {std::string("Caf\xE9\r\n"), std::string("Caf\xC3\xA9\r\n"),
                                         std::string("\xEF\xBB\xBF"
                                                     "Caf\xC3\xA9\r\n")}) {
        for (const auto& [name, expected] : {std::pair{std::string("\xC9lan"), std::string("Caf\xE9")},
                                             std::pair{std::string("\xC3\x89lan"), std::string("Caf\xC3\xA9")}}) {
            Open(HeaderOf(name) + "\r\n");
            player.ChooseDistrict(1);
            ProcessFile(proposals);
            player.desktop.ExpectBox("1 New variations added.", BoxIcon::Information);
            player.Press(Control::cbApplyAll);
            EXPECT_EQ(VariationAt(1, 1).Text, expected);
            player.desktop.ExpectSave(DataFilePath);
            player.desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
            player.ChooseDistrict(1);
            player.Press(Control::cbSave);
        }
    }
}

TEST_F(RecodingTest, ListedWordsNeedNoCapitalWhicheverFileIsOpen) {
    for (const char* words : {"\xE0,d\xE9", "\xC3\x80,D\xC3\x89", "\xEF\xBB\xBF\xC3\xA0,d\xC3\xA9"}) {
        player.desktop.files["/program/qx_lower.txt"] = words;
        LoadLowerCaseWords(player.desktop);
        eFileEncoding = Encoding::Windows1252;
        EXPECT_FALSE(CapitalsAreUnusual("Ville \xE0 D\xC9 d\xE9")) << words;
        EXPECT_TRUE(CapitalsAreUnusual("Ville \xE8"));
        eFileEncoding = Encoding::Utf8;
        EXPECT_FALSE(CapitalsAreUnusual("Ville \xC3\xA0 D\xC3\x89 d\xC3\xA9")) << words;
        EXPECT_TRUE(CapitalsAreUnusual("Ville \xC5\xB5"));
    }
}

TEST_F(RecodingTest, WhatIsTypedInAUtf8FileIsStoredAsItIs) {
    Open(HeaderOf("Ash") + "|" + Dwr + "\r\n");
    player.ChooseDistrict(1);
    player.Enter("T\xC5\xB7 \xF0\x9F\x98\x80");
    player.Press(Control::cbOk);
    player.desktop.ExpectSave(DataFilePath);
    player.desktop.ExpectBox("File Saved to " + DataFilePath, BoxIcon::Information);
    player.Press(Control::cbSave);
    EXPECT_EQ(player.desktop.files[DataFilePath], HeaderOf("Ash") + "|" + Dwr + "|T\xC5\xB7 \xF0\x9F\x98\x80\r\n");
    EXPECT_TRUE(Utf8::IsValid(player.desktop.files[DataFilePath]));
}

TEST_F(RecodingTest, ATextTooLongForTheBoxIsNotCutWithinACharacter) {
    std::string longText;
    while (longText.size() <= 300'000) {
        longText += Dwr;
    }
    Open(HeaderOf("Ash") + "|" + longText + "\r\n");
    player.ChooseDistrict(1);
    player.Select({0});
    EXPECT_GT(player.View().edit.text.size(), 200'000U);
    EXPECT_LT(player.View().edit.text.size(), 200'005U);
    EXPECT_TRUE(Utf8::IsValid(player.View().edit.text));
}
