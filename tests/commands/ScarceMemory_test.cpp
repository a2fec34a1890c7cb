// Every allocation of a command fails once: nothing that was committed is lost, and nothing comes back in part.

#include "commands/ScarceMemory.h"

#include "commands/CheckCommands.h"
#include "commands/EditingPlayer.h"
#include "file/DistrictFileWriter.h"
#include "recovery/UnsavedChanges.h"
#include "support/RecoveryText.h"

using namespace CommonRoutines;
using Control = Commands::Control;

namespace {

const std::string LongText = "a text that is too long to be kept where the record of its variation is";
const std::string Content =
    "#QX_NOTE\r\n" + HeaderOf("North") + "|Ash|Elm|Oak|Elm Tree\r\n" + HeaderOf("South") + "|Yew|" + LongText + "\r\n";

class ScarceMemoryTest : public StateTest {
protected:
    using Storage = std::shared_ptr<MemoryStateFolder::Storage>;

    // An editor that confirms everything. Those of one storage see each other's files.
    struct Editor {
        explicit Editor(const Storage& storage, const std::string& file = Content) {
            player.desktop.state.storage = storage;
            player.desktop.confirmsBoxes = true;
            player.desktop.recordReports = true;
            player.desktop.files[DataFilePath] = file;
        }
        void Open() {
            player.Do([](Commands::Session& session) { Commands::OpenPath(session, DataFilePath); });
        }

        CommandPlayer player;
    };

    // What the next editor has in the file after this one was killed.
    static std::string AfterCrash(const Storage& storage, Editor& editor) {
        const std::string file = editor.player.desktop.files[DataFilePath];
        editor.player.desktop.state.Die();
        ResetEverything();
        Editor next(storage, file);
        next.Open();
        return DistrictFileContent();
    }
};

} // namespace

TEST_F(ScarceMemoryTest, LeftOverChangesComeBackWholeOrStayLeftOver) {
    RecoveryFile leftOver;
    leftOver.file = {DataFilePath, FingerprintOf(Content)};
    leftOver.changes = {{2, 2, "Fir", {}}, {2, 5, LongText, 1}, {3, 1, "\t", {}}, {3, 3, "Larch", {}}};
    const std::string restored = "#QX_NOTE\r\n" + HeaderOf("North") + "|Ash|" + LongText + "|Fir|Oak|Elm Tree\r\n" +
                                 HeaderOf("South") + "|" + LongText + "|Larch\r\n";
    int closed = 0;
    int unchanged = 0;
    bool hasFailed = true;
    for (long before = 0; hasFailed; ++before) {
        ResetEverything();
        const auto storage = std::make_shared<MemoryStateFolder::Storage>();
        storage->files[RecoveryName(1, DataFilePath)] = RecoveryText(leftOver);
        Editor editor(storage);
        ScarceMemory memory(before);
        editor.Open();
        hasFailed = memory.End();
        if (const std::string table = DistrictFileContent(); table != restored) {
            ASSERT_EQ(table, sDataFileName.empty() ? "" : Content) << before;
            ++(sDataFileName.empty() ? closed : unchanged);
            editor.Open();
        }
        ASSERT_EQ(DistrictFileContent(), restored) << before;
        ASSERT_EQ(AfterCrash(storage, editor), restored) << before;
    }
    EXPECT_GT(closed, 0);
    EXPECT_GT(unchanged, 0) << "where the left-over file alone is too much";
}

TEST_F(ScarceMemoryTest, WhateverACommandHasDoneIsInTheRecoveryFileToo) {
    const auto choose = [](CommandPlayer& player) { player.ChooseDistrict(2); };
    const auto select = [=](CommandPlayer& player) {
        choose(player);
        player.Select({1});
    };
    const auto type = [=](CommandPlayer& player) {
        select(player);
        player.Enter(LongText + "s");
    };
    const auto press = [](Control control) { return [=](CommandPlayer& player) { player.Press(control); }; };
    using Act = std::function<void(CommandPlayer&)>;
    const std::vector<std::pair<Act, Act>> commands{
        {[](CommandPlayer&) {}, choose},
        {choose,
         [](CommandPlayer& player) {
             player.Select({0, 2});
         }},
        {type, press(Control::cbOk)},
        {select, press(Control::cbDelete)},
        {[=](CommandPlayer& player) {
             type(player);
             player.Press(Control::cbOk);
         },
         press(Control::cbUndo)},
        {[=](CommandPlayer& player) {
             select(player);
             player.Press(Control::cbDelete);
         },
         press(Control::cbCompleteCheck)},
        {[=](CommandPlayer& player) {
             choose(player);
             player.desktop.files["/data/proposals.txt"] = LongText + "\r\n";
             player.Do([](Commands::Session& session) { Commands::ProcessPath(session, "/data/proposals.txt"); });
         },
         press(Control::cbApplyAll)},
    };
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const auto& [prepare, act] = commands[i];
        std::string done;
        for (long before = -1;; ++before) {
            ResetEverything();
            const auto storage = std::make_shared<MemoryStateFolder::Storage>();
            Editor editor(storage);
            editor.Open();
            prepare(editor.player);
            ScarceMemory memory(before); // at first, there is enough
            try {
                act(editor.player);
            } catch (const std::bad_alloc&) {
                // It was the player's own.
            }
            const bool hasFailed = memory.End();
            editor.player.Do([](Commands::Session&) {}); // what the user does next, whatever it is
            const std::string table = DistrictFileContent();
            const std::string restored = AfterCrash(storage, editor);
            done = before < 0 ? table : done;
            // What could not be shown any more may have been noted already.
            ASSERT_TRUE(restored == table || restored == done) << "command " << i << ", allocation " << before;
            if (!hasFailed && before >= 0) {
                break;
            }
        }
    }
}

TEST_F(ScarceMemoryTest, AFileIsSavedWholeOrNotAtAll) {
    bool hasFailed = true;
    for (long before = 0; hasFailed; ++before) {
        ResetEverything();
        const auto storage = std::make_shared<MemoryStateFolder::Storage>();
        Editor editor(storage);
        editor.Open();
        editor.player.ChooseDistrict(2);
        editor.player.Select({1});
        editor.player.Press(Control::cbDelete);
        const std::string table = DistrictFileContent();
        editor.player.desktop.savesTo = DataFilePath;
        ScarceMemory memory(before);
        editor.player.Press(Control::cbSave);
        hasFailed = memory.End();
        const std::string& file = editor.player.desktop.files[DataFilePath];
        ASSERT_TRUE(file == Content || file == table) << before;
        ASSERT_EQ(DistrictFileContent(), table) << before;
        ASSERT_EQ(AfterCrash(storage, editor), table) << before;
    }
}
