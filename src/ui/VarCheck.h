#pragma once

#include "core/Report.h"

#include <QDialog>

#include <string>

class Desktop;
class RowList;

// The report window: a list of lines that can be copied, printed and saved.
class VarCheck : public QDialog {
public:
    // `report` and `desktop` must live as long as the window.
    VarCheck(const Report& report, Desktop& desktop, QWidget* parent);

private:
    void BuildList();
    void BuildButtons();
    [[nodiscard]] const std::string& DataFile();

    const Report& m_report;
    Desktop& m_desktop;
    std::string m_dataFile; // that the report is about; empty until first needed
    RowList* List1 = nullptr;
};
