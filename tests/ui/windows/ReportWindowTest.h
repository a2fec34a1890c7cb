#pragma once

#include "core/State.h"
#include "driver/WindowDriver.h"
#include "support/ScriptedDesktop.h"
#include "ui/windows/VarCheck.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>

// The report window by itself, on a scripted desktop.
class ReportWindowTest : public testing::Test, public Ui::WindowDriver {
protected:
    ReportWindowTest() {
        CommonRoutines::ResetState();
        CommonRoutines::sDataFileName = "C:\\data\\north.txt";
    }

    void Show() {
        window = std::make_unique<Ui::VarCheck>(report, desktop, nullptr);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    QWidget& Window() override { return *window; }
    Ui::RowList& List() { return Find<Ui::RowList>("List1"); }

    ScriptedDesktop desktop;
    CommonRoutines::Report report{"Duplicate Check", {"First finding", "Second\r\nfinding", "Third"}, true};
    std::unique_ptr<Ui::VarCheck> window;
    const std::vector<std::string> output{"Duplicate Check on File C:\\data\\north.txt",
                                          "Check performed on 05 Mar 2026 at 14:07",
                                          "",
                                          "First finding",
                                          "Second\r\nfinding",
                                          "Third"};
};
