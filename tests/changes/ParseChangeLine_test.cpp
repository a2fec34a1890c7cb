#include "changes/ChangeFile.h"
#include "core/Ansi.h"
#include "rules/SlowRules.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

// What a line contributes to a file of its own.
std::string Contribution(std::string_view line) {
    return ChangeLineParser().ParseChangeLine(line);
}

// What a line contributes behind the head of a page.
std::string BehindHead(std::string_view line) {
    ChangeLineParser parser;
    EXPECT_EQ(parser.ParseChangeLine("<head>"), "");
    return parser.ParseChangeLine(line);
}

// The rules once more, with positions that count from 1 and texts that are copied.
class SlowParser {
public:
    std::string Parse(const std::string& line) {
        const std::string upper = Slow::Trimmed(Ansi::Upper(line));
        if (Slow::InStr(upper, "<HEAD>") > 0) {
            inHead = true;
            return "";
        }
        if (Slow::InStr(upper, "<TABLE") > 0) {
            return "";
        }
        if (Slow::InStr(upper, "<TR>") > 0) {
            return ParseRow(line, upper);
        }
        if (upper.substr(0, 9) == "<!DOCTYPE" || upper.substr(0, 5) == "<HTML") {
            return "";
        }
        return inHead ? "" : line;
    }

    int cellKind = 0;

private:
    // The first place of a character at or after a position; 0 when there is none.
    static std::size_t Place(std::size_t from, const std::string& text, char sought) {
        for (std::size_t position = from; position <= text.size(); ++position) {
            if (text[position - 1] == sought) {
                return position;
            }
        }
        return 0;
    }

    static std::string Mid(const std::string& text, std::size_t from, std::size_t length) {
        std::string part;
        for (std::size_t position = from; position < from + length && position <= text.size(); ++position) {
            part += text[position - 1];
        }
        return part;
    }

    std::string ParseRow(const std::string& line, const std::string& upper) {
        std::size_t start = 9;
        cellKind = 1;
        if (Mid(upper, 1, 8) != "<TR><TD>") {
            cellKind = 2;
            const std::size_t tagEnd = Place(9, upper, '>');
            if (tagEnd == 0) {
                return "";
            }
            start = tagEnd + 1;
        }
        const std::size_t end = Place(start, upper, '<');
        return end == 0 ? "" : Slow::Trimmed(Mid(line, start, end - start));
    }

    bool inHead = false;
};

} // namespace

TEST(ParseChangeLine, ALineWithoutTagsIsItsOwnProposal) {
    EXPECT_EQ(Contribution("Smyth"), "Smyth");
    EXPECT_EQ(Contribution(""), "");
}

TEST(ParseChangeLine, APlainLineKeepsItsBlanks) {
    EXPECT_EQ(Contribution("  Smyth "), "  Smyth ");
    EXPECT_EQ(Contribution("   "), "   ");
}

TEST(ParseChangeLine, APlainLineKeepsItsCaseAndItsForeignCharacters) {
    EXPECT_EQ(Contribution("caf\xE9 \x9Aumava &amp; M\xFCnster"), "caf\xE9 \x9Aumava &amp; M\xFCnster");
}

TEST(ParseChangeLine, TheHeadYieldsNothingInAnyCase) {
    for (const std::string_view line : {"<HEAD>", "<head>", "  <Head>", "<html><head><title>Elm</title></head>",
                                        "<head><TR><TD>Elm</TD>", "<head><TABLE>"}) {
        ChangeLineParser parser;
        EXPECT_EQ(parser.ParseChangeLine(line), "") << line;
        EXPECT_EQ(parser.ParseChangeLine("Smyth"), "") << line;
    }
}

TEST(ParseChangeLine, OnlyTheWholeHeadTagOpensTheHead) {
    for (const std::string_view line : {"</head>", "<head class=a>", "<header>", "< head>"}) {
        EXPECT_EQ(Contribution(line), line);
    }
}

TEST(ParseChangeLine, ATableTagYieldsNothing) {
    EXPECT_EQ(Contribution("<table>"), "");
    EXPECT_EQ(Contribution("<TABLE border=\"1\">"), "");
    EXPECT_EQ(Contribution("<div><tablet>"), "");
    EXPECT_EQ(Contribution("</table>"), "</table>");
}

