#pragma once

#include "commands/DistrictCommands.h"
#include "commands/EditCommands.h"
#include "commands/FileCommands.h"
#include "commands/ProposalCommands.h"
#include "commands/Session.h"
#include "commands/VariationCommands.h"
#include "support/Reading.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

// A window that is never seen.
class QuietScreen : public Commands::Screen {
public:
    void Show(const Commands::WindowView& view) override { shown = view; }
    void StartColumnWidths() override {}
    void AddDistrictRow(const CommonRoutines::DistrictRecord& /*record*/) override {}
    void SetColumnWidths() override {}
    void SizeCommentColumn() override {}

    Commands::WindowView shown; // last
};

// What a window shows, as texts; the same for one that is never seen and for the real one.
struct ShownWindow {
    std::vector<std::string> districts;
    std::vector<int> chosenDistricts;
    std::vector<std::string> variations; // each with the number of its state
    std::vector<int> chosenVariations;
    std::vector<std::string> reasons;   // of the states of the variations
    std::size_t commentTypes = 0;       // how many
    std::vector<std::string> proposals; // each with its tick
    std::vector<std::string> labels;    // by name
    std::string box;
    std::string options; // those that are ticked
    std::string enabled; // the controls that are
    std::vector<std::string> hints;
    std::vector<std::string> obstacles; // what would enable each control that can be seen
    bool variationsInHand = false;
    std::string focus; // where the command has led it; empty where it stays

    bool operator==(const ShownWindow&) const = default;

    friend std::ostream& operator<<(std::ostream& out, const ShownWindow& shown) {
        const auto list = [&](const char* name, const auto& items) {
            out << '\n' << name;
            for (const auto& item : items) {
                out << " [" << item << ']';
            }
        };
        list("districts", shown.districts);
        list("chosen", shown.chosenDistricts);
        list("variations", shown.variations);
        list("chosen", shown.chosenVariations);
        list("proposals", shown.proposals);
        list("labels", shown.labels);
        list("hints", shown.hints);
        list("reasons", shown.reasons);
        list("obstacles", shown.obstacles);
        out << "\ncomment types " << shown.commentTypes;
        return out << "\nbox [" << shown.box << "] options " << shown.options << "\nenabled " << shown.enabled
                   << "\nin hand " << shown.variationsInHand << "\nfocus " << shown.focus;
    }
};

// Nothing of it is seen, so that nothing can say what would enable it.
inline bool HasKeyAlone(const Commands::Command& command) {
    return command.control >= Commands::Control::guide;
}

// One who uses the program: what a user can do, and what he sees.
class EditingPlayer {
public:
    EditingPlayer() { desktop.files["/program/qx_lower.txt"] = "of,the,upon\r\n"; }
    EditingPlayer(const EditingPlayer&) = delete;
    EditingPlayer& operator=(const EditingPlayer&) = delete;
    virtual ~EditingPlayer() = default;

    virtual void ChooseDistrict(std::int32_t line) = 0;
    virtual void Select(const std::vector<int>& rows) = 0;
    // The variations that are selected already are taken up again.
    virtual void TakeUp() = 0;
    // Clicks on a comment type, and on the box or the text of a proposal.
    virtual void ChooseType(int row) = 0;
    virtual void ClickTick(int row) = 0;
    virtual void ClickProposal(int row) = 0;
    // The box holds this text from now on, which it did not before.
    virtual void Enter(const std::string& text) = 0;
    virtual void Press(Commands::Control button) = 0;
    // False where the window stays.
    virtual bool Close() = 0;
    [[nodiscard]] virtual ShownWindow Shown() const = 0;
    [[nodiscard]] virtual bool IsEnabled(Commands::Control control) const = 0;

    // Opens a file, whose districts of one name are asked about.
    void Open(const std::string& content, const std::vector<std::string>& repeatedNames) {
        desktop.recordReports = true;
        desktop.files[DataFilePath] = content;
        desktop.ExpectOpen(DataFilePath);
        ExpectRepeatedNames(repeatedNames);
        Press(Commands::Control::cbOpen);
    }
    void ExpectRepeatedNames(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            desktop.ExpectBox("District " + name + " is duplicated in that file", CommonRoutines::BoxIcon::Critical,
                              CommonRoutines::BoxButtons::OkCancel);
        }
    }

    ScriptedDesktop desktop;
};

// Gives the commands, without a window.
class CommandPlayer : public EditingPlayer {
public:
    CommandPlayer() { m_session.Run(Commands::Start); }

