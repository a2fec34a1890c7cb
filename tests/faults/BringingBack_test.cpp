// What comes back of the changes of a killed session, as its user answers the question about them.

#include "FaultTest.h"

namespace {

class BringingBackTest : public FaultTest {
protected:
    void LeaveEdits(const Steps& steps) const {
        Session session(place, Steps{"open", place.file} + steps + Steps{"pause"});
        ASSERT_TRUE(session.WaitForStop());
        session.Kill();
    }
    // What a session says that opens the file with an answer, and saves what there is to save.
    std::string SaidWith(const Steps& answer) const {
        Session session(place, answer + RecoverAndSave());
        session.Finish();
        EXPECT_TRUE(session.Finished()) << session.Said();
        return session.Said();
    }
    // One file among those of unsaved changes, and no other.
    [[nodiscard]] std::filesystem::path OnlyFile(std::string_view extension) const {
        std::filesystem::path found;
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(state)) {
            if (entry.path().extension() == ".changes" || entry.path().extension() == ".aside") {
                found = entry.path();
                ++count;
            }
        }
        EXPECT_EQ(count, 1);
        EXPECT_EQ(found.extension(), extension);
        return found;
    }
    // A variation of the only line is deleted and saved, taken back, and the editor killed.
    void ExpectDeletedAndTakenBack(const std::string& content, const std::string& saved) {
        const Steps deleteOne{"edits", "3", "3"};
        const Steps undo{"edits", "7", "7"};
        PrepareDisk(content);
        LeaveEdits(deleteOne + Steps{"save", place.file} + undo);
        ExpectContent(place.file, saved);
        const std::string said = SaidWith({});
        EXPECT_NE(said.find(Question), std::string::npos) << said;
        EXPECT_TRUE(said.ends_with("\nsaving\nsaved\nfinished\n")) << said;
        ExpectContent(place.file, content);
    }

    static constexpr std::string_view Question = "box There are unsaved changes of ";
    static constexpr std::string_view NothingDone = "opened\nnothing to save\nfinished\n";
    const Steps edits{"edits", "1", std::to_string(Edits)};
};

constexpr const char* Header = "Ystrad Mynach+X4+GB+9999+9+9999+9+2633332+PPLA2";

} // namespace

TEST_F(BringingBackTest, AVariationThatWasDeletedAndSavedComesBackInItsPlace) {
    ExpectDeletedAndTakenBack(std::string(Header) + "|Alpha|Bravo|Charlie|Delta|Echo\r\n",
                              std::string(Header) + "|Alpha|Bravo|Charlie|Echo\r\n");
}

TEST_F(BringingBackTest, TheOnlyOneInUtf8MakesTheFileUtf8Again) {
    ExpectDeletedAndTakenBack(std::string(Header) + "|Bravo|\xC5\xBBorawina|Charlie|Delta\r\n",
                              std::string(Header) + "|Bravo|Charlie|Delta\r\n");
}

TEST_F(BringingBackTest, EscLeavesThemToBeOfferedAgain) {
    PrepareDisk();
    LeaveEdits(edits);
    const std::string content = ContentOf(OnlyFile(".changes")).value();
    const std::string said = SaidWith({"postpone"});
    EXPECT_TRUE(said.starts_with(Question)) << said;
    EXPECT_TRUE(said.ends_with(NothingDone)) << said;
    ExpectContent(place.file, OldContent());
    ExpectContent(OnlyFile(".changes"), content);
    ExpectRecovered(Edits);
}

TEST_F(BringingBackTest, NoKeepsThemAsideUnderANameFromWhichTheyCanBeHadBack) {
    PrepareDisk();
    LeaveEdits(edits);
    const std::filesystem::path file = OnlyFile(".changes");
    const std::string content = ContentOf(file).value();
    const std::string said = SaidWith({"refuse"});
    EXPECT_TRUE(said.starts_with(Question)) << said;
    EXPECT_NE(said.find("\nbox The changes are kept in\n"), std::string::npos) << said;
    EXPECT_EQ(SaidWith({}), NothingDone);
    ExpectContent(place.file, OldContent());
    const std::filesystem::path aside = OnlyFile(".aside");
    ExpectContent(aside, content);
    std::filesystem::rename(aside, file);
    ExpectRecovered(Edits);
}
