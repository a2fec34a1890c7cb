#pragma once

#include "core/State.h"
#include "driver/WindowDriver.h"
#include "file/CommentTypes.h"
#include "support/Reading.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"
#include "ui/windows/Form1.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>

// The main window on a scripted desktop, shown offscreen, with an empty table.
class FormTest : public testing::Test, public Ui::WindowDriver {
protected:
    FormTest();
    ~FormTest() override;
    QWidget& Window() override { return *form; }
    // Makes the window anew.
    void ShowForm();

    // Opens a file with this content by clicking on "Open File". Reports are only recorded. Where the
    // reading asks something, ExpectFile, the prompts and the click are needed one by one.
    void OpenContent(const std::string& content, const std::string& path = DataFilePath);
    void ExpectFile(const std::string& content, const std::string& path = DataFilePath);
    // Opens a file whose only variation is a lone marker, giving this answer to the question about it.
    void OpenNullVariation(const std::string& answer);
    // The question before unsaved changes are lost.
    void ExpectLooseChanges(CommonRoutines::BoxAnswer answer);

    ScriptedDesktop desktop;
    std::unique_ptr<Ui::Form1> form;
};
