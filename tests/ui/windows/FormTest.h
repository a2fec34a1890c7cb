#pragma once

#include "core/State.h"
#include "file/CommentTypes.h"
#include "support/Reading.h"
#include "support/ScriptedDesktop.h"
#include "support/Table.h"
#include "ui/lists/RowList.h"
#include "ui/windows/Form1.h"

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
    // Clicks where the list has no row any more.
    void ClickBelowRows(const char* list);
    void Key(const char* control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    // The texts of a column of a list, and of its selected rows.
    QStringList Column(const char* list, int column = 0);
    QStringList Selected(const char* list);
    // The colour in which the row with this text is written.
    QColor RowColour(const char* list, const QString& text);
    QString TextOf(const char* label);
    // The colours of a label's text and of its background.
    QColor InkOf(const char* label);
    QColor PaperOf(const char* label);
    QString CaptionOf(const char* button);
    bool Enabled(const char* control);

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