    void ChooseDistrict(std::int32_t line) override {
        const auto& rows = *m_session.view.districts.rows;
        const auto row = static_cast<int>(std::find(rows.begin(), rows.end(), line) - rows.begin());
        m_session.Run([=](Commands::Session& session) { Commands::ChooseDistrict(session, {row}); });
    }
    void Select(const std::vector<int>& rows) override {
        m_session.Run([&](Commands::Session& session) { Commands::SelectVariations(session, rows); });
    }
    void TakeUp() override { m_session.Run(Commands::TakeUpSelection); }
    void ChooseType(int row) override {
        Do([=](Commands::Session& session) { Commands::ChooseCommentType(session, {row}); });
    }
    // A click on a box highlights nothing, but is a reason to look at what is highlighted.
    void ClickTick(int row) override {
        Do([](Commands::Session& session) {
            Commands::HighlightProposals(session, std::vector<int>(session.view.proposals.selected));
        });
        const bool ticked = View().proposals.At(row).ticked;
        Do([=](Commands::Session& session) { Commands::TickProposal(session, row, !ticked); });
    }
    void ClickProposal(int row) override {
        Do([=](Commands::Session& session) { Commands::HighlightProposals(session, {row}); });
        Do([=](Commands::Session& session) { Commands::ClickProposal(session, row); });
    }
    void Enter(const std::string& text) override {
        m_session.Run([&](Commands::Session& session) { Commands::TypeText(session, text); });
    }
    void Press(Commands::Control button) override { m_session.Run(Commands::CommandOf(button).run); }

    bool Close() override {
        bool isClosed = false;
        Do([&](Commands::Session& session) { isClosed = Commands::ConfirmClose(session); });
        return isClosed;
    }

    // A command without a button.
    void Do(const std::function<void(Commands::Session&)>& command) { m_session.Run(command); }

    [[nodiscard]] const Commands::WindowView& View() const { return m_screen.shown; }
    [[nodiscard]] bool IsEnabled(Commands::Control control) const override { return View().IsEnabled(control); }

    [[nodiscard]] ShownWindow Shown() const override {
        const Commands::WindowView& view = View();
        ShownWindow shown;
        for (const std::int32_t district : *view.districts.rows) {
            shown.districts.emplace_back(DistrictAt(district).Name());
        }
        shown.chosenDistricts = view.districts.selected;
        for (const CommonRoutines::VariationRow& row : *view.variations.rows) {
            shown.variations.push_back(std::string(VariationAt(view.variationsOf, row.slot).Text) + " " +
                                       std::to_string(static_cast<int>(row.state)));
            shown.reasons.push_back(
                CommonRoutines::ReasonOf(row.state, view.variationsOf, VariationAt(view.variationsOf, row.slot)));
        }
        shown.chosenVariations = view.variations.selected;
        shown.commentTypes = view.commentTypes.count;
        for (const CommonRoutines::Proposal& proposal : *view.proposals.rows) {
            shown.proposals.push_back(proposal.text + (proposal.ticked ? " ticked" : ""));
        }
        shown.labels = {view.StatusLine(),
                        view.nextUndo,
                        view.whyError.text,
                        view.whyError.warns ? "warns" : "",
                        std::to_string(static_cast<int>(view.whyError.ink)),
                        view.applyTo > 0 ? std::string(DistrictAt(view.applyTo).Name()) : "",
                        std::string(view.shriekCaption),
                        std::string(view.dateCaption),
                        view.doing,
                        view.selectCount};
        for (const std::string_view hint :
             {view.hints.districts, view.hints.variations, view.hints.proposals, view.hints.comments}) {
            shown.hints.emplace_back(hint);
        }
        shown.variationsInHand = view.AreVariationsInHand();
        shown.box = view.edit.text;
        shown.options = std::string(view.edit.options.spelling ? "spelling " : "") +
                        (view.edit.options.variation ? "variation " : "") +
                        (view.edit.options.validInYears ? "years " : "") + (view.edit.options.volume ? "volume " : "");
        for (const Commands::Command& command : Commands::AllCommands()) {
            shown.enabled += view.IsEnabled(command.control) ? std::string(command.name) + ' ' : "";
            if (!HasKeyAlone(command)) {
                shown.obstacles.emplace_back(view.ObstacleTo(command.control));
            }
        }
        shown.focus = NameOf(view.focus);
        return shown;
    }

private:
    static std::string NameOf(Commands::Focus focus) {
        switch (focus) {
        case Commands::Focus::Districts:
            return "lvAlpha";
        case Commands::Focus::Variations:
            return "lvVariations";
        case Commands::Focus::Proposals:
            return "LvChanges";
        case Commands::Focus::FindBox:
            return "tbFind";
        case Commands::Focus::EditBox:
        case Commands::Focus::WholeText:
            return "tbEdit";
        case Commands::Focus::OpenButton:
            return "cbOpen";
        case Commands::Focus::Stays:
            break;
        }
        return "";
    }

    QuietScreen m_screen;
    Commands::Session m_session{desktop, m_screen};
};
