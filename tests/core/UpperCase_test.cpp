#include "core/UpperCase.h"

#include "core/Ansi.h"
#include "rules/SlowMatching.h"
#include "support/Table.h"

#include <algorithm>
#include <random>
#include <set>

namespace {

std::string Text(std::mt19937& random) {
    return random() % 2 == 0 ? Slow::SimilarText(random)
                             : Slow::RandomText(random, std::string_view("aAbB\xE9\xC9\xFF\x9F \0", 10), 30);
}

TEST(UpperCase, TextsAreOrderedAsTheirUpperCaseForms) {
    std::mt19937 random(1);
    for (int round = 0; round < 50'000; ++round) {
        const std::string a = Text(random);
        const std::string b = random() % 4 == 0 ? Ansi::Lower(a) : Text(random);
        const auto expected = Ansi::Upper(a) <=> Ansi::Upper(b);
        ASSERT_EQ(Ansi::CompareUpper(a, b), expected) << a << '/' << b;
    }
}

TEST(UpperCase, PrefixesDecideTheOrderWhereTheyDifferOrAreWhole) {
    std::mt19937 random(2);
    int equal = 0;
    for (int round = 0; round < 100'000; ++round) {
        const std::string a = Text(random);
        const std::string b = random() % 4 == 0 ? Ansi::Lower(a) : Text(random);
        const Ansi::UpperPrefix ofA(a);
        const Ansi::UpperPrefix ofB(b);
        const auto expected = Ansi::Upper(a) <=> Ansi::Upper(b);
        if (ofA != ofB) {
            ASSERT_EQ(ofA <=> ofB, expected) << a << '/' << b;
        } else {
            ++equal;
            ASSERT_EQ(ofA.IsWhole(), a.size() <= 23);
            ASSERT_TRUE(!ofA.IsWhole() || expected == 0) << a << '/' << b;
        }
    }
    EXPECT_GT(equal, 10'000);
}

TEST(UpperCase, AnEndComesBeforeANul) {
    const std::string_view withNul("Ash\0", 4);
    EXPECT_LT(Ansi::UpperPrefix("Ash"), Ansi::UpperPrefix(withNul));
    EXPECT_LT(Ansi::UpperPrefix(withNul), Ansi::UpperPrefix("Ash\x01"));
}

TEST(UpperCase, TheFirstDifferenceIsToldInCapitals) {
    const auto difference = [](std::string_view a, std::string_view b) {
        const auto [ofA, ofB] = Ansi::UpperPrefix::FirstDifference(Ansi::UpperPrefix(a), Ansi::UpperPrefix(b));
        return std::string{ofA, ofB};
    };
    EXPECT_EQ(difference("ashton", "ASHFORD"), "TF");
    EXPECT_EQ(difference("Stoke-up", "Stoke-upon"), std::string("\0O", 2));
    EXPECT_EQ(difference("Stoke-upon-the-Wye", "Stoke-upon-the-Exe"), "WE");
    EXPECT_EQ(difference("Stoke-upon-the-Marsh-A\xE9", "Stoke-upon-the-Marsh-A "), "\xC9 ");
}

TEST(UpperCase, HashesOfEqualFormsAreEqualAndOfOthersHardlyEver) {
    std::mt19937 random(3);
    std::set<std::string> forms;
    std::set<std::uint64_t> hashes;
    for (int round = 0; round < 50'000; ++round) {
        const std::string text = Text(random);
        ASSERT_EQ(Ansi::HashUpper(text), Ansi::HashUpper(Ansi::Lower(text))) << text;
        forms.insert(Ansi::Upper(text));
        hashes.insert(Ansi::HashUpper(text));
    }
    EXPECT_EQ(hashes.size(), forms.size());
}

TEST(UpperCase, SortingKeepsEqualFormsInTheirOrder) {
    std::mt19937 random(4);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> texts(random() % 80);
        std::generate(texts.begin(), texts.end(), [&] { return Text(random); });
        std::vector<std::string> expected = texts;
        std::stable_sort(expected.begin(), expected.end(),
                         [](const std::string& a, const std::string& b) { return Ansi::Upper(a) < Ansi::Upper(b); });
        Ansi::SortByUpperCase(texts, [](const std::string& text) { return std::string_view(text); });
        ASSERT_EQ(texts, expected);
    }
}

} // namespace
