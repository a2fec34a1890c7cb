#pragma once

#include "ui/windows/ProposalsTest.h"

// The main window while variations are being edited. The window is the active one, so that keys and
// shortcuts reach it as they do on a desktop.
class EditingTest : public ProposalsTest {
protected:
    EditingTest() { Activate(*form); }

    QLineEdit& Box() { return Find<QLineEdit>("tbEdit"); }
    // Types one character that the keyboard of the test has no key for.
    void TypeForeign(const QString& character) {
        QTest::sendKeyEvent(QTest::Click, &Box(), Qt::Key_unknown, character, Qt::NoModifier);
    }
    // Presses a key where the focus is.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(form->focusWidget(), key, modifiers);
    }
    std::string Focus() { return form->focusWidget()->objectName().toStdString(); }

    void Select(const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ClickRow("lvVariations", text, modifiers);
    }
    void Add(const QString& text) {
        Click("cbAdd");
        Type(text);
        Click("cbOk");
    }
    // Replaces the text of a variation.
    void Edit(const QString& from, const QString& to) {
        Select(from);
        Box().selectAll();
        Type(to);
        Click("cbOk");
    }
    void ExpectDeleteQuestion(const std::string& what,
                              CommonRoutines::BoxAnswer answer = CommonRoutines::BoxAnswer::Yes) {
        desktop.ExpectBox("Are you sure you want to delete " + what, CommonRoutines::BoxIcon::Question,
                          CommonRoutines::BoxButtons::YesNo, answer);
    }
    void Delete(const QString& text) {
        Select(text);
        ExpectDeleteQuestion("variation " + text.toStdString());
        Click("cbDelete");
    }
    // Saves, so that only what comes next counts as a change.
    void Save() {
        desktop.ExpectSave(DataFilePath);
        desktop.ExpectBox("File Saved to " + DataFilePath, CommonRoutines::BoxIcon::Information);
        Click("cbSave");
    }

    // The variations of a district, slot by slot; a deleted one is a tab.
    static std::string Slots(std::int32_t district = Alpha) {
        const CommonRoutines::DistrictRecord& record = DistrictAt(district);
        std::string slots;
        for (std::int32_t i = 1; i <= record.lVariationCount; ++i) {
            slots += "|" + VariationAt(district, i).Text;
        }
        return slots;
    }
    void ExpectNothingChanged(const std::string& slots = "|Alfa|Betta") {
        EXPECT_EQ(Slots(), slots);
        EXPECT_EQ(TextOf("lbUndo"), QString());
        EXPECT_FALSE(CommonRoutines::bChanged);
    }

    // Where the districts stand in the table.
    static constexpr std::int32_t Alpha = 1;
    static constexpr std::int32_t Beta = 3;
};
