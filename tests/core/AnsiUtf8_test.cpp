// The texts of an open file that is UTF-8.

#include "core/Ansi.h"
#include "core/LetterPairs.h"
#include "core/UpperCase.h"
#include "core/Utf8.h"
#include "support/Table.h"

#include <algorithm>
#include <random>

using namespace CommonRoutines;

namespace {

class AnsiUtf8 : public StateTest {
protected:
    AnsiUtf8() { eFileEncoding = Encoding::Utf8; }

    // Letters of one, two, three and four bytes in both cases, some of which change their length with it.
    static std::string RandomText(std::mt19937& random) {
        const std::vector<std::string> letters{"a",        "A",
                                               "b",        " ",
                                               "\xC5\xB5", "\xC5\xB4",
                                               "\xC3\xBF", "\xC5\xB8",
                                               "\xC8\xBA", "\xE2\xB1\xA5",
                                               "\xC3\x9F", "\xF0\x90\x90\xA8"};
        std::string text;
        for (auto count = random() % 14; count > 0; --count) {
            text += letters[random() % (random() % 2 == 0 ? 4 : letters.size())];
        }
        return random() % 3 == 0 ? "Llanfairpwllgwyngyll" + text : text;
    }
};

} // namespace

TEST_F(AnsiUtf8, CasesAreThoseOfUnicode) {
    EXPECT_EQ(Ansi::Upper("D\xC5\xB5r Caf\xC3\xA9 \xC3\xBF"), "D\xC5\xB4R CAF\xC3\x89 \xC5\xB8");
    EXPECT_EQ(Ansi::Lower("\xC5\xB4YE"), "\xC5\xB5ye");
    EXPECT_TRUE(Ansi::EqualIgnoringCase("T\xC5\xB7", "t\xC5\xB6"));
    EXPECT_FALSE(Ansi::EqualIgnoringCase("Ty", "T\xC5\xB7"));
}

TEST_F(AnsiUtf8, InWindows1252TheSameBytesAreOtherCharacters) {
    eFileEncoding = Encoding::Windows1252;
    EXPECT_EQ(Ansi::Upper("\xC3\xA9"), "\xC3\xA9");
    EXPECT_EQ(Ansi::CharacterCount("\xC3\xA9"), 2U);
    EXPECT_EQ(Ansi::FirstCharacters("\xC3\xA9", 1), "\xC3");
    EXPECT_EQ(Ansi::Beginning("\xC3\xA9", 1), "\xC3");
    EXPECT_EQ(Ansi::CodeAt("\xC3\xA9", 1), char32_t{0xA9});
}

TEST_F(AnsiUtf8, ACharacterIsNeverCut) {
    const std::string_view text = "D\xC5\xB5r \xF0\x9F\x98\x80!";
    EXPECT_EQ(Ansi::CharacterCount(text), 6U);
    EXPECT_EQ(Ansi::FirstCharacters(text, 2), "D\xC5\xB5");
    EXPECT_EQ(Ansi::FirstCharacters(text, 5), "D\xC5\xB5r \xF0\x9F\x98\x80");
    EXPECT_EQ(Ansi::FirstCharacters(text, 6), text);
    EXPECT_EQ(Ansi::FirstCharacters(text, 0), "");
    EXPECT_EQ(Ansi::Beginning(text, 2), "D\xC5\xB5");
    EXPECT_EQ(Ansi::Beginning(text, 3), "D\xC5\xB5");
    EXPECT_EQ(Ansi::Beginning(text, 6), "D\xC5\xB5r \xF0\x9F\x98\x80");
    EXPECT_EQ(Ansi::Beginning(text, 100), text);
    EXPECT_EQ(Ansi::CodeAt(text, 1), char32_t{0x175});
}

TEST_F(AnsiUtf8, TheCapitalsOfAsciiLeaveEveryByteInItsPlace) {
    EXPECT_EQ(Ansi::UpperAscii("<tr>\xE2\xB1\xA5"), "<TR>\xE2\xB1\xA5");
    eFileEncoding = Encoding::Windows1252;
    EXPECT_EQ(Ansi::UpperAscii("<tr>\xE9"), "<TR>\xE9");
}

TEST_F(AnsiUtf8, TextsAreOrderedAndHashedAsTheirUpperCaseForms) {
    std::mt19937 random(1);
    int equal = 0;
    for (int round = 0; round < 100'000; ++round) {
        const std::string a = RandomText(random);
        const std::string b = random() % 4 == 0 ? Ansi::Lower(a) : RandomText(random);
        const auto expected = LetterPairs::Upper(a) <=> LetterPairs::Upper(b); // of bytes, as of code points
        ASSERT_EQ(Ansi::CompareUpper(a, b), expected) << a << '/' << b;
        ASSERT_EQ(Ansi::EqualIgnoringCase(a, b), expected == 0) << a << '/' << b;
        ASSERT_EQ(Ansi::HashUpper(a) == Ansi::HashUpper(b), expected == 0) << a << '/' << b;
        const Ansi::UpperPrefix ofA(a);
        const Ansi::UpperPrefix ofB(b);
        if (ofA != ofB) {
            ASSERT_EQ(ofA <=> ofB, expected) << a << '/' << b;
        } else {
            ++equal;
            ASSERT_EQ(ofA.IsWhole(), LetterPairs::Upper(a).size() <= 23);
            ASSERT_TRUE(!ofA.IsWhole() || expected == 0) << a << '/' << b;
        }
    }
    EXPECT_GT(equal, 10'000);
}

TEST_F(AnsiUtf8, TheOrderIsThatOfCodePoints) {
    std::vector<std::string> texts{"\xF0\x90\x90\xA8", "\xE2\xB1\xA5", "\xC5\xB5", "z", "\xC3\xA9", "a"};
    Ansi::SortByUpperCase(texts, [](const std::string& text) { return std::string_view(text); });
    EXPECT_EQ(texts, (std::vector<std::string>{"a", "z", "\xC3\xA9", "\xC5\xB5", "\xE2\xB1\xA5", "\xF0\x90\x90\xA8"}));
}