TEST(ParseChangeLine, ARowOnTheLineOfItsTableYieldsNothing) {
    ChangeLineParser parser;
    EXPECT_EQ(parser.ParseChangeLine("<table><TR><TD>Elm</TD></TR>"), "");
    EXPECT_FALSE(parser.IsHeading());
}

TEST(ParseChangeLine, ARowOfPlainTagsIsAHeading) {
    for (const std::string_view line : {"<TR><TD>Elm</TD><TD>Oak</TD></TR>", "<tr><td>Elm</td>", "<Tr><tD> Elm <"}) {
        ChangeLineParser parser;
        EXPECT_EQ(parser.ParseChangeLine(line), "Elm") << line;
        EXPECT_TRUE(parser.IsHeading()) << line;
    }
}

TEST(ParseChangeLine, ARowWithAttributesIsAProposal) {
    for (const std::string_view line : {"<TR><TD width=\"50\">Elm</TD><TD>Oak</TD></TR>", "<tr><td class=name>Elm</td>",
                                        "<tr><th>Elm</th>", "<tbody><tr><td>Elm</td>", "<TR> <TD>Elm</TD>"}) {
        ChangeLineParser parser;
        parser.ParseChangeLine("<TR><TD>Name</TD>");
        parser.ParseChangeLine(line);
        EXPECT_FALSE(parser.IsHeading()) << line;
    }
    EXPECT_EQ(Contribution("<TR><TD width=\"50\">Elm</TD><TD>Oak</TD></TR>"), "Elm");
    EXPECT_EQ(Contribution("<tr><td class=name> Elm </td>"), "Elm");
}

TEST(ParseChangeLine, TheFirstTagEndBehindEightCharactersOpensTheCell) {
    // "<tr><th>" has its last ">" as the eighth character, so that the next one counts.
    EXPECT_EQ(Contribution("<tr><th>Elm</th>Oak</tr>"), "Oak");
    EXPECT_EQ(Contribution("<tbody><tr><td>Elm</td>"), "");
    EXPECT_EQ(Contribution("<tr> <td>Elm</td>"), "Elm");
    EXPECT_EQ(Contribution("<tr><td x>Elm<"), "Elm");
}

TEST(ParseChangeLine, ARowTagWithAttributesIsNoRow) {
    EXPECT_EQ(BehindHead("<tr class=\"odd\"><td>Elm</td></tr>"), "");
    EXPECT_EQ(Contribution("<tr class=\"odd\"><td>Elm</td></tr>"), "<tr class=\"odd\"><td>Elm</td></tr>");
}

TEST(ParseChangeLine, OnlyTheTextBeforeTheFirstTagOfTheCellCounts) {
    EXPECT_EQ(Contribution("<tr><td x>Elm <b>Tree</b></td>"), "Elm");
    EXPECT_EQ(Contribution("<tr><td x><b>Elm</b></td>"), "");
    EXPECT_EQ(Contribution("<TR><TD><b>Elm</b></TD>"), "");
    EXPECT_EQ(Contribution("<TR><TD></TD>"), "");
}

TEST(ParseChangeLine, ARowThatCannotBeCutYieldsNothingButCountsAsARow) {
    for (const std::string_view line : {"<TR>", "<TR><TD", "<TR><TD x", "<TR><TD x>", "<TR><TD x>Elm", "Elm<TR>"}) {
        ChangeLineParser parser;
        EXPECT_EQ(parser.ParseChangeLine("<TR><TD>Name</TD>"), "Name");
        EXPECT_EQ(parser.ParseChangeLine(line), "") << line;
        EXPECT_FALSE(parser.IsHeading()) << line;
    }
    for (const std::string_view line : {"<TR><TD>", "<TR><TD>Elm", "  <TR><TD>Elm"}) {
        ChangeLineParser parser;
        EXPECT_EQ(parser.ParseChangeLine(line), "") << line;
        EXPECT_TRUE(parser.IsHeading()) << line;
    }
}

TEST(ParseChangeLine, LeadingBlanksShiftTheCutToTheLeft) {
    EXPECT_EQ(Contribution("  <TR><TD>Smyth</TD>"), "D>Smy");
    EXPECT_EQ(Contribution("  <TR><TD x>Smyth</TD>"), "x>Smy");
    EXPECT_EQ(Contribution(" <TR><TD>Smyth</TD>"), ">Smyt");
    // A tab is no blank and stays in place, but then no heading begins the line.
    EXPECT_EQ(Contribution("\t<TR><TD>Smyth</TD>"), "Smyth");
}

