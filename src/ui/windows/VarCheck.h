#pragma once

#include "core/Report.h"

#include <QDialog>

#include <string>

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

namespace Ui {

class RowList;

// The report window: a list of lines that can be copied, printed and saved.
class VarCheck : public QDialog {
public:
    // `report` and `desktop` must live as long as the window.
    VarCheck(const CommonRoutines::Report& report, CommonRoutines::Desktop& desktop, QWidget* parent);

private:
    void BuildList();
    void BuildButtons();
    [[nodiscard]] const std::string& DataFile();

    const CommonRoutines::Report& m_report;
    CommonRoutines::Desktop& m_desktop;
    std::string m_dataFile; // that the report is about; empty until first needed
    RowList* List1 = nullptr;
};

} // namespace Ui
