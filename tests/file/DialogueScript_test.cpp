#include "file/DialogueScript.h"

#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

using namespace CommonRoutines;

namespace {

// What is wrong with a dialogue that nobody is going to play.
std::string Problem(const std::string& text) {
    ScriptedDesktop desktop;
    return ExpectDialogue(text, desktop);
}

} // namespace

TEST(DialogueScript, AnIncompleteDialogueIsRefused) {
    EXPECT_EQ(Problem(""), "neither a prompt nor \"no prompts\"");
    EXPECT_EQ(Problem("box exclamation\n> text\n"), "no answer at the end of: box");
    EXPECT_EQ(Problem("input\n> text\nchoice\n"), "unexpected prompt: choice ");
    EXPECT_EQ(Problem("no prompts\ninput\n"), "unexpected prompt: input ");
    EXPECT_EQ(Problem("input\n> text\nok\n"), "out of place: ok ");
    EXPECT_EQ(Problem("hello there\n"), "out of place: hello there");
    EXPECT_EQ(Problem("input\n> \\n\n"), "unknown escape in: \\n");
    EXPECT_EQ(Problem("no prompts\n"), "");
}

TEST(DialogueScript, EveryKindOfPromptIsPlayed) {
    ScriptedDesktop desktop;
    EXPECT_EQ(ExpectDialogue("box information\n> one\n> \\x00two \\\\\n>\nok\n\n"
                             "choice\n> which\nbuttons Combine Next, Quit\npress Quit\n\n"
                             "choice\n> which\nbuttons Quit\nleave\n\n"
                             "input\n> what\ntype \\x20this\n\n"
                             "input\n> what\ncancel\n\n"
                             "report The Report\n- one\n> more\n- two\nclose\n",
                             desktop),
              "");
    using Captions = std::vector<std::string>;
    EXPECT_EQ(desktop.MsgBox(std::string("one\r\n\0two \\\r\n", 13), BoxIcon::Information, BoxButtons::Ok),
              BoxAnswer::Ok);
    EXPECT_EQ(desktop.MyMsgBox("which", IconQuestion, "Null Variation", Captions{"Combine Next", "Quit"}), "Quit");
    EXPECT_EQ(desktop.MyMsgBox("which", IconQuestion, "Null Variation", Captions{"Quit"}), "");
    EXPECT_EQ(desktop.InputBox("what"), " this");
    EXPECT_EQ(desktop.InputBox("what"), std::nullopt);
    desktop.ShowReport({"The Report", {"one\r\nmore", "two"}, false});
}

TEST(DialogueScript, QuestionsAreAnsweredWithYesOrNo) {
    ScriptedDesktop desktop;
    EXPECT_EQ(ExpectDialogue("box question\n> sure\nyes\n\nbox question\n> sure\nno\n", desktop), "");
    EXPECT_EQ(desktop.MsgBox("sure", BoxIcon::Question, BoxButtons::YesNo), BoxAnswer::Yes);
    EXPECT_EQ(desktop.MsgBox("sure", BoxIcon::Question, BoxButtons::YesNo), BoxAnswer::No);
    EXPECT_EQ(Problem("input\n> what\nyes\n"), "out of place: yes ");
}

TEST(DialogueScript, AReportMayBePrintable) {
    ScriptedDesktop desktop;
    EXPECT_EQ(ExpectDialogue("report One\n- item\nprintable\nclose\n\nreport Two\n- item\nclose\n", desktop), "");
    desktop.ShowReport({"One", {"item"}, true});
    desktop.ShowReport({"Two", {"item"}, false});
    EXPECT_EQ(Problem("input\nprintable\n"), "out of place: printable ");
}
