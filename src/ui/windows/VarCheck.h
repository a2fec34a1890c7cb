#pragma once

#include "core/Report.h"

#include <QDialog>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

class QPushButton;

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

namespace Ui {

class FindBar;
class ReportFind;
class ReportModel;
class RowList;

// The report window: a list of lines that can be copied, printed and saved, and in which a text can be found. A line
// that names a place leads there, and the window is closed then.
class VarCheck : public QDialog {
public:
    // `report` and `desktop` must live as long as the window.
    VarCheck(const CommonRoutines::Report& report, CommonRoutines::Desktop& desktop, QWidget* parent);
    ~VarCheck() override;

    // Chooses a line before the window is shown, which then opens there.
    void OpenAt(std::size_t line);
    // The line that is chosen, or was when the window was closed.
    [[nodiscard]] std::optional<std::size_t> ChosenLine() const;
    // Where the user wants to go.
    [[nodiscard]] std::optional<CommonRoutines::ReportPlace> WantedPlace() const { return m_wanted; }

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildFind();
    void BuildList();
    void BuildButtons();
    void ConnectPlaces();
    [[nodiscard]] CommonRoutines::ReportPlace ChosenPlace() const;
    void GoTo(const CommonRoutines::ReportPlace& place);
    void ShowWhatEnterDoes();
    [[nodiscard]] const std::string& DataFile();

    const CommonRoutines::Report& m_report;
    CommonRoutines::Desktop& m_desktop;
    std::string m_dataFile; // that the report is about; empty until first needed
    std::optional<CommonRoutines::ReportPlace> m_wanted;
    ReportModel* m_model = nullptr;
    RowList* List1 = nullptr;
    FindBar* m_bar = nullptr;
    QPushButton* cbClose = nullptr;
    std::unique_ptr<ReportFind> m_find;
};

} // namespace Ui
