// Limits that the system sets a program: the size of a file, how many files may be open at once, and the memory.

#include "FaultTest.h"

namespace {

class LimitsTest : public FaultTest {
protected:
    LimitsTest() { PrepareDisk(); }

    // What a session says that meets a limit at some steps, and then, without it, saves all edits.
    std::string SaidWhen(const Steps& limited) {
        Steps steps = limited;
        steps.insert(steps.end(), {"unlimited", "save", place.file});
        Session session(place, steps);
        session.Finish();
        EXPECT_TRUE(session.Said().ends_with("\nsaving\nsaved\nfinished\n")) << session.Said();
        ExpectContent(place.file, ContentAfter(Edits));
        return session.Said();
    }

    const Steps edits{"edits", "1", std::to_string(Edits)};
};

constexpr std::string_view Warning = "\nbox Your changes cannot be written to the recovery file."
                                     "  They are only safe once the file is saved.\n";

} // namespace

TEST_F(LimitsTest, AFileThatMayNotGrowSoLargeIsNotSavedAndNothingIsLost) {
    const std::string said =
        SaidWhen(Steps{"open", place.file} + edits + Steps{"largest", "50000", "save", place.file, "close"});
    EXPECT_NE(said.find("\nsaving\nbox This will loose your changes.\nstill open\n"), std::string::npos) << said;
}

TEST_F(LimitsTest, WhereNoFileMayGrowAtAllThatIsSaidAndEditingGoesOn) {
    const std::string said = SaidWhen(Steps{"open", place.file, "largest", "1"} + edits);
    EXPECT_NE(said.find(Warning), std::string::npos) << said;
}

TEST_F(LimitsTest, WithoutAFreeHandleThatIsSaidAndEditingGoesOn) {
    // The fifth edit reads a file.
    const std::string said = SaidWhen({"open", place.file, "handles", "0", "edits", "1", "4", "save", place.file,
                                       "close", "unlimited", "edits", "5", std::to_string(Edits)});
    EXPECT_NE(said.find(Warning), std::string::npos) << said;
    // Whether others have changes to the file cannot be told either.
    EXPECT_NE(said.find("\nsaving\nbox There may be unsaved changes to this file"), std::string::npos) << said;
    EXPECT_NE(said.find("\nbox This will loose your changes.\nstill open\n"), std::string::npos) << said;
}

TEST_F(LimitsTest, WithoutAFreeHandleAFileIsNotOpenedAndLaterItIs) {
    const std::string said =
        SaidWhen(Steps{"handles", "0", "open", place.file, "unlimited", "open", place.file} + edits);
    EXPECT_TRUE(said.starts_with("box The file cannot be read:\n")) << said;
}

TEST_F(LimitsTest, WithoutMemoryWhatCannotBeDoneIsSaidAndNothingIsLost) {
    const std::string gazetteer = ContentOf(QUEXAL_DATA_DIR "/gazetteer-gb.txt").value();
    PrepareDisk(gazetteer);
    const Steps steps{"open",
                      place.file,
                      "edits",
                      "1",
                      "2",
                      "memory",
                      "0",
                      "edits",
                      "3",
                      "4",
                      "check",
                      "save",
                      place.file,
                      "close",
                      "unlimited",
                      "check",
                      "edits",
                      "5",
                      std::to_string(Edits),
                      "save",
                      place.file};
    Session session(place, steps);
    session.Finish();
    const std::string tooLittle = "\nbox There is not enough memory for that.\n";
    const std::string refused = "\nedit 4" + tooLittle + "checked\nsaving" + tooLittle +
                                "box This will loose your changes.\nstill open\nchecked\n";
    EXPECT_NE(session.Said().find(refused), std::string::npos) << session.Said();
    EXPECT_TRUE(session.Said().ends_with("\nsaving\nsaved\nfinished\n")) << session.Said();
    ExpectContent(place.file, SavedWithoutFault(gazetteer, Edits));
}
