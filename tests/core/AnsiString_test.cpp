#include "core/AnsiString.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

std::vector<std::string> Samples() {
    return {"", "a", std::string("\0a\0", 3), "Ashton-under-Lyne", std::string(1000, 'x') + 'y'};
}

TEST(AnsiString, HoldsItsText) {
    for (const std::string& text : Samples()) {
        const Ansi::String held{std::string_view(text)};
        EXPECT_EQ(held, text);
        EXPECT_EQ(held.size(), text.size());
        EXPECT_EQ(held.empty(), text.empty());
    }
}

TEST(AnsiString, TakesOneTextAfterAnother) {
    Ansi::String held;
    for (const std::string& first : Samples()) {
        for (const std::string& second : Samples()) {
            held = std::string_view(first);
            held = std::string_view(second);
            EXPECT_EQ(held, second);
        }
    }
}

TEST(AnsiString, CopiesAreTextsOfTheirOwn) {
    for (const std::string& text : Samples()) {
        Ansi::String original{std::string_view(text)};
        Ansi::String copy = original;
        Ansi::String assigned;
        assigned = original;
        original = "other";
        EXPECT_EQ(copy, text);
        EXPECT_EQ(assigned, text);
    }
}

TEST(AnsiString, MovingTakesTheTextAlong) {
    for (const std::string& text : Samples()) {
        Ansi::String original{std::string_view(text)};
        Ansi::String moved = std::move(original);
        EXPECT_EQ(moved, text);
        Ansi::String target = "what was there before";
        target = std::move(moved);
        EXPECT_EQ(target, text);
    }
}

TEST(AnsiString, MayBeAssignedToItselfAndToAPartOfItself) {
    for (const std::string& text : Samples()) {
        Ansi::String held{std::string_view(text)};
        const Ansi::String& same = held;
        held = same;
        EXPECT_EQ(held, text);
        if (!text.empty()) {
            held = std::string_view(held).substr(1);
            EXPECT_EQ(held, text.substr(1));
        }
    }
}

TEST(AnsiString, APartOfAContentIsNotCopied) {
    const std::string content = "Ash|Elm";
    const Ansi::String part = Ansi::String::PartOf(std::string_view(content).substr(4));
    EXPECT_EQ(part, "Elm");
    EXPECT_TRUE(part.IsPart());
    EXPECT_EQ(part.View().data(), content.data() + 4);
    EXPECT_FALSE(Ansi::String("Elm").IsPart());
}

TEST(AnsiString, ACopyOfAPartOutlivesTheContent) {
    auto content = std::make_unique<std::string>("Ash|Elm");
    Ansi::String part = Ansi::String::PartOf(*content);
    const Ansi::String copy = part;
    Ansi::String assigned;
    assigned = part;
    const Ansi::String moved = std::move(part);
    EXPECT_EQ(moved.View().data(), content->data());
    const std::string text = *content;
    content.reset();
    EXPECT_EQ(copy, text);
    EXPECT_EQ(assigned, text);
}

TEST(AnsiString, APartThatIsChangedLeavesTheContentAsItIs) {
    const std::string content = "Ash|Elm";
    Ansi::String part = Ansi::String::PartOf(std::string_view(content).substr(0, 3));
    part = "Oak";
    EXPECT_EQ(part, "Oak");
    EXPECT_FALSE(part.IsPart());
    part = part.View().substr(1);
    EXPECT_EQ(part, "ak");
    EXPECT_EQ(content, "Ash|Elm");
}

TEST(AnsiString, ASharedPartIsAPartOfTheSameContentAndACopyIsNot) {
    const std::string content = "Ash|Elm";
    const Ansi::String part = Ansi::String::PartOf(std::string_view(content).substr(4));
    EXPECT_EQ(part.Shared(), "Elm");
    EXPECT_TRUE(part.Shared().IsPartOf(content));
    EXPECT_FALSE(part.IsPartOf(std::string_view(content).substr(0, 6)));
    EXPECT_FALSE(part.IsPartOf(std::string_view(content).substr(5)));
    EXPECT_FALSE(part.IsPartOf("Ash|Elm"));
    EXPECT_FALSE(Ansi::String(part).IsPartOf(content));
    const Ansi::String own = "Oak";
    EXPECT_EQ(own.Shared(), "Oak");
    EXPECT_FALSE(own.Shared().IsPart());
    EXPECT_NE(own.Shared().View().data(), own.View().data());
}

TEST(AnsiString, ATextThatIsTooLongFindsNoMemory) {
    const std::string_view tooLong("", Ansi::String::MostBytes + 1);
    EXPECT_THROW(Ansi::String{tooLong}, std::bad_alloc);
    EXPECT_THROW(static_cast<void>(Ansi::String::PartOf(tooLong)), std::bad_alloc);
}

TEST(AnsiString, BecomesAnOrdinaryStringWhenPutTogether) {
    const Ansi::String text = "Ash";
    const std::string before = "[" + text;
    EXPECT_EQ(before + "]", "[Ash]");
    EXPECT_EQ(text + text, "AshAsh");
    EXPECT_EQ(text + std::string("ton"), "Ashton");
    std::ostringstream out;
    out << text;
    EXPECT_EQ(out.str(), "Ash");
}

} // namespace
