#include "checks/ReportFilter.h"

#include "core/Ansi.h"
#include "support/Table.h"

#include <random>

using namespace CommonRoutines;

namespace {

using Places = std::vector<std::size_t>;

constexpr std::size_t All = 100; // lines, more than any of these reports has

class ReportFilterTest : public StateTest {
protected:
    static Places Found(const ReportItems& items, const std::string& sought) {
        ReportFilter filter(items, sought);
        return filter.LookOn(All);
    }
    static Places FoundStepByStep(const ReportItems& items, const std::string& sought) {
        ReportFilter filter(items, sought);
        Places all;
        while (!filter.IsDone()) {
            const Places found = filter.LookOn(1);
            all.insert(all.end(), found.begin(), found.end());
        }
        return all;
    }
};

} // namespace

TEST_F(ReportFilterTest, TheLinesThatHoldATextInAnyCaseAreFound) {
    const ReportItems items{"Elm and Oak", "ELM", "Ash", "helmet", "El m"};
    EXPECT_EQ(Found(items, "elm"), (Places{0, 1, 3}));
    EXPECT_EQ(Found(items, "ELM "), Places{0});
    EXPECT_EQ(Found(items, "yew"), Places{});
}

TEST_F(ReportFilterTest, EveryLineHoldsAnEmptyText) {
    EXPECT_EQ(Found({"Elm", "", " "}, ""), (Places{0, 1, 2}));
    EXPECT_EQ(Found({}, ""), Places{});
    EXPECT_TRUE(ReportFilter({}, "elm").IsDone());
}

TEST_F(ReportFilterTest, NothingInTheSoughtTextIsAnOperator) {
    const ReportItems items{"a.c", "abc", "a*c", "[abc]", "a|c", "^a$", "a\\c", "(a", "", " "};
    EXPECT_EQ(Found(items, "a.c"), Places{0});
    EXPECT_EQ(Found(items, "a*c"), Places{2});
    EXPECT_EQ(Found(items, "["), Places{3});
    EXPECT_EQ(Found(items, "a|c"), Places{4});
    EXPECT_EQ(Found(items, "^"), Places{5});
    EXPECT_EQ(Found(items, "\\"), Places{6});
    EXPECT_EQ(Found(items, "("), Places{7});
    EXPECT_EQ(Found(items, "*"), Places{2});
    EXPECT_EQ(Found(items, " "), Places{9});
}

TEST_F(ReportFilterTest, ALineBreakIsTheBlankThatIsShownForIt) {
    const ReportItems items{"Second\r\nfinding", "removed.\r\n", "one\r\n\r\ntwo\r\nthree", "one\ntwo"};
    EXPECT_EQ(Found(items, "second finding"), Places{0});
    EXPECT_EQ(Found(items, "removed. "), Places{1});
    EXPECT_EQ(Found(items, "ONE  TWO THREE"), Places{2});
    EXPECT_EQ(Found(items, "\r\n"), Places{});
    EXPECT_EQ(Found(items, "one two"), Places{});
}

TEST_F(ReportFilterTest, LongTextsAreLookedAtToTheirEnds) {
    const std::string lengthy(100'000, 'x');
    const ReportItems items{lengthy, lengthy + "<b>&amp;</b>", lengthy + "y"};
    EXPECT_EQ(Found(items, "<B>&AMP;</b>"), Places{1});
    EXPECT_EQ(Found(items, lengthy), (Places{0, 1, 2}));
    EXPECT_EQ(Found(items, lengthy + 'Y'), Places{2});
}

TEST_F(ReportFilterTest, EachLineIsMadeOnceAndNotBeforeItsTurn) {
    std::vector<std::size_t> made;
    const ReportItems items{3, [&made](std::size_t place) {
                                made.push_back(place);
                                return std::string("line");
                            }};
    ReportFilter filter(items, "LINE");
    EXPECT_EQ(made, Places{});
    EXPECT_EQ(filter.LookOn(1), Places{0});
    EXPECT_EQ(made, Places{0});
    EXPECT_FALSE(filter.IsDone());
    EXPECT_EQ(filter.LookOn(All), (Places{1, 2}));
    EXPECT_EQ(made, (Places{0, 1, 2}));
    EXPECT_TRUE(filter.IsDone());
    EXPECT_EQ(filter.LookOn(All), Places{});
}

TEST_F(ReportFilterTest, FindsWhatAPlainLoopFindsInStepsAsWellAsAtOnce) {
    std::mt19937 random(11);
    const auto text = [&](std::size_t most) {
        static const std::string characters = "aAbB .\xE9\xC9";
        std::string made;
        for (auto length = random() % (most + 1); length > 0; --length) {
            made += characters[random() % characters.size()];
        }
        return made;
    };
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> texts(random() % 40);
        for (std::string& line : texts) {
            line = text(20);
        }
        const std::string sought = text(3);
        Places expected;
        for (std::size_t place = 0; place < texts.size(); ++place) {
            if (Ansi::Upper(texts[place]).find(Ansi::Upper(sought)) != std::string::npos) {
                expected.push_back(place);
            }
        }
        EXPECT_EQ(Found(texts, sought), expected) << sought;
        EXPECT_EQ(FoundStepByStep(texts, sought), expected) << sought;
    }
}
