#pragma once

#include "core/State.h"
#include "file/CommentTypes.h"
#include "support/ScriptedDesktop.h"
#include "ui/Form1.h"
#include "ui/RowList.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>

// The main window on a scripted desktop, shown offscreen, with an empty table. Controls are found by
// their names and driven by mouse and keys.
class FormTest : public testing::Test {
protected:
    FormTest();
    ~FormTest() override;

    template <typename Control>
    Control& Find(const char* name) {
        auto* control = form->findChild<Control*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }

    void Click(const char* button);
    // Clicks on the row with this text in its first column.
    void ClickRow(const char* list, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // The texts of a column of a list.
    QStringList Column(const char* list, int column = 0);
    QString TextOf(const char* label);
    bool Enabled(const char* control);

    // Opens a file with this content by clicking on "Open File". Prompts of the reading must have
    // been expected before; reports are only recorded.
    void OpenContent(const std::string& content, const std::string& path = "/data/districts.txt");

    ScriptedDesktop desktop;
    std::unique_ptr<Form1> form;
};
