#pragma once

#include "commands/Session.h"
#include "ui/windows/Form1Controls.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>
#include <string>

class QShortcut;

namespace Ui {

class ProposalFind;
class ProposalModel;
class CommentModel;
class CommentTypeModel;
class DistrictColumns;
class DistrictModel;
class VariationModel;

// The main window. It turns events into commands and shows what they end with; it decides nothing.
class Form1 : public QWidget, private Commands::Screen {
public:
    // `desktop` must live as long as the window.
    explicit Form1(CommonRoutines::Desktop& desktop);
    ~Form1() override;

    // What happens once before the window is used: the word list is read, all is set for "no file".
    void LoadForm();
    // What happens once when the window is shown: there may be files to mend.
    void MendFiles();

    // Opens the find bar of the proposals where the focus is among them or their buttons; otherwise the answer is
    // false.
    [[nodiscard]] bool FindInProposals();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    // Runs a command, unless the window is only being painted in the middle of another one.
    void Run(const std::function<void(Commands::Session&)>& command);

    [[nodiscard]] Commands::Control ButtonForDropAt(const QPoint& position) const;
    [[nodiscard]] bool MayPress(Commands::Control button) const;

    void SetModels();
    void ConnectCommands();
    void ConnectKey(const Commands::Command& command);
    void ConnectEditPanel();
    void ConnectLists();
    void ConnectProposals();
    void ConnectFind();

    // What a command has ended with, or what stands behind its question.
    void Show(const Commands::WindowView& view) override;
    void ShowLists(const Commands::WindowView& view);
    void WrapComments(std::int32_t district);
    void ShowEnabled(const Commands::WindowView& view);
    void ShowToolTips(const Commands::WindowView& view);
    void ShowTexts(const Commands::WindowView& view);
    void ShowCaptions(const Commands::WindowView& view);
    void ShowEditPanel(const Commands::EditView& edit);
    void ShowHints(const Commands::HintsView& hints);
    void ShowOpenFile(const std::string& path);
    void ShowFocus(Commands::Focus focus);
    void ShowFind(const Commands::WindowView& view);

    void StartColumnWidths() override;
    void AddDistrictRow(const CommonRoutines::DistrictRecord& record) override;
    void SetColumnWidths() override;
    void SizeCommentColumn() override;

    void SizeWideColumns();
    void FitWindowToScreen();

    Form1Controls m_controls;
    std::array<QShortcut*, Commands::ControlCount> m_keysAlone{}; // of commands without a control that is seen
    DistrictModel* m_districts = nullptr;
    VariationModel* m_variations = nullptr;
    ProposalModel* m_proposals = nullptr;
    ProposalFind* m_proposalFind = nullptr;
    CommentModel* m_comments = nullptr;
    CommentTypeModel* m_commentTypes = nullptr;
    std::unique_ptr<DistrictColumns> m_columns; // while the districts are being measured
    Commands::WindowView m_shown;               // last
    QTimer m_findingGoesOn;                     // soon
    bool m_fittedToScreen = false;
    bool m_tickedByClick = false; // the click being handled was on a check box
    Commands::Session m_session;
};

} // namespace Ui
