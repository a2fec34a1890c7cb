#pragma once

#include "ui/windows/Form1Controls.h"

#include <QWidget>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {
class Desktop;
enum class MarkerCommand;
enum class VariationState;
struct ChangeRow;
struct VariationRow;
} // namespace CommonRoutines

namespace Ui {

class ChangeModel;
class CommentModel;
class CommentTypeModel;
class DistrictModel;
class VariationModel;

// The main window. Its handlers read the controls, call the routine that decides, and show the
// result; the shared state of CommonRoutines is what they work on.
class Form1 : public QWidget {
public:
    // `desktop` must live as long as the window.
    explicit Form1(CommonRoutines::Desktop& desktop);

    // What happens once before the window is used: the word list is read, all is set for "no file".
    void LoadForm();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    // Where the per-user settings of the window are kept.
    struct Settings {
        static constexpr std::string_view Section = "Paths";
        static constexpr std::string_view DataFolder = "InFile";
        static constexpr std::string_view ChangeFolder = "ProcessFile";
    };

    void Run(void (Form1::*handler)()); // as Commands::Run does
    void SetModels();
    void ConnectButtons();
    void ConnectEditPanel();
    void ConnectLists();
    void AddShortcuts();

    // The file.
    void OpenClicked();
    void OpenDropped(const std::string& path);
    void OpenFile(const std::string& path);
    void SaveClicked();
    [[nodiscard]] bool MayDiscardChanges();
    void RememberFolder(const std::string& path, std::string_view key);
    void ResetWindow();
    void FillDistrictList();

    // The lists.
    void DistrictChosen();
    void VariationsChosen();
    void CommentTypeChosen();
    [[nodiscard]] std::vector<CommonRoutines::VariationRow> SelectedVariations() const;
    void RefreshVariationList();
    void ShowDistrictComments();
    void SizeCommentColumn();
    void SizeWideColumns();

    // Editing.
    void EditTextChanged();
    void UpdateMarkerOptions();
    void PutIntoEditBox(std::string_view text);
    void ResetEditPanel();
    void ReturnToIdle();
    void AddClicked();
    void OkClicked();
    void CancelClicked();
    void LeaveVariations();
    void DeleteClicked();
    void ShriekClicked();
    void DateClicked();
    void ChangeSelectedMarkers(CommonRoutines::MarkerCommand command, QPushButton& button);
    void UndoClicked();
    [[nodiscard]] bool GoToDistrict(std::int32_t district);
    void ShowNextUndo(std::string_view description);
    void SpellingClicked();
    void VariationClicked();
    void ChooseOption(QCheckBox& chosen, QCheckBox& other);

    // The change list and the whole-file commands.
    void ProcessClicked();
    void ShowChanges(std::vector<CommonRoutines::ChangeRow> rows);
    void ChangeTicked();
    void ChangeTickRefused();
    void ChangeRowClicked(const QModelIndex& index);
    void UpdateChangeSelection();
    void Apply(bool selectedOnly, bool asSpelling);
    void EditSelClicked();
    void ClearSelClicked();
    void CompleteCheckClicked();
    void SaveVariationsClicked();

    // The window as a whole.
    void ApplyWindowMode();
    void ShowHints();
    void FitWindowToScreen();
    void ShowWhyError(std::string_view text, CommonRoutines::VariationState state);
    void ClearWhyError();

    CommonRoutines::Desktop& m_desktop;
    Form1Controls m_controls;
    DistrictModel* m_districts = nullptr;
    VariationModel* m_variations = nullptr;
    ChangeModel* m_changes = nullptr;
    CommentModel* m_comments = nullptr;
    CommentTypeModel* m_commentTypes = nullptr;
    std::vector<std::int32_t> m_districtsByName; // all of the file; the filter chooses from them
    bool m_fittedToScreen = false;
    bool m_tickedByClick = false; // the click being handled was on a check box
};

} // namespace Ui