TEST(ParseChangeLine, TheTopOfAPageYieldsNothing) {
    for (const std::string_view line :
         {"<!DOCTYPE html>", "  <!doctype HTML PUBLIC>", "<html>", " <HTML lang=\"en\">", "<html><body>Smyth"}) {
        ChangeLineParser parser;
        EXPECT_EQ(parser.ParseChangeLine(line), "") << line;
        EXPECT_EQ(parser.ParseChangeLine("Smyth"), "Smyth") << line;
    }
    EXPECT_EQ(Contribution("Smyth<html>"), "Smyth<html>");
    EXPECT_EQ(Contribution("<!-- Smyth -->"), "<!-- Smyth -->");
}

TEST(ParseChangeLine, ARowIsARowEvenAtTheTopOfAPage) {
    EXPECT_EQ(Contribution("<html lang=en>Elm<tr>"), "Elm");
}

TEST(ParseChangeLine, LinesWithoutARowBehindTheHeadYieldNothing) {
    for (const std::string_view line : {"Smyth", "</head>", "<body>", "<td>Elm</td>", "</tr>", ""}) {
        EXPECT_EQ(BehindHead(line), "") << line;
    }
}

TEST(ParseChangeLine, AHeadingIsRememberedUntilTheNextRow) {
    ChangeLineParser parser;
    EXPECT_FALSE(parser.IsHeading());
    parser.ParseChangeLine("<TR><TD>Name</TD>");
    parser.ParseChangeLine("Smyth");
    EXPECT_TRUE(parser.IsHeading());
    parser.ParseChangeLine("<TR><TD x>Elm</TD>");
    EXPECT_FALSE(parser.IsHeading());
}

TEST(ParseChangeLine, ForeignCharactersDoNotMoveTheCut) {
    // The small letters have capitals of the same length, the sharp s and the micro sign are their own.
    EXPECT_EQ(Contribution("<TR><TD x=\xFF\xE9\xDF\xB5>\xFF\xE9\xDF\xB5\x9A</TD>"), "\xFF\xE9\xDF\xB5\x9A");
}

TEST(ParseChangeLine, AgreesWithTheRulesWordForWordOnRandomPages) {
    constexpr const char* Pieces[] = {"<TR>",   "<tr>",     "<TR><TD>", "<tr><td>", "<td>",     "<td class=a>",
                                      "</td>",  "</tr>",    "<HEAD>",   "</head>",  "<TABLE",   "<!DOCTYPE",
                                      "<html>", "<",        ">",        " ",        "  ",       "Elm",
                                      "\xE9",   "&amp;Oak", "a",        "\t",       "<TR><TD ", "<html"};
    std::mt19937 random(20);
    for (int file = 0; file < 20000; ++file) {
        ChangeLineParser parser;
        SlowParser slow;
        for (int lines = 0; lines < 6; ++lines) {
            std::string line;
            for (auto pieces = random() % 8; pieces > 0; --pieces) {
                line += Pieces[random() % std::size(Pieces)];
            }
            ASSERT_EQ(parser.ParseChangeLine(line), slow.Parse(line)) << line;
            ASSERT_EQ(parser.IsHeading(), slow.cellKind == 1) << line;
        }
    }
}

// Blanks in front shift a cut by characters, and never into the middle of one.
TEST(ParseChangeLine, ALineInUtf8ContributesTheSameCharacters) {
    constexpr const char* pieces[] = {"<TR><TD>", "<tr>", "<td x>", "<", ">", " ", "   ", "\xE9", "\x80\xE9", "Elm"};
    std::mt19937 random(8);
    int contributions = 0;
    for (int round = 0; round < 50'000; ++round) {
        std::string line = Slow::RandomText(random, " ", 4);
        for (auto count = random() % 9; count > 0; --count) {
            line += pieces[random() % std::size(pieces)];
        }
        const std::string expected = Ansi::ToUtf8(ChangeLineParser().ParseChangeLine(line));
        ASSERT_EQ(ChangeLineParser(true).ParseChangeLine(Ansi::ToUtf8(line)), expected) << line;
        contributions += expected.size() > 2 ? 1 : 0;
    }
    EXPECT_GT(contributions, 5'000);
}
