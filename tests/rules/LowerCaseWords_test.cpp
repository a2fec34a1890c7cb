#include "rules/Capitals.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

using namespace CommonRoutines;

namespace {

using Texts = std::vector<std::string>;

class LowerCaseWordList : public StateTest {
protected:
    void Load(std::string content) {
        desktop.files["/program/qx_lower.txt"] = std::move(content);
        LoadLowerCaseWords(desktop);
    }

    static Texts Words() {
        const auto first = LowerCaseWords().words.begin() + 1;
        return {first, first + LowerCaseWords().count};
    }

    static std::ptrdiff_t UpperBound() { return std::ssize(LowerCaseWords().words) - 1; }

    static std::string Items(int count) {
        std::string line;
        for (int i = 1; i <= count; ++i) {
            line += "w" + std::to_string(i) + (i < count ? "," : "");
        }
        return line;
    }

    ScriptedDesktop desktop;
};

TEST_F(LowerCaseWordList, WordsStandBetweenCommasAndEmptyItemsAreSkipped) {
    Load("of, the,,upon\r\n");
    EXPECT_EQ(Words(), (Texts{"of", "the", "upon"}));
}

TEST_F(LowerCaseWordList, MillionsOfCommasAreNoWords) {
    Load(std::string(20'000'000, ','));
    EXPECT_EQ(LowerCaseWords().count, 0);
}

TEST_F(LowerCaseWordList, AWordOfTenMegabytesIsAWord) {
    Load(std::string(10'000'000, 'x'));
    EXPECT_EQ(LowerCaseWords().count, 1);
}

TEST_F(LowerCaseWordList, AMillionWordsAreLookedUp) {
    Load(Items(1'000'000));
    EXPECT_EQ(LowerCaseWords().count, 1'000'000);
    EXPECT_FALSE(HasUnusualCapitals("W1 w777777"));
    EXPECT_TRUE(HasUnusualCapitals("W1 w1000001"));
}

TEST_F(LowerCaseWordList, WithoutMemoryForItTheListIsEmpty) {
    class SmallMachine : public ScriptedDesktop {
        std::optional<std::string> ReadFile(const std::string& /*path*/) override { throw std::bad_alloc(); }
    };
    Load("of,the\r\n");
    SmallMachine machine;
    machine.ExpectBox("There is not enough memory for the lowercase file - no words will be ignored",
                      BoxIcon::Exclamation);
    LoadLowerCaseWords(machine);
    EXPECT_EQ(LowerCaseWords().count, 0);
    EXPECT_TRUE(HasUnusualCapitals("North of"));
}

TEST_F(LowerCaseWordList, EveryLineAddsItsWords) {
    Load("of\r\n\r\n  the , upon  \nle");
    EXPECT_EQ(Words(), (Texts{"of", "the", "upon", "le"}));
}

TEST_F(LowerCaseWordList, WordsAreKeptInSmallLettersInTheirOrderWithRepetitions) {
    Load("UPON,Of,\xC9LAN,of");
    EXPECT_EQ(Words(), (Texts{"upon", "of", "\xC3\xA9lan", "of"}));
}

TEST_F(LowerCaseWordList, OnlyBlanksAreTrimmedAndInnerOnesStay) {
    Load(" on the ,\tby");
    EXPECT_EQ(Words(), (Texts{"on the", "\tby"}));
}

TEST_F(LowerCaseWordList, AFileWithoutWordsIsAnEmptyListAndNoMessage) {
    Load(" , ,\r\n\r\n");
    EXPECT_EQ(LowerCaseWords().count, 0);
    EXPECT_EQ(UpperBound(), 10);
}

TEST_F(LowerCaseWordList, AnEmptyFileIsAnEmptyListAndNoMessage) {
    Load("");
    EXPECT_EQ(LowerCaseWords().count, 0);
    EXPECT_EQ(UpperBound(), 10);
}

TEST_F(LowerCaseWordList, HasRoomForTenWordsAtFirst) {
    Load(Items(10));
    EXPECT_EQ(LowerCaseWords().count, 10);
    EXPECT_EQ(UpperBound(), 10);
}

TEST_F(LowerCaseWordList, AWordThatDoesNotFitMakesRoomForTenBehindIt) {
    Load(Items(11));
    EXPECT_EQ(LowerCaseWords().count, 11);
    EXPECT_EQ(UpperBound(), 21);
    Load(Items(21));
    EXPECT_EQ(UpperBound(), 21);
    Load(Items(22));
    EXPECT_EQ(UpperBound(), 32);
}

TEST_F(LowerCaseWordList, GrowingKeepsTheWords) {
    Load(Items(35));
    ASSERT_EQ(LowerCaseWords().count, 35);
    for (int i = 1; i <= 35; ++i) {
        EXPECT_EQ(LowerCaseWords().words[static_cast<std::size_t>(i)], "w" + std::to_string(i));
    }
}

TEST_F(LowerCaseWordList, TheFirstElementIsNeverFilled) {
    Load("of");
    EXPECT_EQ(LowerCaseWords().words[0], "");
    EXPECT_EQ(LowerCaseWords().words[1], "of");
}

TEST_F(LowerCaseWordList, ANewListReplacesTheOld) {
    Load(Items(15));
    Load("of");
    EXPECT_EQ(Words(), Texts{"of"});
    EXPECT_EQ(UpperBound(), 10);
}

TEST_F(LowerCaseWordList, AForgottenListIsEmpty) {
    Load("smithton");
    ForgetLowerCaseWords();
    EXPECT_TRUE(LowerCaseWords().words.empty());
    EXPECT_EQ(LowerCaseWords().count, 0);
    EXPECT_TRUE(HasUnusualCapitals("smithton"));
}

TEST_F(LowerCaseWordList, WithoutTheFileOneMessageSaysSoAndTheListIsEmpty) {
    Load("smithton");
    desktop.files.clear();
    desktop.ExpectBox("No lowercase file found - no words will be ignored", BoxIcon::Information);
    LoadLowerCaseWords(desktop);
    desktop.CheckDone();
    EXPECT_EQ(LowerCaseWords().count, 0);
    EXPECT_TRUE(HasUnusualCapitals("smithton"));
    EXPECT_FALSE(HasUnusualCapitals("Smithton"));
}

TEST_F(LowerCaseWordList, OnlyTheProgramsOwnFolderIsLookedInto) {
    desktop.files["qx_lower.txt"] = desktop.files["/qx_lower.txt"] = "of";
    desktop.ExpectBox("No lowercase file found - no words will be ignored", BoxIcon::Information);
    LoadLowerCaseWords(desktop);
    EXPECT_EQ(LowerCaseWords().count, 0);
}

TEST_F(LowerCaseWordList, TheProgramsFolderBecomesTheCurrentOneWithOrWithoutTheFile) {
    Load("of");
    EXPECT_EQ(desktop.programFolderEntries, 1);
    desktop.files.clear();
    desktop.ExpectBox("No lowercase file found - no words will be ignored", BoxIcon::Information);
    LoadLowerCaseWords(desktop);
    EXPECT_EQ(desktop.programFolderEntries, 2);
}

TEST_F(LowerCaseWordList, TheCapitalisationCheckUsesTheWordsOfTheFile) {
    Load("Upon,of");
    EXPECT_FALSE(HasUnusualCapitals("Stoke-upon-Trent"));
    EXPECT_TRUE(HasUnusualCapitals("Stoke-by-Trent"));
}

} // namespace
