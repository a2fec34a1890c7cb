#pragma once

#include "commands/EditingPlayer.h"
#include "commands/EditingRound.h"

#include <random>

// Wanders through all that the window offers, led by chance and by what is shown: also through filters, openings
// that are cancelled, proposals and lists that were emptied. Two players that show the same are led the same way.
class Wandering {
public:
    Wandering(EditingPlayer& player, std::uint32_t seed) : m_random(seed), m_player(player) {
        m_player.desktop.confirmsBoxes = true;
        m_player.desktop.files["/changes/new.txt"] = "Elm\r\nSmi?h\r\nSm_th\r\nAsh\r\n<TR><TD>Head</TD>\r\n";
        m_player.Open("#QX_NOTE of North\r\n" + HeaderOf("North") + "|Ash|!Oak|Sm_th\r\n" + HeaderOf("South") +
                          "|ash|Ash\r\n#QX_ODD\r\n" + HeaderOf("East") + "\r\n#QX_LAST of none\r\n",
                      {});
    }

    void DoSomething() {
        const ShownWindow shown = m_player.Shown();
        switch (UpTo(9)) {
        case 0:
        case 1:
            return ChooseDistrict(shown);
        case 2:
            return Select(shown);
        case 3:
            return Enter(shown);
        case 4:
            return ChooseType(shown);
        case 5:
            return UseProposal(shown);
        case 6:
            return TakeUp(shown);
        default:
            return PressSomething();
        }
    }

private:
    using Control = Commands::Control;

    std::size_t UpTo(std::size_t most) { return m_random() % (most + 1); }

    void ChooseDistrict(const ShownWindow& shown) {
        if (shown.districts.empty()) {
            return;
        }
        const std::string& name = shown.districts[UpTo(shown.districts.size() - 1)];
        m_player.ChooseDistrict(name == "North" ? 2 : name == "South" ? 3 : 5);
    }

    void Select(const ShownWindow& shown) {
        std::vector<int> rows;
        for (std::size_t row = 0; row < shown.variations.size(); ++row) {
            if (UpTo(1) == 0) {
                rows.push_back(static_cast<int>(row));
            }
        }
        if (!rows.empty()) {
            m_player.Select(rows);
        }
    }

    void TakeUp(const ShownWindow& shown) {
        if (!shown.chosenVariations.empty()) {
            m_player.TakeUp();
        }
    }

    void Enter(const ShownWindow& shown) {
        const std::string& text = TameTexts[UpTo(TameTexts.size() - 1)];
        if (m_player.IsEnabled(Control::tbEdit) && text != shown.box) {
            m_player.Enter(text);
        }
    }

    void ChooseType(const ShownWindow& shown) {
        if (m_player.IsEnabled(Control::lbComments)) {
            m_player.ChooseType(static_cast<int>(UpTo(shown.commentTypes - 1)));
        }
    }

    void UseProposal(const ShownWindow& shown) {
        if (shown.proposals.empty()) {
            return;
        }
        const auto row = static_cast<int>(UpTo(shown.proposals.size() - 1));
        if (UpTo(1) == 0) {
            m_player.ClickTick(row);
        } else {
            m_player.ClickProposal(row);
        }
    }

    // What its dialogue, if it has one, is answered with.
    void PressSomething() {
        const auto control = static_cast<Control>(UpTo(Commands::ControlCount - 1));
        if (Commands::CommandOf(control).place.frame == Commands::Frame::None || !m_player.IsEnabled(control)) {
            return;
        }
        const bool isCancelled = UpTo(1) == 0;
        const auto path = [&](const std::string& chosen) { return isCancelled ? std::nullopt : std::optional(chosen); };
        if (control == Control::cbOpen) {
            m_player.desktop.ExpectOpen(path(DataFilePath));
        } else if (control == Control::btnProcess) {
            m_player.desktop.ExpectOpen(path("/changes/new.txt"));
        } else if (control == Control::cbSave) {
            m_player.desktop.ExpectSave(path("/data/other.txt"));
        } else if (control == Control::cbSaveVariations) {
            m_player.desktop.ExpectSave(std::nullopt);
        }
        m_player.Press(control);
    }

    std::minstd_rand m_random;
    EditingPlayer& m_player;
};
