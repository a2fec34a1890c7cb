#include "core/CaselessSearch.h"

#include "core/Ansi.h"
#include "core/Utf8.h"
#include "support/Table.h"

#include <random>

using namespace CommonRoutines;

namespace {

class CaselessSearchTest : public StateTest {
protected:
    // The part of the text that is found.
    static std::string Found(const std::string& text, const std::string& sought, std::size_t from = 0) {
        const auto found = Ansi::CaselessSearch(sought).FindIn(text, from);
        return found ? std::string(*found) : "none";
    }

    static bool IsThere(std::string_view text, std::string_view sought) {
        return Ansi::Upper(text).find(Ansi::Upper(sought)) != std::string::npos;
    }

    // Texts of few characters, so that many hold each other, and of all lengths around the blocks that are
    // looked at together.
    static std::string RandomText(std::mt19937& random, const std::vector<std::string>& characters, std::size_t most) {
        std::string text;
        for (auto length = random() % (most + 1); length > 0; --length) {
            text += characters[random() % characters.size()];
        }
        return text;
    }

    static void ExpectTheSameAsInUpperCase(const std::vector<std::string>& characters) {
        std::mt19937 random(7);
        for (int round = 0; round < 20'000; ++round) {
            const std::string text = RandomText(random, characters, round % 2 == 0 ? 12 : 200);
            std::string sought = RandomText(random, characters, 4);
            sought = sought.empty() ? "x" : sought;
            const auto found = Ansi::CaselessSearch(sought).FindIn(text);
            ASSERT_EQ(found.has_value(), IsThere(text, sought)) << text << "\n" << sought;
            if (found) {
                ASSERT_EQ(Ansi::Upper(*found), Ansi::Upper(sought));
                const std::string before = text.substr(0, static_cast<std::size_t>(found->end() - text.data()));
                ASSERT_FALSE(IsThere(before.substr(0, before.size() - 1), sought)) << "not the first: " << text;
            }
        }
    }
};

} // namespace

TEST_F(CaselessSearchTest, FindsTheFirstPlaceInAnyCase) {
    EXPECT_EQ(Found("Stoke ASH and ash", "ash"), "ASH");
    EXPECT_EQ(Found("Stoke ASH and ash", "ash", 7), "ash");
    EXPECT_EQ(Found("Stoke", "ash"), "none");
    EXPECT_EQ(Found("", "a"), "none");
    EXPECT_EQ(Found("as", "ash"), "none");
    EXPECT_EQ(Found("\xE9t\xE9", "\xC9T\xC9"), "\xE9t\xE9");
}

TEST_F(CaselessSearchTest, TakesEveryCharacterForItself) {
    for (const std::string sought : {".", "*", "[a-z]", "\\", "(", "^", "$", "%", "|", "<b>", "?", " ", "\t"}) {
        EXPECT_EQ(Found("Ash" + sought + "Elm", sought), sought);
        EXPECT_EQ(Found("AshElm", sought), "none");
    }
    EXPECT_EQ(Found(std::string("a\0b", 3), std::string("\0B", 2)), std::string("\0b", 2));
}

TEST_F(CaselessSearchTest, AVeryLongTextIsFoundOnlyInALongerOne) {
    const std::string sought(100'000, 'a');
    EXPECT_EQ(Found(std::string(200'000, 'A'), sought).size(), sought.size());
    EXPECT_EQ(Found(std::string(99'999, 'A'), sought), "none");
}

TEST_F(CaselessSearchTest, FindsWhatIsInTheUpperCaseForm) {
    ExpectTheSameAsInUpperCase({"a", "A", "b", "\xE9", "\xC9", "\xDF", "\xFF", "\x9F", "%", " "});
}

TEST_F(CaselessSearchTest, FindsWhatIsInTheUpperCaseFormOfUtf8) {
    eFileEncoding = Encoding::Utf8;
    // Two letters whose cases have different lengths are among them.
    ExpectTheSameAsInUpperCase({"a", "A", "b", "é", "É", "ß", "ı", "Ⱥ", "ⱥ", "ж", "Ж", "漢", "%"});
}
