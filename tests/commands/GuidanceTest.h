#pragma once

#include "commands/EditingPlayer.h"
#include "commands/ProposalCommands.h"

// What the commands say in the view, in a file with the districts Alpha, which has variations, and Beta.
class GuidanceTest : public StateTest {
protected:
    void OpenTwo() {
        player.Open("#QX_NOTE about Alpha\r\n" + HeaderOf("Alpha") + "|Alfa|Betta\r\n#QX_ODD\r\n" + HeaderOf("Beta") +
                        "\r\n",
                    {});
    }
    void ChooseAlpha() {
        OpenTwo();
        player.ChooseDistrict(2);
    }
    void Filter(int type) {
        player.Do([=](Commands::Session& session) { Commands::ChooseCommentType(session, {type}); });
    }
    void CancelOpening() {
        player.desktop.ExpectOpen(std::nullopt);
        player.Press(Commands::Control::cbOpen);
    }
    void Process(const std::string& content) {
        player.desktop.files["/changes/new.txt"] = content;
        player.desktop.ExpectOpen("/changes/new.txt");
        player.Press(Commands::Control::btnProcess);
    }
    [[nodiscard]] const Commands::HintsView& Hints() const { return player.View().hints; }
    [[nodiscard]] std::string_view ObstacleTo(Commands::Control control) const {
        EXPECT_EQ(player.IsEnabled(control), player.View().ObstacleTo(control).empty());
        return player.View().ObstacleTo(control);
    }
    // Every disabled control says something, and no enabled one does.
    void ExpectAnObstacleWhereverDisabled() const {
        for (const Commands::Command& command : Commands::AllCommands()) {
            EXPECT_EQ(player.IsEnabled(command.control), player.View().ObstacleTo(command.control).empty())
                << command.name << " in mode " << CommonRoutines::iEditMode;
        }
    }

    CommandPlayer player;
};
